// SPDX-License-Identifier: GPL-2.0-or-later
#include "hits/selection_size.h"

#include "hits/many_rows_model.h"
#include "support/eventually.h"

namespace quorvin::test {

namespace {

class SelectionSizes : public testing::Test {
 protected:
  void select(int first, int last) {
    selection_.select(QItemSelection(model_.index(first, 0), model_.index(last, kHitColumnCount - 1)),
                      QItemSelectionModel::Select);
  }

  ManyRowsModel model_{10'000'000};
  QItemSelectionModel selection_{&model_};
  /// Each row has as many bytes as its number says.
  SelectionSize size_{selection_, [](int row) { return row; }};
};

TEST_F(SelectionSizes, NothingIsSelectedAtFirst) {
  EXPECT_EQ(size_.rows(), 0);
  EXPECT_EQ(size_.bytes(), 0);
}

TEST_F(SelectionSizes, FewRowsAreAddedUpAtOnce) {
  select(3, 5);
  select(100, 100);
  EXPECT_EQ(size_.rows(), 4);
  EXPECT_EQ(size_.bytes(), 112);
}

TEST_F(SelectionSizes, ManyRowsAreAddedUpWhileEventsRun) {
  select(0, 9'999'999);
  EXPECT_EQ(size_.rows(), 10'000'000);
  EXPECT_EQ(size_.bytes(), std::nullopt);
  EXPECT_EVENTUALLY(size_.bytes().has_value());
  EXPECT_EQ(size_.bytes(), 49'999'995'000'000);
}

TEST_F(SelectionSizes, AChangeStartsAnew) {
  select(0, 9'999'999);
  selection_.clear();
  EXPECT_EQ(size_.rows(), 0);
  EXPECT_EQ(size_.bytes(), 0);
  select(7, 7);
  EXPECT_EQ(size_.bytes(), 7);
}

TEST_F(SelectionSizes, WhenTheRowsAreExchangedNothingIsSelected) {
  int changes = 0;
  QObject::connect(&size_, &SelectionSize::changed, &size_, [&changes] { ++changes; });
  select(0, 9'999'999);
  ManyRowsModel& model = model_;
  model.exchange(3);
  EXPECT_EQ(size_.rows(), 0);
  EXPECT_EQ(size_.bytes(), 0);
  EXPECT_EQ(changes, 2);
}

TEST(SelectionSizeOf, RowsOfUnknownSizeCountAsNothing) {
  ManyRowsModel model(3);
  QItemSelectionModel selection(&model);
  const SelectionSize size(selection, [](int row) { return row == 1 ? -1 : 10; });
  selection.select(QItemSelection(model.index(0, 0), model.index(2, 0)), QItemSelectionModel::Select);
  EXPECT_EQ(size.bytes(), 20);
}

}  // namespace

}  // namespace quorvin::test
