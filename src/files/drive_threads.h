// SPDX-License-Identifier: GPL-2.0-or-later

// Threads for what may have to wait for a drive: reading the user's files beside the user interface.
#pragma once

#include <QThreadPool>

#include <chrono>
#include <memory>

namespace quorvin {

/// Threads that may read where a drive does not answer, perhaps never. Their end waits for a moment at most:
/// a thread that is kept waiting is left to itself then. What runs in them must own all that it uses, so that
/// it may end whenever it likes, or with the process.
class DriveThreads {
 public:
  static constexpr std::chrono::milliseconds kPatience{200};

  /// At most `most` at a time; what comes on top waits for its turn.
  explicit DriveThreads(int most, std::chrono::milliseconds patience = kPatience);
  /// What has not started yet never does.
  ~DriveThreads();
  DriveThreads(const DriveThreads&) = delete;
  DriveThreads& operator=(const DriveThreads&) = delete;

  QThreadPool& pool() { return *pool_; }

 private:
  std::chrono::milliseconds patience_;
  std::unique_ptr<QThreadPool> pool_;
};

}  // namespace quorvin
