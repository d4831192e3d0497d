// Which program puts a file into the queue of an audio player, and with which arguments.
#pragma once

#include <QString>
#include <QStringList>

#include <functional>

namespace quorvin {

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
