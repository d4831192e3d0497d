// SPDX-License-Identifier: GPL-2.0-or-later
#include "files/readers_at_once.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

namespace quorvin {
namespace {

using std::chrono::microseconds;
using std::chrono::nanoseconds;

/// A drive by what a step of the walk takes with so many readers, in nanoseconds; no real time passes.
class SeenDrive {
 public:
  SeenDrive(int cores, std::function<double(int)> cost)
      : cost_(std::move(cost)), readers(cores, [this] { return now; }) {}
  SeenDrive(const SeenDrive&) = delete;
  SeenDrive& operator=(const SeenDrive&) = delete;

  /// Gives what so many steps take, as a multiple of what they take one reader alone.
  double walk(int steps) {
    const nanoseconds start = now;
    for (int i = 0; i < steps; ++i) {
      most = std::max(most, readers.count());
      now += nanoseconds(static_cast<std::int64_t>(cost_(readers.count())));
      readers.step();
    }
    return static_cast<double>((now - start).count()) / (steps * cost_(1));
  }

  void becomes(std::function<double(int)> cost) { cost_ = std::move(cost); }

  nanoseconds now{12345};
  int most = 0;

 private:
  std::function<double(int)> cost_;

 public:
  ReadersAtOnce readers;
};

double share(int readers) {
  return 1e6 / readers;
}

TEST(ReadersAtOnce, AreManyOnAShare) {
  SeenDrive drive(2, share);
  EXPECT_LT(drive.walk(10'000), 0.06);
  EXPECT_EQ(drive.most, 32);
}

TEST(ReadersAtOnce, AreAsManyAsAServerAnswers) {
  SeenDrive drive(2, [](int readers) { return 1e6 / std::min(readers, 4); });
  EXPECT_LT(drive.walk(20'000), 0.3);
  EXPECT_LE(drive.readers.count(), 8);
}

TEST(ReadersAtOnce, LeaveTheArmOfADiskToOne) {
  SeenDrive drive(2, [](int readers) { return readers == 1 ? 1e6 : 9e6; });
  EXPECT_LT(drive.walk(5'000), 1.05);
  EXPECT_EQ(drive.readers.count(), 1);
}

TEST(ReadersAtOnce, LeaveADiscWhoseHeadIsSlowToOne) {
  SeenDrive drive(8, [](int readers) { return readers == 1 ? 10e6 : 150e6; });
  EXPECT_LT(drive.walk(10'000), 1.05);
}

TEST(ReadersAtOnce, AreNoMoreThanCoresWhereNothingIsWaitedFor) {
  SeenDrive drive(2, [](int readers) { return 2'500.0 / readers; });
  EXPECT_LT(drive.walk(1'000'000), 0.55);
  EXPECT_EQ(drive.most, 2);
  SeenDrive many(64, [](int readers) { return 2'500.0 / readers; });
  many.walk(1'000'000);
  EXPECT_EQ(many.most, 8);
}

TEST(ReadersAtOnce, IsOneWhereNoSecondCoreIsFree) {
  SeenDrive alone(1, [](int) { return 2'500.0; });
  EXPECT_EQ(alone.walk(1'000'000), 1);
  EXPECT_EQ(alone.most, 1);
  EXPECT_FALSE(alone.readers.mayBecomeMore());
  SeenDrive taken(2, [](int readers) { return readers == 1 ? 2'500.0 : 2'600.0; });
  EXPECT_LT(taken.walk(1'000'000), 1.01);
  EXPECT_EQ(taken.readers.count(), 1);
}

TEST(ReadersAtOnce, BecomeFewWhenAShareIsInMemory) {
  SeenDrive drive(2, share);
  drive.walk(5'000);
  EXPECT_GE(drive.readers.count(), 16);
  drive.becomes([](int) { return 2'500.0; });
  drive.walk(100'000);
  EXPECT_LE(drive.readers.count(), 2);
}

TEST(ReadersAtOnce, BecomeMoreWhenADriveBecomesAShare) {
  SeenDrive drive(2, [](int) { return 2'500.0; });
  drive.walk(1'000'000);
  drive.becomes(share);
  drive.walk(20'000);
  EXPECT_GE(drive.readers.count(), 16);
}

TEST(ReadersAtOnce, StartWithOneOnEveryDrive) {
  SeenDrive drive(2, share);
  drive.walk(5'000);
  drive.readers.start();
  EXPECT_EQ(drive.readers.count(), 1);
  EXPECT_TRUE(drive.readers.mayBecomeMore());
}

TEST(ReadersAtOnce, ARestIsNoMeasure) {
  SeenDrive drive(1, [](int) { return 2'500.0; });
  drive.walk(1'000'000);
  drive.now += std::chrono::hours(1);
  drive.readers.startAgain();
  drive.walk(100'000);
  EXPECT_FALSE(drive.readers.areCallsSlow());
  EXPECT_EQ(drive.most, 1);
}

TEST(ReadersAtOnce, CanBeAFixedNumber) {
  ReadersAtOnce readers = ReadersAtOnce::always(3, true);
  for (int i = 0; i < 1000; ++i) EXPECT_FALSE(readers.step());
  readers.start();
  EXPECT_EQ(readers.count(), 3);
  EXPECT_TRUE(readers.areCallsSlow());
}

}  // namespace
}  // namespace quorvin
