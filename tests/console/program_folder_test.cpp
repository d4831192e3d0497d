// SPDX-License-Identifier: GPL-2.0-or-later

// Where the console program looks for the user's sources when it runs from the folder that it was built in.
#include "console/console_program.h"
#include "support/listing_lines.h"
#include "support/qt_printing.h"

#include <QFile>

namespace quorvin {
namespace {

class BuiltProgram : public test::ConsoleProgramTest {
 protected:
  BuiltProgram() {
    folder.writeFile(u"built/CMakeCache.txt"_qs, "x");
    folder.makeFolder(u"built/bin"_qs);
    const QString program = folder.pathOf(u"built/bin/quorvin-cli"_qs);
    EXPECT_TRUE(QFile::copy(QStringLiteral(QUORVIN_CLI), program));
    process.setProgram(program);
  }

  void writeSources(const QString& place) {
    folder.writeFile(place + u"Locations.txt"_qs, "\"Music\",\"/music/\"\r\n");
    folder.writeFile(place + u"Music.txt"_qs,
                     test::blockHead("Music", "\\music\\") + test::entryLine("a song.mp3"));
  }
};

TEST_F(BuiltProgram, FindsInTheUsersDataFolder) {
  writeSources(u"home/quorvin/"_qs);
  const test::Ended ended = run({u"find"_qs, u"--no-cache"_qs, u"song"_qs});
  EXPECT_EQ(ended.status, 0);
  EXPECT_EQ(ended.errors, u"1 found, 1 searched\n"_qs);
}

TEST_F(BuiltProgram, TakesAlongWhatAnEarlierVersionKeptBesideIt) {
  writeSources(u"built/bin/"_qs);
  const test::Ended ended = run({u"find"_qs, u"--no-cache"_qs, u"song"_qs});
  EXPECT_EQ(ended.status, 0);
  EXPECT_TRUE(ended.errors.startsWith(u"quorvin-cli: Your lists were kept in "_qs))
      << ended.errors.toStdString();
  EXPECT_TRUE(ended.errors.endsWith(u"1 found, 1 searched\n"_qs)) << ended.errors.toStdString();
  EXPECT_EQ(folder.readFile(u"home/quorvin/Locations.txt"_qs), "\"Music\",\"/music/\"\r\n");
  EXPECT_EQ(run({u"find"_qs, u"--no-cache"_qs, u"song"_qs}).errors, u"1 found, 1 searched\n"_qs);
}

}  // namespace
}  // namespace quorvin
