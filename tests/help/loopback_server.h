// SPDX-License-Identifier: GPL-2.0-or-later

// A real server on this machine, which answers as the test wants.
#pragma once

#include <QByteArray>
#include <QHostAddress>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <QUrl>

#include <functional>
#include <stdexcept>
#include <utility>

namespace quorvin::test {

class LoopbackServer {
 public:
  /// Called with each connection that has sent a whole request, and with the request.
  using Answer = std::function<void(QTcpSocket& connection, const QByteArray& request)>;

  explicit LoopbackServer(Answer answer) : answer_(std::move(answer)) {
    if (!server_.listen(QHostAddress::LocalHost)) throw std::runtime_error("no port could be opened");
    QObject::connect(&server_, &QTcpServer::newConnection, &server_, [this] { accept(); });
  }

  QUrl address(const QString& path = QStringLiteral("/page")) const {
    return QUrl(QStringLiteral("http://127.0.0.1:%1%2").arg(server_.serverPort()).arg(path));
  }

  int connections = 0;
  /// Requests that have come whole.
  int requests = 0;
  int closed = 0;

 private:
  void accept() {
    while (QTcpSocket* connection = server_.nextPendingConnection()) {
      ++connections;
      QObject::connect(connection, &QTcpSocket::disconnected, &server_, [this] { ++closed; });
      QObject::connect(connection, &QTcpSocket::readyRead, &server_, [this, connection] {
        if (!connection->peek(64 * 1024).contains("\r\n\r\n")) return;
        ++requests;
        answer_(*connection, connection->readAll());
      });
    }
  }

  Answer answer_;
  QTcpServer server_;
};

/// An answer that sends `bytes` and closes.
inline LoopbackServer::Answer sending(const QByteArray& bytes) {
  return [bytes](QTcpSocket& connection, const QByteArray&) {
    connection.write(bytes);
    connection.disconnectFromHost();
  };
}

inline QByteArray htmlAnswer(const QByteArray& body) {
  return "HTTP/1.1 200 OK\r\nContent-Type: text/html; charset=utf-8\r\nContent-Length: " +
         QByteArray::number(body.size()) + "\r\nConnection: close\r\n\r\n" + body;
}

/// An answer that starts a page and never ends it; more of it comes every few milliseconds.
inline LoopbackServer::Answer sendingForEver() {
  return [](QTcpSocket& connection, const QByteArray&) {
    connection.write("HTTP/1.1 200 OK\r\nContent-Type: text/html\r\nConnection: close\r\n\r\n<p>");
    auto* more = new QTimer(&connection);
    QObject::connect(more, &QTimer::timeout, &connection, [&connection] { connection.write("word "); });
    more->start(5);
  };
}

/// Takes the request and says nothing.
inline LoopbackServer::Answer silence() {
  return [](QTcpSocket&, const QByteArray&) {};
}

}  // namespace quorvin::test
