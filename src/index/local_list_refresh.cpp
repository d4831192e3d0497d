#include "index/local_list_refresh.h"

#include "faults/runtime_fault.h"
#include "files/file_aside.h"
#include "files/file_identity.h"
#include "files/path_style.h"
#include "index/dir_io.h"

#include <QFileInfo>
#include <QStringList>

#include <algorithm>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace quorvin {
namespace {

bool isSameFile(const QString& path, const QString& other) {
  if (path == other) return true;
  // Only the file system knows which names are one to it.
  const std::optional<FileIdentity> identity = fileIdentity(path);
  return identity && identity == fileIdentity(other);
}

/// Whether `path` is that of the main data file or of one of the two source lists, which need not be there
/// yet. Another way of writing the name of one that is there counts as well: capital letters, where the file
/// system takes them for small ones, or a link.
bool isOwnFile(const QString& path, const ProgramState& state) {
  const QStringList names = {state.LocFile, state.OffLineFile, state.TextFile};
  return std::ranges::any_of(names, [&](const QString& name) {
    if (name.isEmpty()) return false;
    return isSameFile(path, isTakenAsItStands(name, nativePathStyle()) ? name : state.LocalFolder + name);
  });
}

std::vector<std::int64_t> listingSizes(const ProgramState& state) {
  std::vector<std::int64_t> sizes;
  for (int row = 1; row <= state.OnlineSourceCount; ++row) {
    sizes.push_back(QFileInfo(state.onlineListingPath(state.OnlineSources.description(row))).size());
  }
  return sizes;
}

/// One refresh, from its first source to its last.
class Refresh {
 public:
  Refresh(ProgramState& state, Job& job, MessageBoxes& messages, const QLocale& locale)
      : state_(state),
        progress_(job, locale),
        folders_(makeFolderReader()),
        dirIO_(state, *folders_, progress_, messages, locale) {
    progress_.follow(RefreshShare(listingSizes(state)));
  }

  /// Throws RuntimeFault when a listing cannot be made; `outcome` then says what was done before.
  void run(RefreshOutcome& outcome) {
    for (int row = 1; row <= state_.OnlineSourceCount; ++row) {
      progress_.job().display().setTitle(
          QStringLiteral(" Updating online file lists... %1 of %2").arg(row).arg(state_.OnlineSourceCount));
      progress_.beginSource(row);
      // Copies, since the user may edit the table while events run.
      const QString description = state_.OnlineSources.description(row);
      const QString path = state_.OnlineSources.path(row);
      const Ending ending = refreshSource(description, path);
      outcome.isStopped = ending == Ending::Stopped;
      if (outcome.isStopped) break;
      ++(ending == Ending::Made ? outcome.made : outcome.kept);
    }
    progress_.show();
  }

 private:
  enum class Ending { Made, Kept, Stopped };

  Ending refreshSource(const QString& description, const QString& path) {
    const QString finished = state_.onlineListingPath(description);
    const QString temporary = finished.chopped(QStringLiteral("txt").size()) + QStringLiteral("tmp");
    for (const QString& file : {temporary, finished}) {
      if (!isOwnFile(file, state_)) continue;
      noteNotMade(description, file);
      return Ending::Kept;
    }
    if (!canBeOpened(path)) {
      noteKept(path, description);
      return Ending::Kept;
    }
    FileAside listing(finished, {.nameAside = QFileInfo(temporary).fileName()});
    const bool opened = writeListing(listing, description, path);
    if (progress_.job().takeRescanAbort()) return Ending::Stopped;
    // Pulled while it was read, be it for a moment: the walk has met errors only, which would cost the
    // catalogue.
    if (opened && folders_->topIsStillAt(path)) {
      listing.commit();
      return Ending::Made;
    }
    listing.discard();
    noteKept(path, description);
    return Ending::Kept;
  }

  bool canBeOpened(const QString& path) {
    if (folders_->enterTop(path) != 0) return false;
    folders_->leave();
    return true;
  }

  void noteKept(const QString& path, const QString& description) {
    state_.errorLog += QStringLiteral("%1 not found; the listing of %2 was kept\r\n").arg(path, description);
  }

  void noteNotMade(const QString& description, const QString& file) {
    state_.errorLog += QStringLiteral(
                           "The listing of %1 was not made, since it would overwrite %2; please give it "
                           "another description\r\n")
                           .arg(description, file);
  }

  // False when the folder could not be opened any more; the listing is its head alone then.
  bool writeListing(FileAside& listing, const QString& description, QString path) {
    const LineOutputs outputs{&listing.writer(), nullptr};
    const bool opened = dirIO_.walk(path, QStringLiteral("*.*"), outputs, description, kToOutput1);
    listing.finish();
    return opened;
  }

  ProgramState& state_;
  IndexProgress progress_;
  std::unique_ptr<FolderReader> folders_;
  DirIO dirIO_;
};

}  // namespace

RefreshOutcome refreshLocalLists(ProgramState& state, Job& job, MessageBoxes& messages, const QLocale& locale,
                                 const QString& versionCaption) {
  RefreshOutcome outcome;
  WorkDisplay& display = job.display();
  const QString title = display.title();
  job.show();
  try {
    Refresh(state, job, messages, locale).run(outcome);
  } catch (const RuntimeFault& fault) {
    outcome.fault = QStringLiteral("Error Refreshing Local Lists:") + fault.description();
    job.hide();
    return outcome;
  }
  job.hide();
  display.setTitle(title);
  display.setBusyPointer(false);
  display.setStatus(versionCaption);
  outcome.errorLog = std::exchange(state.errorLog, {});
  return outcome;
}

}  // namespace quorvin
