#include "archive/archive_display.h"

namespace quorvin {

UnpackingResult unpackArchiveShownIn(ArchiveView& view, const ProgramState& state, const QString& archivePath,
                                     const QString& targetFolder, std::int64_t archiveLength) {
  int shownPercent = -1;
  const auto pause = [&view, &state, &shownPercent](int percent) {
    if (percent != shownPercent) view.setBar(percent);
    shownPercent = percent;
    view.processEvents();
    return state.AbortRequested || state.QuitPending || view.endRequested();
  };
  return unpackArchive(archivePath, targetFolder, pause, {}, archiveLength);
}

void showArchiveError(MessageBoxes& boxes, const UnpackingResult& result) {
  if (!result.error.isEmpty()) boxes.inform(QStringLiteral("Archive Error: ") + result.error);
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
