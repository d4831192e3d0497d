// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/compared_place.h"

#include "faults/runtime_fault.h"
#include "files/file_aside.h"
#include "files/file_reader.h"
#include "files/path_style.h"
#include "index/dir_io.h"
#include "platform/message_box.h"
#include "work/work.h"

#include <QDir>
#include <QFileInfo>

#include <cerrno>
#include <optional>
#include <utility>

namespace quorvin {

namespace {

/// What a comparison needs of the display of a job: nothing is seen of it but how far it is.
class SilentDisplay : public WorkDisplay {
 public:
  SilentDisplay(const std::function<bool()>& stop, const FolderAsItIs::Progress& progress)
      : stop_(stop), progress_(progress) {}

  void begin() override {}
  void end() override {}
  void leaveStanding() override {}
  QString title() const override { return {}; }
  void setTitle(const QString&) override {}
  void setStatus(const QString& text) override { progress_(text); }
  void setDetail(const QString&) override {}
  void setBarMaximum(std::int32_t) override {}
  void setBar(std::int32_t) override {}
  void setBusy() override {}
  void setBusyPointer(bool) override {}
  bool isDue() override { return true; }
  void processEvents() override {}
  void waitForEvents() override {}
  bool isCancelled() const override { return false; }
  bool endRequested() const override { return stop_(); }

 private:
  const std::function<bool()>& stop_;
  const FolderAsItIs::Progress& progress_;
};

/// Leaves out what cannot be read; how much that was is counted.
class IgnoringMessages : public MessageBoxes {
 public:
  void inform(const QString&) override {}
  bool askYesNo(const QString&) override { return false; }
  FaultAnswer askAbortRetryIgnore(const QString&) override { return FaultAnswer::Ignore; }
};

QString withoutFolder(const QString& path, const QString& folder) {
  return path.startsWith(folder) ? path.mid(folder.size()) : QString();
}

}  // namespace

std::vector<ComparedSource> comparedSources(const ProgramState& state) {
  std::vector<ComparedSource> sources;
  const auto add = [&](const QString& title, const QString& listing, const QString& folder, SourceKind kind) {
    sources.push_back({title, listing, withoutFolder(listing, state.LocalFolder), folder, kind});
  };
  for (int row = 1; row <= state.OnlineSourceCount; ++row) {
    const QString description = state.OnlineSources.description(row);
    add(description, state.onlineListingPath(description), state.OnlineSources.path(row), SourceKind::Online);
  }
  if (!state.TextFile.isEmpty()) {
    const bool isPath = isTakenAsItStands(state.TextFile, nativePathStyle());
    add(state.TextFile, isPath ? state.TextFile : state.LocalFolder + state.TextFile, {},
        SourceKind::MainDataFile);
  }
  for (int row = 1; row <= state.OfflineSourceCount; ++row) {
    add(state.OfflineSources.description(row), state.OfflineSources.path(row), {}, SourceKind::Offline);
  }
  return sources;
}

ListingOpener openerOfListing(const QString& path) {
  return [path] {
    const auto file = std::make_shared<SequentialFile>(path);
    return [file](std::span<char> buffer) { return file->read(buffer); };
  };
}

ListingOpener openerOfVersion(const ListingHistory& history, const QString& listing, int version) {
  return [&history, listing, version] {
    const std::shared_ptr<ListingBytes> text = history.text(listing, version);
    return [text](std::span<char> buffer) { return text->read(buffer); };
  };
}

FolderAsItIs::FolderAsItIs(const QString& folder, const QString& label, const QLocale& locale,
                           const std::function<bool()>& stop, const Progress& progress) {
  removeLeftovers(QDir::tempPath());
  const AsideOptions options{.durability = Durability::None};
  file_ = std::make_unique<FileAside>(QDir::tempPath() + QStringLiteral("/quorvin-compared.txt"), options);
  const std::unique_ptr<FolderReader> folders = makeFolderReader();
  const int error = folders->enterTop(folder);
  if (error != 0) throw faultOfSystemError(error, folder);
  folders->leave();

  ProgramState state;
  IgnoringMessages messages;
  SilentDisplay display(stop, progress);
  Work work(state, display);
  std::optional<Job> job = work.start(JobKind::Refresh);
  IndexProgress shown(*job, locale);
  DirIO walk(state, *folders, shown, messages, locale);
  QString top = folder;
  const WalkResult walked =
      walk.walk(top, QStringLiteral("*.*"), {&file_->writer(), nullptr}, label, kToOutput1);
  isWhole_ = !job->isAbortRequested();
  if (!isWhole_) return;
  if (!walked.opened || !folders->topIsStillAt(folder)) throw faultOfSystemError(ENOENT, folder);
  leftOut_ = walked.leftOut;
  file_->finish();
}

FolderAsItIs::~FolderAsItIs() = default;

QString FolderAsItIs::path() const {
  return file_->path();
}

}  // namespace quorvin
