#include "peers/client/list_offer.h"

#include "archive/archive_unpacking.h"
#include "faults/runtime_fault.h"
#include "files/path_style.h"
#include "peers/messages/peer_message.h"
#include "peers/messages/peer_names.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QSet>

namespace quorvin {

namespace {

const QLatin1String kLineEnd("\r\n");

QString countOfLists(std::size_t count) {
  return count == 1 ? QStringLiteral("1 list") : QStringLiteral("%1 lists").arg(count);
}

QString folderOfFirst(const PeerOutcome& outcome) {
  return QDir::toNativeSeparators(QFileInfo(outcome.received.front().archivePath).absolutePath());
}

void tellNothingCame(const PeerOutcome& outcome, MessageBoxes& messages) {
  QString text = QStringLiteral("No lists came from %1.").arg(shownPeerText(outcome.peer));
  if (!outcome.problems.isEmpty()) text += kLineEnd + kLineEnd + shownProblems(outcome.problems);
  messages.inform(text);
}

QString question(const PeerOutcome& outcome) {
  QString text = QStringLiteral("%1 came from %2 into the folder")
                     .arg(countOfLists(outcome.received.size()), shownPeerText(outcome.peer)) +
                 kLineEnd + folderOfFirst(outcome) + kLineEnd + kLineEnd;
  if (!outcome.problems.isEmpty()) text += shownProblems(outcome.problems) + kLineEnd + kLineEnd;
  return text + QStringLiteral(
                    "Add the received lists to the offline sources, so that the next search includes them?");
}

QString leftOut(std::size_t count) {
  const QString were = count == 1 ? QStringLiteral("was") : QStringLiteral("were");
  return QStringLiteral("%1 %2 left out, since unpacking was cancelled. The archives stay in the folder.")
      .arg(countOfLists(count), were);
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
      problems_ += QStringLiteral("The archive of \"%1\" holds no listing.").arg(shownPeerText(list.name));
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
      if (path.endsWith(QLatin1String(".txt"), Qt::CaseInsensitive)) listings += path;
    }
    listings.sort();
    return listings;
  }

  void addSource(const QString& name, const QString& path) {
    // The file of the sources has no way to write a quote.
    if (path.contains(u'"')) {
      problems_ += QStringLiteral("%1 has a name that no source can have.").arg(shownPeerText(path));
      return;
    }
    QString description = shownPeerText(name) + QStringLiteral(" from ") + peer_;
    description.replace(u'"', u'\'');
    const int row = rowFor(description);
    if (row > SourceTable::kLastRow) return tellFull();
    state_.OfflineSources.set(row, description, QDir::toNativeSeparators(path));
    state_.OfflineSourceCount = qMax(state_.OfflineSourceCount, row);
    setRows_.insert(row);
  }

  /// That of the same list of the same peer as it came earlier, which the new one replaces; else the next
  /// free one. Lists of one conversation do not replace each other.
  int rowFor(const QString& description) const {
    for (int row = 1; row <= state_.OfflineSourceCount; ++row) {
      const bool isOfPeer = state_.OfflineSources.path(row).startsWith(folder_);
      const bool isEarlier = isOfPeer && state_.OfflineSources.description(row) == description;
      if (isEarlier && !setRows_.contains(row)) return row;
    }
    return state_.OfflineSourceCount + 1;
  }

  void tellFull() {
    const QString text = QStringLiteral(
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
    display.setStatus(QStringLiteral("Unpacking ") + QFileInfo(archivePath).fileName());
    display.setBarMaximum(kFullBar);
    display.setBar(0);
    const UnpackingResult result = unpackArchive(job, archivePath, targetFolder);
    if (result.outcome == UnpackingOutcome::Failed) {
      throw RuntimeFault(FaultNumber::PathFileAccess, result.error);
    }
    return result.outcome == UnpackingOutcome::Unpacked;
  };
}

bool offerReceivedLists(const PeerOutcome& outcome, ProgramState& state, Job& job, MessageBoxes& messages,
                        const UnpackArchive& unpack) {
  if (outcome.received.empty()) {
    if (!outcome.isCancelled || !outcome.problems.isEmpty()) tellNothingCame(outcome, messages);
    return false;
  }
  if (!messages.askYesNo(question(outcome))) return false;
  const QString folder = withTrailingSeparator(folderOfFirst(outcome), nativePathStyle());
  ListAdder adder(shownPeerText(outcome.peer), folder, state, job);
  // A stop request that was left over is not meant for this, nor this one's for what comes after it.
  job.dropStopRequest();
  job.show();
  adder.addAll(outcome.received, unpack);
  job.hide();
  job.dropStopRequest();
  if (!adder.problems().isEmpty() && !job.isClosing()) messages.inform(shownProblems(adder.problems()));
  return adder.addedCount() > 0;
}

}  // namespace quorvin
