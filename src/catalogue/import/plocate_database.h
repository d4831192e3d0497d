// SPDX-License-Identifier: GPL-2.0-or-later

// The paths in a database of plocate, which only that program reads.
#pragma once

#include <QProcess>
#include <QString>

#include <cstddef>
#include <functional>
#include <span>

namespace quorvin {

/// Whether the file at `path` begins as such a database does. False where it cannot be read.
bool isPlocateDatabase(const QString& path);

/// All paths of a database, as `plocate` writes them, which has to be installed: a NUL follows each. The
/// program runs as long as the object at most.
class PlocatePaths {
 public:
  /// `stopRequested` is asked several times a second while nothing comes. Throws RuntimeFault (53) where
  /// plocate cannot be started.
  PlocatePaths(const QString& database, std::function<bool()> stopRequested);
  ~PlocatePaths();

  /// Fills as much of `buffer` as there still is and gives the number of bytes; 0 at the end, and less when a
  /// stop was requested. Throws RuntimeFault (57), with what plocate says, where it fails.
  std::size_t read(std::span<char> buffer);

 private:
  void checkEnd();

  QString database_;
  std::function<bool()> stopRequested_;
  QProcess plocate_;
};

}  // namespace quorvin
