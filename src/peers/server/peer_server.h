// SPDX-License-Identifier: GPL-2.0-or-later

// The side of the peer exchange that accepts connections: what callers say is answered, and archives are sent
// to them.
#pragma once

#include "files/file_reader.h"
#include "peers/messages/peer_message.h"
#include "state/program_state.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QElapsedTimer>
#include <QHostAddress>
#include <QLocale>
#include <QObject>
#include <QString>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

#include <chrono>
#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <vector>

namespace quorvin {

/// The answer to one message: a message, and for a request for a list the row of the sources at which the
/// look for its archive has stopped.
struct PeerAnswer {
  QByteArray message;
  std::optional<int> archiveRow;

  bool operator==(const PeerAnswer&) const = default;
};

/// Answers `message`, the whole of what one data event has brought. Throws fault 5 when it holds no colon.
PeerAnswer answerTo(QByteArrayView message, const ProgramState& state, const QLocale& locale);

/// The path of the archive of the source in `row`: `LocalFolder` + description + ".zip". Throws fault 9
/// beyond the table, which is where the look for an unknown list stops when all 2000 rows are in use.
QString archivePathOf(const ProgramState& state, int row);

/// Makes an empty file at `path` where there is nothing. Throws RuntimeFault as FileAside does.
void makeEmptyArchive(const QString& path);

/// What callers may take up.
struct PeerServerLimits {
  /// Of all callers, and of those that call from one address.
  int connections = 64;
  int connectionsOfAddress = 8;
  /// Without a byte read or written.
  std::chrono::milliseconds idle = std::chrono::minutes(10);
  qsizetype messageBytes = qsizetype{64} << 10;
  /// Messages that wait to be answered, in number and in bytes: a client sends no more than 1000 in its life.
  std::size_t waitingMessages = 1000;
  qsizetype waitingBytes = qsizetype{256} << 10;
  /// How long accepting pauses when the system has no descriptor left.
  std::chrono::milliseconds acceptPause = std::chrono::seconds(1);
};

/// An element of `IPServ`. What one data event brings is one message. Messages are answered in their order,
/// each when the answer before has been handed to the system; an archive is read as fast as it is taken. A
/// fault, a message that is too long, too many messages, or too long a silence ends the connection.
class PeerConnection : public QObject {
  Q_OBJECT

 public:
  /// Takes over `socket`, which is connected. `state` must outlive the connection.
  PeerConnection(std::unique_ptr<QTcpSocket> socket, const ProgramState& state, const QLocale& locale,
                 const PeerServerLimits& limits, QObject* parent = nullptr);
  ~PeerConnection() override;

  /// Ends the connection at once.
  void end();

  const QHostAddress& address() const { return address_; }
  /// Whether nothing has been read or written here for longer than in `other`.
  bool isIdleForLongerThan(const PeerConnection& other) const { return lastActive_ < other.lastActive_; }

 Q_SIGNALS:
  /// The connection is over. Emitted once, after everything else.
  void closed();
  /// A message could not be answered. The connection is ended after it.
  void faulted(const QString& description);

 private:
  void IPServ_DataArrival();
  void noteActivity();
  bool mayWait(const QByteArray& message) const;
  void goOn();
  void answerNext();
  void openArchive();
  void sendArchivePiece();
  template <typename Action>
  void endOnFault(Action&& action);

  std::unique_ptr<QTcpSocket> socket_;
  QHostAddress address_;
  const ProgramState& state_;
  QLocale locale_;
  PeerServerLimits limits_;
  QTimer idle_{this};
  QElapsedTimer lastActive_;
  std::deque<QByteArray> waiting_;
  qsizetype waitingBytes_ = 0;
  /// Set from an announcement to the opening of the archive announced.
  std::optional<int> archiveRow_;
  /// Only while an archive is being sent.
  std::unique_ptr<SequentialFile> archive_;
  std::int64_t archiveBytesLeft_ = 0;
  bool isOver_ = false;
};

/// The listening socket, element 0 of `IPServ`. It accepts one connection, and then no more until it is asked
/// to; the others wait in the system's queue. So a flood of callers leaves room for other events.
class PeerListener : public QTcpServer {
  Q_OBJECT

 public:
  using QTcpServer::QTcpServer;
  /// Accepts the next connection as soon as there is one.
  void acceptNext();

 Q_SIGNALS:
  void requested(qintptr descriptor);

 protected:
  void incomingConnection(qintptr descriptor) override;
};

/// Answers callers which lists there are, and sends their archives. It listens only between start() and
/// stop(). A new caller is always let in: where its address or all callers together have as many connections
/// as they may, the one that has been idle for longest is ended.
class PeerServer : public QObject {
  Q_OBJECT

 public:
  /// `state` must outlive the server.
  PeerServer(const ProgramState& state, const QLocale& locale, PeerServerLimits limits = {},
             QObject* parent = nullptr);
  ~PeerServer() override;

  /// Opens the listener. False when that failed; errorText() then says why.
  bool start(std::uint16_t port = kPeerPort, const QHostAddress& address = QHostAddress::Any);
  /// Closes the listener and ends every connection.
  void stop();

  bool isListening() const { return listener_.isListening(); }
  /// The port that is listened on.
  std::uint16_t port() const { return listener_.serverPort(); }
  QString errorText() const { return listener_.errorString(); }

  /// How many connections there are now, and the index of the last one accepted.
  int connectionCount() const { return static_cast<int>(connections_.size()); }
  std::int32_t ServConnCount() const { return servConnCount_; }

 Q_SIGNALS:
  /// A caller's message could not be answered.
  void faulted(const QString& description);

 private:
  void IPServ_ConnectionRequest(qintptr descriptor);
  void makeRoomFor(const QHostAddress& address);
  void remove(PeerConnection* connection);

  const ProgramState& state_;
  QLocale locale_;
  PeerServerLimits limits_;
  PeerListener listener_;
  /// From an accepted connection, or a failure, to when the next one is accepted.
  QTimer acceptPause_;
  /// Children of the server.
  std::vector<PeerConnection*> connections_;
  std::int32_t servConnCount_ = 0;
};

}  // namespace quorvin
