// SPDX-License-Identifier: GPL-2.0-or-later

// How long something takes of the processor.
#pragma once

#include <QtGlobal>

#include <ctime>
#include <optional>

namespace quorvin::test {

/// Counts the processor's time of this process, all its threads together, in milliseconds. A limit in it
/// holds on a busy machine as well, where one in time on the clock would not. What the checks of a sanitizer
/// take is left out, roughly.
class ProcessorClock {
 public:
  void start() { started_ = now(); }
  bool isValid() const { return started_.has_value(); }
  /// Since start(), which must have been called.
  qint64 elapsed() const { return now() - started_.value(); }
  /// The same, and starts again.
  qint64 restart() {
    const qint64 passed = elapsed();
    start();
    return passed;
  }

 private:
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
  static constexpr int kSlowdown = 10;
#else
  static constexpr int kSlowdown = 1;
#endif

  static qint64 now() {
    timespec time{};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return (qint64{1000} * time.tv_sec + time.tv_nsec / 1'000'000) / kSlowdown;
  }

  std::optional<qint64> started_;
};

}  // namespace quorvin::test
