// SPDX-License-Identifier: GPL-2.0-or-later

// One window for each set of settings.
#pragma once

#include "files/file_lock.h"

#include <QByteArray>
#include <QDeadlineTimer>
#include <QLocalServer>
#include <QLocalSocket>
#include <QObject>
#include <QString>

#include <functional>
#include <optional>

namespace quorvin {

/// What a later start hands to the window that is there already.
struct LaterStart {
  /// Its command line; may be empty.
  QString commandLine;
  /// By this the desktop knows that its user wants to see the window now; may be empty.
  QString activationToken;
  /// What it asks of the window, in words that both programs know; may be empty.
  QString errand;
};

/// Where programs find each other, and who may.
struct OneWindowOptions {
  /// A folder of the user's own; made where it is missing.
  QString folder;
  /// Whoever is found must belong to this user.
  unsigned user = 0;
  /// How long a program that is there, but starting, ending or stuck, is waited for.
  int patienceMilliseconds = 5000;
};

/// The folder "quorvin" in the user's runtime folder, or, where there is none of the user's own, the folder
/// "running" in the cache folder; the user who runs the program.
OneWindowOptions usualOneWindowOptions();

/// Makes sure that of the programs with the same `set` one has the window: it holds a lock, which the system
/// takes back however the program ends, and it answers on a socket beside the lock. User-interface thread
/// only.
class OneWindow : public QObject {
 public:
  /// `set` is any text that is the same for those who are to share a window.
  OneWindow(const QString& set, OneWindowOptions options);

  /// Whether the program that has the window took `start`; then this one has nothing left to do. False where
  /// there is none, and this one has the window now; false also where it cannot be reached. Waits for one
  /// that is about to end, so that what it saves is there to be read.
  bool handOver(const LaterStart& start);

  /// From now on later starts are answered, from the event loop. `take` says whether it takes the start; not
  /// when the program is closing: the later one then waits for its end. `take` must return soon. Does nothing
  /// where this program does not have the window.
  void serve(std::function<bool(const LaterStart&)> take);

 private:
  bool claim();
  bool reach(const LaterStart& start, const QDeadlineTimer& deadline) const;
  void listenTo(QLocalSocket& socket);
  void hear(QLocalSocket& socket);

  OneWindowOptions options_;
  QString path_;
  std::optional<FileLock> lock_;
  QLocalServer server_;
  std::function<bool(const LaterStart&)> take_;
};

}  // namespace quorvin
