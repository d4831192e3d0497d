// Getting the main data file out of its archive at start-up.
#pragma once

#include "platform/message_box.h"
#include "state/program_state.h"
#include "update/archive_extraction.h"
#include "work/archive_view.h"

namespace quorvin {

/// Unpacks an archive with the main window and `Progress` shown.
class DataFileExtraction : public ArchiveExtraction {
 public:
  /// All must outlive the object.
  DataFileExtraction(ProgramState& state, ArchiveView& view, MessageBoxes& boxes);

  /// What is wrong with the archive is reported in a message box before fault 75 is thrown. A file that
  /// cannot be written is a fault as unpackArchive() throws it. After a fault `Progress` is taken away too.
  /// The user may cancel; that is no fault.
  void extractArchive(const QString& archivePath, const QString& targetFolder) override;

 private:
  ProgramState& state_;
  ArchiveView& view_;
  MessageBoxes& boxes_;
};

}  // namespace quorvin
