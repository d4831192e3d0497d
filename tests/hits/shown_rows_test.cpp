// SPDX-License-Identifier: GPL-2.0-or-later

// Which rows of the table the rows of a list show, also while they are being sorted.
#include "hits/shown_rows.h"

#include "hits/hit_list_model.h"
#include "hits/scan_into.h"
#include "support/eventually.h"
#include "support/listing_lines.h"
#include "support/qt_printing.h"

#include <gtest/gtest.h>

namespace quorvin::test {

namespace {

class RowsOfTheList : public testing::Test {
 protected:
  RowsOfTheList() {
    QByteArray listing = blockHead("DISK", "\\Music\\");
    for (const char* size : {"30", "10", "50", "20", "40"})
      listing += entryLine(QByteArray("song ") + size, size);
    scanInto(table_, SourceKind::Online, listing, QStringLiteral("song"));
    rows_.hitsArrived();
  }
  void sort(HitColumn column, bool isDescending = false) {
    rows_.order().sortBy({column, isDescending});
    EXPECT_EVENTUALLY(!rows_.order().isSorting());
  }
  void select(int first, int last) {
    selection_.select(QItemSelection(rows_.index(first, 0), rows_.index(last, kHitColumnCount - 1)),
                      QItemSelectionModel::Select);
  }
  std::vector<int> rowsOf(ListRows which, int stretch = ShownRows::kRowsOfStretch) {
    ShownRows shown(selection_, which, stretch);
    while (shown.goOn()) {
    }
    return shown.rows();
  }

  HitTable table_;
  HitListModel rows_{table_, QLocale::c()};
  QItemSelectionModel selection_{&rows_};
};

TEST_F(RowsOfTheList, AreThoseOfTheTableInFoundOrder) {
  EXPECT_EQ(rowsOf(ListRows::All), (std::vector{0, 1, 2, 3, 4}));
}

TEST_F(RowsOfTheList, AreInTheOrderInWhichTheyAreShown) {
  sort(HitColumn::Size);
  EXPECT_EQ(rowsOf(ListRows::All), (std::vector{1, 3, 0, 4, 2}));
  sort(HitColumn::Size, true);
  EXPECT_EQ(rowsOf(ListRows::All), (std::vector{2, 4, 0, 3, 1}));
}

TEST_F(RowsOfTheList, AreOnlyThoseThatTheFilterLeaves) {
  rows_.order().setFilter(QStringLiteral("0"));
  EXPECT_EVENTUALLY(!rows_.order().isFiltering());
  EXPECT_EQ(rowsOf(ListRows::All), (std::vector{0, 1, 2, 3, 4}));
  rows_.order().setFilter(QStringLiteral("50"));
  EXPECT_EVENTUALLY(!rows_.order().isFiltering());
  EXPECT_EQ(rowsOf(ListRows::All), std::vector{2});
}

TEST_F(RowsOfTheList, ThatAreSelectedComeInTheOrderOfTheListToo) {
  sort(HitColumn::Size);
  select(4, 4);
  select(0, 1);
  EXPECT_EQ(rowsOf(ListRows::Selected), (std::vector{1, 3, 2}));
  EXPECT_EQ(selectedRows(selection_), (std::vector{1, 3, 2}));
}

TEST_F(RowsOfTheList, AreTheSameInWhateverStretchesTheyAreTaken) {
  sort(HitColumn::Size);
  select(4, 4);
  select(0, 2);
  for (int stretch = 1; stretch <= 6; ++stretch) {
    EXPECT_EQ(rowsOf(ListRows::All, stretch), (std::vector{1, 3, 0, 4, 2})) << stretch;
    EXPECT_EQ(rowsOf(ListRows::Selected, stretch), (std::vector{1, 3, 0, 2})) << stretch;
  }
}

TEST_F(RowsOfTheList, AreTakenAnewWhenTheyChangeTheirPlaces) {
  ShownRows shown(selection_, ListRows::All, 2);
  ASSERT_TRUE(shown.goOn());
  ASSERT_EQ(shown.rows(), (std::vector{0, 1}));
  sort(HitColumn::Size, true);
  while (shown.goOn()) {
  }
  EXPECT_EQ(shown.rows(), (std::vector{2, 4, 0, 3, 1}));
}

}  // namespace

}  // namespace quorvin::test
