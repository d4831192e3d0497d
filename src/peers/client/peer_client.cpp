// SPDX-License-Identifier: GPL-2.0-or-later
#include "peers/client/peer_client.h"

#include "faults/runtime_fault.h"
#include "files/path_style.h"
#include "peers/messages/peer_message.h"
#include "texts/texts.h"

#include <QHostAddress>
#include <QNetworkProxy>

#include <algorithm>
#include <array>
#include <span>
#include <utility>

namespace quorvin {

namespace {

constexpr qint64 kReadBuffer = qint64{64} << 10;
constexpr int kMillisecondsBetweenProgress = 50;

QString folderOf(const ProgramState& state, const HostAndPort& peer) {
  const QChar separator = nativePathStyle().separator;
  return state.LocalFolder + QStringLiteral("Received") + separator + safeFileName(peer.text()) + separator;
}

}  // namespace

PeerClient::PeerClient(ProgramState& state, SendQueue& queue, SendTimer& timer, const QLocale& locale,
                       PeerClientLimits limits, QObject* parent)
    : QObject(parent), state_(state), queue_(queue), sndQTime_(timer), locale_(locale), limits_(limits) {
  IPClient_.setObjectName(QStringLiteral("IPClient"));
  IPClient_.setProxy(QNetworkProxy::NoProxy);
  IPClient_.setReadBufferSize(kReadBuffer);
  sndQTime_.setSender([this](const QByteArray& payload) { send(payload); });
  connect(&IPClient_, &QTcpSocket::connected, this, &PeerClient::IPClient_Connect);
  connect(&IPClient_, &QTcpSocket::readyRead, this, &PeerClient::IPClient_DataArrival);
  connect(&IPClient_, &QTcpSocket::errorOccurred, this, &PeerClient::connectionFailed);
  connect(&IPClient_, &QTcpSocket::disconnected, this, &PeerClient::connectionClosed);
  connect(&settle_, &QTimer::timeout, this, &PeerClient::settle);
  connect(&stall_, &QTimer::timeout, this, &PeerClient::stalled);
  connect(&silence_, &QTimer::timeout, this, &PeerClient::silent);
  connect(&restPiece_, &QTimer::timeout, this, &PeerClient::feedRestPiece);
  connect(&progressPace_, &QTimer::timeout, this, &PeerClient::progressed);
  settle_.setObjectName(QStringLiteral("settle"));
  silence_.setObjectName(QStringLiteral("silence"));
  restPiece_.setObjectName(QStringLiteral("restPiece"));
  for (QTimer* once : {&settle_, &stall_, &silence_, &progressPace_}) once->setSingleShot(true);
}

PeerClient::~PeerClient() {
  sndQTime_.setSender({});
  IPClient_.disconnect(this);
  IPClient_.abort();
}

void PeerClient::start(const HostAndPort& peer) {
  if (isRunning()) return;
  peer_ = peer;
  isClosed_ = false;
  isCancelled_ = false;
  receiver_ = std::make_unique<ListReceiver>(queue_, folderOf(state_, peer), limits_.archiveBytes);
  stream_ = std::make_unique<AnswerStream>(*receiver_);
  silence_.start(limits_.silence);
  IPClient_.connectToHost(peer.host, peer.port);
}

void PeerClient::cancel() {
  if (!isRunning()) return;
  isCancelled_ = true;
  finish();
}

void PeerClient::IPClient_Connect() {
  // Each message is sent as it is queued, so that it arrives as one.
  IPClient_.setSocketOption(QAbstractSocket::LowDelayOption, 1);
  silence_.start(limits_.silence);
  succeeds([this] {
    queue_.append(greetingMessage(IPClient_.localAddress().toString()));
    queue_.append(identityMessage(state_, locale_));
    queue_.append(kListInfoRequest);
    sndQTime_.enable();
  });
}

void PeerClient::send(const QByteArray& payload) {
  if (IPClient_.state() == QAbstractSocket::ConnectedState) IPClient_.write(payload);
}

void PeerClient::IPClient_DataArrival() {
  if (!isRunning() || rest_) return;
  const QByteArray bytes = IPClient_.readAll();
  if (bytes.isEmpty()) return;
  // Whatever has come counts as the reply to what was sent last.
  queue_.replyArrived();
  feed(bytes);
  if (isRunning() && !queue_.isDrained()) sndQTime_.enable();
}

void PeerClient::feed(QByteArrayView bytes) {
  restartTimers();
  const bool makesSense = succeeds([this, bytes] { stream_->feed(bytes); });
  if (!makesSense) return;
  noteAnnounced();
  if (stream_->isComplete()) return finish();
  if (!progressPace_.isActive()) progressPace_.start(kMillisecondsBetweenProgress);
}

void PeerClient::noteAnnounced() {
  if (!receiver_->PeerListName().isEmpty()) peerListName_ = receiver_->PeerListName();
  if (receiver_->PeerIdent().isEmpty()) return;
  peerIdent_ = receiver_->PeerIdent();
  peerAddress_ = IPClient_.peerAddress().toString();
}

void PeerClient::connectionFailed() {
  // How an established connection ends is the business of connectionClosed().
  if (!isRunning() || IPClient_.state() == QAbstractSocket::ConnectedState) return;
  if (IPClient_.error() == QAbstractSocket::RemoteHostClosedError) return;
  if (stream_->hasLists()) return;
  finish(sentence(Texts::tr("The peer could not be reached: %1").arg(IPClient_.errorString())));
}

void PeerClient::connectionClosed() {
  if (!isRunning()) return;
  IPClient_DataArrival();
  if (!isRunning()) return;
  isClosed_ = true;
  if (!rest_) endStream();
}

/// Nothing more will come.
void PeerClient::endStream() {
  if (!succeeds([this] { stream_->end(); })) return;
  if (receiver_->hasRest()) return startRest();
  if (stream_->isComplete()) return finish();
  finish(isClosed_ ? Texts::tr("The peer ended the connection before everything had arrived.")
                   : Texts::tr("The peer has stopped sending before everything had arrived."));
}

/// What follows a broken archive in its file is fed again, piece by piece, since it may be long.
void PeerClient::startRest() {
  succeeds([this] {
    rest_ = receiver_->takeRest();
    restFile_ = std::make_unique<RandomAccessFile>(rest_->path);
    restPiece_.start(0);
  });
}

void PeerClient::feedRestPiece() {
  std::array<char, kReadBuffer> piece{};
  const auto count = static_cast<std::size_t>(std::min<std::int64_t>(kReadBuffer, rest_->to - rest_->from));
  if (count == 0) return endRest();
  const std::span<char> bytes(piece.data(), count);
  if (!succeeds([&] { restFile_->read(rest_->from, std::as_writable_bytes(bytes)); })) return;
  rest_->from += static_cast<std::int64_t>(count);
  feed({bytes.data(), static_cast<qsizetype>(count)});
}

void PeerClient::endRest() {
  dropRest();
  IPClient_DataArrival();
  if (isRunning() && isClosed_) endStream();
}

void PeerClient::dropRest() {
  restPiece_.stop();
  rest_.reset();
  restFile_.reset();
}

void PeerClient::settle() {
  if (rest_ || !succeeds([this] { stream_->settle(); })) return;
  if (stream_->isComplete()) finish();
}

void PeerClient::stalled() {
  if (!rest_ && stream_->mayBeCut()) endStream();
}

void PeerClient::silent() {
  const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(limits_.silence).count();
  finish(IPClient_.state() == QAbstractSocket::ConnectedState
             ? Texts::tr("The peer has not sent anything for %1 seconds.").arg(seconds)
             : Texts::tr("The peer could not be reached within %1 seconds.").arg(seconds));
}

void PeerClient::restartTimers() {
  settle_.start(limits_.settle);
  stall_.start(limits_.stall);
  silence_.start(limits_.silence);
}

void PeerClient::stopTimers() {
  for (QTimer* timer : {&settle_, &stall_, &silence_, &progressPace_}) timer->stop();
}

void PeerClient::finish(const QString& problem) {
  stopTimers();
  dropRest();
  stream_.reset();
  const std::unique_ptr<ListReceiver> receiver = std::exchange(receiver_, nullptr);
  queue_.abandon();
  IPClient_.abort();
  PeerOutcome outcome{peer_.text(), receiver->received(), receiver->problems(), isCancelled_};
  if (!problem.isEmpty()) outcome.problems += problem;
  Q_EMIT ended(outcome);
}

/// Runs `action`; a fault in it ends the conversation.
template <typename Action>
bool PeerClient::succeeds(Action&& action) {
  try {
    action();
    return true;
  } catch (const RuntimeFault& fault) {
    finish(faultSentence(fault));
    return false;
  }
}

}  // namespace quorvin
