// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/checksums/verification_notes.h"

#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace quorvin {
namespace {

class VerificationNotesTest : public testing::Test {
 protected:
  QString path() const { return folder_.pathOf(u"x.verifying"_qs); }

  TemporaryFolder folder_;
  const VerificationNotes notes_{0xFEDCBA9876543210ULL,
                                 u"/media/a b\t%\u00FC"_qs,
                                 123,
                                 {{FileVerdict::Rotten, "new\nline\t%\xE4/x"},
                                  {FileVerdict::Unread, "y", u"Permission denied: y\nno"_qs}}};
};

TEST_F(VerificationNotesTest, ComeBackAsTheyWereWritten) {
  writeNotes(path(), notes_);
  const std::optional<VerificationNotes> read = readNotes(path());
  ASSERT_TRUE(read);
  EXPECT_EQ(read->manifest, notes_.manifest);
  EXPECT_EQ(read->folder, notes_.folder);
  EXPECT_EQ(read->done, 123U);
  ASSERT_EQ(read->findings.size(), 2U);
  EXPECT_EQ(read->findings[0].verdict, FileVerdict::Rotten);
  EXPECT_EQ(read->findings[0].path, "new\nline\t%\xE4/x");
  EXPECT_EQ(read->findings[1].why, u"Permission denied: y\nno"_qs);
}

TEST_F(VerificationNotesTest, AreNoneWithoutAFile) {
  EXPECT_FALSE(readNotes(path()));
}

// A verification that begins again costs time; one that goes on at a wrong place says what is not true.
TEST_F(VerificationNotesTest, AreNoneWhereAnyOfThemIsDamaged) {
  writeNotes(path(), notes_);
  const QByteArray whole = folder_.readFile(u"x.verifying"_qs);
  for (qsizetype length = 0; length < whole.size(); ++length) {
    folder_.writeFile(u"x.verifying"_qs, whole.first(length));
    EXPECT_FALSE(readNotes(path())) << length;
  }
}

}  // namespace
}  // namespace quorvin
