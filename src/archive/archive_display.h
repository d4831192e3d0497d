// Unpacking as the user sees it.
#pragma once

#include "archive/archive_unpacking.h"
#include "platform/message_box.h"
#include "state/program_state.h"
#include "work/archive_view.h"

namespace quorvin {

/// Shows how far an unpacking is on the bar of `Progress`, and keeps what was wrong. The `CancelButton` ends
/// the unpacking.
class ArchiveDisplay : public ArchiveEvents {
 public:
  /// Both must outlive the object.
  ArchiveDisplay(const ProgramState& state, ArchiveView& view) : state_(state), view_(view) {}

  /// What the error event told; empty when there was none.
  const QString& error() const { return error_; }
  /// Tells it in a message box.
  void tellError(MessageBoxes& boxes) const;

  void archiveError(std::int32_t code, const QString& description) override;
  void percentDone(double percentage) override;
  void idleTick(std::int32_t number) override;
  void fileNotice(const QString& name, std::int64_t bytes) override;
  bool stopRequested() const override;

 private:
  const ProgramState& state_;
  ArchiveView& view_;
  QString error_;
};

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
