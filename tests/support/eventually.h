// SPDX-License-Identifier: GPL-2.0-or-later

// Waiting for what the event loop brings about.
//
// The macros of Qt Test report a failure to Qt Test's own runner, so under GoogleTest they cannot fail; these
// can.
#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>
#include <gtest/gtest.h>

#include <cstdint>
#include <functional>

namespace quorvin::test {

/// How long a test waits while nothing at all happens. It is no measure of speed: it only ends a test that
/// hangs.
constexpr int kPatienceMilliseconds = 120'000;

/// Lets events run until `isDone`. False when it is not and `progress` (a number that grows as work gets
/// done) has stayed the same for as long as the patience lasts. Never sleeps while there are events, so that
/// what is waited for has its usual speed.
inline bool eventually(
    const std::function<bool()>& isDone,
    const std::function<std::int64_t()>& progress = [] { return std::int64_t{0}; }) {
  QTimer wake;
  wake.start(2);
  QDeadlineTimer deadline(kPatienceMilliseconds);
  std::int64_t seen = progress();
  while (!isDone()) {
    if (const std::int64_t now = progress(); now != seen) {
      seen = now;
      deadline.setRemainingTime(kPatienceMilliseconds);
    }
    if (deadline.hasExpired()) return false;
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    // As the program's own loop does.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  return true;
}

}  // namespace quorvin::test

/// Let events run until the condition holds; a failure when it never does.
#define EXPECT_EVENTUALLY(...) \
  EXPECT_TRUE(::quorvin::test::eventually([&] { return static_cast<bool>(__VA_ARGS__); })) << #__VA_ARGS__
#define ASSERT_EVENTUALLY(...) \
  ASSERT_TRUE(::quorvin::test::eventually([&] { return static_cast<bool>(__VA_ARGS__); })) << #__VA_ARGS__
