// SPDX-License-Identifier: GPL-2.0-or-later
#include "files/file_writer.h"

#include "faults/runtime_fault.h"
#include "files/full_disk.h"
#include "support/qt_printing.h"
#include "support/system_call_watch.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quorvin {
namespace {

Descriptor newFile(const QString& path) {
  return Descriptor(::open(path.toUtf8().constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600));
}

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
    const Descriptor file = newFile(folder.pathOf(u"a"_qs));
    FileWriter writer(file.get(), u"a"_qs);
    QByteArray expected;
    for (int i = 0; i < 400'000 / piece + 3; ++i) {
      const QByteArray bytes(piece, static_cast<char>('a' + i % 26));
      writer.write({bytes.constData(), static_cast<std::size_t>(bytes.size())});
      expected += bytes;
    }
    writer.flush();
    EXPECT_TRUE(folder.readFile(u"a"_qs) == expected) << piece;
  }
}

TEST(FileWriter, OnlyWhatWasFlushedIsThere) {
  const TemporaryFolder folder;
  const Descriptor file = newFile(folder.pathOf(u"a"_qs));
  {
    FileWriter writer(file.get(), u"a"_qs);
    writer.write("flushed");
    writer.flush();
    writer.write("dropped");
  }
  EXPECT_EQ(folder.readFile(u"a"_qs), "flushed");
}

TEST(FileWriter, LeavesTheDescriptorOpen) {
  int ends[2];
  ASSERT_EQ(::pipe(ends), 0);
  {
    FileWriter writer(ends[1], u"the pipe"_qs);
    writer.write("one ");
    writer.flush();
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
    const Descriptor file = newFile(folder.pathOf(u"a"_qs));
    const FullDisk disk(4096);
    const Caught fault = caught([&] {
      FileWriter writer(file.get(), u"the file"_qs);
      writer.write(std::string(size, 'x'));
      writer.flush();
    });
    EXPECT_EQ(fault.number, 61) << size;
    EXPECT_EQ(fault.description, u"Disk full: the file"_qs);
  }
}

class OverwrittenFileTest : public testing::Test {
 protected:
  void overwrite(std::string_view bytes) const {
    OverwrittenFile file(path());
    file.write(bytes);
    file.flush();
  }

  int faultOf(std::string_view bytes) const {
    try {
      overwrite(bytes);
    } catch (const RuntimeFault& fault) {
      return fault.number();
    }
    return 0;
  }

  QString path() const { return folder_.pathOf(u"a.zip"_qs); }
  QByteArray content() const { return folder_.readFile(u"a.zip"_qs); }
  QDateTime modified() const { return QFileInfo(path()).lastModified().toUTC(); }
  const QDateTime k1980{QDate(1980, 1, 1), QTime(0, 0), Qt::UTC};

  TemporaryFolder folder_;
};

TEST_F(OverwrittenFileTest, IsMadeWhenItIsNotThere) {
  overwrite("new");
  EXPECT_EQ(content(), QByteArray("new"));
}

TEST_F(OverwrittenFileTest, KeepsWhatIsNotWrittenOver) {
  folder_.writeFile(u"a.zip"_qs, "0123456789");
  overwrite("abc");
  EXPECT_EQ(content(), QByteArray("abc3456789"));
  overwrite("");
  EXPECT_EQ(content(), QByteArray("abc3456789"));
  overwrite("a longer content");
  EXPECT_EQ(content(), QByteArray("a longer content"));
}

TEST_F(OverwrittenFileTest, NeverPassesForNewWhileItIsWritten) {
  OverwrittenFile file(path());
  EXPECT_EQ(modified(), k1980);
  std::size_t written = 0;
  for (const std::size_t size : {std::size_t{1024}, std::size_t{65'000}, std::size_t{70'000}}) {
    for (int i = 0; i < 100; ++i) file.write(std::string(size, 'x'));
    written += 100 * size;
    EXPECT_GT(static_cast<std::size_t>(content().size()) + 65'536, written);
    EXPECT_EQ(modified(), k1980) << size;
  }
  file.flush();
  EXPECT_EQ(modified(), k1980);
}

TEST_F(OverwrittenFileTest, NeverPassesForNewWhileItIsMade) {
  int moments = 0;
  test::systemCallWatcher() = [&](const std::string&) {
    if (!QFileInfo::exists(path())) return;
    ++moments;
    EXPECT_EQ(modified(), k1980);
  };
  { const OverwrittenFile file(path()); }
  test::systemCallWatcher() = nullptr;
  EXPECT_GT(moments, 0);
}

TEST_F(OverwrittenFileTest, NeverPassesForNewAfterwards) {
  folder_.writeFile(u"a.zip"_qs, "0123456789");
  overwrite("abc");
  EXPECT_EQ(modified(), k1980);
}

TEST_F(OverwrittenFileTest, NeverPassesForNewAfterAFault) {
  {
    const FullDisk full(100'000);
    EXPECT_EQ(faultOf(std::string(1'000'000, 'x')), 61);
  }
  EXPECT_GT(content().size(), 0);
  EXPECT_EQ(modified(), k1980);
}

TEST_F(OverwrittenFileTest, KeepsItsTimeWhenNothingIsWritten) {
  folder_.writeFile(u"a.zip"_qs, "0123456789");
  const QDateTime before = modified();
  { const OverwrittenFile file(path()); }
  EXPECT_EQ(modified(), before);
  EXPECT_EQ(content(), QByteArray("0123456789"));
}

TEST_F(OverwrittenFileTest, RefusesFoldersAndPipes) {
  folder_.makeFolder(u"a.zip"_qs);
  EXPECT_EQ(faultOf("x"), 75);
  ASSERT_TRUE(QDir().rmdir(path()));
  ASSERT_EQ(::mkfifo(QFile::encodeName(path()).constData(), 0600), 0);
  EXPECT_NE(faultOf("x"), 0);
}

TEST_F(OverwrittenFileTest, OnAFullDiskIsAFault) {
  const FullDisk full(100);
  EXPECT_EQ(faultOf(std::string(1000, 'x')), 61);
}

}  // namespace
}  // namespace quorvin
