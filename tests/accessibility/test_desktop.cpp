#include "accessibility/test_desktop.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusReply>

#include <stdexcept>

namespace quorvin::test {

namespace {

constexpr int kPatienceMilliseconds = 20'000;

/// Starts `program` and gives the first line that it writes, by which it says that it is ready.
QString startAndReadLine(QProcess& process, const QString& program, const QStringList& arguments) {
  process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  process.start(program, arguments);
  while (!process.canReadLine()) {
    if (!process.waitForReadyRead(kPatienceMilliseconds)) {
      throw std::runtime_error(program.toStdString() + ": " + process.errorString().toStdString());
    }
  }
  return QString::fromUtf8(process.readLine()).trimmed();
}

}  // namespace

TestDesktop::TestDesktop() : environment_(QProcessEnvironment::systemEnvironment()) {
  environment_.insert(QStringLiteral("HOME"), home_.path());
  for (const char* name : {"XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"}) {
    environment_.insert(QString::fromLatin1(name), home_.makeFolder(QString::fromLatin1(name)));
  }
  QFile::setPermissions(home_.pathOf(QStringLiteral("XDG_RUNTIME_DIR")),
                        QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  environment_.insert(QStringLiteral("QUORVIN_SETTINGS"), home_.pathOf(QStringLiteral("settings.ini")));
  environment_.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
  environment_.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
  environment_.insert(QStringLiteral("QT_LINUX_ACCESSIBILITY_ALWAYS_ON"), QStringLiteral("1"));
  environment_.insert(QStringLiteral("GSETTINGS_BACKEND"), QStringLiteral("memory"));
  environment_.remove(QStringLiteral("AT_SPI_BUS_ADDRESS"));
  startScreen();
  startSessionBus();
  startAccessibilityBus();
}

TestDesktop::~TestDesktop() {
  // What the bus has started for us ends with it.
  endProcess(sessionBus_);
  endProcess(screen_);
}

/// Left to itself the server would begin anew whenever its last client leaves, and refuse whoever comes then.
void TestDesktop::startScreen() {
  const QString number =
      startAndReadLine(screen_, QStringLiteral("Xvfb"),
                       {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                        QStringLiteral("0"), QStringLiteral("1280x1024x24"), QStringLiteral("-nolisten"),
                        QStringLiteral("tcp"), QStringLiteral("-noreset")});
  environment_.insert(QStringLiteral("DISPLAY"), u':' + number);
}

void TestDesktop::startSessionBus() {
  sessionBus_.setProcessEnvironment(environment_);
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
