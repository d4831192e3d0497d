#include "net/peer_unpacking.h"

#include "net/archive_unpacking.h"
#include "platform/runtime_fault.h"

#include <QFileInfo>

namespace quorvin {

namespace {

constexpr std::int32_t kFullBar = 100;

/// Shows how far an unpacking is, and keeps what was wrong.
class UnpackingWatch : public ArchiveEvents {
 public:
  UnpackingWatch(const ProgramState& state, ArchiveView& view) : state_(state), view_(view) {}

  const QString& error() const { return error_; }

  void archiveError(std::int32_t, const QString& description) override { error_ = description; }
  void percentDone(double percentage) override {
    view_.setBar(static_cast<std::int32_t>(percentage));
    view_.processEvents();
  }
  void idleTick(std::int32_t) override { view_.processEvents(); }
  void fileNotice(const QString&, std::int64_t) override {}
  bool stopRequested() const override {
    return state_.AbortRequested || state_.QuitPending || view_.endRequested();
  }

 private:
  const ProgramState& state_;
  ArchiveView& view_;
  QString error_;
};

/// The window as long as the work lasts.
class ShownProgress {
 public:
  ShownProgress(ArchiveView& view, const QString& archivePath) : view_(view) {
    view_.showProgress();
    view_.setBarMaximum(kFullBar);
    view_.setStatus(QStringLiteral("Unpacking ") + QFileInfo(archivePath).fileName());
  }
  ~ShownProgress() { view_.unloadProgress(); }
  ShownProgress(const ShownProgress&) = delete;
  ShownProgress& operator=(const ShownProgress&) = delete;

 private:
  ArchiveView& view_;
};

void unpack(ProgramState& state, ArchiveView& view, const QString& archivePath, const QString& targetFolder) {
  if (!state.QuitPending) state.AbortRequested = false;
  const ShownProgress shown(view, archivePath);
  UnpackingWatch watch(state, view);
  const UnpackingOutcome outcome = unpackArchive(archivePath, targetFolder, watch);
  if (!state.QuitPending) state.AbortRequested = false;
  switch (outcome) {
    case UnpackingOutcome::Unpacked:
      return;
    case UnpackingOutcome::Failed:
      throw RuntimeFault(FaultNumber::PathFileAccess, watch.error());
    case UnpackingOutcome::Stopped:
      throw RuntimeFault(FaultNumber::PathFileAccess, QStringLiteral("It was not unpacked to its end"));
  }
}

}  // namespace

UnpackArchive unpackingShownIn(ProgramState& state, ArchiveView& view) {
  return [&state, &view](const QString& archivePath, const QString& targetFolder) {
    unpack(state, view, archivePath, targetFolder);
  };
}

}  // namespace quorvin
