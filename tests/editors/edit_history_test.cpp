// SPDX-License-Identifier: GPL-2.0-or-later

// Taking edits back and making them again, without a window.
#include "editors/edit_history.h"

#include "editors/local_loc_fixture.h"

namespace quorvin::test {

namespace {

/// A list of one entry, by whose name it is known.
EditedList list(int number) {
  return {{{QString::number(number), QStringLiteral("/a/")}}, {number}};
}
QString nameOf(const std::optional<EditedList>& list) {
  return list ? list->entries.front().description : QStringLiteral("none");
}

TEST(EditsOfAList, AreTakenBackOneByOneAndMadeAgain) {
  EditHistory history;
  history.record(list(1));
  history.record(list(2));
  const std::optional<EditedList> second = history.undo(list(3));
  EXPECT_EQ(nameOf(second), QStringLiteral("2"));
  EXPECT_EQ(second->selected, std::vector{2});
  EXPECT_EQ(nameOf(history.undo(list(2))), QStringLiteral("1"));
  EXPECT_FALSE(history.canUndo());
  EXPECT_EQ(nameOf(history.undo(list(1))), QStringLiteral("none"));
  EXPECT_EQ(nameOf(history.redo(list(1))), QStringLiteral("2"));
  EXPECT_EQ(nameOf(history.redo(list(2))), QStringLiteral("3"));
  EXPECT_FALSE(history.canRedo());
  EXPECT_EQ(nameOf(history.redo(list(3))), QStringLiteral("none"));
  EXPECT_TRUE(history.canUndo());
}

TEST(EditsOfAList, ThatWereTakenBackAreGoneAfterAnother) {
  EditHistory history;
  history.record(list(1));
  history.undo(list(2));
  EXPECT_TRUE(history.canRedo());
  history.record(list(1));
  EXPECT_FALSE(history.canRedo());
}

TEST(EditsOfAList, AreKeptUpToAHundred) {
  EditHistory history;
  for (int number = 0; number <= 100; ++number) history.record(list(number));
  QString last;
  int undone = 0;
  for (; history.canUndo(); ++undone) last = nameOf(history.undo(list(0)));
  EXPECT_EQ(undone, 100);
  EXPECT_EQ(last, QStringLiteral("1"));
}

}  // namespace

}  // namespace quorvin::test
