// SPDX-License-Identifier: GPL-2.0-or-later

// A client written by hand: it says what a test tells it, and gives back the very bytes that come.
#pragma once

#include "peers/peer_program.h"
#include "peers/server/peer_server.h"

#include <QCoreApplication>
#include <QHostAddress>
#include <QTcpSocket>

#include <stdexcept>

namespace quorvin::test {

class PeerCaller {
 public:
  /// Calls from the address `from` of this machine, when one is given.
  explicit PeerCaller(quint16 port, const QHostAddress& from = {}) {
    if (!from.isNull() && !socket_.bind(from)) throw std::runtime_error("the address cannot be used");
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

  /// What still comes in answer to what was said before: all that comes before the answer to a greeting.
  QByteArray receiveRest() {
    send("Connecting from: x");
    QByteArray bytes;
    const bool isAnswered = eventually([&] {
      bytes += socket_.readAll();
      return bytes.endsWith("OK:");
    });
    if (!isAnswered) throw std::runtime_error("the server has not answered the greeting");
    return bytes.chopped(3);
  }

  /// Sends a message that the server takes as one, apart from the next: on one machine it is there at once.
  void sendAlone(const QByteArray& message) {
    constexpr int kTurns = 5;
    send(message);
    for (int turn = 0; turn < kTurns; ++turn) QCoreApplication::processEvents();
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
