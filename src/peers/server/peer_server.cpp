// SPDX-License-Identifier: GPL-2.0-or-later
#include "peers/server/peer_server.h"

#include "archive/archive_packing.h"
#include "faults/runtime_fault.h"
#include "files/file_aside.h"
#include "platform/text_encoding.h"

#include <QFile>
#include <QFileInfo>
#include <QNetworkProxy>

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

namespace quorvin {

namespace {

constexpr std::size_t kSentPiece = std::size_t{64} << 10;

/// The first source of that name whose archive exists, else the row after the last source.
int rowOfArchive(QByteArrayView listName, const ProgramState& state) {
  int row = 1;
  for (; row <= state.OnlineSourceCount; ++row) {
    const bool isNamedSo = encodeSystemText(state.OnlineSources.description(row)) == listName;
    if (isNamedSo && QFileInfo(archivePathOf(state, row)).isFile()) break;
  }
  return row;
}

bool isArchiveOfSource(const QString& path, const ProgramState& state) {
  for (int row = 1; row <= state.OnlineSourceCount; ++row) {
    if (archivePathOf(state, row) == path) return true;
  }
  return false;
}

/// The search for an unknown list ends at the row after the last, which may still hold an earlier source:
/// what sharing made for that one is not shared any more.
void removeUnlisted(const QString& path, const ProgramState& state) {
  const bool isMainArchive = path == state.LocalFolder + state.ArchiveFile;
  if (isArchiveOfSource(path, state) || isMainArchive || !isMadeByPacking(path)) return;
  QFile::remove(path);
}

}  // namespace

PeerAnswer answerTo(QByteArrayView message, const ProgramState& state, const QLocale& locale) {
  const QByteArrayView keyword = keywordOf(message);
  const QByteArrayView argument = argumentOf(message, ArgumentOffset::Server);
  if (keyword == "Req List Info") return {listsMessage(state), std::nullopt};
  if (keyword == "Connecting from") return {kGreetingAnswer, std::nullopt};
  if (keyword == "I AM") return {identityMessage(state, locale), std::nullopt};
  if (keyword == "GetList") return {announcementMessage(argument), rowOfArchive(argument, state)};
  return {kUnknownAnswer, std::nullopt};
}

QString archivePathOf(const ProgramState& state, int row) {
  return state.LocalFolder + state.OnlineSources.description(row) + QStringLiteral(".zip");
}

void makeEmptyArchive(const QString& path) {
  const QFileInfo file(path);
  if (file.exists()) return;
  static_cast<void>(FileAside(path, {.mayReplace = false}).commitUnlessTaken(file.fileName()));
}

PeerConnection::PeerConnection(std::unique_ptr<QTcpSocket> socket, const ProgramState& state,
                               const QLocale& locale, const PeerServerLimits& limits, QObject* parent)
    : QObject(parent),
      socket_(std::move(socket)),
      address_(socket_->peerAddress()),
      state_(state),
      locale_(locale),
      limits_(limits) {
  // One byte more than a message may have, so that a longer one is seen as such.
  socket_->setReadBufferSize(limits_.messageBytes + 1);
  // An announcement is to leave before its archive, as a packet of its own.
  socket_->setSocketOption(QAbstractSocket::LowDelayOption, 1);
  idle_.setObjectName(QStringLiteral("idle"));
  idle_.setSingleShot(true);
  connect(&idle_, &QTimer::timeout, this, &PeerConnection::end);
  connect(socket_.get(), &QTcpSocket::readyRead, this, &PeerConnection::IPServ_DataArrival);
  // Queued, so that other events have their turn between an announcement and its archive.
  connect(socket_.get(), &QTcpSocket::bytesWritten, this, &PeerConnection::goOn, Qt::QueuedConnection);
  connect(socket_.get(), &QTcpSocket::disconnected, this, &PeerConnection::end);
  noteActivity();
}

PeerConnection::~PeerConnection() {
  socket_->disconnect(this);
  socket_->abort();
}

void PeerConnection::noteActivity() {
  idle_.start(limits_.idle);
  lastActive_.start();
}

void PeerConnection::IPServ_DataArrival() {
  noteActivity();
  const QByteArray message = socket_->readAll();
  if (message.isEmpty()) return;
  if (!mayWait(message)) return end();
  waiting_.push_back(message);
  // What is read comes in a buffer of many kilobytes, however short it is.
  waiting_.back().squeeze();
  waitingBytes_ += message.size();
  if (waiting_.size() == 1) goOn();
}

bool PeerConnection::mayWait(const QByteArray& message) const {
  return message.size() <= limits_.messageBytes && waiting_.size() < limits_.waitingMessages &&
         waitingBytes_ + message.size() <= limits_.waitingBytes;
}

/// Does what comes next, once everything before has been handed to the system.
void PeerConnection::goOn() {
  if (isOver_) return;
  noteActivity();
  if (socket_->bytesToWrite() > 0) return;
  endOnFault([this] {
    if (archiveRow_) openArchive();
    if (archive_) sendArchivePiece();
    if (!archive_) answerNext();
  });
}

void PeerConnection::answerNext() {
  if (waiting_.empty()) return;
  const QByteArray message = std::move(waiting_.front());
  waiting_.pop_front();
  waitingBytes_ -= message.size();
  const PeerAnswer answer = answerTo(message, state_, locale_);
  archiveRow_ = answer.archiveRow;
  socket_->write(answer.message);
  // At once: a caller that has said all it had to say ends its side, and then nothing more can be sent.
  socket_->flush();
}

void PeerConnection::openArchive() {
  const int row = *std::exchange(archiveRow_, std::nullopt);
  const QString path = archivePathOf(state_, row);
  if (row > state_.OnlineSourceCount) removeUnlisted(path, state_);
  // It is part of the exchange that the search for an unknown list ends with opening a file.
  makeEmptyArchive(path);
  archive_ = std::make_unique<SequentialFile>(path);
  archiveBytesLeft_ = archive_->sizeWhenOpened();
}

void PeerConnection::sendArchivePiece() {
  std::array<char, kSentPiece> piece{};
  const auto most = static_cast<std::size_t>(std::min<std::int64_t>(kSentPiece, archiveBytesLeft_));
  const std::size_t count = most == 0 ? 0 : archive_->read({piece.data(), most});
  archiveBytesLeft_ -= static_cast<std::int64_t>(count);
  if (count == 0) {
    archive_.reset();
    return;
  }
  socket_->write(piece.data(), static_cast<qint64>(count));
}

void PeerConnection::end() {
  if (std::exchange(isOver_, true)) return;
  idle_.stop();
  socket_->disconnect(this);
  socket_->abort();
  Q_EMIT closed();
}

/// Whatever a stranger's message causes must not stop the user's work: it costs the stranger the connection.
template <typename Action>
void PeerConnection::endOnFault(Action&& action) {
  try {
    action();
  } catch (const RuntimeFault& fault) {
    Q_EMIT faulted(fault.description());
    end();
  }
}

void PeerListener::acceptNext() {
  setMaxPendingConnections(1);
  if (isListening()) resumeAccepting();
}

void PeerListener::incomingConnection(qintptr descriptor) {
  // The toolkit accepts everything that waits in one go, pause or not, unless no connection may be pending.
  setMaxPendingConnections(0);
  Q_EMIT requested(descriptor);
}

PeerServer::PeerServer(const ProgramState& state, const QLocale& locale, PeerServerLimits limits,
                       QObject* parent)
    : QObject(parent), state_(state), locale_(locale), limits_(limits) {
  listener_.setObjectName(QStringLiteral("IPServ"));
  listener_.setProxy(QNetworkProxy::NoProxy);
  acceptPause_.setSingleShot(true);
  connect(&acceptPause_, &QTimer::timeout, &listener_, &PeerListener::acceptNext);
  connect(&listener_, &PeerListener::requested, this, &PeerServer::IPServ_ConnectionRequest);
  connect(&listener_, &PeerListener::acceptError, this, [this] { acceptPause_.start(limits_.acceptPause); });
}

PeerServer::~PeerServer() {
  stop();
}

bool PeerServer::start(std::uint16_t port, const QHostAddress& address) {
  if (!listener_.listen(address, port)) return false;
  listener_.acceptNext();
  return true;
}

void PeerServer::stop() {
  listener_.close();
  acceptPause_.stop();
  // Each that ends is removed.
  while (!connections_.empty()) connections_.back()->end();
}

void PeerServer::IPServ_ConnectionRequest(qintptr descriptor) {
  ++servConnCount_;
  acceptPause_.start(0);
  auto socket = std::make_unique<QTcpSocket>();
  if (!socket->setSocketDescriptor(descriptor)) return;
  makeRoomFor(socket->peerAddress());
  auto* connection = new PeerConnection(std::move(socket), state_, locale_, limits_, this);
  connections_.push_back(connection);
  connect(connection, &PeerConnection::closed, this, [this, connection] { remove(connection); });
  connect(connection, &PeerConnection::faulted, this, &PeerServer::faulted);
}

void PeerServer::makeRoomFor(const QHostAddress& address) {
  std::vector<PeerConnection*> rivals;
  std::copy_if(connections_.begin(), connections_.end(), std::back_inserter(rivals),
               [&address](const PeerConnection* connection) { return connection->address() == address; });
  const bool addressIsFull = static_cast<int>(rivals.size()) >= limits_.connectionsOfAddress;
  if (!addressIsFull && connectionCount() < limits_.connections) return;
  if (!addressIsFull) rivals = connections_;
  const auto longestIdle = std::min_element(rivals.begin(), rivals.end(),
                                            [](const PeerConnection* one, const PeerConnection* other) {
                                              return one->isIdleForLongerThan(*other);
                                            });
  (*longestIdle)->end();
}

void PeerServer::remove(PeerConnection* connection) {
  connections_.erase(std::find(connections_.begin(), connections_.end(), connection));
  connection->deleteLater();
}

}  // namespace quorvin
