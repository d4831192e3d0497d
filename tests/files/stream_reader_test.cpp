// SPDX-License-Identifier: GPL-2.0-or-later
#include "files/stream_reader.h"

#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <QFile>
#include <gtest/gtest.h>

#include <array>
#include <fcntl.h>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace quorvin {
namespace {

class StreamReaderTest : public testing::Test {
 protected:
  StreamReaderTest() {
    pipe_ = folder_.pathOf(u"pipe"_qs);
    EXPECT_EQ(::mkfifo(QFile::encodeName(pipe_).constData(), 0600), 0);
  }

  /// Opens the pipe for writing as long as it lives; waits for the reader.
  int openWriter() const { return ::open(QFile::encodeName(pipe_).constData(), O_WRONLY | O_CLOEXEC); }

  TemporaryFolder folder_;
  QString pipe_;
};

TEST_F(StreamReaderTest, PipesAndDevicesAreStreamsAndFilesAndFoldersAreNot) {
  EXPECT_TRUE(isStream(pipe_));
  EXPECT_TRUE(isStream(u"/dev/null"_qs));
  EXPECT_FALSE(isStream(folder_.writeFile(u"a.txt"_qs, "x")));
  EXPECT_FALSE(isStream(folder_.path()));
  EXPECT_FALSE(isStream(folder_.pathOf(u"gone"_qs)));
}

TEST_F(StreamReaderTest, FillsTheBufferHoweverTheBytesCome) {
  std::thread writer([this] {
    const int pipe = openWriter();
    for (const std::string_view piece : {"son", "g of a", " long evening"}) {
      EXPECT_EQ(::write(pipe, piece.data(), piece.size()), static_cast<ssize_t>(piece.size()));
    }
    ::close(pipe);
  });
  StreamReader reader(pipe_, [] { return false; });
  std::array<char, 10> buffer{};
  EXPECT_EQ(reader.read(buffer), 10U);
  EXPECT_EQ(std::string(buffer.data(), 10), "song of a ");
  EXPECT_EQ(reader.read(buffer), 10U);
  EXPECT_EQ(reader.read(buffer), 2U);
  EXPECT_EQ(std::string(buffer.data(), 2), "ng");
  EXPECT_EQ(reader.read(buffer), 0U);
  writer.join();
}

TEST_F(StreamReaderTest, ARequestToEndEndsTheWaitForAWriterThatWritesNothing) {
  bool isEnding = false;
  int asked = 0;
  int pipe = -1;
  std::thread writer([&] { pipe = openWriter(); });
  StreamReader reader(pipe_, [&] {
    if (++asked == 3) isEnding = true;
    return isEnding;
  });
  writer.join();
  std::array<char, 10> buffer{};
  EXPECT_EQ(reader.read(buffer), 0U);
  EXPECT_TRUE(isEnding);
  ::close(pipe);
}

}  // namespace
}  // namespace quorvin
