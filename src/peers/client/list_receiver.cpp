// SPDX-License-Identifier: GPL-2.0-or-later
#include "peers/client/list_receiver.h"

#include "faults/runtime_fault.h"
#include "files/file_reader.h"
#include "peers/messages/peer_message.h"
#include "peers/messages/peer_names.h"
#include "platform/text_encoding.h"
#include "texts/texts.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

namespace quorvin {

namespace {

constexpr std::size_t kReceivedPiece = std::size_t{1} << 16;
constexpr int kMostTries = 10;
const QString kEnding = QStringLiteral(".zip");

RuntimeFault cannotMake(const QString& path) {
  return {FaultNumber::PathFileAccess, describe(FaultNumber::PathFileAccess) + QStringLiteral(": ") + path};
}

/// `folder`, made with those above it.
QString madeFolder(const QString& folder) {
  if (!QDir().mkpath(folder)) throw cannotMake(folder);
  return folder;
}

bool holdSameBytes(const QString& first, const QString& second) {
  if (QFileInfo(first).size() != QFileInfo(second).size()) return false;
  SequentialFile one(first);
  SequentialFile other(second);
  std::vector<char> piece(kReceivedPiece);
  std::vector<char> otherPiece(kReceivedPiece);
  for (;;) {
    const std::size_t count = one.read(piece);
    if (count != other.read(otherPiece)) return false;
    if (count == 0) return true;
    if (!std::equal(piece.begin(), piece.begin() + static_cast<std::ptrdiff_t>(count), otherPiece.begin())) {
      return false;
    }
  }
}

bool isThisArchiveAlready(const QString& path, const QString& aside) {
  if (!QFileInfo(path).isFile()) return false;
  try {
    return holdSameBytes(aside, path);
  } catch (const RuntimeFault&) {
    // What cannot be read is another file.
    return false;
  }
}

}  // namespace

ReceivedArchive::ReceivedArchive(const QString& folder, const QString& name)
    : folder_(madeFolder(folder)), name_(name), file_(folder + name + kEnding, {.mayReplace = false}) {}

void ReceivedArchive::write(QByteArrayView bytes) {
  file_.write(std::string_view(bytes.data(), static_cast<std::size_t>(bytes.size())));
  size_ += bytes.size();
}

QString ReceivedArchive::finishForReading() {
  file_.finish();
  return file_.path();
}

QString ReceivedArchive::keep() {
  const QString wanted = folder_ + name_ + kEnding;
  if (isThisArchiveAlready(wanted, finishForReading())) return wanted;
  // A name may be taken between the look and the renaming, which refuses to replace a file.
  for (int tries = 0; tries < kMostTries; ++tries) {
    const QString path = freePath(folder_, name_, kEnding);
    if (file_.commitUnlessTaken(path.mid(folder_.size()))) return path;
  }
  throw cannotMake(wanted);
}

ListReceiver::ListReceiver(SendQueue& queue, const QString& folder, std::int64_t mostBytes)
    : queue_(queue), folder_(folder), mostBytes_(mostBytes) {
  removeLeftovers(folder);
}

QString ListReceiver::shownName() const {
  return u'"' + shownPeerText(name_) + u'"';
}

void ListReceiver::identityArrived(const QByteArray& message) {
  peerIdent_ = decodeSystemText(argumentOf(message, ArgumentOffset::Client));
}

bool ListReceiver::listNamed(const QByteArray& name) {
  if (!ask(name)) return false;
  ++figures_.listCount;
  return true;
}

bool ListReceiver::ask(const QByteArray& name) {
  try {
    queue_.append(listRequestMessage(name));
    return true;
  } catch (const RuntimeFault& fault) {
    if (!std::exchange(queueIsFull_, true)) {
      problems_ +=
          faultSentence(fault) + u' ' +
          Texts::tr("One run of the program can ask for about 1000 lists. Start it again to get the others.");
    }
    return false;
  }
}

void ListReceiver::archiveAnnounced(const QByteArray& name, const QByteArray& message) {
  name_ = decodeSystemText(name);
  peerListName_ = decodeSystemText(argumentOf(message, ArgumentOffset::Client));
  figures_.list = shownPeerText(name_);
  ++figures_.listNumber;
  figures_.bytes = 0;
}

void ListReceiver::archiveBytes(QByteArrayView bytes) {
  if (bytes.isEmpty()) return;
  if (!archive_) archive_ = std::make_unique<ReceivedArchive>(folder_, safeFileName(name_));
  if (archive_->size() + bytes.size() > mostBytes_) {
    archive_.reset();
    throw RuntimeFault(FaultNumber::Overflow, Texts::tr("The archive of %1 has no end").arg(shownName()));
  }
  archive_->write(bytes);
  figures_.bytes = archive_->size();
}

void ListReceiver::archiveWhole() {
  const auto archive = std::exchange(archive_, nullptr);
  received_.push_back({name_, archive->keep()});
}

void ListReceiver::archiveMissing() {
  problems_ += Texts::tr("The peer sent no archive of %1.").arg(shownName());
}

void ListReceiver::archiveCut(std::int64_t length) {
  problems_ += Texts::tr("The archive of %1 did not arrive complete, and was not kept.").arg(shownName());
  auto archive = std::exchange(archive_, nullptr);
  if (!archive || length >= archive->size()) return;
  cut_ = std::move(archive);
  cutLength_ = length;
}

bool ListReceiver::requestLost(const QByteArray& name, bool isFirstTime) {
  if (isFirstTime && ask(name)) return true;
  name_ = decodeSystemText(name);
  archiveMissing();
  return false;
}

ListReceiver::Rest ListReceiver::takeRest() {
  cutBeingRead_ = std::exchange(cut_, nullptr);
  return {cutBeingRead_->finishForReading(), cutLength_, cutBeingRead_->size()};
}

}  // namespace quorvin
