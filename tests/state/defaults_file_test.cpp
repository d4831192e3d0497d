// SPDX-License-Identifier: GPL-2.0-or-later
#include "faults/runtime_fault.h"
#include "state/settings.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace quorvin {
namespace {

class DefaultsFile : public testing::Test {
 protected:
  int read(const QByteArray& bytes) {
    try {
      readDefaultsFile(folder_.writeFile(QStringLiteral("defaults.txt"), bytes), state_);
    } catch (const RuntimeFault& fault) {
      return fault.number();
    }
    return 0;
  }

  TemporaryFolder folder_;
  ProgramState state_;
};

TEST_F(DefaultsFile, GivesFourSettingsInOrder) {
  EXPECT_EQ(read("D:\\Lists\\\r\nmain.txt\r\nmain.zip\r\nlists.example.org\r\n"), 0);
  EXPECT_EQ(state_.LocalFolder, QStringLiteral("D:\\Lists\\"));
  EXPECT_EQ(state_.TextFile, QStringLiteral("main.txt"));
  EXPECT_EQ(state_.ArchiveFile, QStringLiteral("main.zip"));
  EXPECT_EQ(state_.WebServer, QStringLiteral("lists.example.org"));
}

TEST_F(DefaultsFile, GivesUnixPaths) {
  EXPECT_EQ(read("/home/ann/lists/\nmain.txt\nmain.zip\nlists.example.org"), 0);
  EXPECT_EQ(state_.LocalFolder, QStringLiteral("/home/ann/lists/"));
  EXPECT_EQ(state_.WebServer, QStringLiteral("lists.example.org"));
}

TEST_F(DefaultsFile, TakesEachLineAsItStands) {
  EXPECT_EQ(read(" \"D:\\a, b\\\" \r\na,b\r\n\r\n\"x\"\r\n"), 0);
  EXPECT_EQ(state_.LocalFolder, QStringLiteral(" \"D:\\a, b\\\" "));
  EXPECT_EQ(state_.TextFile, QStringLiteral("a,b"));
  EXPECT_EQ(state_.ArchiveFile, QString());
  EXPECT_EQ(state_.WebServer, QStringLiteral("\"x\""));
}

TEST_F(DefaultsFile, IgnoresFurtherLines) {
  EXPECT_EQ(read("a\r\nb\r\nc\r\nd\r\ne\r\nf\r\n"), 0);
  EXPECT_EQ(state_.WebServer, QStringLiteral("d"));
}

TEST_F(DefaultsFile, FaultsWithFewerThanFourLinesAndKeepsThoseBefore) {
  EXPECT_EQ(read("a\r\nb\r\nc\r\n"), 62);
  EXPECT_EQ(state_.LocalFolder, QStringLiteral("a"));
  EXPECT_EQ(state_.TextFile, QStringLiteral("b"));
  EXPECT_EQ(state_.ArchiveFile, QStringLiteral("c"));
  EXPECT_EQ(state_.WebServer, QString());
}

TEST_F(DefaultsFile, FaultsWhenEmpty) {
  EXPECT_EQ(read(""), 62);
  EXPECT_EQ(state_.LocalFolder, QString());
}

TEST_F(DefaultsFile, AByteOrderMarkIsNoPartOfTheFolder) {
  EXPECT_EQ(read("\xEF\xBB\xBF/lists/\r\nb\r\nc\r\nd\r\n"), 0);
  EXPECT_EQ(state_.LocalFolder, QStringLiteral("/lists/"));
}

}  // namespace
}  // namespace quorvin
