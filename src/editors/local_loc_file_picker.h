// The system's own dialogs for picking files and folders, as both editors use them.
#pragma once

#include "editors/file_picker.h"

namespace quorvin {

/// Shows the native dialogs where the system has them, over the window that is in use.
class DialogFilePicker : public FilePicker {
 public:
  std::optional<QString> openFile(const FileQuestion& question) override;
  std::optional<QString> pickFolder(const FileQuestion& question) override;
};

}  // namespace quorvin
