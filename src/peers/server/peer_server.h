// The side of the peer exchange that accepts connections.
#pragma once

#include "peers/messages/peer_message.h"
#include "peers/server/peer_connection.h"
#include "state/program_state.h"

#include <QHostAddress>
#include <QLocale>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTcpServer>
#include <QTimer>

#include <cstdint>
#include <vector>

namespace quorvin {

/// The listening socket, element 0 of `IPServ`. A connection is accepted only while there is room for one
/// more; the others wait in the system's queue.
class PeerListener : public QTcpServer {
  Q_OBJECT

 public:
  using QTcpServer::QTcpServer;
  /// Accepts from now on, or stops accepting.
  void setAccepting(bool accepting);

 Q_SIGNALS:
  void requested(qintptr descriptor);

 protected:
  void incomingConnection(qintptr descriptor) override;
};

/// Tells callers which lists there are, and sends their archives. It listens only between start() and stop().
class PeerServer : public QObject {
  Q_OBJECT

 public:
  /// `state` must outlive the server.
  PeerServer(const ProgramState& state, const QLocale& locale, PeerServerLimits limits = {},
             QObject* parent = nullptr);
  ~PeerServer() override;

  /// Opens the listener on all addresses. False when that failed; errorText() then says why.
  bool start(std::uint16_t port = kPeerPort);
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
  void remove(PeerConnection* connection);
  void acceptAsFitting();

  const ProgramState& state_;
  QLocale locale_;
  PeerServerLimits limits_;
  PeerListener listener_;
  QTimer acceptPause_;
  /// Children of the server.
  std::vector<PeerConnection*> connections_;
  std::int32_t servConnCount_ = 0;
};

/// This machine's own addresses, without those that only it can reach; IPv4 first.
QStringList ownNetworkAddresses();

}  // namespace quorvin
