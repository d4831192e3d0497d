// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/import/import_sentences.h"

#include "support/qt_printing.h"

#include <gtest/gtest.h>

namespace quorvin {
namespace {

TEST(ImportSentences, NameTheControlsThatWouldHaveSaidWhatIsMissing) {
  ImportReport report;
  report.counts.undecidedDates = 3;
  report.counts.misread = 2;
  report.noText = 4;
  report.notUnderstood = 5;
  report.firstNotUnderstood = {{7, u"100% %1"_qs}};
  EXPECT_EQ(importLosses(report, {u"Format"_qs, u"Dates"_qs, u"Encoding"_qs, u"Made"_qs}),
            (QStringList{u"dates in which day and month may have changed places, left out (see Dates): 3"_qs,
                         u"names that hold a mark of listings, so that a search misreads their lines: 2"_qs,
                         u"lines whose bytes are no UTF-8 (see Encoding): 4"_qs,
                         u"lines that were not understood: 5"_qs}));
  EXPECT_EQ(linesNotUnderstood(report), QStringList{u"line 7: 100% %1"_qs});
}

TEST(ImportSentences, SayNothingOfWhatIsNotThere) {
  const ImportReport report;
  EXPECT_EQ(importRemarks(report), QStringList());
  EXPECT_EQ(importLosses(report, {}), QStringList());
  EXPECT_EQ(linesNotUnderstood(report), QStringList());
}

}  // namespace
}  // namespace quorvin
