// SPDX-License-Identifier: GPL-2.0-or-later
#include "peers/client/list_offer.h"

#include "archive/archive_plan.h"
#include "archive/archive_unpacking.h"
#include "faults/runtime_fault.h"
#include "files/path_style.h"
#include "peers/messages/peer_message.h"
#include "peers/messages/peer_names.h"
#include "texts/texts.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

namespace quorvin {

namespace {

const QLatin1String kNewLine("\r\n");

QString countOfLists(std::size_t count) {
  return count == 1
             ? Texts::tr("1 list")
             : Texts::tr("%1 lists", nullptr, Texts::plural(static_cast<std::int64_t>(count))).arg(count);
}

QString folderOfFirst(const PeerOutcome& outcome) {
  return QDir::toNativeSeparators(QFileInfo(outcome.received.front().archivePath).absolutePath());
}

void showThatNothingCame(const PeerOutcome& outcome, MessageBoxes& messages) {
  QString text = Texts::tr("No lists came from %1.").arg(shownPeerText(outcome.peer));
  if (!outcome.problems.isEmpty()) text += kNewLine + kNewLine + shownProblems(outcome.problems);
  messages.inform(text);
}

bool isListing(const QString& fileName) {
  return fileName.endsWith(QLatin1String(".txt"), Qt::CaseInsensitive);
}

/// Hidden files are no listings either.
bool isListing(const PlannedEntry& entry) {
  const QStringList& path = entry.place.path;
  const bool isHidden =
      std::any_of(path.begin(), path.end(), [](const QString& name) { return name.startsWith(u'.'); });
  return !entry.place.isFolder && !isHidden && isListing(path.last());
}

std::int64_t listingsInArchive(const QString& archivePath, const Job& job) {
  const auto pause = [&job](int) {
    job.letEventsRun();
    return job.isClosing();
  };
  const ArchiveLimits limits;
  try {
    const ArchiveReader archive(archivePath, -1, limits.entries, pause);
    const std::vector<PlannedEntry> entries = planOf(archive, limits).entries;
    return std::count_if(entries.begin(), entries.end(),
                         [](const PlannedEntry& entry) { return isListing(entry); });
  } catch (const ArchiveError&) {
    // What is wrong with it is shown when it is to be unpacked.
  } catch (const ArchiveStopped&) {
    // The program is closing.
  }
  return 0;
}

QString archivesHold(bool isOne, std::int64_t listings) {
  const int plural = Texts::plural(listings);
  if (isOne && listings == 1) return Texts::tr("The archive holds 1 listing.");
  if (isOne) return Texts::tr("The archive holds %1 listings.", nullptr, plural).arg(listings);
  if (listings == 1) return Texts::tr("The archives hold 1 listing.");
  return Texts::tr("The archives hold %1 listings.", nullptr, plural).arg(listings);
}

/// What the user gets for a Yes, where it is not what the names of the lists promise.
QString contentOf(const PeerOutcome& outcome, int room) {
  const std::int64_t listings = outcome.listings.value_or(static_cast<std::int64_t>(outcome.received.size()));
  if (listings == static_cast<std::int64_t>(outcome.received.size()) && listings <= room) return {};
  QString text = archivesHold(outcome.received.size() == 1, listings);
  if (listings > room) {
    text +=
        u' ' + (room == 1 ? Texts::tr("There is room for 1 more offline source.")
                          : Texts::tr("There is room for %1 more offline sources.", nullptr, room).arg(room));
  }
  return text + kNewLine + kNewLine;
}

QString question(const PeerOutcome& outcome, int room) {
  QString text = Texts::tr("%1 came from %2 into the folder")
                     .arg(countOfLists(outcome.received.size()), shownPeerText(outcome.peer)) +
                 kNewLine + folderOfFirst(outcome) + kNewLine + kNewLine;
  if (!outcome.problems.isEmpty()) text += shownProblems(outcome.problems) + kNewLine + kNewLine;
  return text + contentOf(outcome, room) +
         Texts::tr("Add the received lists to the offline sources, so that the next search includes them?");
}

QString leftOut(std::size_t count) {
  if (count == 1) {
    return Texts::tr("1 list was left out, since unpacking was cancelled. The archives stay in the folder.");
  }
  return Texts::tr("%1 lists were left out, since unpacking was cancelled. The archives stay in the folder.",
                   nullptr, Texts::plural(static_cast<std::int64_t>(count)))
      .arg(count);
}

/// Adds the lists of one conversation.
class ListAdder {
 public:
  /// `folder` is where what the peer sends is kept, with a native separator at its end.
  ListAdder(const QString& peer, const QString& folder, ProgramState& state, const Job& job)
      : peer_(peer), folder_(folder), state_(state), job_(job) {}

  /// Up to the end, or until the user ends it or the program closes.
  void addAll(const std::vector<ReceivedList>& lists, const UnpackArchive& unpack) {
    for (std::size_t i = 0; i < lists.size() && !job_.isClosing(); ++i) {
      if (add(lists[i], unpack)) continue;
      problems_ += leftOut(lists.size() - i);
      return;
    }
  }

  const QStringList& problems() const { return problems_; }
  int addedCount() const { return static_cast<int>(setRows_.size()); }

