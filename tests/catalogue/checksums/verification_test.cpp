// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/checksums/verification.h"

#include "catalogue/checksums/checked_folder.h"
#include "support/fault_number.h"
#include "support/qt_printing.h"

#include <gmock/gmock.h>

#include <random>

namespace quorvin {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class VerificationTest : public test::CheckedFolder {
 protected:
  QString notes() const { return folder_.pathOf(u"disk.txt.sha256.verifying"_qs); }

  /// Stops it when so many files have been judged.
  std::vector<std::string> stoppedAfter(std::int64_t files) {
    Verification::Parts parts = this->parts();
    bool isEnough = false;
    parts.progress = [&](const Verification::Progress& progress) { isEnough = progress.files >= files; };
    parts.stop = [&isEnough] { return isEnough; };
    Verification verification(std::move(parts));
    EXPECT_FALSE(verification.run());
    return textsOf(verification);
  }
};

TEST_F(VerificationTest, NothingIsSaidOfFilesThatAreAsTheyWere) {
  write(u"x"_qs, "one");
  write(u"a b/y"_qs, "two");
  takeChecksums();
  Verification verification(parts());
  EXPECT_TRUE(verification.run());
  EXPECT_THAT(textsOf(verification), IsEmpty());
  EXPECT_EQ(verification.count(FileVerdict::Fine), 2);
  EXPECT_FALSE(QFile::exists(notes()));
}

TEST_F(VerificationTest, RotLossAndChangeAreToldApart) {
  write(u"added later"_qs, "x");
  remove(u"added later"_qs);
  for (const char* name : {"date", "fine", "gone", "rot", "size"}) write(QString::fromLatin1(name), "one", 5);
  takeChecksums();
  write(u"rot"_qs, "0ne", 5);
  write(u"size"_qs, "ones", 5);
  write(u"date"_qs, "one", 6);
  remove(u"gone"_qs);
  write(u"new"_qs, "one", 5);
  Verification verification(parts());
  EXPECT_TRUE(verification.run());
  EXPECT_THAT(textsOf(verification),
              ElementsAre("changed date", "lost gone", "rotten rot", "changed size", "added new"));
  EXPECT_EQ(verification.count(FileVerdict::Fine), 1);
  EXPECT_EQ(verification.count(FileVerdict::Changed), 2);
}

TEST_F(VerificationTest, AFileThatWasChangedIsNotRead) {
  write(u"x"_qs, "one", 5);
  takeChecksums();
  write(u"x"_qs, QByteArray(1000, 'x'), 5);
  Verification::Parts parts = this->parts();
  std::int64_t bytes = -1;
  std::int64_t bytesAll = -1;
  parts.progress = [&](const Verification::Progress& progress) {
    bytes = progress.bytes;
    bytesAll = progress.bytesAll;
  };
  EXPECT_TRUE(Verification(std::move(parts)).run());
  EXPECT_EQ(bytes, 0);
  EXPECT_EQ(bytesAll, 0);
}

TEST_F(VerificationTest, ADiskMayBeMountedElsewhere) {
  write(u"a/x"_qs, "one", 5);
  write(u"a/y"_qs, "one", 5);
  takeChecksums();
  write(u"a/y"_qs, "two", 5);
  ASSERT_TRUE(QDir().rename(disk(), folder_.pathOf(u"elsewhere"_qs)));
  Verification::Parts parts = this->parts();
  parts.folder = folder_.pathOf(u"elsewhere"_qs);
  Verification verification(std::move(parts));
  EXPECT_TRUE(verification.run());
  EXPECT_THAT(textsOf(verification), ElementsAre("rotten a/y"));
}

// Without what the listing tells, nobody knows whether somebody has changed it on purpose.
TEST_F(VerificationTest, AFileThatTheListingDoesNotHaveHasChanged) {
  write(u"x"_qs, "one", 5);
  write(u"y"_qs, "one", 5);
  takeChecksums();
  write(u"x"_qs, "two", 5);
  folder_.writeFile(u"disk.txt"_qs, "");
  Verification::Parts parts = this->parts();
  parts.folder = disk();
  Verification verification(std::move(parts));
  EXPECT_TRUE(verification.run());
  EXPECT_THAT(textsOf(verification), ElementsAre("changed x"));
}

TEST_F(VerificationTest, OneThatWasStoppedGoesOnThere) {
  for (const char* name : {"a", "b", "c", "d"}) write(QString::fromLatin1(name), "one", 5);
  takeChecksums();
  write(u"a"_qs, "two", 5);
  write(u"d"_qs, "two", 5);
  EXPECT_THAT(stoppedAfter(2), ElementsAre("rotten a"));
  EXPECT_TRUE(QFile::exists(notes()));
  // What has been judged is not judged again.
  write(u"a"_qs, "one", 5);
  Verification verification(parts());
  EXPECT_TRUE(verification.run());
  EXPECT_THAT(textsOf(verification), ElementsAre("rotten a", "rotten d"));
  EXPECT_EQ(verification.filesBefore(), 2);
  EXPECT_EQ(verification.count(FileVerdict::Fine), 2);
  EXPECT_FALSE(QFile::exists(notes()));
}

TEST_F(VerificationTest, OnWishItBeginsAgain) {
  for (const char* name : {"a", "b"}) write(QString::fromLatin1(name), "one", 5);
  takeChecksums();
  write(u"a"_qs, "two", 5);
  stoppedAfter(1);
  write(u"a"_qs, "one", 5);
  Verification::Parts parts = this->parts();
  parts.beginsAgain = true;
  Verification verification(std::move(parts));
  EXPECT_TRUE(verification.run());
  EXPECT_THAT(textsOf(verification), IsEmpty());
  EXPECT_FALSE(QFile::exists(notes()));
}

TEST_F(VerificationTest, OtherChecksumsBeginAgain) {
  for (const char* name : {"a", "b"}) write(QString::fromLatin1(name), "one", 5);
  takeChecksums();
  write(u"a"_qs, "two", 5);
  stoppedAfter(1);
  write(u"a"_qs, "two", 6);
  takeChecksums();
  EXPECT_THAT(verified(), IsEmpty());
}

// As a crash leaves it.
TEST_F(VerificationTest, WhatHasBeenReadIsNotedNowAndThen) {
  for (const char* name : {"a", "b", "c"}) write(QString::fromLatin1(name), "one", 5);
  takeChecksums();
  Verification::Parts parts = this->parts();
  parts.bytesBetweenNotes = 3;
  std::vector<bool> areNoted;
  parts.progress = [&](const Verification::Progress&) { areNoted.push_back(QFile::exists(notes())); };
  EXPECT_TRUE(Verification(std::move(parts)).run());
  EXPECT_FALSE(areNoted.front());
  EXPECT_TRUE(areNoted.back());
}

TEST_F(VerificationTest, WithoutChecksumsItIsRefused) {
  EXPECT_FAULT(Verification(parts()).run(), 53);
}

// A link to itself.
TEST_F(VerificationTest, AFileThatCannotBeLookedUpIsNotLost) {
  write(u"x"_qs, "one");
  takeChecksums();
  remove(u"x"_qs);
  ASSERT_TRUE(QFile::link(disk() + u"/x"_qs, disk() + u"/x"_qs));
  EXPECT_THAT(verified(), ElementsAre("unread x"));
}

TEST_F(VerificationTest, AFolderThatIsNotThereIsNoLossOfItsFiles) {
  write(u"x"_qs, "one");
  takeChecksums();
  ASSERT_TRUE(QDir(disk()).removeRecursively());
  EXPECT_FAULT(Verification(parts()).run(), 53);
}

/// What somebody would say who has seen everything.
TEST_F(VerificationTest, AgreesWithWhatWasDoneToAGeneratedTree) {
  std::mt19937 random(20041115);
  const auto below = [&random](unsigned count) { return random() % count; };
  std::vector<QString> names;
  for (int number = 0; number < 600; ++number) {
    QString name =
        QString::number(below(9)) + u'/' + QString::number(below(4)) + u"/file "_qs + QString::number(number);
    if (below(10) == 0) name += QString(70, u'n');
    names.push_back(name);
    write(name, QByteArray::number(number).repeated(static_cast<qsizetype>(below(50)) + 1),
          static_cast<int>(below(100)));
  }
  takeChecksums();
  std::vector<std::string> expected;
  for (int number = 0; number < 600; ++number) {
    const QString& name = names[static_cast<std::size_t>(number)];
    const std::string path = name.toStdString();
    const QDateTime time = QFileInfo(disk() + u'/' + name).lastModified();
    const int second = static_cast<int>(time.toSecsSinceEpoch() - 1'074'162'030);
    QByteArray content = folder_.readFile(u"disk/"_qs + name);
    switch (below(8)) {
      case 0:
        remove(name);
        expected.push_back("lost " + path);
        break;
      case 1:
        content[static_cast<qsizetype>(below(static_cast<unsigned>(content.size())))] = '!';
        write(name, content, second);
        expected.push_back("rotten " + path);
        break;
      case 2:
        write(name, content + '!', second);
        expected.push_back("changed " + path);
        break;
      case 3:
        write(name, content, second + 1);
        expected.push_back("changed " + path);
        break;
      case 4:
        write(name + u".new"_qs, content);
        expected.push_back("added " + path + ".new");
        break;
      default:
        break;
    }
  }
  EXPECT_THAT(verified(), testing::UnorderedElementsAreArray(expected));
}

}  // namespace
}  // namespace quorvin
