// SPDX-License-Identifier: GPL-2.0-or-later
#include "hits/hit_lines.h"

#include "support/qt_printing.h"

#include <gtest/gtest.h>

namespace quorvin {
namespace {

TEST(CsvLine, QuotesFieldsThatNeedIt) {
  const HitRow row{67,     SourceKind::Online, u"CD 7"_qs, u"\\Music\\"_qs, u"Live, \"late\".mp3"_qs, 131072,
                   38001.5};
  EXPECT_EQ(csvLine(row, QLocale::c()),
            u"067%,CD 7,\\Music\\,\"Live, \"\"late\"\".mp3\",0.13mb,\"Jan, 15 04\""_qs);
}

TEST(CsvLine, TitlesAreThoseOfTheList) {
  EXPECT_EQ(csvHeadLine(), u"Match,Volume,Folder,Name,Size,Date"_qs);
}

}  // namespace
}  // namespace quorvin
