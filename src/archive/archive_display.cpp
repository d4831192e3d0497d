#include "archive/archive_display.h"

namespace quorvin {

void ArchiveDisplay::tellError(MessageBoxes& boxes) const {
  if (!error_.isEmpty()) boxes.inform(QStringLiteral("Archive Error: ") + error_);
}

void ArchiveDisplay::archiveError(std::int32_t, const QString& description) {
  error_ = description;
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

ShownUnpacking::ShownUnpacking(ProgramState& state, ArchiveView& view, const QString& status)
    : state_(state), view_(view) {
  dropCancelRequest();
  view_.showProgress();
  view_.setStatus(status);
  view_.setBarMaximum(kFullBar);
  view_.setBar(0);
}

ShownUnpacking::~ShownUnpacking() {
  dropCancelRequest();
  view_.unloadProgress();
}

void ShownUnpacking::dropCancelRequest() {
  if (!state_.QuitPending) state_.AbortRequested = false;
}

}  // namespace quorvin
