// SPDX-License-Identifier: GPL-2.0-or-later

// The real program, used by keyboard as a person uses it.
#pragma once

#include "e2e/desktop.h"
#include "support/temporary_folder.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

namespace quorvin::test {

/// A home for the program: itself, its settings, its caches and its data, all in one temporary folder.
class ProgramHome {
 public:
  /// Copies the program there, so that its own folder is the test's. Makes the folder "data" with the main
  /// data file "main.txt" in it, and "lists" for listings from elsewhere.
  ProgramHome();

  /// Sets what the program is not to take from the user who runs the tests.
  void addTo(QProcessEnvironment& environment) const;

  QString program() const { return folder.pathOf(QStringLiteral("program/quorvin")); }
  QString data() const { return folder.pathOf(QStringLiteral("data/")); }
  QString list(const QString& name) const { return folder.pathOf(QStringLiteral("lists/")) + name; }
  QByteArray dataFile(const QString& name) const { return folder.readFile(QStringLiteral("data/") + name); }
  bool hasData(const QString& name) const { return folder.has(QStringLiteral("data/") + name); }
  QString settings() const { return QString::fromUtf8(folder.readFile(QStringLiteral("settings.ini"))); }
  /// Settings as an earlier run would have left them: that the data is in its folder.
  void writeSettings() const;

  TemporaryFolder folder;
};

/// How a run of the program ended.
struct ProgramEnd {
  bool isExit;
  int code;
  int milliseconds;
  QString errors;
};

class RunningProgram {
 public:
  /// Starts it and waits until its main window takes keys. `variables` come on top of what desktop and home
  /// set.
  RunningProgram(const Desktop& desktop, const ProgramHome& home, const QStringList& arguments = {},
                 const QProcessEnvironment& variables = {});

  const QString& mainWindow() const { return mainWindow_; }
  qint64 processId() const { return process_.processId(); }

  /// Right after a start that asks something: presses these keys until the answer `isTaken`. They must not
  /// mean anything to the main window.
  void answerAtStart(const QStringList& keys, const std::function<bool()>& isTaken);

  /// Makes the main window the one that takes keys, where another program's did.
  void comeToFront() const;

  void press(const QStringList& keys) const { desktop_.press(keys); }
  void type(const QString& text) const { desktop_.type(text); }
  /// Presses the tabulator key so often.
  void tab(int times) const;
  /// Tabs and types over what is there.
  void typeAfterTabs(int tabs, const QString& text) const;

  /// Presses Alt+F and these keys; then a window of that title takes the keys.
  void openFromFileMenu(const QStringList& keys, const QString& title) const;
  /// `progress`: see waitUntil().
  void waitForWindow(const QString& title, const std::function<qint64()>& progress = {}) const;
  void waitForMainWindow() const;

  /// The dialog of the local folders or of the offline lists is open: adds, and saves.
  void addFolder(const QString& description, const QString& path) const;
  void addOfflineList(const QString& path) const;
  void saveFolders(bool rescan) const;
  void saveOfflineLists() const;

  void find(const QString& text) const;
  /// Waits until the hit list holds exactly these rows, columns divided by tabulators, as copying them gives.
  void waitForHits(const QStringList& rows) const;

  /// Presses these keys, upon which the program ends.
  ProgramEnd endBy(const QStringList& keys);
  /// Sends the program a signal, upon which it ends.
  ProgramEnd endBySignal(int number);

 private:
  ProgramEnd waitForEnd();
  QString activeTitle() const;

  const Desktop& desktop_;
  QProcess process_;
  QString mainWindow_;
};

}  // namespace quorvin::test
