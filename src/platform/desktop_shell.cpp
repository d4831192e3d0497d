// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/desktop_shell.h"

#include "platform/shell.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDesktopServices>
#include <QDir>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

#include <utility>

namespace quorvin {

namespace {

/// A file manager that has to be started first takes a while.
constexpr int kFileManagerMilliseconds = 10'000;

/// Programs that are started meanwhile start in the folder.
class WorkingFolder {
 public:
  explicit WorkingFolder(const QString& folder) : before_(QDir::currentPath()) { QDir::setCurrent(folder); }
  ~WorkingFolder() { QDir::setCurrent(before_); }
  WorkingFolder(const WorkingFolder&) = delete;
  WorkingFolder& operator=(const WorkingFolder&) = delete;

 private:
  QString before_;
};

/// Whole paths begin with a separator, so that no name is taken for an option.
QString wholePath(const QString& path) {
  return QDir::cleanPath(QDir().absoluteFilePath(path));
}

void openPath(const QString& path, const QString& workingFolder) {
  const QUrl url = QUrl::fromLocalFile(wholePath(path));
  const WorkingFolder folder(workingFolder);
  QDesktopServices::openUrl(url);
}

QDBusMessage showItemsCall(const QString& file) {
  const QString service = QStringLiteral("org.freedesktop.FileManager1");
  QDBusMessage call = QDBusMessage::createMethodCall(service, QStringLiteral("/org/freedesktop/FileManager1"),
                                                     service, QStringLiteral("ShowItems"));
  const QStringList urls = {QUrl::fromLocalFile(wholePath(file)).toString(QUrl::FullyEncoded)};
  const QString startupId;
  call << urls << startupId;
  return call;
}

QDBusMessage notifyCall(const QString& title, const QString& text) {
  const QString service = QStringLiteral("org.freedesktop.Notifications");
  QDBusMessage call = QDBusMessage::createMethodCall(
      service, QStringLiteral("/org/freedesktop/Notifications"), service, QStringLiteral("Notify"));
  constexpr uint kReplacesNone = 0;
  constexpr int kUsualTime = -1;
  // Some desktops read the text as markup.
  call << QCoreApplication::applicationName() << kReplacesNone << QStringLiteral("quorvin") << title
       << text.toHtmlEscaped() << QStringList() << QVariantMap() << kUsualTime;
  return call;
}

}  // namespace

DesktopShell::DesktopShell(std::function<QString()> enqueueCommand, QObject* parent)
    : QObject(parent), enqueueCommand_(std::move(enqueueCommand)) {}

void DesktopShell::open(const QString& file, const QString& workingFolder) {
  openPath(file, workingFolder);
}

void DesktopShell::openFolder(const QString& folder, const QString& name) {
  const QDBusConnection bus = QDBusConnection::sessionBus();
  // Without a bus a call has no answer, not even that it has failed.
  if (!bus.isConnected()) return openPath(folder, folder);
  const QDBusPendingCall call = bus.asyncCall(showItemsCall(folder + name), kFileManagerMilliseconds);
  auto* answer = new QDBusPendingCallWatcher(call, this);
  connect(answer, &QDBusPendingCallWatcher::finished, this, [folder](QDBusPendingCallWatcher* finished) {
    finished->deleteLater();
    if (finished->isError()) openPath(folder, folder);
  });
}

EnqueueOutcome DesktopShell::enqueue(const QString& file, const QString& workingFolder) {
  const QString whole = QDir::toNativeSeparators(wholePath(file));
  PlayerCommand command = playerCommandOfSetting(enqueueCommand_(), whole);
  if (command.isEmpty()) {
    command = installedPlayerCommand(
        whole, [](const QString& name) { return QStandardPaths::findExecutable(name); });
  }
  if (command.isEmpty()) return EnqueueOutcome::NoPlayer;
  const bool started = QProcess::startDetached(command.program, command.arguments, workingFolder);
  return started ? EnqueueOutcome::HandedOver : EnqueueOutcome::NotStarted;
}

void DesktopShell::notify(const QString& title, const QString& text) {
  QDBusConnection::sessionBus().asyncCall(notifyCall(title, text));
}

}  // namespace quorvin
