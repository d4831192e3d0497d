#include "peers/server/peer_server.h"

#include <QNetworkInterface>
#include <QNetworkProxy>

#include <algorithm>
#include <memory>

namespace quorvin {

void PeerListener::setAccepting(bool accepting) {
  // The toolkit accepts everything that waits in one go, whatever it is told meanwhile, unless no connection
  // may be pending.
  setMaxPendingConnections(accepting ? 1 : 0);
  if (!isListening()) return;
  if (accepting) {
    resumeAccepting();
  } else {
    pauseAccepting();
  }
}

void PeerListener::incomingConnection(qintptr descriptor) {
  Q_EMIT requested(descriptor);
}

PeerServer::PeerServer(const ProgramState& state, const QLocale& locale, PeerServerLimits limits,
                       QObject* parent)
    : QObject(parent), state_(state), locale_(locale), limits_(limits) {
  listener_.setObjectName(QStringLiteral("IPServ"));
  listener_.setProxy(QNetworkProxy::NoProxy);
  acceptPause_.setSingleShot(true);
  connect(&acceptPause_, &QTimer::timeout, this, &PeerServer::acceptAsFitting);
  connect(&listener_, &PeerListener::requested, this, &PeerServer::IPServ_ConnectionRequest);
  connect(&listener_, &PeerListener::acceptError, this, [this] { acceptPause_.start(limits_.acceptPause); });
}

PeerServer::~PeerServer() {
  stop();
}

bool PeerServer::start(std::uint16_t port) {
  if (!listener_.listen(QHostAddress::Any, port)) return false;
  acceptAsFitting();
  return true;
}

void PeerServer::stop() {
  listener_.close();
  acceptPause_.stop();
  for (PeerConnection* connection : connections_) {
    connection->disconnect(this);
    connection->end();
    connection->deleteLater();
  }
  connections_.clear();
}

void PeerServer::IPServ_ConnectionRequest(qintptr descriptor) {
  ++servConnCount_;
  auto socket = std::make_unique<QTcpSocket>();
  if (!socket->setSocketDescriptor(descriptor)) return;
  auto* connection = new PeerConnection(std::move(socket), state_, locale_, limits_, this);
  connections_.push_back(connection);
  connect(connection, &PeerConnection::closed, this, [this, connection] { remove(connection); });
  connect(connection, &PeerConnection::faulted, this, &PeerServer::faulted);
  if (connectionCount() >= limits_.connections) acceptAsFitting();
}

void PeerServer::remove(PeerConnection* connection) {
  connections_.erase(std::find(connections_.begin(), connections_.end(), connection));
  connection->deleteLater();
  if (!acceptPause_.isActive()) acceptAsFitting();
}

void PeerServer::acceptAsFitting() {
  listener_.setAccepting(connectionCount() < limits_.connections);
}

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

}  // namespace quorvin
