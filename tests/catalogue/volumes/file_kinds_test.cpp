// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/volumes/file_kinds.h"

#include "support/qt_printing.h"

#include <gtest/gtest.h>

namespace quorvin {
namespace {

TEST(FileKinds, AreKnownByTheEndingOfTheName) {
  EXPECT_EQ(kindOfName("a.jpg"), FileKind::Pictures);
  EXPECT_EQ(kindOfName("live.at.wembley.mp3"), FileKind::Audio);
  EXPECT_EQ(kindOfName("film.avi"), FileKind::Video);
  EXPECT_EQ(kindOfName("letter.odt"), FileKind::Documents);
  EXPECT_EQ(kindOfName("disk.7z"), FileKind::Archives);
  EXPECT_EQ(kindOfName("old.zst"), FileKind::Archives);
  EXPECT_EQ(kindOfName("setup.exe"), FileKind::Programs);
  for (const char* name : {"", "jpg", "a.", "a.jpgx", "a.jp", "a.mp3 ", "a.jpg/b", ".", "a.zzz"}) {
    EXPECT_EQ(kindOfName(name), FileKind::Others) << name;
  }
  EXPECT_EQ(kindOfName(".jpg"), FileKind::Pictures);
}

TEST(FileKinds, YearsComeFiveAtATime) {
  const auto spanOf = [](int year, int month, int day) {
    return titleOfYears(yearSpanOf(*dayNumberOf({year, month, day})));
  };
  EXPECT_EQ(spanOf(1900, 1, 1), u"Up to 1994"_qs);
  EXPECT_EQ(spanOf(1994, 12, 31), u"Up to 1994"_qs);
  EXPECT_EQ(spanOf(1995, 1, 1), u"1995\u20131999"_qs);
  EXPECT_EQ(spanOf(2004, 1, 15), u"2000\u20132004"_qs);
  EXPECT_EQ(spanOf(2024, 12, 31), u"2020\u20132024"_qs);
  EXPECT_EQ(spanOf(2025, 1, 1), u"From 2025 on"_qs);
  EXPECT_EQ(spanOf(2099, 1, 1), u"From 2025 on"_qs);
  EXPECT_EQ(titleOfYears(yearSpanOf(0.5)), u"No date"_qs) << "a time alone";
}

}  // namespace
}  // namespace quorvin
