// SPDX-License-Identifier: GPL-2.0-or-later
#include "files/file_reader.h"

#include "faults/runtime_fault.h"
#include "support/fault_number.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <sys/stat.h>

namespace quorvin {

namespace {

// The number of the fault that opening `path` throws; 0 for none.
int faultOfOpening(const QString& path) {
  try {
    const SequentialFile file(path);
  } catch (const RuntimeFault& fault) {
    return fault.number();
  }
  return 0;
}

std::string readAll(SequentialFile& file, std::size_t chunk) {
  std::string all;
  std::string buffer(chunk, '\0');
  while (const std::size_t count = file.read(buffer)) all.append(buffer, 0, count);
  return all;
}

}  // namespace

TEST(SequentialFile, ReadsFromStartToEndInAnyChunks) {
  const TemporaryFolder folder;
  const QString path = folder.writeFile(QStringLiteral("a"), QByteArray("0123456789", 10));
  for (const std::size_t chunk : {1U, 3U, 5U, 10U, 11U, 4096U}) {
    SequentialFile file(path);
    EXPECT_EQ(file.sizeWhenOpened(), 10);
    EXPECT_EQ(readAll(file, chunk), "0123456789") << chunk;
    std::array<char, 4> more;
    EXPECT_EQ(file.read(more), 0U);
  }
}

TEST(SequentialFile, FillsTheBufferWhileThereIsMore) {
  const TemporaryFolder folder;
  SequentialFile file(folder.writeFile(QStringLiteral("a"), QByteArray(1'000'000, 'x')));
  std::string buffer(999'999, '\0');
  EXPECT_EQ(file.read(buffer), 999'999U);
  EXPECT_EQ(file.read(buffer), 1U);
}

TEST(SequentialFile, AnEmptyFileIsAtItsEnd) {
  const TemporaryFolder folder;
  SequentialFile file(folder.writeFile(QStringLiteral("a"), ""));
  EXPECT_EQ(file.sizeWhenOpened(), 0);
  EXPECT_EQ(readAll(file, 16), "");
}

TEST(SequentialFile, AnEmptyBufferTakesNothing) {
  const TemporaryFolder folder;
  SequentialFile file(folder.writeFile(QStringLiteral("a"), "xyz"));
  EXPECT_EQ(file.read({}), 0U);
  EXPECT_EQ(readAll(file, 16), "xyz");
}

TEST(SequentialFile, AMissingFileIsNotFound) {
  const TemporaryFolder folder;
  EXPECT_EQ(faultOfOpening(folder.pathOf(QStringLiteral("missing"))), 53);
  EXPECT_EQ(faultOfOpening(folder.pathOf(QStringLiteral("missing/a"))), 53);
  EXPECT_EQ(faultOfOpening(QString()), 53);
}

TEST(SequentialFile, OnlyRegularFilesAreOpened) {
  const TemporaryFolder folder;
  ASSERT_EQ(::mkfifo(QFile::encodeName(folder.pathOf(QStringLiteral("pipe"))).constData(), 0600), 0);
  EXPECT_EQ(faultOfOpening(folder.path()), 75);
  EXPECT_EQ(faultOfOpening(folder.pathOf(QStringLiteral("pipe"))), 75);
  EXPECT_EQ(faultOfOpening(QStringLiteral("/dev/null")), 75);
}

TEST(SequentialFile, AFileIsNoFolder) {
  const TemporaryFolder folder;
  folder.writeFile(QStringLiteral("a"), "x");
  EXPECT_EQ(faultOfOpening(folder.pathOf(QStringLiteral("a/b"))), 76);
}

TEST(SequentialFile, ANulInThePathOpensNothingElse) {
  const TemporaryFolder folder;
  const QString path = folder.writeFile(QStringLiteral("a"), "x");
  EXPECT_EQ(faultOfOpening(path + QChar(u'\0') + QStringLiteral(".txt")), 52);
}

TEST(SequentialFile, TheFaultNamesTheFile) {
  try {
    const SequentialFile file(QStringLiteral("/no such place/a.txt"));
    FAIL() << "opened";
  } catch (const RuntimeFault& fault) {
    EXPECT_EQ(fault.description(), u"File not found: /no such place/a.txt");
  }
}

TEST(SequentialFile, AFileThatIsCutIsAFaultNotAnEnd) {
  const TemporaryFolder folder;
  const QString path = folder.writeFile(QStringLiteral("a"), QByteArray(10'000, 'x'));
  SequentialFile file(path);
  std::string buffer(4000, '\0');
  ASSERT_EQ(file.read(buffer), 4000U);
  ASSERT_TRUE(QFile::resize(path, 5000));
  EXPECT_EQ(file.read(buffer), 1000U);
  try {
    file.read(buffer);
    FAIL() << "the cut went unnoticed";
  } catch (const RuntimeFault& fault) {
    EXPECT_EQ(fault.number(), 62);
    EXPECT_TRUE(fault.description().contains(path)) << fault.what();
  }
}

TEST(SequentialFile, AFileThatGrowsIsReadToItsNewEnd) {
  const TemporaryFolder folder;
  const QString path = folder.writeFile(QStringLiteral("a"), "abc");
  SequentialFile opened(path);
  QFile more(path);
  ASSERT_TRUE(more.open(QIODevice::Append));
  ASSERT_EQ(more.write("def"), 3);
  more.close();
  EXPECT_EQ(opened.sizeWhenOpened(), 3);
  EXPECT_EQ(readAll(opened, 16), "abcdef");
}

TEST(ContentOfFile, IsAllThatTheFileHolds) {
  const TemporaryFolder folder;
  const QByteArray content(100'000, 'x');
  EXPECT_EQ(contentOfFile(folder.writeFile(QStringLiteral("a"), content)), content);
  EXPECT_EQ(contentOfFile(folder.writeFile(QStringLiteral("b"), "")), QByteArray());
}

TEST(Pipe, IsNeverWaitedFor) {
  const TemporaryFolder folder;
  const QString path = folder.pathOf(QStringLiteral("pipe"));
  ASSERT_EQ(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
  EXPECT_FAULT(contentOfFile(path), 75);
  EXPECT_FAULT(RandomAccessFile{path}, 75);
  EXPECT_FAULT(MappedFile(path, 0, 1), 75);
}

}  // namespace quorvin
