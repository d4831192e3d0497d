// SPDX-License-Identifier: GPL-2.0-or-later

// The console program as a user runs it.
#include "platform/ini_settings_store.h"
#include "support/listing_lines.h"
#include "support/temporary_folder.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <utility>
#include <vector>

namespace quorvin {
namespace {

struct Ended {
  int status;
  QString output;
  QString errors;
};

class FindProgram : public ::testing::Test {
 protected:
  FindProgram() {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"LC_ALL"_qs, u"C.UTF-8"_qs);
    environment.insert(u"QUORVIN_SETTINGS"_qs, folder_.pathOf(u"settings.ini"_qs));
    environment.insert(u"XDG_CACHE_HOME"_qs, folder_.pathOf(u"cache"_qs));
    process_.setProcessEnvironment(environment);
    process_.setWorkingDirectory(folder_.path());
    process_.setProgram(QStringLiteral(QUORVIN_CLI));
    // A shell that runs the tests in the background has them ignore it.
    process_.setChildProcessModifier([] { std::signal(SIGINT, SIG_DFL); });
  }

  Ended run(const QStringList& arguments) {
    process_.setArguments(arguments);
    process_.start();
    EXPECT_TRUE(process_.waitForFinished(60000)) << process_.errorString().toStdString();
    return {process_.exitCode(), QString::fromUtf8(process_.readAllStandardOutput()),
            QString::fromUtf8(process_.readAllStandardError())};
  }

  QString sample() {
    return folder_.writeFile(u"cd7.lst"_qs, test::blockHead("CD 7", "\\Music\\Rock\\") +
                                                test::entryLine("Live at Wembley.mp3", "131,072") +
                                                test::entryLine("Cover.jpg", "2,097,152"));
  }

