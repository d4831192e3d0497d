// SPDX-License-Identifier: GPL-2.0-or-later
#include "hits/hit_list_columns.h"

#include "support/qt_printing.h"

#include <QSignalSpy>
#include <QStandardItemModel>
#include <gtest/gtest.h>

namespace quorvin::test {

namespace {

const QString kUsual = QString();

class HitListColumnsTest : public testing::Test {
 protected:
  HitListColumnsTest() {
    header_.setModel(&model_);
    header_.setSectionsMovable(true);
    for (int column = 0; column < kHitColumnCount; ++column) {
      columns_->setUsualWidth(static_cast<HitColumn>(column), 50 + column);
    }
  }

  QStandardItemModel model_{0, kHitColumnCount};
  QHeaderView header_{Qt::Horizontal};
  HitListColumns* columns_ = new HitListColumns(&header_);
  QSignalSpy changed_{columns_, &HitListColumns::changed};
};

TEST_F(HitListColumnsTest, HaveTheWindowsWidthsUntilTheUserSetsOthers) {
  EXPECT_EQ(columns_->width(HitColumn::Name), 53);
  EXPECT_EQ(columns_->text(), kUsual);
  EXPECT_EQ(changed_.size(), 0);
  header_.resizeSection(3, 200);
  EXPECT_EQ(changed_.size(), 1);
  EXPECT_FALSE(columns_->hasUsualWidth(HitColumn::Name));
  columns_->setUsualWidth(HitColumn::Name, 70);
  columns_->setUsualWidth(HitColumn::Size, 71);
  EXPECT_EQ(columns_->width(HitColumn::Name), 200);
  EXPECT_EQ(columns_->width(HitColumn::Size), 71);
  EXPECT_EQ(columns_->text(), QStringLiteral("Match,Volume,Folder,Name 200,Size,Date"));
}

TEST_F(HitListColumnsTest, CanBeMovedAndHidden) {
  header_.moveSection(3, 0);
  columns_->setVisible(HitColumn::Volume, false);
  EXPECT_EQ(changed_.size(), 2);
  EXPECT_FALSE(columns_->isVisible(HitColumn::Volume));
  EXPECT_EQ(columns_->width(HitColumn::Volume), 0);
  EXPECT_EQ(columns_->text(), QStringLiteral("Name,Match,-Volume,Folder,Size,Date"));
  columns_->setVisible(HitColumn::Volume, true);
  EXPECT_EQ(columns_->width(HitColumn::Volume), 51);
}

TEST_F(HitListColumnsTest, OneStays) {
  for (int column = 0; column < kHitColumnCount; ++column) {
    columns_->setVisible(static_cast<HitColumn>(column), false);
  }
  EXPECT_EQ(columns_->visibleCount(), 1);
  EXPECT_TRUE(columns_->isVisible(HitColumn::Date));
}

TEST_F(HitListColumnsTest, ComeBackAsTheyWere) {
  const QString text = QStringLiteral("Name 300,Match,-Volume,Folder,-Size 77,Date");
  columns_->take(text);
  EXPECT_EQ(columns_->text(), text);
  EXPECT_EQ(columns_->width(HitColumn::Name), 300);
  EXPECT_EQ(header_.visualIndex(3), 0);
  EXPECT_FALSE(columns_->isVisible(HitColumn::Size));
  columns_->setVisible(HitColumn::Size, true);
  EXPECT_EQ(columns_->width(HitColumn::Size), 77);
}

TEST_F(HitListColumnsTest, AreTheUsualOnesAfterAReset) {
  columns_->take(QStringLiteral("Name 300,Match,-Volume,Folder,Size,Date"));
  QSignalSpy divisionNeeded(columns_, &HitListColumns::divisionNeeded);
  columns_->reset();
  EXPECT_EQ(columns_->text(), kUsual);
  EXPECT_EQ(header_.visualIndex(3), 3);
  EXPECT_TRUE(columns_->isVisible(HitColumn::Volume));
  EXPECT_TRUE(columns_->hasUsualWidth(HitColumn::Name));
  EXPECT_EQ(divisionNeeded.size(), 1);
}

TEST_F(HitListColumnsTest, AreTheUsualOnesWhereTheTextMakesNoSense) {
  for (const char* text :
       {"", "x", "Match", "Match,Volume,Folder,Name,Size,Size", "Match,Volume,Folder,Name,Size,Date,Date",
        "Match -3,Volume,Folder,Name,Size,Date", "Match x,Volume,Folder,Name,Size,Date",
        "Match 99999999,Volume,Folder,Name,Size,Date", "Match 3 4,Volume,Folder,Name,Size,Date",
        "-Match,-Volume,-Folder,-Name,-Size,-Date", "match,Volume,Folder,Name,Size,Date", ",,,,,"}) {
    columns_->take(QStringLiteral("Name 300,Match,-Volume,Folder,Size,Date"));
    columns_->take(QString::fromLatin1(text));
    EXPECT_EQ(columns_->text(), kUsual) << text;
  }
}

}  // namespace

}  // namespace quorvin::test
