// SPDX-License-Identifier: GPL-2.0-or-later

// A pool whose thread is kept waiting.
#pragma once

#include <QSemaphore>
#include <QThreadPool>

namespace quorvin::test {

/// Threads that are all kept waiting, as by a drive that does not answer.
class WaitingThreads {
 public:
  WaitingThreads() {
    pool.setMaxThreadCount(1);
    pool.start([this] { answer_.acquire(); });
  }
  ~WaitingThreads() { letGo(); }
  void letGo() {
    answer_.release();
    pool.waitForDone();
  }

  QThreadPool pool;

 private:
  QSemaphore answer_;
};

}  // namespace quorvin::test
