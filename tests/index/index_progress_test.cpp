// SPDX-License-Identifier: GPL-2.0-or-later

// The estimate of how much of a refresh is done.
#include "index/index_progress.h"

#include <gtest/gtest.h>

namespace quorvin::test {

namespace {

constexpr std::int64_t kThousandLines = 111'000;

TEST(RefreshShare, FollowsTheLengthOfTheListingsBefore) {
  RefreshShare share({kThousandLines, 3 * kThousandLines});
  share.beginSource(1);
  EXPECT_EQ(share.percent(), 0);
  share.indexed({100, 400});
  EXPECT_EQ(share.percent(), 12);
  share.indexed({200, 800});
  share.beginSource(2);
  EXPECT_EQ(share.percent(), 25);
  share.indexed({200, 2300});
  EXPECT_EQ(share.percent(), 62);
}

TEST(RefreshShare, ASourceThatHasGrownIsNotDoneBeforeItSaysSo) {
  RefreshShare share({kThousandLines, kThousandLines});
  share.beginSource(1);
  share.indexed({0, 50'000});
  EXPECT_EQ(share.percent(), 49);
  share.beginSource(2);
  EXPECT_EQ(share.percent(), 50);
  share.indexed({0, 5'000'000});
  EXPECT_EQ(share.percent(), 99);
}

TEST(RefreshShare, CannotBeToldForASourceWithoutListing) {
  RefreshShare share({kThousandLines, 0, kThousandLines});
  share.beginSource(2);
  EXPECT_EQ(share.percent(), std::nullopt);
  share.beginSource(3);
  EXPECT_EQ(share.percent(), 66);
}

TEST(RefreshShare, CannotBeToldBeforeTheFirstSourceAndWithoutSources) {
  EXPECT_EQ(RefreshShare().percent(), std::nullopt);
  EXPECT_EQ(RefreshShare({kThousandLines}).percent(), std::nullopt);
}

TEST(RefreshShare, NeverGoesBack) {
  RefreshShare share({kThousandLines, kThousandLines});
  share.beginSource(1);
  share.indexed({0, 900});
  EXPECT_EQ(share.percent(), 45);
  share.indexed({0, 100});
  EXPECT_EQ(share.percent(), 45);
}

TEST(RefreshShare, RowsThatWereAddedMeanwhileDoNotUpsetIt) {
  RefreshShare share({kThousandLines});
  share.beginSource(2);
  EXPECT_EQ(share.percent(), 0);
}

}  // namespace

}  // namespace quorvin::test
