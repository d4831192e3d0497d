#include "help/address_list.h"

#include "support/qt_printing.h"

#include <gtest/gtest.h>

namespace quorvin::test {
namespace {

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
