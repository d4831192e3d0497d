// SPDX-License-Identifier: GPL-2.0-or-later

// What the desktop does with files for us: opening them, showing where they are, playing them; and which
// program puts a file into the queue of an audio player.
#pragma once

#include <QString>
#include <QStringList>

#include <functional>

namespace quorvin {

/// What became of a wish to put a file into a player's queue.
enum class EnqueueOutcome {
  /// Handed to a player.
  HandedOver,
  /// No player is set, and none of those that are known is installed.
  NoPlayer,
  /// The player that was chosen could not be started.
  NotStarted,
};

/// The desktop's shell. Paths are whole paths in the native form. Nothing waits for the program that is
/// started, and how it fares is its own matter. User-interface thread only.
class Shell {
 public:
  virtual ~Shell() = default;

  /// Opens a file with the program that the user has chosen for its kind. The program starts in
  /// `workingFolder`.
  virtual void open(const QString& file, const QString& workingFolder) = 0;

  /// Shows `folder` in the file manager, with the file `name` in it selected where the desktop can.
  virtual void openFolder(const QString& folder, const QString& name) = 0;

  /// Appends a file to the queue of an audio player, which starts in `workingFolder` unless it runs already.
  virtual EnqueueOutcome enqueue(const QString& file, const QString& workingFolder) = 0;

  /// Shows a notification of the desktop, plain texts both. Nothing happens where the desktop has none.
  virtual void notify(const QString& title, const QString& text) = 0;
};

/// A program and its arguments, started without any command interpreter.
struct PlayerCommand {
  QString program;
  QStringList arguments;

  bool isEmpty() const { return program.isEmpty(); }
};

/// The command that the user has set, for `file`. `setting` is a program and its arguments, parted by blanks;
/// what contains blanks is in double quotes. Each "%f" is replaced by the file; where there is none,
/// the file comes last. Nothing else in it has a meaning, and nothing in the file's name has. Empty when the
/// setting holds no program.
PlayerCommand playerCommandOfSetting(const QString& setting, const QString& file);

/// The command of the first well-known player for which `findProgram` gives a path; empty when there is none.
PlayerCommand installedPlayerCommand(const QString& file,
                                     const std::function<QString(const QString& name)>& findProgram);

}  // namespace quorvin
