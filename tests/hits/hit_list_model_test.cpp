// SPDX-License-Identifier: GPL-2.0-or-later

// The model of the hit list over a real hit table.
#include "hits/hit_list_model.h"

#include "hits/scan_into.h"
#include "support/listing_lines.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <QAbstractItemModelTester>
#include <QColor>
#include <QSignalSpy>
#include <gtest/gtest.h>

namespace quorvin::test {

namespace {

class HitListModelTest : public testing::Test {
 protected:
  void addHits(SourceKind kind, int count, const QByteArray& name = "Tune.mp3") {
    const QByteArray lines = entryLine(name, "131,072").repeated(count);
    scanInto(table_, kind, blockHead("DATA1", "\\Music\\") + lines, QStringLiteral("music mp3 missing"));
  }
  QVariant at(int row, HitColumn column, int role = Qt::DisplayRole) const {
    return model_.data(model_.index(row, static_cast<int>(column)), role);
  }

  HitTable table_;
  HitListModel model_{table_, QLocale(QLocale::English, QLocale::UnitedStates)};
};

TEST_F(HitListModelTest, ShowsRowsOnlyOnceTheyAreAnnounced) {
  addHits(SourceKind::Online, 3);
  EXPECT_EQ(model_.rowCount(), 0);
  model_.hitsArrived();
  EXPECT_EQ(model_.rowCount(), 3);
}

TEST_F(HitListModelTest, AnnouncesABatchAtOnce) {
  QSignalSpy inserted(&model_, &QAbstractItemModel::rowsInserted);
  addHits(SourceKind::Online, 100'000);
  model_.hitsArrived();
  model_.hitsArrived();
  ASSERT_EQ(inserted.size(), 1);
  EXPECT_EQ(inserted[0][1].toInt(), 0);
  EXPECT_EQ(inserted[0][2].toInt(), 99'999);
}

TEST_F(HitListModelTest, GivesTheSixTexts) {
  addHits(SourceKind::Online, 1);
  model_.hitsArrived();
  EXPECT_EQ(at(0, HitColumn::Match).toString(), QStringLiteral("067%"));
  EXPECT_EQ(at(0, HitColumn::Volume).toString(), QStringLiteral("DATA1"));
  EXPECT_EQ(at(0, HitColumn::Folder).toString(), QStringLiteral("\\Music\\"));
  EXPECT_EQ(at(0, HitColumn::Name).toString(), QStringLiteral("Tune.mp3"));
  EXPECT_EQ(at(0, HitColumn::Size).toString(), QStringLiteral("0.13mb"));
  EXPECT_EQ(at(0, HitColumn::Date).toString(), QStringLiteral("Jan, 15 04"));
}

TEST_F(HitListModelTest, SaysWhichWordsOfTheSearchARowHoldsAndWhere) {
  model_.clear(SearchQuery(QStringLiteral("music mp3 missing"), 50));
  addHits(SourceKind::Online, 1);
  model_.hitsArrived();
  EXPECT_EQ(at(0, HitColumn::Folder, kWordPlacesRole).value<TextRanges>(), (TextRanges{{1, 5}}));
  EXPECT_EQ(at(0, HitColumn::Name, kWordPlacesRole).value<TextRanges>(), (TextRanges{{5, 3}}));
  EXPECT_FALSE(at(0, HitColumn::Volume, kWordPlacesRole).isValid());
  EXPECT_EQ(at(0, HitColumn::Match, Qt::ToolTipRole).toString(),
            QStringLiteral("From the listing of an online source\n2 of 3 words; missing: missing"));
  EXPECT_EQ(at(0, HitColumn::Match, Qt::AccessibleDescriptionRole).toString(),
            QStringLiteral("From the listing of an online source. 2 of 3 words; missing: missing"));
  model_.clear();
  addHits(SourceKind::Online, 1);
  model_.hitsArrived();
  EXPECT_TRUE(at(0, HitColumn::Name, kWordPlacesRole).value<TextRanges>().empty());
}

TEST_F(HitListModelTest, SaysWhatIsNotedOnTheVolumeAsItIsNow) {
  TemporaryFolder data;
  ProgramState state;
  state.LocalFolder = data.path();
  NotesAtHand notes(state);
  model_.setNotes(notes);
  addHits(SourceKind::Online, 1);
  model_.hitsArrived();
  const QString kind = QStringLiteral("From the listing of an online source");
  EXPECT_EQ(at(0, HitColumn::Match, Qt::ToolTipRole).toString(), kind);
  VolumeNotes(data.path()).set(table_.listing(0), QStringLiteral("DATA1"), QStringLiteral("blue box"));
  EXPECT_EQ(at(0, HitColumn::Match, Qt::ToolTipRole).toString(), kind + QStringLiteral("\nNote: blue box"));
  EXPECT_EQ(at(0, HitColumn::Match, Qt::AccessibleDescriptionRole).toString(),
            kind + QStringLiteral(". Note: blue box"));
  // Another data folder has other notes.
  TemporaryFolder other;
  state.LocalFolder = other.path();
  EXPECT_EQ(at(0, HitColumn::Match, Qt::ToolTipRole).toString(), kind);
  // Notes that cannot be read are none.
  other.makeFolder(QStringLiteral("volumes.notes"));
  EXPECT_EQ(at(0, HitColumn::Match, Qt::ToolTipRole).toString(), kind);
}

TEST_F(HitListModelTest, TellsTheKindOfSourceInColourAndInWords) {
  addHits(SourceKind::Online, 1);
  addHits(SourceKind::MainDataFile, 1);
  addHits(SourceKind::Offline, 1);
  model_.hitsArrived();
  EXPECT_EQ(at(0, HitColumn::Name, Qt::ForegroundRole).value<QColor>(), QColor(0, 0, 255));
  EXPECT_EQ(at(1, HitColumn::Name, Qt::ForegroundRole).value<QColor>(), QColor(255, 0, 0));
  EXPECT_EQ(at(2, HitColumn::Name, Qt::ForegroundRole).value<QColor>(), QColor(255, 127, 0));
  for (const int role : {Qt::ToolTipRole, Qt::AccessibleDescriptionRole}) {
    EXPECT_EQ(at(0, HitColumn::Name, role).toString(),
              QStringLiteral("From the listing of an online source"));
    EXPECT_EQ(at(1, HitColumn::Name, role).toString(), QStringLiteral("From the main data file"));
    EXPECT_EQ(at(2, HitColumn::Name, role).toString(), QStringLiteral("From an offline listing"));
  }
}

TEST_F(HitListModelTest, AlignsMatchAndSizeToTheRight) {
  addHits(SourceKind::Online, 1);
  model_.hitsArrived();
  for (int column = 0; column < kHitColumnCount; ++column) {
    const bool isRight = column == 0 || column == 4;
    const auto cell = model_.index(0, column).data(Qt::TextAlignmentRole).value<Qt::Alignment>();
    const auto title =
        model_.headerData(column, Qt::Horizontal, Qt::TextAlignmentRole).value<Qt::Alignment>();
    EXPECT_EQ(cell.testFlag(Qt::AlignRight), isRight) << column;
    EXPECT_EQ(title, cell) << column;
  }
}

TEST_F(HitListModelTest, ClearEmptiesTheTableToo) {
  addHits(SourceKind::Online, 3);
  model_.hitsArrived();
  model_.clear();
  EXPECT_EQ(model_.rowCount(), 0);
  EXPECT_EQ(table_.rowCount(), 0);
}

TEST_F(HitListModelTest, ShowsTheRowsOfTheNextRunAfterClear) {
  addHits(SourceKind::Online, 1);
  model_.hitsArrived();
  EXPECT_EQ(at(0, HitColumn::Name).toString(), QStringLiteral("Tune.mp3"));
  model_.clear();
  addHits(SourceKind::Online, 1, "Other.mp3");
  model_.hitsArrived();
  EXPECT_EQ(at(0, HitColumn::Name).toString(), QStringLiteral("Other.mp3"));
}

TEST_F(HitListModelTest, KeepsTheRulesOfModels) {
  const QAbstractItemModelTester tester(&model_, QAbstractItemModelTester::FailureReportingMode::Fatal);
  addHits(SourceKind::Online, 3);
  model_.hitsArrived();
  model_.clear();
  addHits(SourceKind::Offline, 2);
  model_.hitsArrived();
  EXPECT_EQ(model_.rowCount(), 2);
}

}  // namespace

}  // namespace quorvin::test
