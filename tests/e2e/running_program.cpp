// SPDX-License-Identifier: GPL-2.0-or-later
#include "e2e/running_program.h"

#include "support/listing_lines.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>

#include <csignal>
#include <stdexcept>

namespace quorvin::test {

namespace {

constexpr int kLongestEndMilliseconds = 180'000;
const QString kOfflineTitle = QStringLiteral("Offline Search List files");

/// The title of the main window of a program that is started with `arguments`, the last of which may be a
/// listing.
QString titleWith(const QStringList& arguments) {
  if (arguments.isEmpty()) return kTitle;
  return QFileInfo(arguments.last()).fileName() + QStringLiteral(" - ") + kTitle;
}

}  // namespace

ProgramHome::ProgramHome() {
  folder.makeFolder(QStringLiteral("program"));
  folder.makeFolder(QStringLiteral("lists"));
  QFile::setPermissions(folder.makeFolder(QStringLiteral("runtime")),
                        QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  if (!QFile::copy(QStringLiteral(QUORVIN_PROGRAM), program())) {
    throw std::runtime_error("the program could not be copied");
  }
  folder.writeFile(QStringLiteral("data/main.txt"),
                   blockHead("Main", "\\main\\") + entryLine("main song.mp3"));
}

void ProgramHome::addTo(QProcessEnvironment& environment) const {
  environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
  environment.insert(QStringLiteral("TZ"), QStringLiteral("UTC0"));
  environment.insert(QStringLiteral("QUORVIN_SETTINGS"), folder.pathOf(QStringLiteral("settings.ini")));
  for (const char* name : {"HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME"}) {
    const QString variable = QString::fromLatin1(name);
    environment.insert(variable, folder.pathOf(variable.toLower()));
  }
  environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), folder.pathOf(QStringLiteral("runtime")));
}

void ProgramHome::writeSettings() const {
  folder.writeFile(
      QStringLiteral("settings.ini"),
      "[Ketta%20Quorvin/Settings]\nLocalFolder=" + data().toUtf8() + "\nTextFile=main.txt\nNickName=ann\n");
}

RunningProgram::RunningProgram(const Desktop& desktop, const ProgramHome& home, const QStringList& arguments,
                               const QProcessEnvironment& variables)
    : desktop_(desktop) {
  QProcessEnvironment environment = desktop.environment();
  home.addTo(environment);
  environment.insert(variables);
  endWithTest(process_);
  process_.setProcessEnvironment(environment);
  process_.setWorkingDirectory(home.folder.path());
  process_.start(home.program(), arguments);
  waitForWindow(titleWith(arguments));
  mainWindow_ = desktop_.activeWindow();
}

void RunningProgram::answerAtStart(const QStringList& keys, const std::function<bool()>& isTaken) {
  waitUntil(QStringLiteral("for the answer to be taken"), [&] {
    press(keys);
    return isTaken();
  });
  // The question may have been the first window that was seen.
  waitUntil(QStringLiteral("for the main window alone"), [this] {
    const QStringList windows = desktop_.windowsOf(processId(), kTitle);
    mainWindow_ = windows.value(0);
    return windows.size() == 1;
  });
  waitForMainWindow();
}

void RunningProgram::comeToFront() const {
  desktop_.activate(mainWindow_);
  waitForMainWindow();
}

void RunningProgram::tab(int times) const {
  if (times > 0) press(QStringList(times, QStringLiteral("Tab")));
}

void RunningProgram::typeAfterTabs(int tabs, const QString& text) const {
  tab(tabs);
  press({QStringLiteral("ctrl+a"), QStringLiteral("Delete")});
  if (!text.isEmpty()) type(text);
}

void RunningProgram::openFromFileMenu(const QStringList& keys, const QString& title) const {
  press(QStringList{QStringLiteral("alt+f")} + keys);
  waitForWindow(title);
}

/// A window of this program other than the main one: messages bear the main window's title, and so does the
/// main window of another such program.
void RunningProgram::waitForWindow(const QString& title, const std::function<qint64()>& progress) const {
  waitUntil(
      QStringLiteral("for the window \"%1\"").arg(title),
      [&] {
        const QString active = desktop_.activeWindow();
        return active != mainWindow_ && desktop_.titleOf(active) == title &&
               desktop_.processOf(active) == process_.processId();
      },
      [this] { return activeTitle(); }, progress);
}

void RunningProgram::waitForMainWindow() const {
  waitUntil(
      QStringLiteral("for the main window"),
      [this] {
        const QString active = desktop_.activeWindow();
        // When a dialog goes, the window manager may leave the keys to nobody; a person clicks the window
        // then.
        if (desktop_.titleOf(active).isEmpty()) desktop_.activate(mainWindow_);
        return active == mainWindow_;
      },
      [this] { return activeTitle(); });
}

QString RunningProgram::activeTitle() const {
  return QStringLiteral("the window \"%1\"").arg(desktop_.titleOf(desktop_.activeWindow()));
}

void RunningProgram::addFolder(const QString& description, const QString& path) const {
  typeAfterTabs(0, description);
  typeAfterTabs(1, path);
  // Enter adds; back to the description for the next one.
  press({QStringLiteral("Return"), QStringLiteral("shift+Tab")});
}

void RunningProgram::addOfflineList(const QString& path) const {
  typeAfterTabs(0, path);
  press({QStringLiteral("Return")});
}

void RunningProgram::saveFolders(bool rescan) const {
  // From the description over the path and the buttons to browse and to add.
  tab(5);
  press({QStringLiteral("space")});
  waitForWindow(kTitle);
  press({rescan ? QStringLiteral("alt+y") : QStringLiteral("alt+n")});
  waitForMainWindow();
}

void RunningProgram::saveOfflineLists() const {
  // From the path over the buttons to browse and to add.
  tab(4);
  press({QStringLiteral("space")});
  waitForMainWindow();
}

void RunningProgram::find(const QString& text) const {
  press({QStringLiteral("ctrl+f")});
  type(text);
  press({QStringLiteral("Return")});
}

void RunningProgram::waitForHits(const QStringList& rows) const {
  // From the search text, the first in the tab order, back to the list, the last.
  press({QStringLiteral("ctrl+f"), QStringLiteral("shift+Tab")});
  const QString wanted = rows.join(u'\n');
  QString shown;
  waitUntil(
      QStringLiteral("for the hits\n") + wanted,
      [&] {
        press({QStringLiteral("ctrl+a"), QStringLiteral("ctrl+c")});
        shown = desktop_.clipboardText();
        return shown == wanted;
      },
      [&] { return u'\n' + shown; });
}

ProgramEnd RunningProgram::endBy(const QStringList& keys) {
  press(keys);
  return waitForEnd();
}

ProgramEnd RunningProgram::endBySignal(int number) {
  if (::kill(static_cast<pid_t>(process_.processId()), number) != 0) {
    throw std::runtime_error("the program is not there");
  }
  return waitForEnd();
}

ProgramEnd RunningProgram::waitForEnd() {
  QElapsedTimer sinceAsked;
  sinceAsked.start();
  if (!process_.waitForFinished(kLongestEndMilliseconds))
    throw std::runtime_error("the program does not end");
  return {process_.exitStatus() == QProcess::NormalExit, process_.exitCode(),
          static_cast<int>(sinceAsked.elapsed()), QString::fromUtf8(process_.readAllStandardError())};
}

}  // namespace quorvin::test
