// SPDX-License-Identifier: GPL-2.0-or-later
#include "files/drive_threads.h"

namespace quorvin {

DriveThreads::DriveThreads(int most, std::chrono::milliseconds patience)
    : patience_(patience), pool_(std::make_unique<QThreadPool>()) {
  pool_->setMaxThreadCount(most);
}

DriveThreads::~DriveThreads() {
  pool_->clear();
  // The pool's own end would wait for its threads for as long as the drive does not answer.
  if (!pool_->waitForDone(static_cast<int>(patience_.count()))) (void)pool_.release();
}

}  // namespace quorvin
