#include "files/file_writer.h"

#include "faults/runtime_fault.h"
#include "files/full_disk.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

namespace quorvin {
namespace {

// The number of the fault that an action throws, and what it names; 0 for none.
struct Caught {
  int number = 0;
  QString description;
};

template <typename Action>
Caught caught(Action action) {
  try {
    action();
  } catch (const RuntimeFault& fault) {
    return {fault.number(), fault.description()};
  }
  return {};
}

TEST(FileWriter, WritesAllInOrder) {
  const TemporaryFolder folder;
  for (const int piece : {1, 7, 100, 70'000, 200'000}) {
    FileWriter writer(folder.pathOf(u"a"_qs));
    QByteArray expected;
    for (int i = 0; i < 400'000 / piece + 3; ++i) {
      const QByteArray bytes(piece, static_cast<char>('a' + i % 26));
      writer.write({bytes.constData(), static_cast<std::size_t>(bytes.size())});
      expected += bytes;
    }
    writer.close();
    EXPECT_TRUE(folder.readFile(u"a"_qs) == expected) << piece;
  }
}

TEST(FileWriter, EmptiesTheFileThatWasThere) {
  const TemporaryFolder folder;
  const QString path = folder.writeFile(u"a"_qs, "old and longer");
  FileWriter writer(path);
  writer.close();
  EXPECT_EQ(folder.readFile(u"a"_qs), "");
}

TEST(FileWriter, WithoutCloseOnlyWhatWasFlushedIsThere) {
  const TemporaryFolder folder;
  {
    FileWriter writer(folder.pathOf(u"a"_qs));
    writer.write("flushed");
    writer.flush();
    writer.sync();
    writer.write("dropped");
  }
  EXPECT_EQ(folder.readFile(u"a"_qs), "flushed");
}

TEST(FileWriter, LeavesAGivenDescriptorOpen) {
  int ends[2];
  ASSERT_EQ(::pipe(ends), 0);
  {
    FileWriter writer(ends[1], u"the pipe"_qs);
    writer.write("one ");
    writer.close();
  }
  ASSERT_EQ(::write(ends[1], "two", 3), 3);
  char bytes[16];
  EXPECT_EQ(::read(ends[0], bytes, sizeof bytes), 7);
  EXPECT_EQ(QByteArray(bytes, 7), "one two");
  ::close(ends[0]);
  ::close(ends[1]);
}

TEST(FileWriter, AFullDiskIsAFaultThatNamesTheFile) {
  for (const std::size_t size : {5'000U, 100'000U, 300'000U}) {
    const TemporaryFolder folder;
    const QString path = folder.pathOf(u"a"_qs);
    const FullDisk disk(4096);
    const Caught fault = caught([&] {
      FileWriter writer(path);
      writer.write(std::string(size, 'x'));
      writer.close();
    });
    EXPECT_EQ(fault.number, 61) << size;
    EXPECT_EQ(fault.description, u"Disk full: "_qs + path);
  }
}

TEST(FileWriter, WhatIsNoRegularFileIsRefused) {
  const TemporaryFolder folder;
  ASSERT_EQ(::mkfifo(folder.pathOf(u"pipe"_qs).toUtf8().constData(), 0600), 0);
  EXPECT_NE(caught([&] { FileWriter(folder.pathOf(u"pipe"_qs)); }).number, 0);
  EXPECT_EQ(caught([&] { FileWriter(folder.makeFolder(u"sub"_qs)); }).number, 75);
  EXPECT_EQ(caught([] { FileWriter(u"/dev/null"_qs); }).number, 75);
  EXPECT_EQ(caught([&] { FileWriter(folder.pathOf(u"gone/a"_qs)); }).number, 53);
  EXPECT_EQ(caught([&] { FileWriter(folder.pathOf(u"a"_qs) + QChar(u'\0') + u"b"_qs); }).number, 52);
}

TEST(PutInPlace, ReplacesAFileOrMakesIt) {
  const TemporaryFolder folder;
  const QString place = folder.pathOf(u"a.txt"_qs);
  putInPlace(folder.writeFile(u"a.tmp"_qs, "new"), place);
  EXPECT_EQ(folder.readFile(u"a.txt"_qs), "new");
  putInPlace(folder.writeFile(u"a.tmp"_qs, "newer"), place);
  EXPECT_EQ(folder.readFile(u"a.txt"_qs), "newer");
  EXPECT_EQ(folder.names(), QStringList{u"a.txt"_qs});
}

TEST(PutInPlace, AFaultNamesThePlaceAndLeavesBoth) {
  const TemporaryFolder folder;
  const QString place = folder.makeFolder(u"a.txt"_qs);
  const Caught fault = caught([&] { putInPlace(folder.writeFile(u"a.tmp"_qs, "new"), place); });
  EXPECT_NE(fault.number, 0);
  EXPECT_TRUE(fault.description.endsWith(place)) << fault.description.toStdString();
  EXPECT_EQ(folder.names(), (QStringList{u"a.tmp"_qs, u"a.txt"_qs}));
}

}  // namespace
}  // namespace quorvin
