// SPDX-License-Identifier: GPL-2.0-or-later
#include "faults/runtime_fault.h"
#include "platform/one_window.h"
#include "platform/standard_folders.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QThread>

#include <algorithm>
#include <sys/socket.h>
#include <unistd.h>

namespace quorvin {

namespace {

constexpr unsigned kBetweenTriesMilliseconds = 20;
// A path has 4096 bytes at most, a token some hundred, and an errand is a path or what somebody types.
constexpr qsizetype kLongestMessage = 16384;
constexpr int kFields = 3;
constexpr QByteArrayView kTaken = "taken\n";

QString nameFor(const QString& set) {
  constexpr int kDigits = 16;
  const QByteArray digest = QCryptographicHash::hash(set.toUtf8(), QCryptographicHash::Sha256).toHex();
  return QString::fromLatin1(digest.left(kDigits));
}

/// Nothing where the system does not say.
std::optional<unsigned> userBehind(const QLocalSocket& socket) {
  ucred peer = {};
  socklen_t size = sizeof(peer);
  const int number = static_cast<int>(socket.socketDescriptor());
  if (::getsockopt(number, SOL_SOCKET, SO_PEERCRED, &peer, &size) != 0) return std::nullopt;
  return peer.uid;
}

QByteArray messageOf(const LaterStart& start) {
  QByteArray message;
  for (const QString* field : {&start.commandLine, &start.activationToken, &start.errand}) {
    message += field->toUtf8() + '\0';
  }
  return message;
}

int leftOf(const QDeadlineTimer& deadline) {
  return static_cast<int>(std::max<qint64>(deadline.remainingTime(), 0));
}

}  // namespace

OneWindowOptions usualOneWindowOptions() {
  OneWindowOptions options;
  options.user = ::geteuid();
  const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
  // After "su" or "sudo" it may still be another user's.
  const bool isOwn = !runtime.isEmpty() && QFileInfo(runtime).ownerId() == options.user;
  options.folder =
      isOwn ? runtime + QStringLiteral("/quorvin") : userCacheFolder() + QStringLiteral("running");
  return options;
}

OneWindow::OneWindow(const QString& set, OneWindowOptions options)
    : options_(std::move(options)), path_(options_.folder + u'/' + nameFor(set)) {}

bool OneWindow::handOver(const LaterStart& start) {
  if (!QDir().mkpath(options_.folder)) return false;
  QFile::setPermissions(options_.folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  const QDeadlineTimer deadline(options_.patienceMilliseconds);
  while (!claim()) {
    if (reach(start, deadline)) return true;
    if (deadline.hasExpired()) return false;
    QThread::msleep(kBetweenTriesMilliseconds);
  }
  return false;
}

/// False while another program has the window.
bool OneWindow::claim() {
  try {
    lock_.emplace(path_, 0);
    return true;
  } catch (const RuntimeFault& fault) {
    // Where no lock can be made, nobody has one.
    return fault.number() != static_cast<int>(FaultNumber::PathFileAccess);
  }
}

bool OneWindow::reach(const LaterStart& start, const QDeadlineTimer& deadline) const {
  QLocalSocket socket;
  socket.connectToServer(path_);
  if (!socket.waitForConnected(leftOf(deadline))) return false;
  if (userBehind(socket) != options_.user) return false;
  socket.write(messageOf(start));
  while (socket.bytesAvailable() < kTaken.size()) {
    if (!socket.waitForReadyRead(leftOf(deadline))) return false;
  }
  return socket.readAll() == kTaken;
}

void OneWindow::serve(std::function<bool(const LaterStart&)> take) {
  if (!lock_) return;
  take_ = std::move(take);
  // A killed program leaves its socket behind; the lock says that it is nobody's.
  QLocalServer::removeServer(path_);
  server_.setSocketOptions(QLocalServer::UserAccessOption);
  connect(&server_, &QLocalServer::newConnection, this, [this] {
    while (QLocalSocket* socket = server_.nextPendingConnection()) listenTo(*socket);
  });
  server_.listen(path_);
}

void OneWindow::listenTo(QLocalSocket& socket) {
  connect(&socket, &QLocalSocket::disconnected, &socket, &QObject::deleteLater);
  if (userBehind(socket) != options_.user) return socket.abort();
  connect(&socket, &QLocalSocket::readyRead, this, [this, &socket] { hear(socket); });
  hear(socket);
}

void OneWindow::hear(QLocalSocket& socket) {
  const QByteArray message = socket.peek(kLongestMessage + 1);
  if (message.size() > kLongestMessage) return socket.abort();
  if (message.count('\0') < kFields) return;
  socket.readAll();
  const QList<QByteArray> fields = message.split('\0');
  if (take_({QString::fromUtf8(fields[0]), QString::fromUtf8(fields[1]), QString::fromUtf8(fields[2])}))
    socket.write(kTaken.data(), kTaken.size());
  socket.disconnectFromServer();
}

}  // namespace quorvin
