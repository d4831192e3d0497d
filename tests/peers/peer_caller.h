// A client written by hand: it says what a test tells it, and gives back the very bytes that come.
#pragma once

#include "peers/peer_program.h"
#include "peers/server/peer_server.h"

#include <QTcpSocket>

#include <stdexcept>

namespace quorvin::test {

class PeerCaller {
 public:
  explicit PeerCaller(quint16 port) {
    socket_.connectToHost(QHostAddress(QHostAddress::LocalHost), port);
    if (!eventually([this] { return socket_.state() == QAbstractSocket::ConnectedState; })) {
      throw std::runtime_error("the server could not be reached");
    }
    socket_.setSocketOption(QAbstractSocket::LowDelayOption, 1);
  }

  void send(const QByteArray& message) {
    socket_.write(message);
    socket_.flush();
  }

  /// What comes until `count` bytes are there, or nothing more comes.
  QByteArray receive(qsizetype count) {
    eventually([this, count] { return socket_.bytesAvailable() >= count; });
    return socket_.readAll();
  }

  QByteArray ask(const QByteArray& message, qsizetype answerLength) {
    send(message);
    return receive(answerLength);
  }

  /// What has come after nothing more came for a while.
  QByteArray receiveForAWhile() {
    QTest::qWait(150);
    return socket_.readAll();
  }

  bool waitForClose() {
    return eventually([this] { return socket_.state() == QAbstractSocket::UnconnectedState; });
  }
  bool isConnected() const { return socket_.state() == QAbstractSocket::ConnectedState; }
  QTcpSocket& socket() { return socket_; }

 private:
  QTcpSocket socket_;
};

}  // namespace quorvin::test
