// SPDX-License-Identifier: GPL-2.0-or-later
#include "help/page_history.h"

#include "support/qt_printing.h"

#include <gtest/gtest.h>

namespace quorvin::test {
namespace {

QUrl page(const char* name) {
  return QUrl(QStringLiteral("http://host/") + QString::fromLatin1(name));
}

TEST(PageHistory, StartsWithNothingBehindAndNothingAhead) {
  const PageHistory history;
  EXPECT_TRUE(history.isEmpty());
  EXPECT_FALSE(history.canGoBack());
  EXPECT_FALSE(history.canGoForward());
}

TEST(PageHistory, GoesBackAndForwardAlongTheVisitedPages) {
  PageHistory history;
  history.visit(page("a"));
  history.visit(page("b"));
  ASSERT_TRUE(history.canGoBack());
  EXPECT_EQ(history.behind().address, page("a"));
  history.moveBack(page("a"));
  EXPECT_FALSE(history.canGoBack());
  ASSERT_TRUE(history.canGoForward());
  EXPECT_EQ(history.ahead().address, page("b"));
  history.moveForward(page("b"));
  EXPECT_EQ(history.current().address, page("b"));
  EXPECT_FALSE(history.canGoForward());
}

TEST(PageHistory, ANewPageForgetsWhatWasAhead) {
  PageHistory history;
  history.visit(page("a"));
  history.visit(page("b"));
  history.moveBack(page("a"));
  history.visit(page("c"));
  EXPECT_FALSE(history.canGoForward());
  EXPECT_EQ(history.behind().address, page("a"));
}

TEST(PageHistory, KeepsHowFarDownEachPageWasRead) {
  PageHistory history;
  history.keepPosition(5);
  history.visit(page("a"));
  history.keepPosition(70);
  history.visit(page("b"));
  EXPECT_EQ(history.behind().position, 70);
  EXPECT_EQ(history.current().position, 0);
}

TEST(PageHistory, APageThatMovedIsKeptUnderItsNewAddress) {
  PageHistory history;
  history.visit(page("a"));
  history.visit(page("b"));
  history.moveBack(page("moved"));
  EXPECT_EQ(history.current().address, page("moved"));
}

QString visited(const QStringList& addresses) {
  AddressList list;
  for (const QString& address : addresses) list.visit(address);
  return list.addresses().join(u' ');
}

TEST(AddressList, HoldsTheNewestFirst) {
  EXPECT_EQ(visited({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")}),
            QStringLiteral("c b a"));
}

TEST(AddressList, AnAddressVisitedTwiceStandsOnceAtTheTop) {
  EXPECT_EQ(visited({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("a")}), QStringLiteral("a b"));
  EXPECT_EQ(visited({QStringLiteral("a"), QStringLiteral("a")}), QStringLiteral("a"));
}

TEST(AddressList, AddressesThatDifferInCaseAreTwo) {
  EXPECT_EQ(visited({QStringLiteral("a"), QStringLiteral("A")}), QStringLiteral("A a"));
}

TEST(AddressList, ClearEmptiesIt) {
  AddressList list;
  list.visit(QStringLiteral("a"));
  list.clear();
  EXPECT_TRUE(list.addresses().isEmpty());
}

}  // namespace
}  // namespace quorvin::test
