// SPDX-License-Identifier: GPL-2.0-or-later

// Something long about the catalogue that goes on in a thread of its own.
#pragma once

#include <QString>

#include <atomic>

namespace quorvin {

/// A job that only reads, or puts each file that it writes in place whole, so that it may run beside any job
/// of Work: that is how another program stands to them, and why the table of jobs knows nothing of it.
///
/// run() is called once, in any thread; until it has ended, others may only ask for hasEnded() and for how
/// far it is, and call stop(). Whoever lets go of a job that is shared with its thread need not wait for it.
class CatalogueJob {
 public:
  CatalogueJob() = default;
  CatalogueJob(const CatalogueJob&) = delete;
  CatalogueJob& operator=(const CatalogueJob&) = delete;
  virtual ~CatalogueJob();

  void run();

  /// The job is of no use any more: it ends as soon as it comes to look, at the latest when the drive that it
  /// waits for has answered.
  void stop() { isStopped_ = true; }
  bool isStopped() const { return isStopped_; }
  bool hasEnded() const { return hasEnded_; }

  // What has come of it; only once it has ended.

  /// Everything was found: neither stopped nor failed. Without that there is no result.
  bool isComplete() const { return isComplete_; }
  /// Why it failed, as a sentence; empty where it did not.
  const QString& fault() const { return fault_; }

 protected:
  /// True where everything was found. Faults that it throws become the sentence.
  virtual bool work() = 0;
  /// For a failure with words of its own; false, as work() gives it then.
  bool fail(const QString& sentence);

 private:
  QString fault_;
  bool isComplete_ = false;
  std::atomic<bool> isStopped_ = false;
  std::atomic<bool> hasEnded_ = false;
};

}  // namespace quorvin
