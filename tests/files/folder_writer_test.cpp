// SPDX-License-Identifier: GPL-2.0-or-later
#include "files/folder_writer.h"

#include "faults/runtime_fault.h"
#include "files/full_disk.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace quorvin {
namespace {

class FolderWriterTest : public testing::Test {
 protected:
  /// The number of the fault that `work` throws; 0 for none.
  template <typename Work>
  static int faultOf(Work work) {
    try {
      work();
    } catch (const RuntimeFault& fault) {
      return fault.number();
    }
    return 0;
  }

  void write(const QStringList& path, std::string_view bytes) const {
    FileAside file = FolderWriter(folder_.path()).newFile(path);
    file.write(bytes);
    file.commit();
  }

  TemporaryFolder folder_;
};

TEST_F(FolderWriterTest, MakesFilesAndTheFoldersOnTheWay) {
  write({u"a"_qs, u"b"_qs, u"c.txt"_qs}, "content");
  EXPECT_EQ(folder_.readFile(u"a/b/c.txt"_qs), QByteArray("content"));
  FolderWriter(folder_.path()).makeFolder({u"a"_qs, u"d"_qs});
  FolderWriter(folder_.path()).makeFolder({u"a"_qs, u"d"_qs});
  EXPECT_TRUE(QFileInfo(folder_.pathOf(u"a/d"_qs)).isDir());
}

TEST_F(FolderWriterTest, ShowsNothingUntilTheFileIsPutInPlace) {
  folder_.writeFile(u"a.txt"_qs, "earlier");
  {
    FileAside file = FolderWriter(folder_.path()).newFile({u"a.txt"_qs});
    file.write("new");
    EXPECT_EQ(folder_.readFile(u"a.txt"_qs), QByteArray("earlier"));
  }
  EXPECT_EQ(folder_.names(), QStringList{u"a.txt"_qs});
  EXPECT_EQ(folder_.readFile(u"a.txt"_qs), QByteArray("earlier"));
}

TEST_F(FolderWriterTest, SeveralFilesAreWrittenAsideAtOnce) {
  const FolderWriter writer(folder_.path());
  FileAside first = writer.newFile({u"a.txt"_qs});
  FileAside second = writer.newFile({u"b.txt"_qs});
  first.write("1");
  second.write("2");
  second.commit();
  first.commit();
  EXPECT_EQ(folder_.readFile(u"a.txt"_qs), QByteArray("1"));
  EXPECT_EQ(folder_.readFile(u"b.txt"_qs), QByteArray("2"));
}

TEST_F(FolderWriterTest, RefusesWhatIsNoName) {
  for (const QString& name : {u""_qs, u"."_qs, u".."_qs, u"a/b"_qs, u"/a"_qs, QString(QChar(u'\0'))}) {
    EXPECT_EQ(faultOf([&] { write({name}, "x"); }), 52) << name.toStdString();
    EXPECT_EQ(faultOf([&] { write({name, u"b"_qs}, "x"); }), 52) << name.toStdString();
  }
  EXPECT_EQ(faultOf([&] { write({}, "x"); }), 52);
  EXPECT_EQ(folder_.names(), QStringList());
}

TEST_F(FolderWriterTest, RefusesLinksAndFilesOnTheWay) {
  const TemporaryFolder elsewhere;
  ASSERT_TRUE(QFile::link(elsewhere.path(), folder_.pathOf(u"link"_qs)));
  folder_.writeFile(u"file"_qs, "mine");
  EXPECT_EQ(faultOf([&] { write({u"link"_qs, u"a.txt"_qs}, "x"); }), 75);
  EXPECT_EQ(faultOf([&] { write({u"link"_qs, u"b"_qs, u"a.txt"_qs}, "x"); }), 75);
  EXPECT_EQ(faultOf([&] { write({u"file"_qs, u"a.txt"_qs}, "x"); }), 75);
  EXPECT_EQ(elsewhere.names(), QStringList());
}

TEST_F(FolderWriterTest, MayBeReachedByALinkItself) {
  const TemporaryFolder elsewhere;
  const QString link = folder_.pathOf(u"link"_qs);
  ASSERT_TRUE(QFile::link(elsewhere.path(), link));
  FileAside file = FolderWriter(link).newFile({u"a.txt"_qs});
  file.commit();
  EXPECT_EQ(elsewhere.names(), QStringList{u"a.txt"_qs});
}

TEST_F(FolderWriterTest, ReplacesAPipeAndALinkByTheFile) {
  ASSERT_EQ(::mkfifo(QFile::encodeName(folder_.pathOf(u"pipe"_qs)).constData(), 0600), 0);
  ASSERT_TRUE(QFile::link(u"/nowhere/at/all"_qs, folder_.pathOf(u"link"_qs)));
  write({u"pipe"_qs}, "1");
  write({u"link"_qs}, "2");
  EXPECT_EQ(folder_.readFile(u"pipe"_qs), QByteArray("1"));
  EXPECT_EQ(folder_.readFile(u"link"_qs), QByteArray("2"));
}

TEST_F(FolderWriterTest, OfAMissingFolderIsAFault) {
  EXPECT_EQ(faultOf([&] { const FolderWriter writer(folder_.pathOf(u"none"_qs)); }), 53);
  EXPECT_EQ(faultOf([&] { const FolderWriter writer{QString()}; }), 52);
}

TEST_F(FolderWriterTest, OfAFullDiskLeavesTheEarlierFile) {
  folder_.writeFile(u"a.txt"_qs, "earlier");
  {
    const FullDisk full(100);
    EXPECT_EQ(faultOf([&] { write({u"a.txt"_qs}, std::string(1000, 'x')); }), 61);
  }
  EXPECT_EQ(folder_.names(), QStringList{u"a.txt"_qs});
  EXPECT_EQ(folder_.readFile(u"a.txt"_qs), QByteArray("earlier"));
}

}  // namespace
}  // namespace quorvin
