// SPDX-License-Identifier: GPL-2.0-or-later

// A program one of whose system calls fails, or at one of whose system calls it is killed.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <cerrno>
#include <chrono>

namespace quorvin::test {

/// One way in which the system lets a program down; failing_calls.cpp says what the names mean.
struct SystemFailure {
  /// The kind of call: "open", "read", "write", "fsync", "rename", "mkdir", "stat", "list", "socket",
  /// "allocate".
  const char* call;
  /// The number of the error as text, "short" or "kill".
  QString how;
  /// Of allocations only those of at least so many bytes.
  int above = 0;
};

/// How such a run ended.
struct FailedRun {
  /// Whether the program made so many calls that the chosen one failed.
  bool failed = false;
  /// Whether it ended by a signal.
  bool crashed = false;
  int status = 0;
  QByteArray output;
  QString errors;

  /// Whether it had no memory for the pixels of its window: the toolkit breaks down by itself then. A real
  /// screen lends them.
  bool lacksPixels() const { return errors.contains(u"Paint device returned engine == 0"); }
};

/// Runs the console program in `folder`, which has a trailing separator and holds all that it reads and
/// writes: settings.ini, data/, cache/. The `number`-th call of that kind on a file below the folder fails,
/// counted from 1; with 0 none does. `pause` of such a run may not be waited for longer than a minute: what
/// hangs counts as crashed.
FailedRun runFailing(const QString& folder, const QStringList& arguments, const SystemFailure& failure,
                     int number);

/// The same without a failure, killed so long after its start, unless it has ended before.
FailedRun runKilled(const QString& folder, const QStringList& command, std::chrono::microseconds after);

}  // namespace quorvin::test
