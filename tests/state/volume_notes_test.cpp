// SPDX-License-Identifier: GPL-2.0-or-later
#include "state/volume_notes.h"

#include "support/fault_number.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <thread>

namespace quorvin {
namespace {

constexpr char kHead[] = "# Notes on volumes. A line each: listing, volume and note, parted by tabs.\n";

class VolumeNotesTest : public testing::Test {
 protected:
  QString inFolder(const QString& name) const { return data_.pathOf(name); }
  /// As another program sees it.
  QString read(const QString& listing, const QString& volume) const {
    VolumeNotes notes(data_.path());
    notes.refresh();
    return notes.of(listing, volume);
  }
  QByteArray file() const { return data_.readFile(u"volumes.notes"_qs); }

  TemporaryFolder data_;
  VolumeNotes notes_{data_.path()};
};

TEST_F(VolumeNotesTest, WithoutAFileThereAreNone) {
  notes_.refresh();
  EXPECT_EQ(notes_.of(inFolder(u"Music.txt"_qs), u"Music"_qs), QString());
  EXPECT_FALSE(data_.has(u"volumes.notes"_qs));
}

TEST_F(VolumeNotesTest, ANoteIsKnownAtOnceAndInTheFile) {
  notes_.set(inFolder(u"Music.txt"_qs), u"Music"_qs, u"blue box, shelf 3"_qs);
  notes_.set(u"/cds/cd7.txt"_qs, u"CD 7"_qs, u"\u00FCber dem \"Regal\""_qs);
  EXPECT_EQ(notes_.of(inFolder(u"Music.txt"_qs), u"Music"_qs), u"blue box, shelf 3"_qs);
  EXPECT_EQ(notes_.of(inFolder(u"Music.txt"_qs), u"music"_qs), QString()) << "names are as listed";
  EXPECT_EQ(file(), kHead + QByteArray("Music.txt\tMusic\tblue box, shelf 3\n"
                                       "/cds/cd7.txt\tCD 7\t\xC3\xBC"
                                       "ber dem \"Regal\"\n"));
  EXPECT_EQ(read(u"/cds/cd7.txt"_qs, u"CD 7"_qs), u"\u00FCber dem \"Regal\""_qs);
}

TEST_F(VolumeNotesTest, AnotherNoteTakesThePlaceAndAnEmptyOneTakesItAway) {
  notes_.set(u"/a.txt"_qs, u"A"_qs, u"one"_qs);
  notes_.set(u"/b.txt"_qs, u"B"_qs, u"two"_qs);
  notes_.set(u"/a.txt"_qs, u"A"_qs, u"three"_qs);
  EXPECT_EQ(file(), kHead + QByteArray("/a.txt\tA\tthree\n/b.txt\tB\ttwo\n"));
  notes_.set(u"/a.txt"_qs, u"A"_qs, u"  \t "_qs);
  EXPECT_EQ(file(), kHead + QByteArray("/b.txt\tB\ttwo\n"));
  EXPECT_EQ(notes_.of(u"/a.txt"_qs, u"A"_qs), QString());
}

TEST_F(VolumeNotesTest, TheDataFolderCanBeMoved) {
  notes_.set(inFolder(u"Music.txt"_qs), u"Music"_qs, u"here"_qs);
  const TemporaryFolder other;
  other.writeFile(u"volumes.notes"_qs, file());
  VolumeNotes moved(other.path());
  moved.refresh();
  EXPECT_EQ(moved.of(other.pathOf(u"Music.txt"_qs), u"Music"_qs), u"here"_qs);
}

TEST_F(VolumeNotesTest, AListingIsTheSameHoweverItsPathIsWritten) {
  const CurrentFolder here(data_.path());
  notes_.set(u"Music.txt"_qs, u"Music"_qs, u"here"_qs);
  EXPECT_EQ(notes_.of(inFolder(u"sub/../Music.txt"_qs), u"Music"_qs), u"here"_qs);
}

TEST_F(VolumeNotesTest, NaughtyNamesAndNotesComeBack) {
  const QStringList names{u"a\tb"_qs, u"a\nb\r"_qs,     u"\\t"_qs,    u"a\\"_qs,        u"#5"_qs,
                          u"\"q'"_qs, u"C:\\new\\t"_qs, u"\u4E2D"_qs, u"\U0001F4BF"_qs, QString()};
  for (const QString& name : names) notes_.set(u"/"_qs + name, name, u"note of "_qs + name + u'.');
  notes_.set(u"#list"_qs, u"x"_qs, u"#1"_qs);
  for (const QString& name : names) {
    EXPECT_EQ(read(u"/"_qs + name, name), VolumeNotes::cleanNote(u"note of "_qs + name + u'.'))
        << name.toStdString();
  }
  EXPECT_EQ(read(u"#list"_qs, u"x"_qs), u"#1"_qs);
  EXPECT_EQ(file().count('\n'), 1 + names.size() + 1);
}

TEST_F(VolumeNotesTest, ANoteIsOneLineOfAThousandCharactersAtMost) {
  EXPECT_EQ(VolumeNotes::cleanNote(u" box\t3,\r\nshelf\u2028\u0085left\u0000 "_qs),
            u"box 3,  shelf  left"_qs);
  notes_.set(u"/a.txt"_qs, u"A"_qs, QString(1000, u'x') + u' ');
  EXPECT_EQ(read(u"/a.txt"_qs, u"A"_qs).size(), 1000);
  EXPECT_FAULT(notes_.set(u"/a.txt"_qs, u"A"_qs, QString(1001, u'y')), 5);
  EXPECT_EQ(read(u"/a.txt"_qs, u"A"_qs), QString(1000, u'x'));
}

TEST_F(VolumeNotesTest, WhatSomebodyElseWroteStays) {
  const QByteArray before = "\xEF\xBB\xBF# mine\r\n\r\nno note\n/a.txt\tA\tB\xFCro\r\n/a.txt\tA\tlast\ntail";
  data_.writeFile(u"volumes.notes"_qs, before);
  notes_.refresh();
  EXPECT_EQ(notes_.of(u"/a.txt"_qs, u"A"_qs), u"last"_qs);
  notes_.set(u"/b.txt"_qs, u"B"_qs, u"new"_qs);
  EXPECT_EQ(file(), before + "\n/b.txt\tB\tnew\n");
  notes_.set(u"/a.txt"_qs, u"A"_qs, u"one"_qs);
  EXPECT_EQ(file(), "\xEF\xBB\xBF# mine\r\n\r\nno note\n/a.txt\tA\tone\ntail\n/b.txt\tB\tnew\n");
}

TEST_F(VolumeNotesTest, ALineThatIsNoUtf8IsReadAsWindows1252) {
  data_.writeFile(u"volumes.notes"_qs, "/a.txt\tA\tB\xFCro\n");
  EXPECT_EQ(read(u"/a.txt"_qs, u"A"_qs), u"B\u00FCro"_qs);
}

TEST_F(VolumeNotesTest, RefreshSeesWhatAnotherProgramHasChanged) {
  notes_.set(u"/a.txt"_qs, u"A"_qs, u"one"_qs);
  VolumeNotes other(data_.path());
  other.set(u"/a.txt"_qs, u"A"_qs, u"two, by another"_qs);
  EXPECT_EQ(notes_.of(u"/a.txt"_qs, u"A"_qs), u"one"_qs);
  notes_.refresh();
  EXPECT_EQ(notes_.of(u"/a.txt"_qs, u"A"_qs), u"two, by another"_qs);
  QFile::remove(inFolder(u"volumes.notes"_qs));
  notes_.refresh();
  EXPECT_EQ(notes_.of(u"/a.txt"_qs, u"A"_qs), QString());
}

TEST_F(VolumeNotesTest, TwoWritersLoseNothingOfEachOther) {
  const auto write = [this](const QString& who) {
    VolumeNotes notes(data_.path());
    for (int i = 0; i < 25; ++i) {
      notes.set(u"/cd.txt"_qs, who + QString::number(i), u"by "_qs + who);
      notes.set(u"/cd.txt"_qs, u"both"_qs, u"by "_qs + who);
    }
  };
  std::thread one(write, u"one "_qs);
  std::thread other(write, u"other "_qs);
  one.join();
  other.join();
  for (int i = 0; i < 25; ++i) {
    EXPECT_EQ(read(u"/cd.txt"_qs, u"one "_qs + QString::number(i)), u"by one"_qs);
    EXPECT_EQ(read(u"/cd.txt"_qs, u"other "_qs + QString::number(i)), u"by other"_qs);
  }
  EXPECT_EQ(file().count("\tboth\t"), 1);
  EXPECT_EQ(file().count('\n'), 52);
}

TEST_F(VolumeNotesTest, WhatCannotBeReplacedStaysAsItIsAndIsTold) {
  data_.makeFolder(u"volumes.notes"_qs);
  EXPECT_FAULT(notes_.set(u"/a.txt"_qs, u"A"_qs, u"two"_qs), 75);
  EXPECT_TRUE(QFileInfo(inFolder(u"volumes.notes"_qs)).isDir());
  EXPECT_EQ(notes_.of(u"/a.txt"_qs, u"A"_qs), QString());
}

}  // namespace
}  // namespace quorvin
