#include "index/local_list_refresh.h"

#include "faults/runtime_fault.h"
#include "files/file_aside.h"
#include "files/file_lock.h"
#include "index/dir_io.h"
#include "index/walk_faults.h"

#include <QFileInfo>
#include <QHash>

#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace quorvin {
namespace {

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
      outcome.leftOut = leftOut_;
    }
    progress_.show();
  }

 private:
  enum class Ending { Made, Kept, Stopped };

  Ending refreshSource(const QString& description, const QString& path) {
    const QString finished = state_.onlineListingPath(description);
    const QString temporary = finished.chopped(QStringLiteral("txt").size()) + QStringLiteral("tmp");
    for (const QString& file : {temporary, finished}) {
      if (!state_.isOwnFile(file)) continue;
      noteNotMade(description, file);
      return Ending::Kept;
    }
    if (!canBeOpened(path)) {
      noteKept(path, description);
      return Ending::Kept;
    }
    FileAside listing(finished, {.nameAside = QFileInfo(temporary).fileName()});
    const WalkResult walked = writeListing(listing, description, path);
    if (progress_.job().takeRescanAbort()) return Ending::Stopped;
    // Pulled while it was read, be it for a moment: the walk has met errors only, which would cost the
    // catalogue.
    if (walked.opened && folders_->topIsStillAt(path)) {
      listing.commit();
      leftOut_ += walked.leftOut;
      noteReplaced(finished, description, path);
      return Ending::Made;
    }
    listing.discard();
    noteKept(path, description);
    return Ending::Kept;
  }

  bool canBeOpened(const QString& path) {
    const int error = folders_->enterTop(path);
    throwIfExhausted(error, path);
    if (error != 0) return false;
    folders_->leave();
    return true;
  }

  void noteKept(const QString& path, const QString& description) {
    note(QStringLiteral("%1 not found; the listing of %2 was kept").arg(path, description));
  }

  void noteNotMade(const QString& description, const QString& file) {
    note(QStringLiteral("The listing of %1 was not made, since it would overwrite %2; please give it another "
                        "description")
             .arg(description, file));
  }

  // Two sources may have one description; the later one has the listing.
  void noteReplaced(const QString& listing, const QString& description, const QString& path) {
    const QString earlier = madeFrom_.value(listing);
    madeFrom_.insert(listing, path);
    if (earlier.isEmpty()) return;
    note(QStringLiteral(
             "The listing of %1 from %2 was replaced by that from %3, which has the same description; "
             "please give one of them another description")
             .arg(description, earlier, path));
  }

  void note(const QString& sentence) { state_.errorLog += sentence + QStringLiteral("\r\n"); }

  // Where the folder could not be opened any more, the listing is its head alone.
  WalkResult writeListing(FileAside& listing, const QString& description, QString path) {
    const LineOutputs outputs{&listing.writer(), nullptr};
    const WalkResult walked = dirIO_.walk(path, QStringLiteral("*.*"), outputs, description, kToOutput1);
    listing.finish();
    return walked;
  }

  ProgramState& state_;
  IndexProgress progress_;
  std::unique_ptr<FolderReader> folders_;
  DirIO dirIO_;
  /// The folders of the listings that this refresh has made.
  QHash<QString, QString> madeFrom_;
  std::int64_t leftOut_ = 0;
};

}  // namespace

RefreshOutcome refreshLocalLists(ProgramState& state, Job& job, MessageBoxes& messages, const QLocale& locale,
                                 const QString& versionCaption) {
  RefreshOutcome outcome;
  const std::optional<FolderLock> lock = FolderLock::take(state.LocalFolder);
  if (!lock) {
    outcome.fault = QStringLiteral("The local lists cannot be refreshed now: another refresh is running.");
    return outcome;
  }
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
