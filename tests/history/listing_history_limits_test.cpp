// SPDX-License-Identifier: GPL-2.0-or-later

// How much is kept of a listing, and what is never given up.
#include "history/history_fixture.h"

#include <random>

namespace quorvin {
namespace {

using test::blockHead;
using test::entryLine;
using test::listingOf;

class HistoryLimit : public test::HistoryTest {
 protected:
  /// A listing that shares nothing with others, and packs badly.
  static QByteArray strangeListing(int seed, int entries = 20'000) {
    std::mt19937 random(static_cast<unsigned>(seed));
    QByteArray listing = blockHead("MUSIC", "\\Music\\");
    for (int entry = 0; entry < entries; ++entry) {
      QByteArray name;
      for (int part = 0; part < 6; ++part) name += QByteArray::number(random(), 36);
      listing += entryLine(name);
    }
    return listing;
  }
  qint64 bytesOfOlder() {
    qint64 bytes = 0;
    const std::vector<int> all = numbers();
    for (std::size_t index = 1; index < all.size(); ++index) {
      bytes += QFileInfo(data.pathOf(fileOf(all[index]))).size();
    }
    return bytes;
  }
};

TEST_F(HistoryLimit, TenVersionsAreKept) {
  for (int entries = 1; entries <= 14; ++entries) put(listingOf(entries));
  EXPECT_EQ(numbers(), (std::vector{13, 12, 11, 10, 9, 8, 7, 6, 5, 4}));
  for (int number = 4; number <= 13; ++number) EXPECT_EQ(textOf(number), listingOf(number)) << number;
}

TEST_F(HistoryLimit, OlderVersionsTakeUpATenthOfTheListingAtMost) {
  for (int round = 1; round <= 6; ++round) {
    put(listingOf(20'000) + strangeListing(round, 3000));
    EXPECT_LE(bytesOfOlder(), (listingOf(20'000).size() + strangeListing(round, 3000).size()) / 10) << round;
  }
  const std::vector<int> kept = numbers();
  EXPECT_GT(kept.size(), 1U);
  EXPECT_LT(kept.size(), 5U);
  EXPECT_EQ(kept[0], 5);
  EXPECT_EQ(textOf(kept.back()), listingOf(20'000) + strangeListing(kept.back(), 3000));
}

TEST_F(HistoryLimit, TheNewestVersionIsKeptHoweverLarge) {
  for (int round = 1; round <= 3; ++round) put(strangeListing(round));
  EXPECT_EQ(numbers(), std::vector{2});
  EXPECT_EQ(textOf(2), strangeListing(2));
}

TEST_F(HistoryLimit, TheLastCompleteVersionOutlivesAnyNumberOfIncompleteOnes) {
  put(listingOf(500, "whole"));
  for (int entries = 1; entries <= 25; ++entries) put(listingOf(entries), false);
  EXPECT_EQ(numbers(), (std::vector{25, 24, 23, 22, 21, 20, 19, 18, 17, 1}));
  EXPECT_EQ(textOf(1), listingOf(500, "whole"));
  EXPECT_EQ(textOf(17), listingOf(16));
  EXPECT_EQ(history.newestComplete(kMusic)->number, 1);
}

TEST_F(HistoryLimit, TheLastCompleteVersionGoesWhenThereIsANewerOne) {
  put(listingOf(500, "whole"));
  for (int entries = 1; entries <= 12; ++entries) put(listingOf(entries), false);
  put(listingOf(600, "whole"));
  put(listingOf(700, "whole"));
  for (int entries = 1; entries <= 12; ++entries) put(listingOf(entries), false);
  EXPECT_EQ(history.newestComplete(kMusic)->entries, 700U);
  EXPECT_EQ(numbers().size(), 10U);
  for (const int number : numbers()) EXPECT_GT(textOf(number).size(), 0) << number;
}

TEST_F(HistoryLimit, ALastCompleteVersionThatIsDamagedHoldsNothingUp) {
  put(listingOf(500, "whole"));
  put(listingOf(1), false);
  put(listingOf(2), false);
  QByteArray bytes = data.readFile(fileOf(1));
  bytes[bytes.size() - 3] = static_cast<char>(bytes[bytes.size() - 3] ^ 1);
  data.writeFile(fileOf(1), bytes);
  for (int entries = 3; entries <= 20; ++entries) EXPECT_EQ(put(listingOf(entries), false).fault, QString());
  EXPECT_EQ(numbers().size(), 10U);
  EXPECT_FALSE(history.newestComplete(kMusic));
}

TEST_F(HistoryLimit, OtherLimitsMayBeSet) {
  history = ListingHistory(data.path(), {}, {.versions = 2});
  for (int entries = 1; entries <= 5; ++entries) put(listingOf(entries));
  EXPECT_EQ(numbers(), (std::vector{4, 3}));
}

}  // namespace
}  // namespace quorvin
