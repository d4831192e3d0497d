// SPDX-License-Identifier: GPL-2.0-or-later

// "plan" as a user runs it.
#include "console/console_program.h"
#include "support/listing_lines.h"
#include "support/qt_printing.h"

#include <QFile>

#include <sys/stat.h>

namespace quorvin {
namespace {

using test::blockHead;
using test::entryLine;

class PlanProgram : public test::ConsoleProgramTest {
 protected:
  PlanProgram() {
    folder.writeFile(u"cd1.txt"_qs,
                     blockHead("CD 1", "\\media\\cdrom\\Films\\") + entryLine("film.avi", "734,003,200") +
                         entryLine("notes.txt", "2,048") + blockHead("CD 1", "\\media\\cdrom\\Music\\") +
                         entryLine("song.mp3", "3,145,728"));
    folder.writeFile(u"cd2.txt"_qs, blockHead("CD 2", "\\Films\\") + entryLine("Film.avi", "734,003,200") +
                                        entryLine("second.avi", "524,288") + blockHead("CD 2", "\\Copies\\") +
                                        entryLine("SONG.mp3", "3,145,728"));
    folder.writeFile(u"cd3.txt"_qs, blockHead("CD 3", "\\") + entryLine("film.avi", "734,003,200") +
                                        entryLine("notes.txt", "2,049") + "no size.avi\r\n");
  }

  test::Ended plan(const QStringList& arguments) {
    return run(QStringList{u"plan"_qs} + arguments +
               QStringList{u"cd1.txt"_qs, u"cd2.txt"_qs, u"cd3.txt"_qs});
  }

  test::Ended planOf(const QByteArray& list, const QStringList& options = {}) {
    start(QStringList{u"plan"_qs} + options +
          QStringList{u"-"_qs, u"cd1.txt"_qs, u"cd2.txt"_qs, u"cd3.txt"_qs});
    process.write(list);
    process.closeWriteChannel();
    return end();
  }

