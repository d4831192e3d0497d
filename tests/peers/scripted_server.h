// SPDX-License-Identifier: GPL-2.0-or-later

// A server for tests: it sends what the test tells it, in pieces that arrive one by one.
#pragma once

#include <QHostAddress>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

#include <deque>
#include <functional>
#include <stdexcept>
#include <sys/socket.h>
#include <utility>
#include <vector>

namespace quorvin::test {

class ScriptedServer {
 public:
  /// Gives the pieces to send in answer to a message.
  using Script = std::function<std::vector<QByteArray>(const QByteArray& message)>;

  explicit ScriptedServer(Script script) : script_(std::move(script)) {
    if (!server_.listen(QHostAddress::LocalHost)) throw std::runtime_error("no port could be opened");
    QObject::connect(&server_, &QTcpServer::newConnection, &server_, [this] { accept(); });
    // In each turn of the event loop sockets come before timers, so that each piece is seen before the next.
    pace_.setInterval(0);
    QObject::connect(&pace_, &QTimer::timeout, &server_, [this] { sendPiece(); });
  }

  quint16 port() const { return server_.serverPort(); }

  /// Sent as soon as somebody connects.
  std::vector<QByteArray> welcome;
  /// Whether to end the connection once everything has been sent, or to break it with a reset.
  bool closeWhenSent = false;
  std::function<bool()> resetsWhenSent = [] { return false; };
  /// Every message that came, one for each data event.
  std::vector<QByteArray> messages;
  bool isClosed = false;

  QTcpSocket* connection = nullptr;

 private:
  void accept() {
    connection = server_.nextPendingConnection();
    connection->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    QObject::connect(connection, &QTcpSocket::readyRead, &server_, [this] { answer(); });
    QObject::connect(connection, &QTcpSocket::disconnected, &server_, [this] { isClosed = true; });
    enqueue(welcome);
  }

  void answer() {
    const QByteArray message = connection->readAll();
    messages.push_back(message);
    enqueue(script_(message));
  }

  void enqueue(const std::vector<QByteArray>& pieces) {
    pieces_.insert(pieces_.end(), pieces.begin(), pieces.end());
    if (!pieces_.empty()) pace_.start();
  }

  void sendPiece() {
    if (!pieces_.empty()) {
      connection->write(pieces_.front());
      connection->flush();
      pieces_.pop_front();
      return;
    }
    pace_.stop();
    if (resetsWhenSent()) reset();
    if (closeWhenSent) connection->disconnectFromHost();
  }

  /// A connection that is closed without any time to linger is reset.
  void reset() {
    const linger none{1, 0};
    ::setsockopt(static_cast<int>(connection->socketDescriptor()), SOL_SOCKET, SO_LINGER, &none, sizeof none);
    connection->abort();
  }

  Script script_;
  QTcpServer server_;
  QTimer pace_;
  std::deque<QByteArray> pieces_;
};

/// The answers of a server that has these lists, each message in one piece.
class UsualAnswers {
 public:
  UsualAnswers() = default;

  void add(const QByteArray& name, const QByteArray& archive) { lists_.push_back({name, archive}); }

  QByteArray listsAnswer() const {
    QByteArray names;
    for (const List& list : lists_) names += list.name + "\r\n";
    return "Lists:\r\n" + names;
  }

  QByteArray to(const QByteArray& message) const {
    if (message.startsWith("Connecting from: ")) return "OK:";
    if (message.startsWith("I AM: ")) return "I AM: Bob 37622";
    if (message == "Req List Info:") return listsAnswer();
    for (const List& list : lists_) {
      if (message == "GetList: " + list.name) return "List: " + list.name + ".zip" + list.archive;
    }
    return "NA:";
  }

  std::vector<QByteArray> operator()(const QByteArray& message) const { return {to(message)}; }

 private:
  struct List {
    QByteArray name;
    QByteArray archive;
  };
  std::vector<List> lists_;
};

inline std::vector<QByteArray> bytesOf(const QByteArray& whole) {
  std::vector<QByteArray> pieces;
  for (const char byte : whole) pieces.push_back(QByteArray(1, byte));
  return pieces;
}

}  // namespace quorvin::test
