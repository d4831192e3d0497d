#include "peers/client/peer_receiver.h"

#include "faults/runtime_fault.h"
#include "peers/messages/peer_message.h"
#include "peers/messages/peer_names.h"
#include "platform/text_encoding.h"

#include <utility>

namespace quorvin {

PeerReceiver::PeerReceiver(PeerSendQueue& queue, const QString& folder, std::int64_t mostBytes)
    : queue_(queue), folder_(folder), mostBytes_(mostBytes) {}

QString PeerReceiver::shownName() const {
  return u'"' + shownPeerText(name_) + u'"';
}

void PeerReceiver::identityArrived(const QByteArray& message) {
  peerIdent_ = decodeSystemText(argumentOf(message, ArgumentOffset::Client));
}

bool PeerReceiver::listNamed(const QByteArray& name) {
  if (!ask(name)) return false;
  ++figures_.listCount;
  return true;
}

bool PeerReceiver::ask(const QByteArray& name) {
  try {
    queue_.append(listRequestMessage(name));
    return true;
  } catch (const RuntimeFault& fault) {
    if (!std::exchange(queueIsFull_, true)) {
      problems_ += QStringLiteral(
                       "Run-time error '%1': %2. One run of the program can ask for about 1000 "
                       "lists. Start it again to get the others.")
                       .arg(fault.number())
                       .arg(fault.description());
    }
    return false;
  }
}

void PeerReceiver::archiveAnnounced(const QByteArray& name, const QByteArray& message) {
  name_ = decodeSystemText(name);
  peerListName_ = decodeSystemText(argumentOf(message, ArgumentOffset::Client));
  figures_.list = shownPeerText(name_);
  ++figures_.listNumber;
  figures_.bytes = 0;
}

void PeerReceiver::archiveBytes(QByteArrayView bytes) {
  if (bytes.isEmpty()) return;
  if (!archive_) archive_ = std::make_unique<PeerReceivedArchive>(folder_, safeFileName(name_));
  if (archive_->size() + bytes.size() > mostBytes_) {
    archive_.reset();
    throw RuntimeFault(FaultNumber::Overflow,
                       QStringLiteral("The archive of %1 has no end").arg(shownName()));
  }
  archive_->write(bytes);
  figures_.bytes = archive_->size();
}

void PeerReceiver::archiveWhole() {
  const auto archive = std::exchange(archive_, nullptr);
  received_.push_back({name_, archive->keep()});
}

void PeerReceiver::archiveMissing() {
  problems_ += QStringLiteral("The peer sent no archive of %1.").arg(shownName());
}

void PeerReceiver::archiveCut(std::int64_t length) {
  problems_ += QStringLiteral("The archive of %1 did not come whole, and was not kept.").arg(shownName());
  auto archive = std::exchange(archive_, nullptr);
  if (!archive || length >= archive->size()) return;
  cut_ = std::move(archive);
  cutLength_ = length;
}

bool PeerReceiver::requestLost(const QByteArray& name, bool isFirstTime) {
  if (isFirstTime && ask(name)) return true;
  name_ = decodeSystemText(name);
  archiveMissing();
  return false;
}

PeerReceiver::Rest PeerReceiver::takeRest() {
  cutBeingRead_ = std::exchange(cut_, nullptr);
  return {cutBeingRead_->closeForReading(), cutLength_, cutBeingRead_->size()};
}

}  // namespace quorvin