  static QString sums(const QString& volumes, const QString& files) {
    return u"Volumes to insert: %1. To copy: %2\nThere is no way with fewer volumes\n"_qs.arg(volumes, files);
  }
};

TEST_F(PlanProgram, ShowsEachVolumeWithWhatToCopyAndTheSums) {
  const test::Ended ended = plan({u"films"_qs});
  EXPECT_EQ(ended.output,
            "1. CD 1: 2 files, 700.00 MB\n"
            "  Listing: cd1.txt\n"
            "  \\media\\cdrom\\Films\\\n"
            "    film.avi, 700.00 MB\n"
            "    notes.txt, 2.00 kB\n"
            "2. CD 2: 1 file, 512.00 kB\n"
            "  Listing: cd2.txt\n"
            "  \\Films\\\n"
            "    second.avi, 512.00 kB\n"
            "Volumes to insert: 2. To copy: 3 files, 700.50 MB\n"
            "There is no way with fewer volumes\n");
  EXPECT_EQ(ended.errors, QString());
  EXPECT_EQ(ended.status, 0);
}

TEST_F(PlanProgram, ShowsTheSameFromKeptSegmentsAndWithoutAnyCache) {
  const test::Ended first = plan({u"films"_qs});
  EXPECT_EQ(plan({u"films"_qs}).output, first.output);
  EXPECT_EQ(plan({u"--no-cache"_qs, u"films"_qs}).output, first.output);
}

TEST_F(PlanProgram, ACopyOutsideOfTheHitsWillDo) {
  // CD 2 has the song in another folder, and is needed for the film.
  EXPECT_EQ(plan({u"--match"_qs, u"30"_qs, u"second music"_qs}).output,
            "1. CD 2: 2 files, 3.50 MB\n"
            "  Listing: cd2.txt\n"
            "  \\Films\\\n"
            "    second.avi, 512.00 kB\n"
            "  \\Copies\\\n"
            "    SONG.mp3, 3.00 MB\n"
            "Volumes to insert: 1. To copy: 2 files, 3.50 MB\n"
            "There is no way with fewer volumes\n");
}

TEST_F(PlanProgram, AListIsOfNamesOrJsonAndTellsWhatIsMissing) {
  const test::Ended ended = planOf(
      "{\"name\":\"notes.txt\",\"size\":2049}\r\n/old/place/SONG.MP3\r\n\r\nnowhere.txt\r\n"
      "{\"name\":\"film.avi\",\"size\":7}\r\n");
  EXPECT_EQ(ended.output,
            "1. CD 1: 1 file, 3.00 MB\n"
            "  Listing: cd1.txt\n"
            "  \\media\\cdrom\\Music\\\n"
            "    song.mp3, 3.00 MB\n"
            "2. CD 3: 1 file, 2.00 kB\n"
            "  Listing: cd3.txt\n"
            "  \\\n"
            "    notes.txt, 2.00 kB\n"
            "Not found:\n"
            "  film.avi, 7 bytes\n"
            "  nowhere.txt\n"
            "Volumes to insert: 2. To copy: 2 files, 3.00 MB\n"
            "There is no way with fewer volumes\n"
            "Not found: 2\n");
  EXPECT_EQ(ended.status, 0);
}

TEST_F(PlanProgram, ANameAloneMeansEveryFileOfThatName) {
  const test::Ended ended = planOf("notes.txt\n", {u"--format"_qs, u"json"_qs, u"-q"_qs});
  EXPECT_EQ(
      ended.output,
      "{\"kind\":\"volume\",\"order\":1,\"volume\":\"CD 1\",\"listing\":\"cd1.txt\","
      "\"top\":\"\\\\media\\\\cdrom\\\\\",\"files\":1,\"size\":2048}\n"
      "{\"kind\":\"file\",\"order\":1,\"volume\":\"CD 1\",\"folder\":\"\\\\media\\\\cdrom\\\\Films\\\\\","
      "\"name\":\"notes.txt\",\"size\":2048,\"listing\":\"cd1.txt\"}\n"
      "{\"kind\":\"volume\",\"order\":2,\"volume\":\"CD 3\",\"listing\":\"cd3.txt\","
      "\"top\":\"\\\\\",\"files\":1,\"size\":2049}\n"
      "{\"kind\":\"file\",\"order\":2,\"volume\":\"CD 3\",\"folder\":\"\\\\\","
      "\"name\":\"notes.txt\",\"size\":2049,\"listing\":\"cd3.txt\"}\n"
      "{\"kind\":\"sum\",\"volumes\":2,\"files\":2,\"size\":4097,\"missing\":0,\"fewest\":true}\n");
  EXPECT_EQ(ended.errors, QString());
}

TEST_F(PlanProgram, TheHitsOfFindAreAList) {
  const test::Ended hits = run({u"find"_qs, u"-q"_qs, u"--format"_qs, u"json"_qs, u"--match"_qs, u"99"_qs,
                                u"second"_qs, u"cd2.txt"_qs});
  EXPECT_EQ(planOf(hits.output).output,
            "1. CD 2: 1 file, 512.00 kB\n"
            "  Listing: cd2.txt\n"
            "  \\Films\\\n"
            "    second.avi, 512.00 kB\n"
            "Volumes to insert: 1. To copy: 1 file, 512.00 kB\n"
            "There is no way with fewer volumes\n");
}

TEST_F(PlanProgram, AFileWithoutASizeIsFetchedFromItsOwnPlace) {
  EXPECT_EQ(plan({u"--match"_qs, u"99"_qs, u"no size"_qs}).output,
            "1. CD 3: 1 file, 0 bytes\n"
            "  Listing: cd3.txt\n"
            "  \\\n"
            "    no size.avi\n"
            "Volumes to insert: 1. To copy: 1 file, 0 bytes\n"
            "There is no way with fewer volumes\n");
}

TEST_F(PlanProgram, MoreVolumesThanCanBeCombinedAreChosenGreedily) {
  // Each disk shares a file with the next.
  constexpr int kDisks = 25;
  QStringList arguments{u"plan"_qs, u"-q"_qs, u"shared"_qs};
  for (int disk = 0; disk < kDisks; ++disk) {
    const QString name = u"ring%1.txt"_qs.arg(disk);
    folder.writeFile(name, blockHead("R" + QByteArray::number(100 + disk), "\\") +
                               entryLine("shared" + QByteArray::number(disk)) +
                               entryLine("shared" + QByteArray::number((disk + 1) % kDisks)));
    arguments += name;
  }
  const test::Ended ended = run(arguments);
  EXPECT_TRUE(
      ended.output.contains("\nThere may be a way with fewer volumes: more than 20 have files in common, "
                            "so each next one was chosen greedily, for having most of what was left\n"))
      << ended.output.constData();
  EXPECT_EQ(ended.status, 0);
}

TEST_F(PlanProgram, NothingFoundIsStatusOneAndNoPlan) {
  const test::Ended ended = plan({u"nothing like that"_qs});
  EXPECT_EQ(ended.output, "");
  EXPECT_EQ(ended.errors, sums(u"0"_qs, u"0 files, 0 bytes"_qs));
  EXPECT_EQ(ended.status, 1);
  EXPECT_EQ(planOf("nowhere\n").status, 1);
  EXPECT_EQ(planOf("").status, 1);
}

TEST_F(PlanProgram, AMissingListingIsToldOnceAndTheOthersArePlanned) {
  const test::Ended ended = run({u"plan"_qs, u"-q"_qs, u"second"_qs, u"cd2.txt"_qs, u"gone.txt"_qs});
  EXPECT_EQ(ended.errors, u"quorvin-cli: Listing file not found: gone.txt\n"_qs);
  EXPECT_TRUE(ended.output.startsWith("1. CD 2"));
  EXPECT_EQ(ended.status, 2);
}

TEST_F(PlanProgram, WithWordsAPipeIsRefusedAndWithAListItIsRead) {
  const QString pipe = folder.pathOf(u"pipe"_qs);
  ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
  const test::Ended refused = run({u"plan"_qs, u"film"_qs, pipe});
  EXPECT_EQ(
      refused.errors,
      u"quorvin-cli: %1 can be read once only, and a plan for words needs to read it twice\n"_qs.arg(pipe));
  EXPECT_EQ(refused.status, 2);
  const test::Ended both = run({u"plan"_qs, u"-"_qs, u"-"_qs});
  EXPECT_EQ(both.errors, u"quorvin-cli: standard input can be the list or a listing, not both\n"_qs);
  EXPECT_EQ(both.status, 2);

  const QString list = folder.writeFile(u"list.txt"_qs, "second.avi\n");
  process.setStandardInputFile(list);
  start({u"plan"_qs, u"-q"_qs, u"-"_qs, pipe});
  QFile writer(pipe);
  ASSERT_TRUE(writer.open(QIODevice::WriteOnly));
  writer.write(folder.readFile(u"cd2.txt"_qs));
  writer.close();
  EXPECT_TRUE(end().output.startsWith("1. CD 2: 1 file"));
}

TEST_F(PlanProgram, OptionsThatContradictAreRefused) {
  EXPECT_EQ(plan({u"--script"_qs, u"film"_qs}).status, 2);
  EXPECT_EQ(plan({u"--to"_qs, u"there"_qs, u"film"_qs}).status, 2);
  EXPECT_EQ(plan({u"--script"_qs, u"--to"_qs, u"there"_qs, u"--format"_qs, u"json"_qs, u"film"_qs}).status,
            2);
  EXPECT_EQ(plan({u"--format"_qs, u"csv"_qs, u"film"_qs}).status, 2);
  EXPECT_EQ(plan({u"--match"_qs, u"many"_qs, u"film"_qs}).status, 2);
  EXPECT_EQ(run({u"plan"_qs}).errors.section(u'\n', 0, 0),
            u"quorvin-cli: plan needs the words to find, in one argument, or - for a list"_qs);
}

TEST_F(PlanProgram, AnInterruptEndsTheReadingOfAList) {
  start({u"plan"_qs, u"-"_qs, u"cd1.txt"_qs});
  process.write("film.avi\n");
  ASSERT_TRUE(process.waitForBytesWritten(60000));
  // The program is waiting for more of the list, or about to.
  process.waitForFinished(300);
  ASSERT_EQ(::kill(static_cast<pid_t>(process.processId()), SIGINT), 0);
  EXPECT_EQ(end().status, 130);
}

TEST_F(PlanProgram, NamesDoNotCommandTheTerminal) {
  folder.writeFile(u"evil.txt"_qs, blockHead("E\x1b[2J", "\\a\x1b\\") + entryLine("evil\x1b]0;x\x07.txt"));
  const test::Ended ended = run({u"plan"_qs, u"evil"_qs, u"evil.txt"_qs});
  EXPECT_FALSE(ended.output.contains('\x1b'));
  EXPECT_TRUE(ended.output.contains("evil ]0;x .txt"));
}

}  // namespace
}  // namespace quorvin
