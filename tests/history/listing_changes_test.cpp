// SPDX-License-Identifier: GPL-2.0-or-later
#include "history/listing_changes.h"

#include "support/listing_lines.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace quorvin::test {

namespace {

class Changes : public testing::Test {
 protected:
  std::optional<ListingChanges> between(const QByteArray& earlier, const QByteArray& later) {
    return changesBetween(folder_.writeFile(QStringLiteral("earlier"), earlier),
                          folder_.writeFile(QStringLiteral("later"), later), [this] { return goesOn_; });
  }
  static QByteArray listing(const QByteArray& folder, const QByteArrayList& names) {
    QByteArray text = blockHead("DISK", folder);
    for (const QByteArray& name : names) text += entryLine(name);
    return text;
  }

  TemporaryFolder folder_;
  bool goesOn_ = true;
};

TEST_F(Changes, CountsNamesThatCameAndWent) {
  EXPECT_EQ(between(listing("\\", {"a", "b", "c"}), listing("\\", {"b", "c", "d", "e"})),
            (ListingChanges{2, 1}));
}

TEST_F(Changes, OrderSizeAndDateMakeNoDifference) {
  const QByteArray other =
      blockHead("DISK", "\\") + entryLine("b", "5", "1 Feb 2020") + entryLine("a", "7", "2 Feb 2020");
  EXPECT_EQ(between(listing("\\", {"a", "b"}), other), (ListingChanges{0, 0}));
}

TEST_F(Changes, TheSameNameInAnotherFolderIsAnotherEntry) {
  EXPECT_EQ(between(listing("\\one\\", {"a"}), listing("\\two\\", {"a"})), (ListingChanges{1, 1}));
}

TEST_F(Changes, FoldersAndLinesThatAreNoEntriesDoNotCount) {
  EXPECT_EQ(between(listing("\\", {}), blockHead("OTHER", "\\") + "<DIR> sub\r\n\r\n---------------\r\n"),
            (ListingChanges{0, 0}));
}

TEST_F(Changes, EachOfSeveralEqualNamesCounts) {
  EXPECT_EQ(between(listing("\\", {"a"}), listing("\\", {"a", "a", "a"})), (ListingChanges{2, 0}));
}

TEST_F(Changes, LongNamesAndOtherAlphabetsAreTakenByTheirColumns) {
  // 65 characters in 130 bytes: the size begins behind them.
  const QByteArray name = QByteArray("\xC3\xA4").repeated(65);
  const auto line = [&](const QByteArray& size) {
    return blockHead("DISK", "\\") + name + size.rightJustified(16) + " bytes 15 Jan 2004\r\n";
  };
  EXPECT_EQ(between(line("1,024"), line("2,048")), (ListingChanges{0, 0}));
}

TEST_F(Changes, ManyEntriesAcrossPiecesAreAllSeen) {
  QByteArray earlier = blockHead("DISK", "\\");
  QByteArray later = earlier;
  for (int number = 0; number < 40'000; ++number) {
    const QByteArray line = entryLine("name " + QByteArray::number(number));
    if (number % 4 != 0) earlier += line;
    if (number % 5 != 0) later += line;
  }
  // Those of 4 that are none of 20 came, those of 5 that are none of 20 went.
  EXPECT_EQ(between(earlier, later), (ListingChanges{8'000, 6'000}));
}

TEST_F(Changes, CanBeGivenUp) {
  goesOn_ = false;
  EXPECT_EQ(between(listing("\\", {"a"}), listing("\\", {"b"})), std::nullopt);
}

TEST_F(Changes, AListingWithoutALineEndIsReadWhole) {
  EXPECT_EQ(between("", "a"), (ListingChanges{1, 0}));
}

}  // namespace

}  // namespace quorvin::test
