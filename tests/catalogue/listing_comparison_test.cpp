// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/listing_comparison.h"

#include "catalogue/opened_bytes.h"
#include "catalogue/plain_comparison.h"
#include "faults/runtime_fault.h"
#include "support/fault_number.h"
#include "support/sweep.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <random>

namespace quorvin {
namespace {

using test::listingOf;
using test::openerOf;
using test::PlainEntry;
using testing::ElementsAre;
using testing::IsEmpty;

/// The comparison of two listings.
class Compared {
 public:
  Compared(const QByteArray& earlier, const QByteArray& later)
      : before(openerOf(earlier), QLocale::c()), after(openerOf(later), QLocale::c()) {
    isDone = comparison.run([] { return false; });
  }
  Compared(const std::vector<PlainEntry>& earlier, const std::vector<PlainEntry>& later)
      : Compared(listingOf(earlier), listingOf(later)) {}

  /// As plainChanges() has them, in the order of the comparison.
  std::vector<std::string> changes() const {
    std::vector<std::string> texts;
    const bool withVolume = before.volumeCount() > 1 || after.volumeCount() > 1;
    const auto path = [&](const ComparedListing& listing, std::uint32_t number) {
      const ComparedFile& file = listing.files()[number];
      const FolderTree& tree = listing.folders();
      const std::string volume = tree.volumes()[tree.volumeOf(file.folder)].name;
      return (withVolume ? volume : std::string()) + tree.path(file.folder) + std::string(file.name);
    };
    for (const FileChange& change : comparison.changes()) {
      switch (change.kind) {
        case ChangeKind::Added:
          texts.push_back("+ " + path(after, change.after));
          break;
        case ChangeKind::Removed:
          texts.push_back("- " + path(before, change.before));
          break;
        case ChangeKind::Changed:
          texts.push_back("* " + path(after, change.after));
          break;
        case ChangeKind::Moved:
          texts.push_back("> " + path(after, change.after) + " < " + path(before, change.before));
          break;
      }
    }
    return texts;
  }

