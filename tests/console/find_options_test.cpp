// SPDX-License-Identifier: GPL-2.0-or-later

// The options of "quorvin-cli find" for scripts, as a user runs it.
#include "console/console_program.h"
#include "files/descriptor.h"
#include "platform/ini_settings_store.h"
#include "support/listing_lines.h"
#include "support/qt_printing.h"

#include <QFile>

#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quorvin {
namespace {

class FindOptions : public test::ConsoleProgramTest {
 protected:
  static QByteArray listing() {
    return test::blockHead("CD 7", "\\Music\\Rock\\") + test::entryLine("Live at Wembley.mp3", "131,072") +
           test::entryLine("Cover.jpg", "2,097,152") + "short\r\n" + test::blockHead("CD 8", "\\Films\\") +
           test::entryLine("rock film.avi", "3", "14 Jan 2004 08:00:00");
  }
  QString sample() { return folder.writeFile(u"cd7.lst"_qs, listing()); }

  QString makePipe() {
    const QString pipe = folder.pathOf(u"pipe"_qs);
    EXPECT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    return pipe;
  }
  /// Opens the pipe as soon as the program reads it.
  Descriptor writerOf(const QString& pipe) {
    int writer = -1;
    while (writer < 0 && process.state() == QProcess::Running) {
      writer = ::open(QFile::encodeName(pipe).constData(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);
      process.waitForFinished(1);
    }
    return Descriptor(writer);
  }

  test::Ended find(const QStringList& options) {
    return run(QStringList{u"find"_qs, u"--no-cache"_qs} + options + QStringList{u"rock"_qs, sample()});
  }
};

TEST_F(FindOptions, FieldsAreWrittenInTheOrderGiven) {
  EXPECT_EQ(find({u"--fields"_qs, u"size,name,modified,match,words"_qs}).output,
            "131072\tLive at Wembley.mp3\t2004-01-15T10:20:30\t100\trock\n"
            "2097152\tCover.jpg\t2004-01-15T10:20:30\t100\trock\n"
            "2097152\tshort\t2004-01-15T10:20:30\t100\trock\n"
            "3\trock film.avi\t2004-01-14T08:00:00\t100\trock\n");
}

TEST_F(FindOptions, CsvWithFieldsStartsWithTheirNamesUnlessTheyAreNotWanted) {
  const QStringList csv{u"--format"_qs, u"csv"_qs, u"--fields"_qs, u"name,size"_qs, u"--limit"_qs, u"1"_qs};
  EXPECT_EQ(find(csv).output, "name,size\nLive at Wembley.mp3,131072\n");
  EXPECT_EQ(find(csv + QStringList{u"--no-header"_qs}).output, "Live at Wembley.mp3,131072\n");
}

TEST_F(FindOptions, HeaderGivesTheWindowsColumnsTheirTitles) {
  EXPECT_TRUE(
      find({u"--header"_qs}).output.startsWith("Match\tVolume\tFolder\tName\tSize\tDate\n100%\tCD 7\t"));
}

TEST_F(FindOptions, RowsEndWithNul) {
  EXPECT_EQ(find({u"-0"_qs, u"--fields"_qs, u"name"_qs, u"--limit"_qs, u"2"_qs}).output,
            QByteArray("Live at Wembley.mp3\0Cover.jpg\0", 30));
}

TEST_F(FindOptions, LimitEndsTheSearch) {
  const test::Ended ended = find({u"--limit"_qs, u"1"_qs, u"--fields"_qs, u"name"_qs});
  EXPECT_EQ(ended.output, "Live at Wembley.mp3\n");
  EXPECT_TRUE(ended.errors.startsWith(u"1 found, "_qs)) << ended.errors.toStdString();
  EXPECT_EQ(ended.status, 0);
  EXPECT_EQ(find({u"--limit"_qs, u"2"_qs, u"--count"_qs}).output, "2\n");
}

TEST_F(FindOptions, SortedHitsKeepWhatIsSaidOfThem) {
  EXPECT_EQ(find({u"--sort"_qs, u"name"_qs, u"--fields"_qs, u"name,folder,listing"_qs}).output,
            "Cover.jpg\t\\Music\\Rock\\\t" + sample().toUtf8() + "\nLive at Wembley.mp3\t\\Music\\Rock\\\t" +
                sample().toUtf8() + "\nrock film.avi\t\\Films\\\t" + sample().toUtf8() +
                "\nshort\t\\Music\\Rock\\\t" + sample().toUtf8() + '\n');
  EXPECT_EQ(
      find({u"--sort"_qs, u"size"_qs, u"--reverse"_qs, u"--limit"_qs, u"3"_qs, u"--format"_qs, u"json"_qs,
            u"--fields"_qs, u"name,size"_qs})
          .output,
      "{\"name\":\"Cover.jpg\",\"size\":2097152}\n{\"name\":\"short\",\"size\":2097152,\"inherited\":true}"
      "\n{\"name\":\"Live at Wembley.mp3\",\"size\":131072}\n");
}

TEST_F(FindOptions, QuietLeavesTheLastLineOut) {
  EXPECT_EQ(find({u"--quiet"_qs}).errors, QString());
  EXPECT_EQ(find({u"-q"_qs, u"--count"_qs}).output, "4\n");
}

TEST_F(FindOptions, WordsAreHighlightedWhereThatIsWanted) {
  const QByteArray marked = "\\Music\\\x1B[1;31mRock\x1B[m\\\n";
  const QStringList one{u"--limit"_qs, u"1"_qs, u"--fields"_qs, u"folder"_qs};
  EXPECT_EQ(find(one).output, "\\Music\\Rock\\\n");
  EXPECT_EQ(find(one + QStringList{u"--color"_qs, u"always"_qs}).output, marked);
  EXPECT_EQ(find(one + QStringList{u"--color=never"_qs}).output, "\\Music\\Rock\\\n");
  // Where they would be part of a value there are none.
  EXPECT_EQ(find(one + QStringList{u"--color"_qs, u"always"_qs, u"--format"_qs, u"json"_qs}).output,
            "{\"folder\":\"\\\\Music\\\\Rock\\\\\"}\n");
}

TEST_F(FindOptions, StandardInputAndPipesAreListings) {
  const QString pipe = makePipe();
  process.setStandardInputFile(sample());
  start({u"find"_qs, u"--fields"_qs, u"listing,name"_qs, u"rock"_qs, u"-"_qs, pipe});
  {
    const Descriptor writer = writerOf(pipe);
    const QByteArray text = test::blockHead("CD 9", "\\Rock\\") + "tune.mp3";
    ASSERT_EQ(::write(writer.get(), text.constData(), static_cast<std::size_t>(text.size())), text.size());
  }
  const test::Ended ended = end();
  EXPECT_EQ(ended.output, "-\tLive at Wembley.mp3\n-\tCover.jpg\n-\tshort\n-\trock film.avi\n" +
                              pipe.toUtf8() + "\ttune.mp3\n");
  EXPECT_EQ(ended.errors, u"5 found, 5 searched\n"_qs);
  EXPECT_EQ(ended.status, 0);
}

TEST_F(FindOptions, NothingIsKeptOfAStream) {
  process.setStandardInputFile(sample());
  EXPECT_EQ(run({u"find"_qs, u"--count"_qs, u"rock"_qs, u"-"_qs}).output, "4\n");
  EXPECT_EQ(run({u"cache"_qs}).output, "");
}

TEST_F(FindOptions, AnInterruptEndsTheWaitForAPipe) {
  const QString pipe = makePipe();
  start({u"find"_qs, u"rock"_qs, pipe});
  const Descriptor writer = writerOf(pipe);
  ASSERT_TRUE(writer.isOpen());
  ::kill(static_cast<pid_t>(process.processId()), SIGINT);
  EXPECT_EQ(end().status, 130);
}

TEST_F(FindOptions, AWordInAnArgumentOfItsOwnIsExplained) {
  const test::Ended ended = run({u"find"_qs, u"rock"_qs, u"live"_qs});
  EXPECT_EQ(ended.errors,
            u"quorvin-cli: Listing file not found: live\nquorvin-cli: words to find come in one argument: "
            "\"rock live\"\n0 found, 0 searched\n"_qs);
  EXPECT_EQ(ended.status, 2);
}

TEST_F(FindOptions, AFolderInPlaceOfAListingIsExplained) {
  const test::Ended ended = run({u"find"_qs, u"--no-cache"_qs, u"rock"_qs, folder.path(), sample()});
  EXPECT_EQ(ended.status, 2);
  const QString explained =
      folder.path() + u" is a folder, not a listing; quorvin-cli index makes a listing of a folder\n"_qs;
  EXPECT_TRUE(ended.errors.contains(u"quorvin-cli: "_qs + explained)) << ended.errors.toStdString();
  EXPECT_EQ(ended.output.count('\n'), 4);
}

TEST_F(FindOptions, HeaderAndNoHeaderContradict) {
  const test::Ended ended = find({u"--header"_qs, u"--no-header"_qs});
  EXPECT_EQ(ended.status, 2);
  EXPECT_EQ(ended.output, "");
  EXPECT_EQ(
      ended.errors,
      u"quorvin-cli: the titles of the columns are written or not; --header and --no-header contradict\n"
      u"Try: quorvin-cli find --help\n");
}

TEST_F(FindOptions, AMatchBelowZeroIsNoPercentage) {
  const test::Ended ended = find({u"--match=-5"_qs});
  EXPECT_EQ(ended.status, 2);
  EXPECT_EQ(ended.output, "");
  EXPECT_EQ(ended.errors, u"quorvin-cli: the value of --match is a percentage from 1 to 100, not \"-5\"\n");
}

TEST_F(FindOptions, AMatchThatNothingCanExceedIsExplained) {
  EXPECT_EQ(find({u"--match"_qs, u"100"_qs}).errors,
            u"quorvin-cli: nothing matches more than 100%; --match 99 finds what has all the words\n"
            "0 found, 4 searched\n"_qs);
}

TEST_F(FindOptions, PathsOfOwnFoldersComeReadyForOtherPrograms) {
  folder.writeFile(u"Music/a song.mp3"_qs, "x");
  folder.writeFile(u"Music/the\nsong.mp3"_qs, "x");
  folder.writeFile(u"data/Locations.txt"_qs,
                   "\"Music\",\"" + folder.pathOf(u"Music/"_qs).toUtf8() + "\"\r\n");
  IniSettingsStore(folder.pathOf(u"settings.ini"_qs))
      .write(u"Ketta Quorvin"_qs, u"Settings"_qs, u"LocalFolder"_qs, folder.pathOf(u"data/"_qs));
  ASSERT_EQ(run({u"refresh"_qs}).status, 0);
  const test::Ended ended =
      run({u"find"_qs, u"-0"_qs, u"--fields"_qs, u"path"_qs, u"--sort"_qs, u"name"_qs, u"song"_qs});
  QList<QByteArray> paths = ended.output.split('\0');
  ASSERT_EQ(paths.size(), 3);
  EXPECT_EQ(paths.takeLast(), "");
  for (const QByteArray& path : paths)
    EXPECT_TRUE(QFile::exists(QFile::decodeName(path))) << path.toStdString();
  EXPECT_NE(paths[0], paths[1]);
}

TEST_F(FindOptions, HitsWithoutAPathAreCounted) {
  const test::Ended ended = find({u"--fields"_qs, u"path"_qs});
  EXPECT_EQ(ended.output, "");
  EXPECT_EQ(
      ended.errors,
      u"quorvin-cli: 4 hits were left out, since they are from no folder of your own or their files are "
      "not there\n4 found, 4 searched\n"_qs);
}

}  // namespace
}  // namespace quorvin
