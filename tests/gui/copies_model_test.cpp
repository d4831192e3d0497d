// SPDX-License-Identifier: GPL-2.0-or-later

// What views are told of the copies found.
#include "catalogue/copies_model.h"

#include "support/listing_lines.h"
#include "support/temporary_folder.h"

#include <QAbstractItemModelTester>
#include <gtest/gtest.h>

#include <string>

namespace quorvin::test {

namespace {

class CopiesModelTest : public testing::Test {
 protected:
  void addListing(const QString& name, const QByteArray& listing) {
    state_.OfflineSources.set(++state_.OfflineSourceCount, name, folder_.writeFile(name, listing));
  }
  void show(const CopyWish& wish, std::size_t mostRows = CopiesJob::kMostRows) {
    const auto job = std::make_shared<CopiesJob>(sourcesOf(state_), wish, QLocale::c(), mostRows);
    job->run();
    ASSERT_TRUE(job->isComplete()) << job->fault().toStdString();
    model_.show(job);
  }
  std::string cell(const QModelIndex& row, int column) const {
    return row.siblingAtColumn(column).data().toString().toStdString();
  }
  std::string names() const {
    std::string names;
    for (int row = 0; row < model_.rowCount(); ++row) names += cell(model_.index(row, 0), 0) + ' ';
    return names;
  }

  TemporaryFolder folder_;
  ProgramState state_;
  CopiesModel model_{QLocale::c()};
  QAbstractItemModelTester tester_{&model_, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

/// Three files, each twice.
QByteArray diskOf(const QByteArray& volume) {
  return blockHead(volume, "\\Films\\") + entryLine("b.avi", "9") + blockHead(volume, "\\Music\\") +
         entryLine("c.mp3", "1,000") + blockHead(volume, "\\" + volume + "\\") + entryLine("a.txt", "20");
}

TEST_F(CopiesModelTest, SortsNumbersAsNumbersAndLeavesPlacesAsListed) {
  addListing(QStringLiteral("one.txt"), diskOf("DISK 1"));
  addListing(QStringLiteral("two.txt"), diskOf("DISK 2"));
  show({});
  EXPECT_EQ(names(), "c.mp3 a.txt b.avi ");
  const QPersistentModelIndex middle(model_.index(1, 3));
  const QPersistentModelIndex place(model_.index(1, 5, model_.index(1, 0)));
  model_.sort(2, Qt::AscendingOrder);
  EXPECT_EQ(names(), "b.avi a.txt c.mp3 ");
  model_.sort(0, Qt::AscendingOrder);
  EXPECT_EQ(names(), "a.txt b.avi c.mp3 ");
  EXPECT_EQ(middle.row(), 0);
  EXPECT_EQ(middle.data().toString(), QStringLiteral("20 bytes"));
  EXPECT_EQ(place.parent(), model_.index(0, 0));
  EXPECT_EQ(place.data().toString(), QStringLiteral("\\DISK 2\\"));
  model_.sort(-1, Qt::AscendingOrder);
  EXPECT_EQ(names(), "c.mp3 a.txt b.avi ");
}

TEST_F(CopiesModelTest, NamesThreeVolumesOfAGroup) {
  for (const char* volume : {"A", "B", "C"}) {
    addListing(QString::fromLatin1(volume) + QStringLiteral(".txt"), diskOf(volume));
  }
  show({});
  EXPECT_EQ(cell(model_.index(0, 0), 4), "A, B, C");
  addListing(QStringLiteral("D.txt"), diskOf("D"));
  show({});
  EXPECT_EQ(cell(model_.index(0, 0), 4), "A, B, C, \u2026");
  EXPECT_EQ(cell(model_.index(0, 0), 1), "4");
}

TEST_F(CopiesModelTest, SaysWhichFileAPlaceIs) {
  addListing(QStringLiteral("one.txt"), diskOf("DISK 1"));
  addListing(QStringLiteral("two.txt"), diskOf("DISK 2"));
  show({});
  EXPECT_FALSE(model_.fileOf(model_.index(0, 0)));
  const std::optional<HitRow> file = model_.fileOf(model_.index(1, 0, model_.index(0, 0)));
  ASSERT_TRUE(file);
  EXPECT_EQ(file->kind, SourceKind::Offline);
  EXPECT_EQ(file->volume, QStringLiteral("DISK 2"));
  EXPECT_EQ(file->folder, QStringLiteral("\\Music\\"));
  EXPECT_EQ(file->name, QStringLiteral("c.mp3"));
}

TEST_F(CopiesModelTest, OfVeryManySingleFilesTheLargestStay) {
  QByteArray listing = blockHead("DISK", "\\");
  for (int file = 1; file <= 50; ++file) {
    listing += entryLine("f" + QByteArray::number(file), QByteArray::number(file * 7 % 51));
  }
  addListing(QStringLiteral("one.txt"), listing);
  CopyWish wish;
  wish.singleOnly = true;
  show(wish, 3);
  // 29 times 7 is 50 more than 3 times 51.
  EXPECT_EQ(names(), "f29 f7 f36 ");
  EXPECT_EQ(cell(model_.index(0, 0), 1), "50 bytes");
  EXPECT_EQ(cell(model_.index(2, 0), 1), "48 bytes");
}

TEST_F(CopiesModelTest, OfOneJobAfterAnotherOnlyTheLastIsThere) {
  addListing(QStringLiteral("one.txt"), diskOf("DISK 1"));
  addListing(QStringLiteral("two.txt"), diskOf("DISK 2"));
  show({});
  CopyWish wish;
  wish.sumBy = CopyWish::SumBy::Volume;
  show(wish);
  EXPECT_EQ(names(), "DISK 2 ");
  EXPECT_EQ(model_.columnCount(), 4);
  model_.show(nullptr);
  EXPECT_EQ(model_.rowCount(), 0);
  EXPECT_EQ(model_.columnCount(), 0);
}

}  // namespace

}  // namespace quorvin::test
