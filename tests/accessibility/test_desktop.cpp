// SPDX-License-Identifier: GPL-2.0-or-later
#include "accessibility/test_desktop.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusReply>

#include <stdexcept>

namespace quorvin::test {

TestDesktop::TestDesktop() : environment_(screen_.environment()) {
  environment_.insert(QStringLiteral("HOME"), home_.path());
  for (const char* name : {"XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"}) {
    environment_.insert(QString::fromLatin1(name), home_.makeFolder(QString::fromLatin1(name)));
  }
  QFile::setPermissions(home_.pathOf(QStringLiteral("XDG_RUNTIME_DIR")),
                        QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  environment_.insert(QStringLiteral("QUORVIN_SETTINGS"), home_.pathOf(QStringLiteral("settings.ini")));
  environment_.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
  environment_.insert(QStringLiteral("QT_LINUX_ACCESSIBILITY_ALWAYS_ON"), QStringLiteral("1"));
  environment_.insert(QStringLiteral("GSETTINGS_BACKEND"), QStringLiteral("memory"));
  environment_.remove(QStringLiteral("AT_SPI_BUS_ADDRESS"));
  startSessionBus();
  startAccessibilityBus();
}

TestDesktop::~TestDesktop() {
  // What the bus has started for us ends with it.
  endProcess(sessionBus_);
}

void TestDesktop::startSessionBus() {
  sessionBus_.setProcessEnvironment(environment_);
  sessionBus_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  const QString address = startAndReadLine(
      sessionBus_, QStringLiteral("dbus-daemon"),
      {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address=1"),
       QStringLiteral("--address=unix:path=") + home_.pathOf(QStringLiteral("bus"))});
  environment_.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), address);
}

/// Asking for it starts it.
void TestDesktop::startAccessibilityBus() {
  const QString name = QStringLiteral("session bus of the test");
  {
    const QDBusConnection session =
        QDBusConnection::connectToBus(environment_.value(QStringLiteral("DBUS_SESSION_BUS_ADDRESS")), name);
    const QDBusReply<QString> address = session.call(
        QDBusMessage::createMethodCall(QStringLiteral("org.a11y.Bus"), QStringLiteral("/org/a11y/bus"),
                                       QStringLiteral("org.a11y.Bus"), QStringLiteral("GetAddress")));
    if (!address.isValid()) throw std::runtime_error(address.error().message().toStdString());
    accessibilityBus_ = address.value();
  }
  QDBusConnection::disconnectFromBus(name);
}

void endProcess(QProcess& process) {
  if (process.state() == QProcess::NotRunning) return;
  process.terminate();
  if (process.waitForFinished(5000)) return;
  process.kill();
  process.waitForFinished();
}

}  // namespace quorvin::test
