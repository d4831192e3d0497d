// SPDX-License-Identifier: GPL-2.0-or-later

// Changes as a tree.
#include "catalogue/compare_model.h"

#include "gui/tree_texts.h"
#include "support/listing_lines.h"
#include "support/temporary_folder.h"

#include <QAbstractItemModelTester>
#include <gtest/gtest.h>

namespace quorvin::test {

namespace {

class CompareModelTest : public testing::Test {
 protected:
  std::shared_ptr<const CompareJob> compared(const QByteArray& before, const QByteArray& after) {
    const auto placeOf = [this](const QString& name, const QByteArray& listing) {
      ComparedPlace place;
      place.source.listing = folder_.writeFile(name, listing);
      place.source.kind = SourceKind::Offline;
      return place;
    };
    auto job = std::make_shared<CompareJob>(placeOf(QStringLiteral("before.txt"), before),
                                            placeOf(QStringLiteral("after.txt"), after), folder_.path(),
                                            QLocale::c());
    job->run();
    EXPECT_TRUE(job->isComplete()) << job->fault().toStdString();
    return job;
  }

  TemporaryFolder folder_;
  CompareModel model_{QLocale::c()};
  QAbstractItemModelTester tester_{&model_, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(CompareModelTest, IsEmptyWithoutAJob) {
  EXPECT_EQ(model_.rowCount(), 0);
  EXPECT_EQ(model_.headerData(CompareModel::kColumns, Qt::Horizontal, Qt::DisplayRole), QVariant());
  EXPECT_EQ(model_.headerData(6, Qt::Horizontal, Qt::DisplayRole).toString(), QStringLiteral("Moved from"));
}

TEST_F(CompareModelTest, SaysTheVolumeWhereAListingHasSeveral) {
  model_.show(compared(
      blockHead("A", "\\x\\") + entryLine("one", "1") + blockHead("B", "\\x\\") + entryLine("two", "2"),
      blockHead("A", "\\x\\") + entryLine("one", "1") + blockHead("B", "\\y\\") + entryLine("two", "2")));
  EXPECT_EQ(textsOfTree(model_),
            "B: \\y\\|1 moved|2 bytes||2 bytes||\n"
            "  two|moved|2 bytes|15 Jan 2004 10:20:30|2 bytes|15 Jan 2004 10:20:30|B: \\x\\\n");
}

TEST_F(CompareModelTest, WhatAListingLacksIsNotShown) {
  model_.show(compared(blockHead("A", "\\x\\") + entryLine("one", "1"),
                       blockHead("A", "\\x\\") + entryLine("one", "1") + "alone.txt\r\n"));
  EXPECT_TRUE(textsOfTree(model_).starts_with("\\x\\|1 added|0 bytes||0 bytes||\n  alone.txt|added|||"))
      << textsOfTree(model_);
}

TEST_F(CompareModelTest, AFileIsFoundWhereItIsOrWas) {
  model_.show(compared(
      blockHead("A", "\\x\\") + entryLine("gone", "1") + entryLine("same", "1"),
      blockHead("C", "\\x\\") + entryLine("same", "1") + blockHead("C", "\\z\\") + entryLine("new", "5")));
  const auto pathOf = [this](const QModelIndex& index) {
    const HitRow row = model_.fileOf(index);
    return (row.volume + u'|' + row.folder + u'|' + row.name).toStdString();
  };
  EXPECT_EQ(pathOf(model_.index(0, 0)), "A|\\x\\|");
  EXPECT_EQ(pathOf(model_.index(0, 0, model_.index(0, 0))), "A|\\x\\|gone");
  EXPECT_EQ(pathOf(model_.index(1, 0)), "C|\\z\\|");
  EXPECT_EQ(pathOf(model_.index(0, 3, model_.index(1, 0))), "C|\\z\\|new");
  EXPECT_EQ(model_.fileOf(model_.index(0, 0)).kind, SourceKind::Offline);
}

TEST_F(CompareModelTest, OneKindAndNoMoreThanTheLimitAreShown) {
  const auto job = compared(blockHead("A", "\\x\\") + entryLine("same", "1") + entryLine("a", "1"),
                            blockHead("A", "\\x\\") + entryLine("same", "1") + entryLine("b", "2") +
                                blockHead("A", "\\y\\") + entryLine("c", "3"));
  model_.show(job, ChangeKind::Added);
  EXPECT_EQ(model_.shownChanges(), 2U);
  EXPECT_EQ(model_.rowCount(), 2);
  model_.show(job, ChangeKind::Added, 1);
  EXPECT_EQ(model_.rowCount(), 1);
  EXPECT_EQ(model_.shownChanges(), 1U);
  EXPECT_EQ(model_.changesAltogether(), 2U);
  model_.show(job, ChangeKind::Moved);
  EXPECT_EQ(model_.rowCount(), 0);
  model_.show(nullptr);
  EXPECT_EQ(model_.changesAltogether(), 0U);
}

}  // namespace

}  // namespace quorvin::test