  ComparedListing before;
  ComparedListing after;
  ListingComparison comparison{before, after};
  bool isDone = false;
};

std::vector<std::string> changes(const std::vector<PlainEntry>& before,
                                 const std::vector<PlainEntry>& after) {
  return Compared(before, after).changes();
}

/// The same of listings that have a folder in common.
std::vector<std::string> changesBeside(std::vector<PlainEntry> before, std::vector<PlainEntry> after) {
  for (std::vector<PlainEntry>* listing : {&before, &after}) listing->push_back({"CD", "\\", "in both"});
  return changes(before, after);
}

TEST(ListingComparisons, SayWhatCameWentAndChanged) {
  const Compared compared(
      {{"CD", "\\a\\", "same"}, {"CD", "\\a\\", "larger", 10}, {"CD", "\\b\\", "gone", 7}},
      {{"CD", "\\a\\", "larger", 30}, {"CD", "\\a\\", "same"}, {"CD", "\\c\\", "new", 5}});
  EXPECT_THAT(compared.changes(), ElementsAre("* \\a\\larger", "- \\b\\gone", "+ \\c\\new"));
  EXPECT_EQ(compared.comparison.same(), (FileSum{1, 1024}));
  EXPECT_EQ(compared.comparison.sum(ChangeKind::Changed), (FileSum{1, 30}));
  EXPECT_EQ(compared.comparison.sum(ChangeKind::Removed), (FileSum{1, 7}));
  EXPECT_EQ(compared.comparison.sum(ChangeKind::Added), (FileSum{1, 5}));
  EXPECT_EQ(compared.comparison.sum(ChangeKind::Moved), FileSum());
}

TEST(ListingComparisons, AnotherDateIsAChange) {
  EXPECT_THAT(changes({{"CD", "\\", "x", 10, 15}}, {{"CD", "\\", "x", 10, 16}}), ElementsAre("* \\x"));
}

TEST(ListingComparisons, AFileWithoutSizeAndDateChangesWhenItGetsThem) {
  EXPECT_THAT(changes({{"CD", "\\", "x", {}}}, {{"CD", "\\", "x", {}}}), IsEmpty());
  EXPECT_THAT(changes({{"CD", "\\", "x", {}}}, {{"CD", "\\", "x", 10}}), ElementsAre("* \\x"));
}

TEST(ListingComparisons, TheSameFileElsewhereWasMoved) {
  EXPECT_THAT(changesBeside({{"CD", "\\a\\", "x", 10}}, {{"CD", "\\b\\", "X", 10}}),
              ElementsAre("> \\b\\X < \\a\\x"));
  EXPECT_THAT(changesBeside({{"CD", "\\a\\", "x", 10, 15}}, {{"CD", "\\b\\", "x", 10, 16}}),
              ElementsAre("> \\b\\x < \\a\\x"))
      << "a copy may have another date";
  EXPECT_THAT(changesBeside({{"CD", "\\a\\", "x", 10}}, {{"CD", "\\b\\", "x", 11}}),
              ElementsAre("- \\a\\x", "+ \\b\\x"));
  EXPECT_THAT(changesBeside({{"CD", "\\a\\", "x", 10}}, {{"CD", "\\b\\", "y", 10}}),
              ElementsAre("- \\a\\x", "+ \\b\\y"));
}

TEST(ListingComparisons, AnEmptyFileIsMovedOnlyWithItsDate) {
  EXPECT_THAT(changesBeside({{"CD", "\\a\\", "x", 0, 15}}, {{"CD", "\\b\\", "x", 0, 15}}),
              ElementsAre("> \\b\\x < \\a\\x"));
  EXPECT_THAT(changesBeside({{"CD", "\\a\\", "x", 0, 15}}, {{"CD", "\\b\\", "x", 0, 16}}),
              ElementsAre("- \\a\\x", "+ \\b\\x"));
  EXPECT_THAT(changesBeside({{"CD", "\\a\\", "x", {}}}, {{"CD", "\\b\\", "x", {}}}),
              ElementsAre("- \\a\\x", "+ \\b\\x"));
}

TEST(ListingComparisons, OfSeveralThatAreAlikeThoseWithTheSameDateBelongTogether) {
  EXPECT_THAT(
      changes({{"CD", "\\a\\", "x", 10, 15}, {"CD", "\\b\\", "x", 10, 16}},
              {{"CD", "\\c\\", "x", 10, 16}, {"CD", "\\d\\", "x", 10, 17}, {"CD", "\\e\\", "x", 10, 18}}),
      ElementsAre("> \\c\\x < \\b\\x", "> \\d\\x < \\a\\x", "+ \\e\\x"));
}

TEST(ListingComparisons, TheOnlyVolumeMayHaveAnotherName) {
  EXPECT_THAT(changes({{"CD", "\\a\\", "x"}}, {{"COPY", "\\a\\", "x"}}), IsEmpty());
  EXPECT_THAT(changes({{"CD", "\\a\\", "x", 10}, {"DVD", "\\a\\", "y"}}, {{"DVD", "\\a\\", "y"}}),
              ElementsAre("- CD\\a\\x"));
  EXPECT_THAT(changes({{"CD", "\\a\\", "x", 10}, {"DVD", "\\a\\", "y"}},
                      {{"CD", "\\a\\", "z"}, {"DVD", "\\a\\", "x", 10}, {"DVD", "\\a\\", "y"}}),
              ElementsAre("+ CD\\a\\z", "> DVD\\a\\x < CD\\a\\x"));
}

TEST(ListingComparisons, ADiskMayBeMountedElsewhere) {
  const Compared compared(
      {{"CD", "\\mnt\\cd\\a\\", "x"}, {"CD", "\\mnt\\cd\\", "y"}},
      {{"CD", "\\media\\", "y"}, {"CD", "\\media\\a\\", "x"}, {"CD", "\\media\\b\\", "z", 7}});
  EXPECT_THAT(compared.changes(), ElementsAre("+ \\media\\b\\z"));
  EXPECT_TRUE(compared.comparison.rule().belowTop);
  EXPECT_EQ(compared.before.top(), "\\mnt\\cd\\");
  EXPECT_EQ(compared.after.top(), "\\media\\");
}

TEST(ListingComparisons, NamesThatAListingHasTwiceAreCompared) {
  EXPECT_THAT(
      changes({{"CD", "\\", "x", 1}, {"CD", "\\", "x", 2}}, {{"CD", "\\", "x", 2}, {"CD", "\\", "x", 1}}),
      IsEmpty());
  EXPECT_THAT(
      changes({{"CD", "\\", "x", 1}, {"CD", "\\", "x", 2}}, {{"CD", "\\", "x", 2}, {"CD", "\\", "x", 3}}),
      ElementsAre("* \\x"));
  EXPECT_THAT(changes({{"CD", "\\", "x", 1}, {"CD", "\\", "x", 2}}, {{"CD", "\\", "x", 2}}),
              ElementsAre("- \\x"));
}

TEST(ListingComparisons, AnEmptyListingHasLostEverything) {
  const Compared compared({{"CD", "\\a\\", "x", 10}}, {});
  EXPECT_THAT(compared.changes(), ElementsAre("- \\a\\x"));
  EXPECT_EQ(compared.comparison.same(), FileSum());
  EXPECT_THAT(changes({}, {}), IsEmpty());
}

TEST(ListingComparisons, TheFormOfALineIsNoChange) {
  const QByteArray one = "\r\nVolume:    CD\r\nDirectory: \\a\r\n\r\n";
  const QByteArray name = QByteArray("x").leftJustified(65);
  EXPECT_THAT(Compared(one + name + "           1,024 bytes 15 Jan 2004 10:20:30\r\n",
                       listingOf({{"CD", "\\a\\", "x", 1024, 15}}))
                  .changes(),
              IsEmpty());
}

TEST(ListingComparisons, MayBeStopped) {
  const QByteArray bytes = listingOf({{"CD", "\\a\\", "x"}});
  ComparedListing before(openerOf(bytes), QLocale::c());
  ComparedListing after(openerOf(bytes), QLocale::c());
  EXPECT_FALSE(ListingComparison(before, after).run([] { return true; }));
}

TEST(ListingComparisons, AListingThatIsShorterAtTheSecondReadingIsNoticed) {
  int opened = 0;
  const ListingOpener open = [&] {
    return openerOf(++opened == 1 ? listingOf({{"CD", "\\a\\", "x"}}) : "")();
  };
  ComparedListing before(open, QLocale::c());
  ComparedListing after(openerOf(""), QLocale::c());
  ListingComparison comparison(before, after);
  EXPECT_FAULT(comparison.run([] { return false; }), 57);
}

/// Two listings of a disk: the later one has lost, got, changed and moved some.
class TwoTimes {
 public:
  explicit TwoTimes(unsigned seed, int count) : random_(seed) {
    for (int i = 0; i < count; ++i) before.push_back(entry());
    for (const PlainEntry& file : before) {
      PlainEntry later = file;
      switch (below(12)) {
        case 0:
          continue;
        case 1:
          later.day = 1 + below(28);
          break;
        case 2:
          later.folder = folder();
          break;
        case 3:
          later.size = size();
          break;
        case 4:
          after.push_back(entry());
          break;
        default:
          break;
      }
      after.push_back(later);
    }
    if (below(2) == 0) std::shuffle(after.begin(), after.end(), random_);
  }