  TemporaryFolder folder_;
  QProcess process_;
};

TEST_F(FindProgram, WritesHitsAndCountsAndEndsWith0) {
  const Ended ended = run({u"find"_qs, u"ROCK live"_qs, sample()});
  EXPECT_EQ(ended.output, u"100%\tCD 7\t\\Music\\Rock\\\tLive at Wembley.mp3\t0.13mb\tJan, 15 04\n"_qs);
  EXPECT_EQ(ended.errors, u"1 found, 2 searched\n"_qs);
  EXPECT_EQ(ended.status, 0);
}

TEST_F(FindProgram, WithoutHitsItEndsWith1) {
  const Ended ended = run({u"find"_qs, u"nowhere"_qs, sample()});
  EXPECT_EQ(ended.output, QString());
  EXPECT_EQ(ended.errors, u"0 found, 2 searched\n"_qs);
  EXPECT_EQ(ended.status, 1);
}

TEST_F(FindProgram, SettingsThatCannotBeReadAreToldAndEndWith2) {
  folder_.makeFolder(u"settings.ini"_qs);
  const Ended ended = run({u"find"_qs, u"rock"_qs});
  EXPECT_EQ(ended.errors, u"quorvin-cli: Path/File access error: "_qs + folder_.pathOf(u"settings.ini"_qs) +
                              u"\n0 found, 0 searched\n"_qs);
  EXPECT_EQ(ended.status, 2);
}

TEST_F(FindProgram, APipeForSettingsHangsNothing) {
  ASSERT_EQ(::mkfifo(QFile::encodeName(folder_.pathOf(u"settings.ini"_qs)).constData(), 0600), 0);
  EXPECT_EQ(run({u"find"_qs, u"rock"_qs}).status, 2);
  EXPECT_EQ(run({u"refresh"_qs}).status, 2);
}

TEST_F(FindProgram, CountWritesOnlyTheNumberOfHits) {
  EXPECT_EQ(run({u"find"_qs, u"--count"_qs, u"rock"_qs, sample()}).output, u"2\n"_qs);
  EXPECT_EQ(run({u"find"_qs, u"--count"_qs, u"nowhere"_qs, sample()}).output, u"0\n"_qs);
}

TEST_F(FindProgram, MatchIsCorrectedLikeTheWindowsBox) {
  EXPECT_EQ(run({u"find"_qs, u"--count"_qs, u"--match"_qs, u"49"_qs, u"live nowhere"_qs, sample()}).output,
            u"1\n"_qs);
  EXPECT_EQ(run({u"find"_qs, u"--count"_qs, u"--match"_qs, u"49.5"_qs, u"live nowhere"_qs, sample()}).output,
            u"0\n"_qs);
  EXPECT_EQ(run({u"find"_qs, u"--count"_qs, u"--match"_qs, u"250"_qs, u"live"_qs, sample()}).output,
            u"0\n"_qs);
  EXPECT_EQ(run({u"find"_qs, u"--count"_qs, u"--match"_qs, u"40000"_qs, u"live"_qs, sample()}).output,
            u"0\n"_qs);
}

TEST_F(FindProgram, CsvAndJsonAreWritten) {
  EXPECT_EQ(run({u"find"_qs, u"--format"_qs, u"csv"_qs, u"live"_qs, sample()}).output,
            u"100%,CD 7,\\Music\\Rock\\,Live at Wembley.mp3,0.13mb,\"Jan, 15 04\"\n"_qs);
  EXPECT_EQ(run({u"find"_qs, u"--format"_qs, u"json"_qs, u"cover"_qs, sample()}).output,
            u"{\"match\":100,\"volume\":\"CD 7\",\"folder\":\"\\\\Music\\\\Rock\\\\\",\"name\":\"Cover.jpg\","
            "\"size\":2097152,\"modified\":\"2004-01-15T10:20:30\",\"listing\":\""_qs +
                sample() + u"\",\"words\":[\"cover\"]}\n"_qs);
}

TEST_F(FindProgram, MissingListingIsToldAndTheOthersAreSearched) {
  const Ended ended = run({u"find"_qs, u"live"_qs, u"gone.lst"_qs, sample()});
  EXPECT_EQ(ended.output.count(u'\n'), 1);
  EXPECT_EQ(ended.errors, u"quorvin-cli: Listing file not found: gone.lst\n1 found, 2 searched\n"_qs);
  EXPECT_EQ(ended.status, 2);
}

TEST_F(FindProgram, WithoutListingsTheUsersOwnSourcesAreSearchedInOrder) {
  folder_.writeFile(u"data/Music.txt"_qs, "song online\r\n");
  folder_.writeFile(u"data/all.txt"_qs, "song main\r\n");
  const QString offline = folder_.writeFile(u"far/cd.lst"_qs, "song offline\r\n");
  folder_.writeFile(u"data/Locations.txt"_qs, "\"Music\",\"/music/\"\r\n");
  folder_.writeFile(u"data/OfflineLocations.txt"_qs, "\"Offline\",\"" + offline.toUtf8() + "\"\r\n");
  {
    IniSettingsStore store(folder_.pathOf(u"settings.ini"_qs));
    store.write(u"Ketta Quorvin"_qs, u"Settings"_qs, u"LocalFolder"_qs, folder_.pathOf(u"data/"_qs));
    store.write(u"Ketta Quorvin"_qs, u"Settings"_qs, u"TextFile"_qs, u"all.txt"_qs);
  }
  const Ended ended = run({u"find"_qs, u"song"_qs});
  EXPECT_EQ(ended.output,
            u"100%\t\t\tsong online\t0.00mb\tDec, 30 99\n100%\t\t\tsong main\t0.00mb\tDec, 30 99\n"
            "100%\t\t\tsong offline\t0.00mb\tDec, 30 99\n"_qs);
  EXPECT_EQ(ended.errors, u"3 found, 3 searched\n"_qs);
  EXPECT_EQ(ended.status, 0);
}

TEST_F(FindProgram, DefaultsFileOfTheCurrentFolderIsTaken) {
  folder_.writeFile(u"data/all.txt"_qs, "song main\r\n");
  folder_.writeFile(u"defaults.txt"_qs, folder_.pathOf(u"data/"_qs).toUtf8() + "\r\nall.txt\r\n\r\n\r\n");
  EXPECT_EQ(run({u"find"_qs, u"--count"_qs, u"song"_qs}).output, u"1\n"_qs);
}

TEST_F(FindProgram, SecondSearchUsesTheCacheFileOfTheFirst) {
  const QString listing = sample();
  EXPECT_EQ(run({u"find"_qs, u"--count"_qs, u"rock"_qs, listing}).output, u"2\n"_qs);
  const Ended listed = run({u"cache"_qs});
  EXPECT_EQ(listed.status, 0);
  EXPECT_TRUE(listed.output.endsWith(u'\t' + listing + u'\n')) << listed.output.toStdString();
  EXPECT_EQ(run({u"find"_qs, u"--count"_qs, u"rock"_qs, listing}).output, u"2\n"_qs);
}

TEST_F(FindProgram, NoCacheNeitherReadsNorWritesCacheFiles) {
  const QString listing = sample();
  EXPECT_EQ(run({u"find"_qs, u"--no-cache"_qs, u"--count"_qs, u"rock"_qs, listing}).output, u"2\n"_qs);
  EXPECT_FALSE(folder_.has(u"cache"_qs));
  run({u"find"_qs, u"--count"_qs, u"rock"_qs, listing});
  const QString file = folder_.pathOf(u"cache/quorvin/"_qs) +
                       QDir(folder_.pathOf(u"cache/quorvin"_qs)).entryList(QDir::Files).value(0);
  ASSERT_TRUE(QFile::remove(file));
  EXPECT_EQ(run({u"find"_qs, u"--no-cache"_qs, u"--count"_qs, u"rock"_qs, listing}).output, u"2\n"_qs);
  EXPECT_FALSE(QFile::exists(file));
}

TEST_F(FindProgram, CountTellsOfHitsThatCannotBeReadWholeToo) {
  const QString listing = folder_.writeFile(u"cd.lst"_qs, test::entryLine("song", "n/a"));
  // The second run counts in the cache file.
  for (int round = 1; round <= 2; ++round) {
    const Ended ended = run({u"find"_qs, u"--count"_qs, u"song"_qs, listing});
    EXPECT_EQ(ended.output, u"1\n"_qs);
    EXPECT_TRUE(ended.errors.contains(u": 1 line(s), the first is line 1"_qs)) << ended.errors.toStdString();
  }
}

TEST_F(FindProgram, ClearRemovesTheCacheFiles) {
  run({u"find"_qs, u"--count"_qs, u"rock"_qs, sample()});
  // As a program leaves it that is ended while it writes.
  folder_.writeFile(u"cache/quorvin/.quorvin-1-0123456789abcdef.part"_qs, "begun");
  EXPECT_TRUE(run({u"cache"_qs}).output.endsWith(u"\n5\t(unfinished)\n"_qs));
  folder_.writeFile(u"cache/quorvin/0123456789abcdef.qimage"_qs, "of an earlier version");
  folder_.writeFile(u"cache/quorvin/0123456789abcdef.qsegments.7.new"_qs, "begun by one");
  EXPECT_TRUE(
      run({u"cache"_qs}).output.endsWith(u"\n21\t(of an earlier version)\n12\t(of an earlier version)\n"_qs));
  EXPECT_EQ(run({u"cache"_qs, u"--clear"_qs}).status, 0);
  EXPECT_EQ(run({u"cache"_qs}).output, QString());
  EXPECT_TRUE(QDir(folder_.pathOf(u"cache/quorvin"_qs))
                  .isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
}

TEST_F(FindProgram, NothingIsAnOptionBehindTwoDashes) {
  const QString dashed = folder_.writeFile(
      u"-cd8.lst"_qs, test::blockHead("CD 8", "\\") + test::entryLine("-live --count.mp3", "131,072"));
  EXPECT_EQ(run({u"find"_qs, u"--count"_qs, u"--"_qs, u"-live"_qs, dashed}).output, u"1\n"_qs);
  EXPECT_EQ(run({u"find"_qs, u"--count"_qs, u"--"_qs, u"--count"_qs, u"-cd8.lst"_qs}).output, u"1\n"_qs);
  EXPECT_EQ(run({u"find"_qs, u"--count"_qs, u"live"_qs, u"--"_qs, u"-cd8.lst"_qs}).output, u"1\n"_qs);
  EXPECT_EQ(run({u"find"_qs, u"--count"_qs, u"--"_qs, u"--"_qs, dashed}).output, u"1\n"_qs);
  const Ended unknown = run({u"find"_qs, u"--quick"_qs, u"--"_qs, u"live"_qs, dashed});
  EXPECT_EQ(unknown.status, 2);
  EXPECT_TRUE(unknown.errors.startsWith(u"quorvin-cli: find has no option \"--quick\"; "_qs));
  EXPECT_EQ(run({u"cache"_qs, u"--"_qs}).status, 0);
}

TEST_F(FindProgram, WrongUseIsToldInASentenceAndEndsWith2) {
  const QString manyWords = u"w"_qs + u" w"_qs.repeated(101);
  const std::vector<std::pair<QStringList, QString>> cases = {
      {{},
       u"there is no command; the commands are find, copies, compare, plan, volumes, index, verify, import, refresh, sources, history and cache"_qs},
      {{u"seek"_qs, u"a"_qs},
       u"there is no command \"seek\"; the commands are find, copies, compare, plan, volumes, index, verify, import, refresh, sources, history and cache"_qs},
      {{u"--quick"_qs, u"find"_qs, u"a"_qs}, u"there is no option \"--quick\""_qs},
      {{u"find"_qs}, u"find needs the words to find, in one argument"_qs},
      {{u"find"_qs, u"--quick"_qs, u"a"_qs},
       u"find has no option \"--quick\"; words that start with a dash go behind --"_qs},
      {{u"find"_qs, u"a"_qs, u"--match"_qs}, u"--match needs a value"_qs},
      {{u"find"_qs, u"--format"_qs, u"xml"_qs, u"a"_qs},
       u"there is no format \"xml\"; the formats are tsv, csv and json"_qs},
      {{u"find"_qs, u"--match"_qs, u"abc"_qs, u"a"_qs},
       u"the value of --match is a percentage from 1 to 100, not \"abc\""_qs},
      {{u"find"_qs, u"--match"_qs, u""_qs, u"a"_qs},
       u"the value of --match is a percentage from 1 to 100, not \"\""_qs},
      {{u"find"_qs, u""_qs}, u"the search text is empty"_qs},
      {{u"find"_qs, manyWords}, u"the search text has more than 101 words"_qs},
      {{u"find"_qs, u"--match"_qs, u"100%"_qs, u"a"_qs},
       u"the value of --match comes without \"%\". Hits must match more than it: --match 99 finds what has "
       u"all "
       "the words"_qs},
      {{u"find"_qs, u"--fields"_qs, u"name,colour"_qs, u"a"_qs},
       u"there is no field \"colour\"; the fields are match, volume, folder, name, path, size, modified, "
       "listing, words"_qs},
      {{u"find"_qs, u"--limit"_qs, u"few"_qs, u"a"_qs},
       u"the value of --limit is a number of hits, not \"few\""_qs},
      {{u"find"_qs, u"--sort"_qs, u"path"_qs, u"a"_qs},
       u"hits cannot be sorted by \"path\", only by match, volume, folder, name, size or modified"_qs},
      {{u"find"_qs, u"--reverse"_qs, u"a"_qs}, u"--reverse goes with --sort"_qs},
      {{u"find"_qs, u"--color"_qs, u"red"_qs, u"a"_qs},
       u"the value of --color is auto, always or never, not \"red\""_qs},
      {{u"--completion"_qs, u"tcsh"_qs},
       u"there is no completion for \"tcsh\"; the shells are bash, zsh and fish"_qs},
      {{u"history"_qs, u"a"_qs, u"b"_qs}, u"history does not know what to do with \"b\""_qs},
      {{u"index"_qs}, u"index needs the folder to list"_qs},
      {{u"cache"_qs, u"all"_qs}, u"cache does not know what to do with \"all\""_qs},
  };
  for (const auto& [arguments, sentence] : cases) {
    const Ended ended = run(arguments);
    EXPECT_EQ(ended.status, 2) << arguments.join(u' ').toStdString();
    EXPECT_EQ(ended.output, QString());
    EXPECT_EQ(ended.errors.section(u'\n', 0, 0), u"quorvin-cli: "_qs + sentence);
  }
}

TEST_F(FindProgram, WithoutAnySourceItSaysSoAndEndsWith2) {
  const Ended ended = run({u"find"_qs, u"song"_qs});
  EXPECT_EQ(ended.errors,
            u"quorvin-cli: there is nothing to search yet. Name listings after the words, or add folders or "
            "lists with quorvin-cli sources add\n"_qs);
  EXPECT_EQ(ended.status, 2);
}

TEST_F(FindProgram, FormatsAreKnownInCapitalsToo) {
  EXPECT_EQ(run({u"find"_qs, u"--format"_qs, u"CSV"_qs, u"cover"_qs, sample()}).output,
            u"100%,CD 7,\\Music\\Rock\\,Cover.jpg,2.00mb,\"Jan, 15 04\"\n"_qs);
}

TEST_F(FindProgram, OutputThatCannotBeWrittenEndsWith2) {
  process_.setStandardOutputFile(u"/dev/full"_qs);
  const QString listing = sample();
  for (const QStringList& arguments :
       {QStringList{u"--help"_qs}, QStringList{u"--version"_qs}, QStringList{u"find"_qs, u"--help"_qs},
        QStringList{u"find"_qs, u"rock"_qs, listing},
        QStringList{u"find"_qs, u"--count"_qs, u"rock"_qs, listing}, QStringList{u"cache"_qs}}) {
    const Ended ended = run(arguments);
    EXPECT_EQ(ended.status, 2) << arguments.join(u' ').toStdString();
    EXPECT_TRUE(ended.errors.contains(u" could not "_qs)) << ended.errors.toStdString();
  }
}

// The sanitizer's own memory does not fit into any such limit.
#ifndef __SANITIZE_ADDRESS__
TEST_F(FindProgram, WithTooLittleMemoryItSaysSoAndLeavesNothingBehind) {
  folder_.writeFile(u"big.lst"_qs, QByteArray("song of a long evening\r\n").repeated(1'500'000));
  int without = 0;
  for (std::size_t megabytes = 50; without < 3 && megabytes < 400; megabytes += 10) {
    process_.setChildProcessModifier([megabytes] {
      const rlimit limit{megabytes << 20, megabytes << 20};
      ::setrlimit(RLIMIT_AS, &limit);
    });
    const Ended ended = run({u"find"_qs, u"--count"_qs, u"song"_qs, u"big.lst"_qs});
    EXPECT_TRUE(QDir(folder_.pathOf(u"cache/quorvin"_qs))
                    .entryList({u"*.part"_qs}, QDir::Files | QDir::Hidden)
                    .isEmpty());
    // With less yet, the program cannot even be loaded.
    if (process_.exitStatus() == QProcess::NormalExit && ended.status == 127) continue;
    ASSERT_EQ(process_.exitStatus(), QProcess::NormalExit)
        << megabytes << " MB: " << ended.errors.toStdString();
    if (ended.status == 0) break;
    ++without;
    EXPECT_EQ(ended.status, 2) << megabytes << " MB";
    EXPECT_TRUE(ended.errors.contains(u"not enough memory"_qs)) << ended.errors.toStdString();
  }
  EXPECT_GT(without, 0);
}
#endif

TEST_F(FindProgram, APipeInThePlaceOfACacheFileIsPassedOver) {
  const QString listing = sample();
  run({u"find"_qs, u"--count"_qs, u"rock"_qs, listing});
  const QDir cache(folder_.pathOf(u"cache/quorvin"_qs));
  const QString file = cache.filePath(cache.entryList(QDir::Files).value(0));
  ASSERT_TRUE(QFile::remove(file));
  ASSERT_EQ(::mkfifo(QFile::encodeName(file).constData(), 0600), 0);
  EXPECT_EQ(run({u"cache"_qs}).status, 0);
  EXPECT_EQ(run({u"find"_qs, u"--count"_qs, u"rock"_qs, listing}).output, u"2\n"_qs);
}

TEST_F(FindProgram, HelpAndVersionEndWith0) {
  EXPECT_EQ(run({u"--version"_qs}).output, u"quorvin-cli 2.5.64\n"_qs);
  const Ended help = run({u"--help"_qs});
  EXPECT_EQ(help.status, 0);
  EXPECT_TRUE(help.output.contains(u"find"_qs));
  const Ended findHelp = run({u"find"_qs, u"--help"_qs});
  EXPECT_EQ(findHelp.status, 0);
  for (const char16_t* option : {u"--match", u"--format", u"--count", u"--no-cache", u"TEXT", u"LISTING"}) {
    EXPECT_TRUE(findHelp.output.contains(QString::fromUtf16(option))) << findHelp.output.toStdString();
  }
  // As a person would write it: no types, no marks of the parser.
  for (const char16_t* mark : {u"REQUIRED", u"TEXT TEXT", u"TEXT ...", u"OPTIONS"}) {
    EXPECT_FALSE(findHelp.output.contains(QString::fromUtf16(mark))) << findHelp.output.toStdString();
  }
}

/// A search that is under way when a signal arrives.
class FindProgramInterrupted : public FindProgram {
 protected:
  /// Starts it and returns once the listings are being read, so that the signal is watched for.
  void start(const QStringList& options = {}) {
    const QString listing =
        folder_.writeFile(u"big.lst"_qs, QByteArray("song of a long evening\r\n").repeated(400000));
    process_.setArguments(QStringList{u"find"_qs} + options + QStringList{u"song"_qs} +
                          QStringList(6, listing));
    process_.setStandardOutputFile(folder_.pathOf(u"rows"_qs));
    process_.start();
    ASSERT_TRUE(process_.waitForStarted());
    while (process_.state() == QProcess::Running) {
      QFile io(u"/proc/%1/io"_qs.arg(process_.processId()));
      if (io.open(QIODevice::ReadOnly) && io.readAll().split('\n')[0].mid(7).toLongLong() > 5000000) return;
    }
  }

  Ended endBy(int signalNumber) {
    ::kill(static_cast<pid_t>(process_.processId()), signalNumber);
    EXPECT_TRUE(process_.waitForFinished(60000));
    EXPECT_EQ(process_.exitStatus(), QProcess::NormalExit);
    return {process_.exitCode(), QString::fromUtf8(folder_.readFile(u"rows"_qs)),
            QString::fromUtf8(process_.readAllStandardError())};
  }

  void expectPart(const Ended& ended, int status) {
    EXPECT_EQ(ended.status, status);
    const qsizetype rows = ended.output.count(u'\n');
    EXPECT_LT(rows, 2'400'000);
    EXPECT_EQ(ended.output, u"100%\t\t\tsong of a long evening\t0.00mb\tDec, 30 99\n"_qs.repeated(rows));
    EXPECT_EQ(ended.errors, u"%1 found, %1 searched\n"_qs.arg(rows));
  }
};

TEST_F(FindProgramInterrupted, AnInterruptEndsItWith130AfterWholeRows) {
  ASSERT_NO_FATAL_FAILURE(start());
  expectPart(endBy(SIGINT), 130);
}

TEST_F(FindProgramInterrupted, ATerminationEndsItWith143AfterWholeRows) {
  ASSERT_NO_FATAL_FAILURE(start());
  expectPart(endBy(SIGTERM), 143);
}

TEST_F(FindProgramInterrupted, AnInterruptThatIsIgnoredStaysIgnored) {
  process_.setChildProcessModifier([] { std::signal(SIGINT, SIG_IGN); });
  ASSERT_NO_FATAL_FAILURE(start({u"--count"_qs}));
  const Ended ended = endBy(SIGINT);
  EXPECT_EQ(ended.status, 0);
  EXPECT_EQ(ended.errors, u"2400000 found, 2400000 searched\n"_qs);
}

}  // namespace
}  // namespace quorvin
