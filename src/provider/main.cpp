// SPDX-License-Identifier: GPL-2.0-or-later

// What the search of the desktop asks for files. The bus starts it with the first question, and it ends by
// itself when nobody has asked for a while.
#include "provider/desktop_search.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTimer>

#include <chrono>
#include <cstdio>

namespace {

using namespace quorvin;

constexpr int kPatienceSeconds = 60;

/// The window's program: where it is installed, seen from here, or beside this one in the folder it was built
/// in.
QString windowProgram() {
  const QString folder = QCoreApplication::applicationDirPath();
  const QString installed = folder + QStringLiteral("/../../bin/quorvin");
  return QFileInfo(installed).isExecutable() ? installed : folder + QStringLiteral("/quorvin");
}

void start(const QString& program, const QStringList& arguments, const QString& token) {
  QProcess process;
  process.setProgram(program);
  process.setArguments(arguments);
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  if (!token.isEmpty()) {
    environment.insert(QStringLiteral("XDG_ACTIVATION_TOKEN"), token);
    environment.insert(QStringLiteral("DESKTOP_STARTUP_ID"), token);
  }
  process.setProcessEnvironment(environment);
  process.startDetached();
}

/// The argument of that number, if there is one, else what is usual. For tests: the desktop gives none.
int argument(int number, int usual) {
  bool isNumber = false;
  const int value = QCoreApplication::arguments().value(number).toInt(&isNumber);
  return isNumber && value > 0 ? value : usual;
}

}  // namespace

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  DesktopSearch search(windowProgram(), start, argument(2, DesktopSearch::kSearchMilliseconds));
  QObject shellPlace;
  QObject runnerPlace;
  new ShellSearch(&shellPlace, search);
  new RunnerSearch(&runnerPlace, search);

  QTimer untilEnd;
  untilEnd.setSingleShot(true);
  untilEnd.setInterval(std::chrono::seconds(argument(1, kPatienceSeconds)));
  QObject::connect(&untilEnd, &QTimer::timeout, &application, &QCoreApplication::quit);
  QObject::connect(&search, &DesktopSearch::asked, &untilEnd, qOverload<>(&QTimer::start));
  untilEnd.start();

  QDBusConnection bus = QDBusConnection::sessionBus();
  // With the session.
  bus.connect({}, QStringLiteral("/org/freedesktop/DBus/Local"), QStringLiteral("org.freedesktop.DBus.Local"),
              QStringLiteral("Disconnected"), QCoreApplication::instance(), SLOT(quit()));
  // The name comes last: who has waited for it asks at once.
  const bool isThere =
      bus.registerObject(QStringLiteral("/org/quorvin/utility/SearchProvider"), &shellPlace) &&
      bus.registerObject(QStringLiteral("/org/quorvin/utility/Runner"), &runnerPlace) &&
      bus.registerService(QStringLiteral("org.quorvin.utility.SearchProvider"));
  if (!isThere) {
    std::fputs("quorvin-search-provider: it has no place on the session bus\n", stderr);
    return 2;
  }
  return QCoreApplication::exec();
}