  std::vector<PlainEntry> before;
  std::vector<PlainEntry> after;

 private:
  int below(int end) { return static_cast<int>(random_() % static_cast<unsigned>(end)); }
  std::string folder() { return "\\f" + std::to_string(below(40)) + (below(3) == 0 ? "\\\u00DC\\" : "\\"); }
  std::optional<std::int64_t> size() {
    static constexpr std::int64_t kSizes[] = {0, 1, 1024, 999'999'999, 5'000'000'000};
    if (below(20) == 0) return std::nullopt;
    return below(3) == 0 ? kSizes[below(5)] : below(100'000);
  }
  PlainEntry entry() {
    static const std::string kVolumes[] = {"CD", "DVD"};
    static const std::string kNames[] = {"song", "Song", "\u00DCbung", "\u00FCbung", "a b.txt"};
    return {kVolumes[below(8) == 0 ? 1 : 0], folder(), kNames[below(5)] + std::to_string(below(500)), size(),
            1 + below(28)};
  }

  std::mt19937 random_;
};

/// What belongs together where several would fit is not decided by the plain way: only how many of each kind.
std::map<char, int> kindsOf(const std::vector<std::string>& changes) {
  std::map<char, int> kinds;
  for (const std::string& change : changes) ++kinds[change.front()];
  return kinds;
}

TEST(ListingComparisons, FindWhatAPlainComparisonFinds) {
  int found = 0;
  for (unsigned seed = 1; seed <= test::sweep(2000U, 100U); ++seed) {
    const TwoTimes times(seed, 40);
    const std::vector<std::string> expected = test::plainChanges(times.before, times.after);
    const Compared compared(times.before, times.after);
    ASSERT_EQ(kindsOf(compared.changes()), kindsOf(expected)) << "seed " << seed;
    found += static_cast<int>(expected.size());
  }
  EXPECT_GT(found, 500);
}

TEST(ListingComparisons, FindWhatAPlainComparisonFindsInManyFiles) {
  const TwoTimes times(7, test::sweep(20'000, 2000));
  const std::vector<std::string> expected = test::plainChanges(times.before, times.after);
  const Compared compared(times.before, times.after);
  EXPECT_EQ(kindsOf(compared.changes()), kindsOf(expected));
  EXPECT_GT(kindsOf(expected)['>'], 50);
}

}  // namespace
}  // namespace quorvin
