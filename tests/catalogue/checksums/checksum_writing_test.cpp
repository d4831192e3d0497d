// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/checksums/checksum_writing.h"

#include "catalogue/checksums/checked_folder.h"
#include "support/qt_printing.h"

#include <gmock/gmock.h>

namespace quorvin {
namespace {

/// Of "one", "two" and nothing.
constexpr char kOne[] = "7692c3ad3540bb803c020b3aee66cd8887123234ea0c6e7143c0add73ff431ed";
constexpr char kTwo[] = "3fc4ccfe745870e2c0d99f71f30ff0656c8dedd41cc1d7d3d376b0dbe685e2f3";
constexpr char kNothing[] = "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855";

class ChecksumWritings : public test::CheckedFolder {
 protected:
  QByteArray manifest() const { return folder_.readFile(QStringLiteral("disk.txt.sha256")); }
};

TEST_F(ChecksumWritings, HaveALineForEachFileOfTheTree) {
  write(u"b"_qs, "one");
  write(u"a/deeper/x"_qs, "two");
  write(u"a/empty"_qs, "");
  write(u".hidden"_qs, "one");
  takeChecksums();
  EXPECT_EQ(manifest().toStdString(),
            std::string(kOne) + "  b\n" + kNothing + "  a/empty\n" + kTwo + "  a/deeper/x\n");
}

TEST_F(ChecksumWritings, ALinkToAFileIsAFileAndOneToAFolderIsNone) {
  write(u"a/x"_qs, "one");
  ASSERT_TRUE(QFile::link(disk() + u"/a/x"_qs, disk() + u"/to file"_qs));
  ASSERT_TRUE(QFile::link(disk() + u"/a"_qs, disk() + u"/to folder"_qs));
  takeChecksums();
  EXPECT_EQ(manifest().toStdString(), std::string(kOne) + "  to file\n" + kOne + "  a/x\n");
}

TEST_F(ChecksumWritings, KeepTheChecksumOfAFileThatLooksAsItDid) {
  write(u"rotten"_qs, "one", 5);
  write(u"changed"_qs, "one", 5);
  takeChecksums();
  write(u"rotten"_qs, "two", 5);
  write(u"changed"_qs, "two", 6);
  write(u"new"_qs, "two", 6);
  ChecksumWriting again = writing();
  FileAside file(folder_.pathOf(u"again"_qs));
  EXPECT_TRUE(again.write(file.writer()));
  file.commit();
  EXPECT_EQ(again.filesKept(), 1);
  EXPECT_EQ(again.filesRead(), 2);
  EXPECT_EQ(folder_.readFile(u"again"_qs).toStdString(),
            std::string(kTwo) + "  changed\n" + kTwo + "  new\n" + kOne + "  rotten\n");
}

TEST_F(ChecksumWritings, ReadEveryFileWhereTheListingWasMadeAfterThem) {
  write(u"as it was"_qs, "one", 5);
  write(u"edited"_qs, "one", 5);
  takeChecksums();
  bindChecksums();
  write(u"edited"_qs, "two", 6);
  write(u"new"_qs, "two", 6);
  ASSERT_TRUE(QFile::rename(folder_.pathOf(u"disk.txt.sha256"_qs), folder_.pathOf(u"kept"_qs)));
  takeChecksums();
  folder_.writeFile(u"disk.txt.sha256"_qs, folder_.readFile(u"kept"_qs));
  ChecksumWriting again = writing();
  FileAside file(folder_.pathOf(u"again"_qs));
  EXPECT_TRUE(again.write(file.writer()));
  file.commit();
  EXPECT_EQ(again.filesKept(), 0);
  EXPECT_EQ(again.doubtful(), QStringList{u"edited"_qs});
  EXPECT_EQ(folder_.readFile(u"again"_qs).toStdString(),
            std::string(kOne) + "  as it was\n" + kTwo + "  edited\n" + kTwo + "  new\n");
}

TEST_F(ChecksumWritings, WithoutTheListingEveryFileIsRead) {
  write(u"x"_qs, "one", 5);
  takeChecksums();
  write(u"x"_qs, "two", 5);
  ASSERT_TRUE(QFile::remove(listing()));
  takeChecksums();
  EXPECT_EQ(manifest().toStdString(), std::string(kTwo) + "  x\n");
}

TEST_F(ChecksumWritings, AFileThatCannotBeReadKeepsItsChecksum) {
  write(u"x"_qs, "one", 5);
  takeChecksums();
  remove(u"x"_qs);
  // A link to itself cannot be looked up.
  ASSERT_TRUE(QFile::link(disk() + u"/x"_qs, disk() + u"/x"_qs));
  ChecksumWriting again = writing();
  FileAside file(folder_.pathOf(u"again"_qs));
  EXPECT_TRUE(again.write(file.writer()));
  file.commit();
  EXPECT_EQ(again.unread().size(), 1);
  EXPECT_EQ(folder_.readFile(u"again"_qs).toStdString(), std::string(kOne) + "  x\n");
}

TEST_F(ChecksumWritings, LeaveOutTheListingInTheFolderAndWhatIsBesideIt) {
  write(u"x"_qs, "one");
  write(u"disk.txt"_qs, "a listing");
  write(u"disk.txt.sha256"_qs, "");
  ChecksumWriting::Parts parts;
  parts.folder = disk();
  parts.listing = disk() + u"/disk.txt"_qs;
  ChecksumWriting writing(std::move(parts));
  FileAside file(folder_.pathOf(u"made"_qs));
  EXPECT_TRUE(writing.write(file.writer()));
  file.commit();
  EXPECT_EQ(folder_.readFile(u"made"_qs).toStdString(), std::string(kOne) + "  x\n");
}

TEST_F(ChecksumWritings, EndWhenTheyAreStopped) {
  write(u"x"_qs, "one");
  ChecksumWriting::Parts parts;
  parts.folder = disk();
  parts.listing = listing();
  int asked = 0;
  parts.stop = [&asked] { return ++asked > 2; };
  ChecksumWriting writing(std::move(parts));
  FileAside file(folder_.pathOf(u"made"_qs));
  EXPECT_FALSE(writing.write(file.writer()));
}

TEST_F(ChecksumWritings, TellHowFarTheyAre) {
  write(u"x"_qs, "one");
  write(u"y"_qs, "two and more");
  ChecksumWriting::Parts parts;
  parts.folder = disk();
  parts.listing = listing();
  ChecksumWriting::Progress last;
  parts.progress = [&last](const ChecksumWriting::Progress& progress) { last = progress; };
  ChecksumWriting writing(std::move(parts));
  FileAside file(folder_.pathOf(u"made"_qs));
  EXPECT_TRUE(writing.write(file.writer()));
  EXPECT_EQ(last.files, 2);
  EXPECT_EQ(last.filesAll, 2);
  EXPECT_EQ(last.bytes, 15);
  EXPECT_EQ(last.bytesAll, 15);
}

}  // namespace
}  // namespace quorvin