 private:
  /// False when the user ends the unpacking.
  bool add(const ReceivedList& list, const UnpackArchive& unpack) {
    const QFileInfo archive(list.archivePath);
    const QString folder = freePath(archive.absolutePath() + u'/', archive.completeBaseName(), {});
    try {
      if (!QDir().mkdir(folder)) throw RuntimeFault(FaultNumber::PathFileAccess);
      const QString target = withTrailingSeparator(QDir::toNativeSeparators(folder), nativePathStyle());
      if (!unpack(list.archivePath, target)) {
        QDir(folder).removeRecursively();
        return false;
      }
      addListings(list, folder);
    } catch (const RuntimeFault& fault) {
      // Only if nothing was unpacked into it.
      QDir().rmdir(folder);
      problems_ += QStringLiteral("\"%1\": %2").arg(shownPeerText(list.name), sentence(fault.description()));
    }
    return true;
  }

  void addListings(const ReceivedList& list, const QString& folder) {
    const QStringList listings = listingsIn(folder);
    if (listings.isEmpty()) {
      problems_ += Texts::tr("The archive of \"%1\" holds no listing.").arg(shownPeerText(list.name));
    }
    for (const QString& path : listings) {
      addSource(listings.size() == 1 ? list.name : QFileInfo(path).completeBaseName(), path);
    }
  }

  QStringList listingsIn(const QString& folder) {
    QStringList listings;
    QDirIterator files(folder, QDir::Files | QDir::NoSymLinks, QDirIterator::Subdirectories);
    while (files.hasNext()) {
      const QString path = files.next();
      if (isListing(path)) listings += path;
    }
    listings.sort();
    return listings;
  }

  void addSource(const QString& name, const QString& path) {
    // The file of the sources has no way to write a quote.
    if (path.contains(u'"')) {
      problems_ += Texts::tr("%1 has a name that no source can have.").arg(shownPeerText(path));
      return;
    }
    QString description = Texts::tr("%1 from %2").arg(shownPeerText(name), peer_);
    description.replace(u'"', u'\'');
    const int row = rowFor(description);
    if (row > SourceTable::kLastRow) return noteFull();
    state_.OfflineSources.set(row, description, QDir::toNativeSeparators(path));
    state_.OfflineSourceCount = qMax(state_.OfflineSourceCount, row);
    setRows_.insert(row);
  }

  /// The row of the same list of the same peer from an earlier conversation, which the new one replaces; else
  /// the next free row. Lists of one conversation do not replace each other.
  int rowFor(const QString& description) const {
    for (int row = 1; row <= state_.OfflineSourceCount; ++row) {
      const bool isOfPeer = state_.OfflineSources.path(row).startsWith(folder_);
      const bool isEarlier = isOfPeer && state_.OfflineSources.description(row) == description;
      if (isEarlier && !setRows_.contains(row)) return row;
    }
    return state_.OfflineSourceCount + 1;
  }

  void noteFull() {
    const QString text = Texts::tr(
                             "There is no room for more than %1 offline sources. The received lists stay "
                             "unpacked beside its archives.")
                             .arg(SourceTable::kLastRow);
    if (!problems_.contains(text)) problems_ += text;
  }

  QString peer_;
  QString folder_;
  ProgramState& state_;
  const Job& job_;
  QStringList problems_;
  QSet<int> setRows_;
};

}  // namespace

UnpackArchive unpackingIn(Job& job) {
  return [&job](const QString& archivePath, const QString& targetFolder) {
    WorkDisplay& display = job.display();
    display.setStatus(Texts::tr("Unpacking %1").arg(QFileInfo(archivePath).fileName()));
    display.setBarMaximum(kFullBar);
    const UnpackingResult result = unpackArchive(job, archivePath, targetFolder);
    if (result.outcome == UnpackingOutcome::Failed) {
      throw RuntimeFault(FaultNumber::PathFileAccess, result.error);
    }
    return result.outcome == UnpackingOutcome::Unpacked;
  };
}

std::int64_t countListings(const std::vector<ReceivedList>& lists, const Job& job) {
  std::int64_t count = 0;
  for (const ReceivedList& list : lists) {
    job.letEventsRun();
    if (job.isClosing()) break;
    count += listingsInArchive(list.archivePath, job);
  }
  return count;
}

bool offerReceivedLists(const PeerOutcome& outcome, ProgramState& state, Job& job, MessageBoxes& messages,
                        const UnpackArchive& unpack) {
  if (outcome.received.empty()) {
    if (!outcome.isCancelled || !outcome.problems.isEmpty()) showThatNothingCame(outcome, messages);
    return false;
  }
  const int room = SourceTable::kLastRow - state.OfflineSourceCount;
  if (!messages.askYesNo(question(outcome, room))) return false;
  const QString folder = withTrailingSeparator(folderOfFirst(outcome), nativePathStyle());
  ListAdder adder(shownPeerText(outcome.peer), folder, state, job);
  // A stop request from before is not meant for this job, nor is one of this job meant for the next.
  job.dropStopRequest();
  job.show();
  adder.addAll(outcome.received, unpack);
  job.hide();
  job.dropStopRequest();
  if (!adder.problems().isEmpty() && !job.isClosing()) messages.inform(shownProblems(adder.problems()));
  return adder.addedCount() > 0;
}

}  // namespace quorvin
