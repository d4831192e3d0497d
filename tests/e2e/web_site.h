// SPDX-License-Identifier: GPL-2.0-or-later

// A web site on this machine with one document, for a test that waits for other things meanwhile.
#pragma once

#include <QByteArray>
#include <QHostAddress>
#include <QString>
#include <QTcpServer>
#include <QTcpSocket>

#include <future>
#include <memory>
#include <mutex>
#include <stdexcept>
#include <thread>
#include <utility>

namespace quorvin::test {

/// Answers one caller after another in a thread of its own, as long as the object lives, whatever is asked
/// for.
class WebSite {
 public:
  WebSite() {
    std::promise<quint16> port;
    std::future<quint16> opened = port.get_future();
    thread_ = std::jthread([this, port = std::move(port)](const std::stop_token& stop) mutable {
      QTcpServer server;
      port.set_value(server.listen(QHostAddress::LocalHost) ? server.serverPort() : quint16{0});
      while (!stop.stop_requested()) {
        if (server.waitForNewConnection(kMillisecondsBetweenLooks)) answer(*server.nextPendingConnection());
      }
    });
    port_ = opened.get();
    if (port_ == 0) throw std::runtime_error("no port could be opened");
  }

  /// Host and port, as `WebServer` may have it.
  QString host() const { return QStringLiteral("127.0.0.1:%1").arg(port_); }

  /// From now on the document is this, `lastModified` as the header has it.
  void publish(const QByteArray& document, const QByteArray& lastModified) {
    const std::lock_guard guard(lock_);
    answer_ = "HTTP/1.1 200 OK\r\nLast-Modified: " + lastModified +
              "\r\nConnection: close\r\nContent-Length: " + QByteArray::number(document.size()) + "\r\n\r\n" +
              document;
  }

 private:
  static constexpr int kMillisecondsBetweenLooks = 100;
  static constexpr int kPatienceMilliseconds = 10'000;

  void answer(QTcpSocket& caller) {
    const std::unique_ptr<QTcpSocket> owned(&caller);
    QByteArray request;
    while (!request.contains("\r\n\r\n") && caller.waitForReadyRead(kPatienceMilliseconds)) {
      request += caller.readAll();
    }
    {
      const std::lock_guard guard(lock_);
      caller.write(answer_);
    }
    caller.disconnectFromHost();
    // A program that only wanted the headers hangs up.
    if (caller.state() != QAbstractSocket::UnconnectedState)
      caller.waitForDisconnected(kPatienceMilliseconds);
  }

  std::mutex lock_;
  QByteArray answer_;
  quint16 port_ = 0;
  std::jthread thread_;
};

}  // namespace quorvin::test
