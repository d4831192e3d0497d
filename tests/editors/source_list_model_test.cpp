// SPDX-License-Identifier: GPL-2.0-or-later
#include "editors/source_list_model.h"

#include "support/qt_printing.h"

#include <QAbstractItemModelTester>
#include <gtest/gtest.h>

namespace quorvin {

namespace {

SourceEntry entry(const char* name) {
  return {QString::fromLatin1(name), QString::fromLatin1(name) + u'\\'};
}

class SourceList : public testing::Test {
 protected:
  SourceList() { list_.fill({entry("one"), entry("two"), entry("three")}); }

  QStringList descriptions() const {
    QStringList texts;
    for (const SourceEntry& each : list_.entries()) texts.append(each.description);
    return texts;
  }
  static QStringList words(const char* text) { return QString::fromLatin1(text).split(u' '); }

  SourceListModel list_;
  QAbstractItemModelTester tester_{&list_, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(SourceList, HasTheColumnsDescriptionAndPath) {
  EXPECT_EQ(list_.columnCount(), 2);
  EXPECT_EQ(list_.headerData(0, Qt::Horizontal).toString(), QStringLiteral("Description"));
  EXPECT_EQ(list_.headerData(1, Qt::Horizontal).toString(), QStringLiteral("Path"));
  EXPECT_EQ(list_.index(1, 0).data().toString(), QStringLiteral("two"));
  EXPECT_EQ(list_.index(1, 1).data().toString(), QStringLiteral("two\\"));
}

TEST_F(SourceList, AnEntryThatLooksLikeMarkupIsShownAsItStands) {
  list_.fill({{QStringLiteral("<b>"), QStringLiteral("D:\\a  &amp; b\\")}});
  EXPECT_EQ(list_.index(0, 0).data().toString(), QStringLiteral("<b>"));
  EXPECT_EQ(list_.index(0, 1).data(Qt::ToolTipRole).toString(),
            QStringLiteral("<p style='white-space:pre'>D:\\a  &amp;amp; b\\</p>"));
}

TEST_F(SourceList, AppendsAtTheEndAndTakesDuplicates) {
  list_.append(entry("two"));
  EXPECT_EQ(descriptions(), words("one two three two"));
}

TEST_F(SourceList, DeletingTheThirdRowSelectsTheSecond) {
  EXPECT_EQ(list_.deleteEntries({2}), 1);
  EXPECT_EQ(descriptions(), words("one two"));
}

TEST_F(SourceList, DeletingTheFirstRowSelectsNothing) {
  EXPECT_EQ(list_.deleteEntries({0}), std::nullopt);
  EXPECT_EQ(descriptions(), words("two three"));
}

TEST_F(SourceList, DeletesAnyRowsAtOnceAndSelectsTheOneAboveThem) {
  list_.fill({entry("0"), entry("1"), entry("2"), entry("3"), entry("4"), entry("5"), entry("6")});
  EXPECT_EQ(list_.deleteEntries({1, 2, 4, 6}), 0);
  EXPECT_EQ(descriptions(), words("0 3 5"));
  EXPECT_EQ(list_.deleteEntries({0, 1, 2}), std::nullopt);
  EXPECT_EQ(list_.rowCount(), 0);
}

TEST_F(SourceList, MovingExchangesBothTextsAndFollowsTheEntry) {
  EXPECT_EQ(list_.moveUp(2), 1);
  EXPECT_EQ(descriptions(), words("one three two"));
  EXPECT_EQ(list_.entries()[1].path, QStringLiteral("three\\"));
  EXPECT_EQ(list_.moveDown(0), 1);
  EXPECT_EQ(descriptions(), words("three one two"));
}

TEST_F(SourceList, MovingBeyondAnEndDoesNothing) {
  EXPECT_EQ(list_.moveUp(0), std::nullopt);
  EXPECT_EQ(list_.moveDown(2), std::nullopt);
  EXPECT_EQ(descriptions(), words("one two three"));
}

TEST_F(SourceList, WithoutASelectionNothingHappens) {
  EXPECT_EQ(list_.deleteEntries({}), std::nullopt);
  EXPECT_EQ(list_.deleteEntries({-1}), std::nullopt);
  EXPECT_EQ(list_.deleteEntries({3}), std::nullopt);
  EXPECT_EQ(list_.moveUp(-1), std::nullopt);
  EXPECT_EQ(list_.moveDown(-1), std::nullopt);
  EXPECT_EQ(descriptions(), words("one two three"));
}

}  // namespace

}  // namespace quorvin
