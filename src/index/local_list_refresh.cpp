// SPDX-License-Identifier: GPL-2.0-or-later
#include "index/local_list_refresh.h"

#include "faults/runtime_fault.h"
#include "files/file_aside.h"
#include "files/file_lock.h"
#include "files/file_lookup.h"
#include "history/listing_history.h"
#include "index/dir_io.h"
#include "index/walk_faults.h"
#include "platform/text_encoding.h"
#include "texts/texts.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QSet>

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

QString temporaryOf(const QString& listing) {
  return listing.chopped(QStringLiteral("txt").size()) + QStringLiteral("tmp");
}

/// Whether the file starts as the listing of a source of this base name does.
bool startsAsListingOf(const QString& baseName, const QString& path) {
  constexpr qint64 kLongestStart = 4096;
  const QByteArray volume("\r\nVolume:    ");
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return false;
  const QByteArray start = file.read(kLongestStart);
  const qsizetype end = start.indexOf("\r\n", volume.size());
  if (!start.startsWith(volume) || end < 0) return false;
  return trimBlanks(decodeSystemText(start.mid(volume.size(), end - volume.size()))) == baseName;
}

/// What an interrupted refresh has left of sources that were removed since: no refresh would replace it.
void removeUnfinishedOfRemoved(const ProgramState& state) {
  QSet<QString> listed;
  for (int row = 1; row <= state.OnlineSourceCount; ++row) {
    listed.insert(temporaryOf(state.onlineListingPath(state.OnlineSources.description(row))));
  }
  const auto plainFiles = QDir::Files | QDir::Hidden | QDir::NoSymLinks;
  for (const QString& name : namesThatFit(state.LocalFolder, u"*.tmp", plainFiles)) {
    const QString path = state.LocalFolder + name;
    const QString baseName = name.chopped(QStringLiteral(".tmp").size());
    if (!listed.contains(path) && !isHeld(path) && startsAsListingOf(baseName, path)) QFile::remove(path);
  }
}

/// One refresh, from its first source to its last.
class Refresh {
 public:
  Refresh(ProgramState& state, Job& job, MessageBoxes& messages, const QLocale& locale)
      : state_(state),
        progress_(job, locale),
        locale_(locale),
        folders_(makeFolderReader()),
        dirIO_(state, *folders_, progress_, messages, locale),
        dataFolder_(state.LocalFolder),
        history_(dataFolder_, [&job] { job.letEventsRun(); }) {
    removeUnfinishedOfRemoved(state);
    progress_.follow(RefreshShare(listingSizes(state)));
  }

  /// Throws RuntimeFault when a listing cannot be made; `outcome` then says what was done before.
  void run(RefreshOutcome& outcome) {
    outcome_ = &outcome;
    for (int row = 1; row <= state_.OnlineSourceCount; ++row) {
      progress_.job().display().setTitle(
          //: Keep the three dots and the blank behind them.
          u' ' + Texts::tr("Updating online file lists... %1 of %2").arg(row).arg(state_.OnlineSourceCount));
      progress_.beginSource(row);
      const Ending ending = refreshSource(sourceIn(row));
      outcome.isStopped = ending == Ending::Stopped;
      if (outcome.isStopped) break;
      ++(ending == Ending::Made ? outcome.made : outcome.kept);
    }
    progress_.show();
  }

 private:
  enum class Ending { Made, Kept, Stopped };

  /// A copy of a row: the user may edit the table while events run.
  struct Source {
    QString description;
    QString path;
    /// The path of its finished listing.
    QString listing;
  };

  Source sourceIn(int row) const {
    const QString description = state_.OnlineSources.description(row);
    return {description, state_.OnlineSources.path(row), state_.onlineListingPath(description)};
  }

  Ending refreshSource(const Source& source) {
    const QString temporary = temporaryOf(source.listing);
    for (const QString& file : {temporary, source.listing}) {
      if (!state_.isOwnFile(file)) continue;
      note(Texts::tr("The listing of %1 was not made, since it would overwrite %2; please give it another "
                     "description")
               .arg(source.description, file));
      return Ending::Kept;
    }
    if (!canBeOpened(source.path)) return keptAsItIs(source);
    FileAside listing(source.listing, {.nameAside = QFileInfo(temporary).fileName()});
    const WalkResult walked = writeListing(listing, source);
    if (progress_.job().takeRescanAbort()) return Ending::Stopped;
    // Pulled while it was read, be it for a moment: the walk has met errors only, which would cost the
    // catalogue.
    if (walked.opened && folders_->topIsStillAt(source.path)) return putInPlace(listing, source, walked);
    listing.discard();
    return keptAsItIs(source);
  }

  bool canBeOpened(const QString& path) {
    const int error = folders_->enterTop(path);
    throwIfExhausted(error, path);
    if (error != 0) return false;
    folders_->leave();
    return true;
  }

  Ending keptAsItIs(const Source& source) {
    ++outcome_->missing;
    note(Texts::tr("%1 not found; the listing of %2 was kept").arg(source.path, source.description));
    return Ending::Kept;
  }

