// Unpacking as the user sees it.
#pragma once

#include "net/archive_unpacking.h"
#include "net/archive_view.h"
#include "platform/message_box.h"
#include "state/program_state.h"

namespace quorvin {

/// Shows the events of an unpacking: errors in a message box, the percentage on the bar of `Progress`. The
/// `CancelButton` ends the unpacking.
class ArchiveDisplay : public ArchiveEvents {
 public:
  /// All must outlive the object.
  ArchiveDisplay(const ProgramState& state, ArchiveView& view, MessageBoxes& boxes);

  void archiveError(std::int32_t code, const QString& description) override;
  void percentDone(double percentage) override;
  void idleTick(std::int32_t number) override;
  void fileNotice(const QString& name, std::int64_t bytes) override;
  bool stopRequested() const override;

 private:
  const ProgramState& state_;
  ArchiveView& view_;
  MessageBoxes& boxes_;
};

}  // namespace quorvin
