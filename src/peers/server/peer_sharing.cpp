#include "peers/server/peer_sharing.h"

#include "archive/archive_packing.h"
#include "faults/runtime_fault.h"
#include "platform/text_encoding.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QSet>

#include <utility>

namespace quorvin {

namespace {

// Often enough for a window to feel quick, seldom enough to cost nothing.
constexpr qint64 kMillisecondsBetweenEvents = 5;
constexpr qsizetype kMostToldProblems = 10;

/// Where the refresh puts the listing of a source.
QString listingPathOf(const ProgramState& state, int row) {
  const QString baseName = trimBlanks(state.OnlineSources.description(row)).toString();
  return state.LocalFolder + baseName + QStringLiteral(".txt");
}

}  // namespace

PeerSharing::PeerSharing(const ProgramState& state, MessageBoxes& messages, const QLocale& locale,
                         std::function<void()> processEvents, PeerServerLimits limits, QObject* parent)
    : QObject(parent),
      state_(state),
      messages_(messages),
      processEvents_(std::move(processEvents)),
      server_(state, locale, limits) {}

bool PeerSharing::start(std::uint16_t port) {
  if (isSharing()) return true;
  if (!server_.start(port)) {
    messages_.inform(QStringLiteral("Your lists are not shared: port %1 could not be opened.\r\n\r\n%2.")
                         .arg(port)
                         .arg(server_.errorText()));
    return false;
  }
  const QStringList problems = packAll();
  if (isSharing()) tell(addressText(), problems);
  return isSharing();
}

void PeerSharing::stop() {
  server_.stop();
}

void PeerSharing::sourcesRefreshed() {
  if (!isSharing()) return;
  const QStringList problems = packAll();
  if (isSharing() && !problems.isEmpty()) tell(QStringLiteral("Your lists are shared."), problems);
}

/// Events run meanwhile; a call that comes out of them only has it begin again at its end.
QStringList PeerSharing::packAll() {
  packAgain_ = true;
  if (isPacking_) return {};
  isPacking_ = true;
  QStringList problems;
  while (std::exchange(packAgain_, false) && !mustStop()) problems = packEach();
  isPacking_ = false;
  return problems;
}

QStringList PeerSharing::packEach() {
  QStringList problems;
  QSet<QString> packed;
  for (int row = 1; row <= state_.OnlineSourceCount && !mustStop(); ++row) {
    const QString description = state_.OnlineSources.description(row);
    if (packed.contains(description) || !QFileInfo(listingPathOf(state_, row)).isFile()) continue;
    packed.insert(description);
    const QString problem = packRow(row);
    if (!problem.isEmpty()) problems += problem;
  }
  return problems;
}

QString PeerSharing::packRow(int row) {
  const QString archive = archivePathOf(state_, row);
  const bool isMainArchive = archive == state_.LocalFolder + state_.ArchiveFile;
  if (isMainArchive || !mayBeReplacedByPacking(archive)) {
    return QStringLiteral("%1 was not made by sharing. It was kept, and peers get it as it is.").arg(archive);
  }
  QElapsedTimer sinceEvents;
  sinceEvents.start();
  const auto pause = [this, &sinceEvents](int) {
    if (!sinceEvents.hasExpired(kMillisecondsBetweenEvents)) return false;
    processEvents_();
    sinceEvents.restart();
    return mustStop();
  };
  try {
    packListing(listingPathOf(state_, row), archive, pause);
    return {};
  } catch (const RuntimeFault& fault) {
    return fault.description() + u'.';
  }
}

bool PeerSharing::mustStop() const {
  return !isSharing() || state_.QuitPending;
}

void PeerSharing::tell(const QString& first, const QStringList& problems) {
  if (state_.QuitPending) return;
  if (problems.isEmpty()) return messages_.inform(first);
  QStringList told = problems.first(qMin(problems.size(), kMostToldProblems));
  if (told.size() < problems.size()) {
    told += QStringLiteral("There were %1 more problems.").arg(problems.size() - told.size());
  }
  const QString lineEnd = QStringLiteral("\r\n");
  messages_.inform(first + lineEnd + lineEnd + QStringLiteral("Not all could be packed:") + lineEnd +
                   told.join(lineEnd));
}

QString PeerSharing::addressText() const {
  QStringList addresses = ownNetworkAddresses();
  if (addresses.isEmpty()) addresses += QStringLiteral("localhost");
  const QString which =
      addresses.size() == 1 ? QStringLiteral("this address") : QStringLiteral("these addresses");
  return QStringLiteral("Your lists are shared on port %1 of %2: %3")
      .arg(QString::number(server_.port()), which, addresses.join(QStringLiteral(", ")));
}

}  // namespace quorvin
