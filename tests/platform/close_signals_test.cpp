// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/close_signals.h"

#include "support/eventually.h"

#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace quorvin {
namespace {

class CloseSignalsAlone : public testing::Test {
 protected:
  std::array<char, 5> name_{"test"};
  std::array<char*, 2> arguments_{name_.data(), nullptr};
  int argumentCount_ = 1;
  QCoreApplication application_{argumentCount_, arguments_.data()};
  int calls_ = 0;
};

class CloseSignalsTest : public CloseSignalsAlone, public testing::WithParamInterface<int> {};

TEST_P(CloseSignalsTest, ASignalIsACallFromTheEventLoop) {
  const CloseSignals signals([this] { ++calls_; });
  std::raise(GetParam());
  EXPECT_EQ(calls_, 0);
  EXPECT_EVENTUALLY(calls_ == 1);
  std::raise(GetParam());
  EXPECT_EVENTUALLY(calls_ == 2);
}

TEST_P(CloseSignalsTest, AnIgnoredSignalStaysIgnored) {
  const auto before = std::signal(GetParam(), SIG_IGN);
  {
    const CloseSignals signals([this] { ++calls_; });
    std::raise(GetParam());
    EXPECT_EQ(std::signal(GetParam(), SIG_IGN), SIG_IGN);
  }
  std::signal(GetParam(), before);
  QCoreApplication::processEvents();
  EXPECT_EQ(calls_, 0);
}

TEST_P(CloseSignalsTest, AfterItTheSignalDoesWhatItDidBefore) {
  const pid_t child = ::fork();
  if (child == 0) {
    {
      const CloseSignals signals([] {});
    }
    std::raise(GetParam());
    ::_exit(0);
  }
  int status = 0;
  ASSERT_EQ(::waitpid(child, &status, 0), child);
  ASSERT_TRUE(WIFSIGNALED(status));
  EXPECT_EQ(WTERMSIG(status), GetParam());
}

INSTANTIATE_TEST_SUITE_P(Each, CloseSignalsTest, testing::Values(SIGTERM, SIGINT, SIGHUP));

TEST_P(CloseSignalsTest, ManySignalsAtOnceDoNotBlock) {
  const CloseSignals signals([this] { ++calls_; });
  for (int number = 0; number < 100'000; ++number) std::raise(GetParam());
  EXPECT_EVENTUALLY(calls_ >= 1);
}

TEST_F(CloseSignalsAlone, ATerminalThatHasGoneDoesNotEndTheProgram) {
  const CloseSignals signals([this] { ++calls_; });
  std::raise(SIGPIPE);
  QCoreApplication::processEvents();
  EXPECT_EQ(calls_, 0);
}

}  // namespace
}  // namespace quorvin
