// Unpacking as the user sees it.
#pragma once

#include "archive/archive_unpacking.h"
#include "platform/message_box.h"
#include "state/program_state.h"
#include "work/archive_view.h"

namespace quorvin {

/// Unpacks as unpackArchive() does, with the progress on the bar of `Progress`. Its `CancelButton` and the
/// closing of the program end the unpacking.
UnpackingResult unpackArchiveShownIn(ArchiveView& view, const ProgramState& state, const QString& archivePath,
                                     const QString& targetFolder, std::int64_t archiveLength = -1);

/// Shows the user in a message box what was wrong with the archive; nothing when nothing was.
void showArchiveError(MessageBoxes& boxes, const UnpackingResult& result);

/// `Progress` as long as an unpacking lasts: shown with its bar from 0 to 100, and taken away on every way
/// out. A cancel request is dropped before and after, unless the program is closing.
class ShownUnpacking {
 public:
  /// Both must outlive the object.
  ShownUnpacking(ProgramState& state, ArchiveView& view, const QString& status);
  ~ShownUnpacking();
  ShownUnpacking(const ShownUnpacking&) = delete;
  ShownUnpacking& operator=(const ShownUnpacking&) = delete;

 private:
  void dropCancelRequest();

  ProgramState& state_;
  ArchiveView& view_;
};

}  // namespace quorvin
