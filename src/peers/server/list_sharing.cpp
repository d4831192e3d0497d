// SPDX-License-Identifier: GPL-2.0-or-later
#include "peers/server/list_sharing.h"

#include "archive/archive_packing.h"
#include "faults/runtime_fault.h"
#include "files/file_identity.h"
#include "files/file_lookup.h"
#include "peers/messages/peer_names.h"
#include "texts/texts.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QHostAddress>
#include <QNetworkInterface>
#include <QSet>

#include <utility>

namespace quorvin {

namespace {

// Often enough for a window to feel quick, seldom enough to cost nothing.
constexpr qint64 kMillisecondsBetweenEvents = 5;

// This machine's addresses, without those that only it can reach; IPv4 first.
QStringList ownNetworkAddresses() {
  QStringList addresses;
  QStringList longAddresses;
  for (const QHostAddress& address : QNetworkInterface::allAddresses()) {
    if (address.isLoopback() || address.isLinkLocal()) continue;
    const bool isShort = address.protocol() == QAbstractSocket::IPv4Protocol;
    (isShort ? addresses : longAddresses) += address.toString();
  }
  return addresses + longAddresses;
}

/// The one of the empty name is the exchange's own.
bool isEmptyArchive(const QString& path) {
  const QFileInfo file(path);
  return file.isFile() && !file.isSymLink() && file.size() == 0 && file.fileName() != u".zip";
}

}  // namespace

ListSharing::ListSharing(const ProgramState& state, Work& work, MessageBoxes& messages, const QLocale& locale,
                         QObject* parent)
    : QObject(parent), state_(state), work_(work), messages_(messages), server_(state, locale) {}

bool ListSharing::start(std::uint16_t port, const QHostAddress& address) {
  if (isSharing()) return true;
  if (!server_.start(port, address)) {
    messages_.inform(sentence(Texts::tr("Your lists are not shared: port %1 could not be opened.\r\n\r\n%2")
                                  .arg(port)
                                  .arg(server_.errorText())));
    return false;
  }
  const bool waits = work_.answerTo(JobKind::Packing) == Answer::Waits;
  if (waits) {
    show(addressText() + QStringLiteral("\r\n\r\n") +
             Texts::tr("They are packed when the running work has ended."),
         {});
  }
  packAll(!waits);
  return isSharing();
}

void ListSharing::stop() {
  server_.stop();
}

void ListSharing::sourcesRefreshed() {
  if (isSharing()) packAll(false);
}

void ListSharing::packAll(bool showsAddress) {
  work_.run(JobKind::Packing, [this, showsAddress](Job& job) {
    const QStringList problems = packEach(job);
    job.end();
    if (!isSharing()) return;
    if (showsAddress) return show(addressText(), problems);
    if (!problems.isEmpty()) show(Texts::tr("Your lists are shared."), problems);
  });
}

QStringList ListSharing::packEach(const Job& job) {
  QStringList problems;
  removeUnlisted();
  QSet<QString> packed;
  for (int row = 1; row <= state_.OnlineSourceCount && !mustStop(); ++row) {
    const QString description = state_.OnlineSources.description(row);
    if (packed.contains(description)) continue;
    packed.insert(description);
    const QString problem = packRow(row, job);
    if (!problem.isEmpty()) problems += problem;
  }
  return problems;
}

/// The search for an unknown list ends at the row after the last source. That row may still hold an earlier
/// source, whose archive would then be sent. So no archive that sharing made for an earlier source may stay.
void ListSharing::removeUnlisted() const {
  QSet<QString> listed;
  for (int row = 1; row <= state_.OnlineSourceCount; ++row) listed.insert(archivePathOf(state_, row));
  for (const QString& name : namesThatFit(state_.LocalFolder, u"*.zip", QDir::Files | QDir::Hidden)) {
    const QString path = state_.LocalFolder + name;
    const bool isMainArchive = name == state_.ArchiveFile;
    if (listed.contains(path) || isMainArchive) continue;
    if (isEmptyArchive(path) || isMadeByPacking(path)) QFile::remove(path);
  }
}

void ListSharing::makeEmpty(int row) const {
  try {
    makeEmptyArchive(archivePathOf(state_, row));
  } catch (const RuntimeFault&) {
    // Nothing is missing that the user could have expected.
  }
}

QString ListSharing::packRow(int row, const Job& job) {
  try {
    return packListingOf(row, job);
  } catch (const RuntimeFault& fault) {
    return sentence(fault.description());
  }
}

QString ListSharing::packListingOf(int row, const Job& job) {
  const QString listing = state_.onlineListingPath(state_.OnlineSources.description(row));
  if (!fileIsThere(listing)) {
    makeEmpty(row);
    return {};
  }
  const QString archive = archivePathOf(state_, row);
  const bool isMainArchive = archive == state_.LocalFolder + state_.ArchiveFile;
  if (isMainArchive || !mayBeReplacedByPacking(archive)) {
    return Texts::tr("%1 was not made by sharing. It was kept, and peers get it as it is.").arg(archive);
  }
  QElapsedTimer sinceEvents;
  sinceEvents.start();
  const auto pause = [this, &job, &sinceEvents](int) {
    if (!sinceEvents.hasExpired(kMillisecondsBetweenEvents)) return false;
    job.letEventsRun();
    sinceEvents.restart();
    return mustStop();
  };
  packListing(listing, archive, pause);
  return {};
}

bool ListSharing::mustStop() const {
  return !isSharing() || work_.isClosing();
}

void ListSharing::show(const QString& first, const QStringList& problems) {
  if (work_.isClosing()) return;
  if (problems.isEmpty()) return messages_.inform(first);
  messages_.inform(first + QStringLiteral("\r\n\r\n") + Texts::tr("Not all could be packed:") +
                   QStringLiteral("\r\n") + shownProblems(problems));
}

QString ListSharing::addressText() const {
  QStringList addresses = ownNetworkAddresses();
  if (addresses.isEmpty()) addresses += QStringLiteral("localhost");
  const QString sentence = addresses.size() == 1
                               ? Texts::tr("Your lists are shared on port %1 of this address: %2")
                               : Texts::tr("Your lists are shared on port %1 of these addresses: %2");
  return sentence.arg(QString::number(server_.port()), addresses.join(QStringLiteral(", ")));
}

}  // namespace quorvin
