#include "net/archive_display.h"

namespace quorvin {

ArchiveDisplay::ArchiveDisplay(const ProgramState& state, ArchiveView& view, MessageBoxes& boxes)
    : state_(state), view_(view), boxes_(boxes) {}

void ArchiveDisplay::archiveError(std::int32_t, const QString& description) {
  boxes_.inform(QStringLiteral("Archive Error: ") + description);
}

void ArchiveDisplay::percentDone(double percentage) {
  view_.setBar(static_cast<std::int32_t>(percentage));
  view_.processEvents();
}

void ArchiveDisplay::idleTick(std::int32_t) {
  view_.processEvents();
}

void ArchiveDisplay::fileNotice(const QString&, std::int64_t) {}

bool ArchiveDisplay::stopRequested() const {
  return state_.AbortRequested || state_.QuitPending || view_.endRequested();
}

}  // namespace quorvin