  // Where the folder could not be opened any more, the listing is its head alone.
  WalkResult writeListing(FileAside& listing, const Source& source) {
    const LineOutputs outputs{&listing.writer(), nullptr};
    QString path = source.path;
    const WalkResult walked =
        dirIO_.walk(path, QStringLiteral("*.*"), outputs, source.description, kToOutput1);
    listing.finish();
    return walked;
  }

  Ending putInPlace(FileAside& listing, const Source& source, const WalkResult& walked) {
    const QString sameListingFrom = madeFrom_.value(source.listing);
    KeptListing kept;
    // What another source has just left there is nothing earlier.
    std::optional<ListingChanges> changes = ListingChanges{};
    if (sameListingFrom.isEmpty()) {
      kept = history_.keep(nameOf(source), listing.path(), walked.isWhole);
      if (!kept.isSame) changes = changesOf(source, listing, walked);
    }
    // The program may have been closed meanwhile.
    if (progress_.job().takeRescanAbort()) return Ending::Stopped;
    listing.commit();
    addToOutcome(walked, changes);
    madeFrom_.insert(source.listing, source.path);
    if (!sameListingFrom.isEmpty()) {
      note(
          Texts::tr("The listing of %1 from %2 was replaced by that from %3, which has the same description; "
                    "please give one of them another description")
              .arg(source.description, sameListingFrom, source.path));
    }
    noteEarlier(source, walked, kept);
    return Ending::Made;
  }

  /// Nothing where they cannot be found out.
  std::optional<ListingChanges> changesOf(const Source& source, const FileAside& listing,
                                          const WalkResult& walked) {
    if (!QFileInfo::exists(source.listing)) return ListingChanges{walked.files, 0};
    try {
      return changesBetween(source.listing, listing.path(), [this] {
        progress_.job().letEventsRun();
        return !progress_.job().isClosing();
      });
    } catch (const RuntimeFault&) {
      // Only the numbers are missing then. What is wrong with the earlier listing is the history's to report.
      return std::nullopt;
    }
  }

  void addToOutcome(const WalkResult& walked, const std::optional<ListingChanges>& changes) {
    outcome_->leftOut += walked.leftOut;
    outcome_->entries += walked.files;
    if (!changes) outcome_->areChangesKnown = false;
    outcome_->changes.added += changes.value_or(ListingChanges{}).added;
    outcome_->changes.gone += changes.value_or(ListingChanges{}).gone;
  }

  // What the new listing lacks that the earlier one has, and how to have that one back.
  void noteEarlier(const Source& source, const WalkResult& walked, const KeptListing& kept) {
    if (!kept.fault.isEmpty()) {
      note(Texts::tr("The earlier listing of %1 could not be kept in the listing history: %2")
               .arg(source.description, kept.fault));
    }
    if (!walked.isWhole) {
      note(
          Texts::tr("The listing of %1 is incomplete, since the rescan was stopped").arg(source.description) +
          earlierOf(source));
    } else if (walked.files == 0 && kept.entries > 0) {
      note(Texts::tr("%1 holds no files any more; if its drive is not connected, connect it and rescan. The "
                     "listing of %2 is empty now")
               .arg(source.path, source.description) +
           earlierOf(source));
    }
  }

  QString earlierOf(const Source& source) {
    std::optional<ListingVersion> earlier;
    try {
      earlier = history_.newestComplete(nameOf(source));
    } catch (const RuntimeFault&) {
      // So that whoever looks for an earlier version learns why there is none.
    }
    if (!earlier) return {};
    return QStringLiteral("; ") +
           Texts::tr("File, Listing History brings back the one of %1 with %2 entries", nullptr,
                     Texts::plural(static_cast<std::int64_t>(earlier->entries)))
               .arg(locale_.toString(QDateTime::fromMSecsSinceEpoch(earlier->made), QLocale::ShortFormat),
                    locale_.toString(static_cast<qulonglong>(earlier->entries)));
  }

  /// The listing's name in the data folder. That may be another one by now; its history is not this one's.
  QString nameOf(const Source& source) const {
    return source.listing.startsWith(dataFolder_) ? source.listing.mid(dataFolder_.size()) : source.listing;
  }

  void note(const QString& sentence) { state_.errorLog += sentence + QStringLiteral("\r\n"); }

  ProgramState& state_;
  IndexProgress progress_;
  QLocale locale_;
  std::unique_ptr<FolderReader> folders_;
  DirIO dirIO_;
  QString dataFolder_;
  ListingHistory history_;
  /// The folders of the listings that this refresh has made.
  QHash<QString, QString> madeFrom_;
  /// The run's.
  RefreshOutcome* outcome_ = nullptr;
};

}  // namespace

RefreshOutcome refreshLocalLists(ProgramState& state, Job& job, MessageBoxes& messages, const QLocale& locale,
                                 const QString& versionCaption) {
  RefreshOutcome outcome;
  const std::optional<FolderLock> lock = FolderLock::take(state.LocalFolder);
  if (!lock) {
    outcome.fault = Texts::tr("The local lists cannot be refreshed now: another refresh is running.");
    return outcome;
  }
  WorkDisplay& display = job.display();
  const QString title = display.title();
  job.show();
  try {
    Refresh(state, job, messages, locale).run(outcome);
  } catch (const RuntimeFault& fault) {
    outcome.fault = Texts::tr("Error Refreshing Local Lists:%1").arg(fault.description());
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
