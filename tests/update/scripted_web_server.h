// SPDX-License-Identifier: GPL-2.0-or-later

// A real web server on this machine, which answers each request as the test tells it.
#pragma once

#include <QByteArray>
#include <QHostAddress>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <QUrl>

#include <functional>
#include <memory>
#include <stdexcept>
#include <utility>
#include <vector>

namespace quorvin::test {

/// Called with a connection that has sent a whole request.
using WebAnswer = std::function<void(QTcpSocket& connection)>;

class ScriptedWebServer {
 public:
  /// The answers to the first, the second ... request; the last one serves all others. `server` is the kind
  /// of server, when it is not a plain one.
  explicit ScriptedWebServer(std::vector<WebAnswer> answers,
                             std::unique_ptr<QTcpServer> server = std::make_unique<QTcpServer>())
      : answers_(std::move(answers)), server_(std::move(server)) {
    if (!server_->listen(QHostAddress::LocalHost)) throw std::runtime_error("no port could be opened");
    QObject::connect(server_.get(), &QTcpServer::pendingConnectionAvailable, server_.get(),
                     [this] { accept(); });
  }

  /// Host and port, as `WebServer` may have it.
  QString host() const { return QStringLiteral("127.0.0.1:%1").arg(server_->serverPort()); }
  QUrl address(const QString& path = QStringLiteral("/main.zip")) const {
    return QUrl(QStringLiteral("http://") + host() + path);
  }

  std::vector<QByteArray> requests;
  int closedConnections = 0;

 private:
  void accept() {
    while (QTcpSocket* connection = server_->nextPendingConnection()) {
      QObject::connect(connection, &QTcpSocket::disconnected, server_.get(), [this] { ++closedConnections; });
      QObject::connect(connection, &QTcpSocket::readyRead, server_.get(), [this, connection] {
        if (connection->peek(64 * 1024).contains("\r\n\r\n")) answer(*connection);
      });
    }
  }

  void answer(QTcpSocket& connection) {
    const std::size_t number = std::min(requests.size(), answers_.size() - 1);
    requests.push_back(connection.readAll());
    answers_[number](connection);
  }

  std::vector<WebAnswer> answers_;
  std::unique_ptr<QTcpServer> server_;
};

/// Sends these bytes as they are, and closes.
inline WebAnswer sends(const QByteArray& bytes) {
  return [bytes](QTcpSocket& connection) {
    connection.write(bytes);
    connection.disconnectFromHost();
  };
}

/// Sends these bytes and leaves the connection open.
inline WebAnswer sendsAndWaits(const QByteArray& bytes) {
  return [bytes](QTcpSocket& connection) { connection.write(bytes); };
}

/// Sends these bytes and breaks the connection with a reset.
inline WebAnswer sendsAndResets(const QByteArray& bytes) {
  return [bytes](QTcpSocket& connection) {
    connection.setSocketOption(QAbstractSocket::LowDelayOption, 1);
    connection.write(bytes);
    connection.flush();
    QTimer::singleShot(50, &connection, [&connection] { connection.abort(); });
  };
}

/// Sends `first`, and then `more` again and again, every `milliseconds`; never ends.
inline WebAnswer sendsForEver(const QByteArray& first, const QByteArray& more, int milliseconds = 0) {
  return [first, more, milliseconds](QTcpSocket& connection) {
    connection.write(first);
    auto* timer = new QTimer(&connection);
    QObject::connect(timer, &QTimer::timeout, &connection, [&connection, more] {
      constexpr qint64 kMostWaiting = 1 << 20;
      if (connection.bytesToWrite() < kMostWaiting) connection.write(more);
    });
    timer->start(milliseconds);
  };
}

inline WebAnswer isSilent() {
  return [](QTcpSocket&) {};
}

inline QByteArray headersOf(const QByteArray& lines) {
  return "HTTP/1.1 200 OK\r\nLast-Modified: Mon, 15 Nov 2004 10:20:30 GMT\r\nConnection: close\r\n" + lines +
         "\r\n";
}

inline QByteArray goodAnswer(const QByteArray& body) {
  return headersOf("Content-Length: " + QByteArray::number(body.size()) + "\r\n") + body;
}

inline QByteArray redirectTo(const QByteArray& address) {
  return "HTTP/1.1 302 Found\r\nLocation: " + address + "\r\nContent-Length: 0\r\nConnection: close\r\n\r\n";
}

}  // namespace quorvin::test
