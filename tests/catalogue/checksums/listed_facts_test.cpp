// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/checksums/listed_facts.h"

#include "catalogue/compared_place.h"
#include "support/listing_lines.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace quorvin {
namespace {

using test::blockHead;
using test::entryLine;

class ListedFactsTest : public testing::Test {
 protected:
  void read(const QByteArray& listing) {
    const QString path = folder_.writeFile(u"x.txt"_qs, listing);
    EXPECT_TRUE(facts_.read(openerOfListing(path), QLocale::c(), [] { return false; }));
  }
  std::int64_t sizeOf(std::string_view path) const {
    const auto found = facts_.find(path);
    return found ? found->size : -1;
  }

  TemporaryFolder folder_;
  ListedFacts facts_;
};

TEST_F(ListedFactsTest, AreFoundByThePathBelowTheFolder) {
  read(blockHead("CD", "\\media\\cd\\") + entryLine("x", "5") + blockHead("CD", "\\media\\cd\\a b\\") +
       entryLine("y.txt", "1,234"));
  ASSERT_TRUE(facts_.lookBelow(u"/media/cd"_qs, ""));
  EXPECT_EQ(sizeOf("x"), 5);
  EXPECT_EQ(sizeOf("a b/y.txt"), 1234);
  EXPECT_EQ(sizeOf("y.txt"), -1);
  EXPECT_EQ(facts_.folder(), u"/media/cd/"_qs);
}

TEST_F(ListedFactsTest, AreFoundWhereTheDiskIsMountedElsewhere) {
  read(blockHead("CD", "\\media\\cd\\a\\") + entryLine("x", "5") + blockHead("CD", "\\media\\cd\\a\\b\\") +
       entryLine("y", "6"));
  ASSERT_TRUE(facts_.lookBelow(u"/mnt"_qs, "a/"));
  EXPECT_EQ(sizeOf("a/b/y"), 6);
  EXPECT_EQ(facts_.folder(), u"/media/cd/"_qs);
  EXPECT_FALSE(facts_.lookBelow(u"/mnt"_qs, "c/"));
  EXPECT_EQ(sizeOf("a/b/y"), -1);
}

TEST_F(ListedFactsTest, TellTheFolderThatWasListed) {
  read(blockHead("CD", "\\media\\cd\\a\\") + entryLine("x", "5"));
  ASSERT_TRUE(facts_.lookBelow({}, "a/"));
  EXPECT_EQ(facts_.folder(), u"/media/cd/"_qs);
}

TEST_F(ListedFactsTest, OfNamesThatLookAlikeAreNone) {
  const QByteArray cut(65, 'n');
  read(blockHead("CD", "\\") + entryLine(cut, "5") + entryLine(cut, "6") + entryLine("x", "7"));
  ASSERT_TRUE(facts_.lookBelow(u"/"_qs, ""));
  EXPECT_EQ(sizeOf(std::string(65, 'n') + "ame"), -1);
  EXPECT_EQ(sizeOf("x"), 7);
}

TEST_F(ListedFactsTest, OfALongNameAreThoseOfWhatIsListedOfIt) {
  read(blockHead("CD", "\\") + entryLine(QByteArray(65, 'n'), "5"));
  ASSERT_TRUE(facts_.lookBelow(u"/"_qs, ""));
  EXPECT_EQ(sizeOf(std::string(80, 'n')), 5);
}

TEST_F(ListedFactsTest, OfAnEmptyListingAreNone) {
  read("");
  EXPECT_FALSE(facts_.lookBelow(u"/"_qs, ""));
  EXPECT_EQ(sizeOf("x"), -1);
}

TEST(CommonFolders, EndWithASlash) {
  EXPECT_EQ(commonFolderOf({}), "");
  EXPECT_EQ(commonFolderOf({"x"}), "");
  EXPECT_EQ(commonFolderOf({"a/b/x"}), "a/b/");
  EXPECT_EQ(commonFolderOf({"a/b/x", "a/bc/x"}), "a/");
  EXPECT_EQ(commonFolderOf({"a/b/x", "b"}), "");
}

}  // namespace
}  // namespace quorvin
