// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/text_direction.h"

#include <gtest/gtest.h>

namespace quorvin {
namespace {

TEST(EnglishWithin, StaysAsItIsWherePeopleReadFromLeftToRight) {
  EXPECT_EQ(englishWithin(Qt::LeftToRight, u"3 hits"_qs), u"3 hits"_qs);
}

TEST(EnglishWithin, IsIsolatedLineByLineWherePeopleReadFromRightToLeft) {
  EXPECT_EQ(englishWithin(Qt::RightToLeft, u"3 hits"_qs), u"\u20663 hits\u2069"_qs);
  EXPECT_EQ(englishWithin(Qt::RightToLeft, u"Found.\n\n3 of 4."_qs),
            u"\u2066Found.\u2069\n\n\u20663 of 4.\u2069"_qs);
  EXPECT_EQ(englishWithin(Qt::RightToLeft, QString()), QString());
}

}  // namespace
}  // namespace quorvin
