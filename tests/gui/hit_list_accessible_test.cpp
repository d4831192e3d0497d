// SPDX-License-Identifier: GPL-2.0-or-later

// The main window as assistive technology sees it.
#include "gui/search_form_fixture.h"

#include <QAccessible>

namespace quorvin::test {

namespace {

using AccessibleWindow = SearchFormTest;

TEST_F(AccessibleWindow, RowsAreItemsNamedByTheirColumnsAndDescribedByTheirKind) {
  addOnlineSource(
      QStringLiteral("disk"),
      blockHead("DISK", "\\Music\\") + entryLine("one tune.mp3", "131,072") + entryLine("two tune.mp3"));
  find(QStringLiteral("tune"));
  QAccessibleInterface* list = QAccessible::queryAccessibleInterface(controls().HitList);
  ASSERT_NE(list, nullptr);
  EXPECT_EQ(list->role(), QAccessible::List);
  EXPECT_EQ(list->text(QAccessible::Name), QStringLiteral("Hits"));
  ASSERT_EQ(list->childCount(), 2);
  QAccessibleInterface* row = list->child(0);
  ASSERT_NE(row, nullptr);
  EXPECT_EQ(row->role(), QAccessible::ListItem);
  EXPECT_EQ(row->text(QAccessible::Name),
            QStringLiteral("Match 100%, Volume DISK, Folder \\Music\\, Name one tune.mp3, Size 0.13mb, "
                           "Date Jan, 15 04"));
  EXPECT_EQ(row->text(QAccessible::Description), QStringLiteral("From the listing of an online source"));
  EXPECT_EQ(list->indexOfChild(row), 0);
  EXPECT_EQ(list->child(0), row);
}

TEST_F(AccessibleWindow, TheButtonsOfAnEmptyListAreItsChildren) {
  form();
  QAccessibleInterface* list = QAccessible::queryAccessibleInterface(controls().HitList);
  ASSERT_EQ(list->childCount(), 2);
  QAccessibleInterface* offer = list->child(0);
  ASSERT_NE(offer, nullptr);
  EXPECT_EQ(offer->role(), QAccessible::Button);
  EXPECT_EQ(offer->text(QAccessible::Name), QStringLiteral("Catalogue folders of your own"));
  EXPECT_EQ(list->indexOfChild(offer), 0);
  const QPoint middle = offer->rect().center();
  EXPECT_EQ(list->childAt(middle.x(), middle.y()), offer);
  EXPECT_EQ(list->child(2), nullptr);
  addOnlineSource(QStringLiteral("disk"), listingOf("DISK", 3, "tune"));
  form().sourcesChanged();
  EXPECT_EQ(list->childCount(), 0);
}

TEST_F(AccessibleWindow, ARowReadsTheColumnsThatAreSeenInTheirOrder) {
  addOnlineSource(QStringLiteral("disk"), listingOf("DISK", 1, "tune"));
  find(QStringLiteral("tune"));
  controls().HitList->columns().take(QStringLiteral("Name,-Match,Folder,-Volume,-Size,-Date"));
  EXPECT_EQ(QAccessible::queryAccessibleInterface(controls().HitList)->child(0)->text(QAccessible::Name),
            QStringLiteral("Name tune 1.mp3, Folder \\Music\\"));
}

TEST_F(AccessibleWindow, TheListSaysByWhatAndInWhichDirectionItIsSorted) {
  addOnlineSource(QStringLiteral("disk"), listingOf("DISK", 2, "tune"));
  find(QStringLiteral("tune"));
  const QAccessibleInterface* list = QAccessible::queryAccessibleInterface(controls().HitList);
  EXPECT_EQ(list->text(QAccessible::Description), QString());
  form().menus().SortBy[3]->trigger();
  EXPECT_EQ(list->text(QAccessible::Description), QStringLiteral("Sorted by Name, ascending"));
  form().menus().SortBy[3]->trigger();
  EXPECT_EQ(list->text(QAccessible::Description), QStringLiteral("Sorted by Name, descending"));
  form().menus().FoundOrder->trigger();
  EXPECT_EQ(list->text(QAccessible::Description), QString());
  find(QStringLiteral("zebra"));
  EXPECT_EQ(list->text(QAccessible::Description), QStringLiteral("No file found in 1 listing."));
}

TEST_F(AccessibleWindow, TheSelectedRowSaysSo) {
  addOnlineSource(QStringLiteral("disk"), listingOf("DISK", 3, "tune"));
  find(QStringLiteral("tune"));
  controls().HitList->setFocus();
  QTest::keyClick(controls().HitList, Qt::Key_Home);
  QTest::keyClick(controls().HitList, Qt::Key_Down);
  QAccessibleInterface* list = QAccessible::queryAccessibleInterface(controls().HitList);
  EXPECT_TRUE(list->state().multiSelectable);
  EXPECT_FALSE(list->child(0)->state().selected);
  EXPECT_TRUE(list->child(1)->state().selected);
  EXPECT_TRUE(list->child(1)->state().focused);
  ASSERT_NE(list->focusChild(), nullptr);
  EXPECT_EQ(list->indexOfChild(list->focusChild()), 1);
}

TEST_F(AccessibleWindow, RowsReadLongAgoAreLetGo) {
  constexpr int kRows = 5000;
  addOnlineSource(QStringLiteral("disk"), listingOf("DISK", kRows, "tune"));
  find(QStringLiteral("tune"));
  ASSERT_EQ(rows(), kRows);
  controls().HitList->selectionModel()->setCurrentIndex(controls().HitList->model()->index(2000, 0),
                                                        QItemSelectionModel::ClearAndSelect);
  controls().HitList->scrollToTop();
  QAccessibleInterface* list = QAccessible::queryAccessibleInterface(controls().HitList);
  std::vector<QAccessible::Id> ids;
  for (int row = 0; row < kRows; ++row) {
    ids.push_back(QAccessible::uniqueId(list->child(row)));
    ASSERT_EQ(list->indexOfChild(list->child(row)), row);
  }
  const auto isKept = [&](int row) {
    return QAccessible::accessibleInterface(ids[static_cast<std::size_t>(row)]) != nullptr;
  };
  int kept = 0;
  for (int row = 0; row < kRows; ++row) kept += isKept(row) ? 1 : 0;
  EXPECT_EQ(kept, 1000);
  EXPECT_TRUE(isKept(kRows - 1));
  EXPECT_TRUE(isKept(0)) << "it is on the screen";
  EXPECT_TRUE(isKept(2000)) << "it is the current row";
  EXPECT_FALSE(isKept(3000));
  EXPECT_TRUE(list->child(3000)->text(QAccessible::Name).contains(QStringLiteral("tune 3001.mp3")))
      << "it is read again";
}

TEST_F(AccessibleWindow, ARowThatIsGoneIsInvalid) {
  addOnlineSource(QStringLiteral("disk"), listingOf("DISK", 3, "tune"));
  find(QStringLiteral("tune"));
  QAccessibleInterface* row = QAccessible::queryAccessibleInterface(controls().HitList)->child(2);
  ASSERT_TRUE(row->isValid());
  find(QStringLiteral("nothing of this kind"));
  EXPECT_FALSE(row->isValid());
  EXPECT_EQ(row->text(QAccessible::Name), QString());
}

TEST_F(AccessibleWindow, EveryControlThatTakesTheFocusHasAName) {
  form();
  for (QWidget* widget : form().findChildren<QWidget*>()) {
    if (widget->focusPolicy() == Qt::NoFocus || widget->objectName().startsWith(QStringLiteral("qt_")))
      continue;
    QAccessibleInterface* told = QAccessible::queryAccessibleInterface(widget);
    ASSERT_NE(told, nullptr) << widget->objectName().toStdString();
    EXPECT_FALSE(told->text(QAccessible::Name).isEmpty())
        << widget->metaObject()->className() << ' ' << widget->objectName().toStdString();
  }
}

}  // namespace

}  // namespace quorvin::test
