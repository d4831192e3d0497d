// SPDX-License-Identifier: GPL-2.0-or-later

// "volumes" as a user runs it.
#include "console/console_program.h"
#include "support/listing_lines.h"
#include "support/qt_printing.h"

#include <QFile>
#include <QRegularExpression>
#include <gmock/gmock.h>

#include <memory>
#include <vector>

namespace quorvin {
namespace {

using test::blockHead;
using test::entryLine;
using ::testing::HasSubstr;

class VolumesProgram : public test::ConsoleProgramTest {
 protected:
  VolumesProgram() {
    write(u"cd1.txt"_qs, blockHead("CD 1", "\\Films\\") + entryLine("film.avi", "734,003,200") +
                             entryLine("notes.txt", "2,048", "31 Mar 2005 08:00:00"));
    write(u"cds.txt"_qs, blockHead("CD 2", "\\Films\\") + entryLine("harbour.avi", "1,572,864") +
                             blockHead("CD\t3 \"old\"", "\\") + "no size.txt\r\n");
  }

  /// A listing that was written at noon on 31 March 1990.
  void write(const QString& name, const QByteArray& text) {
    QFile file(folder.writeFile(name, text));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.setFileTime(QDateTime(QDate(1990, 3, 31), QTime(12, 0), Qt::UTC),
                                 QFileDevice::FileModificationTime));
  }

  test::Ended volumes(const QStringList& arguments) {
    return run(QStringList{u"volumes"_qs} + arguments + QStringList{u"cd1.txt"_qs, u"cds.txt"_qs});
  }

  /// The table without how long ago the listings were written, which changes from year to year.
  static std::string withoutAge(const QByteArray& table) {
    QString text = QString::fromUtf8(table);
    text.replace(QRegularExpression(u" [0-9]+ years ago"_qs), u" AGO"_qs);
    text.replace(u"       Listed"_qs, u" LISTED"_qs);
    return text.toStdString();
  }

  QByteArray notes() const { return folder.readFile(u"home/quorvin/volumes.notes"_qs); }
};

TEST_F(VolumesProgram, ShowsWhatIsKnownOfEachVolumeAndTheSum) {
  const test::Ended ended = volumes({u""_qs});
  EXPECT_EQ(withoutAge(ended.output),
            "Files       Size       Newest  LISTED  Free  Volume\n"
            "    2  700.00 MB  31 Mar 2005  AGO        CD 1\n"
            "    1    1.50 MB  15 Jan 2004  AGO        CD 2\n"
            "    1    0 bytes               AGO        CD 3 \"old\"\n");
  EXPECT_EQ(ended.errors, u"3 volumes: 4 files, 701.50 MB\n"_qs);
  EXPECT_EQ(ended.status, 0);
}

TEST_F(VolumesProgram, SortsByWhatIsAskedForAndWhatIsNotKnownComesLast) {
  const auto names = [&](const QStringList& options) {
    QStringList names;
    for (const QString& line :
         QString::fromUtf8(volumes(options + QStringList{u""_qs}).output).split(u'\n')) {
      if (line.contains(u"ago"_qs)) names += line.section(u"  "_qs, -1).left(4);
    }
    return names;
  };
  EXPECT_EQ(names({u"--sort"_qs, u"size"_qs}), (QStringList{u"CD 3"_qs, u"CD 2"_qs, u"CD 1"_qs}));
  EXPECT_EQ(names({u"--sort"_qs, u"newest"_qs, u"--reverse"_qs}),
            (QStringList{u"CD 1"_qs, u"CD 2"_qs, u"CD 3"_qs}));
  EXPECT_EQ(names({u"--sort"_qs, u"newest"_qs}), (QStringList{u"CD 2"_qs, u"CD 1"_qs, u"CD 3"_qs}));
}

TEST_F(VolumesProgram, JsonHasAnObjectForEachVolume) {
  EXPECT_EQ(
      volumes({u"--json"_qs, u"-q"_qs, u""_qs}).output,
      "{\"volume\":\"CD 1\",\"listing\":\"cd1.txt\",\"kind\":\"offline\",\"entries\":2,\"withoutSize\":0,"
      "\"size\":734005248,\"newest\":\"2005-03-31T08:00:00\",\"newestFolder\":\"\\\\Films\\\\\","
      "\"newestName\":\"notes.txt\",\"listed\":\"1990-03-31T12:00:00\"}\n"
      "{\"volume\":\"CD 2\",\"listing\":\"cds.txt\",\"kind\":\"offline\",\"entries\":1,\"withoutSize\":0,"
      "\"size\":1572864,\"newest\":\"2004-01-15T10:20:30\",\"newestFolder\":\"\\\\Films\\\\\","
      "\"newestName\":\"harbour.avi\",\"listed\":\"1990-03-31T12:00:00\"}\n"
      "{\"volume\":\"CD\\u00093 \\\"old\\\"\",\"listing\":\"cds.txt\",\"kind\":\"offline\",\"entries\":1,"
      "\"withoutSize\":1,\"size\":0,\"listed\":\"1990-03-31T12:00:00\"}\n");
}

TEST_F(VolumesProgram, WordsCountWhatASearchFinds) {
  const test::Ended ended = volumes({u"--match"_qs, u"99"_qs, u"films avi"_qs});
  EXPECT_EQ(ended.errors, u"2 volumes: 2 files, 701.50 MB\n"_qs);
  const test::Ended none = volumes({u"nowhere"_qs});
  EXPECT_EQ(none.output, "");
  EXPECT_EQ(none.errors, u"0 volumes: 0 files, 0 bytes\n"_qs);
  EXPECT_EQ(none.status, 1);
}

TEST_F(VolumesProgram, QuietWritesNothingBesides) {
  const test::Ended ended = volumes({u"--quiet"_qs, u""_qs});
  EXPECT_EQ(ended.errors, QString());
  EXPECT_FALSE(ended.output.isEmpty());
}

TEST_F(VolumesProgram, TheSourcesAreThoseOfTheUserAndFreeSpaceIsToldWhereTheyAre) {
  folder.writeFile(u"Music/song.mp3"_qs, "12345");
  EXPECT_EQ(run({u"sources"_qs, u"add"_qs, u"Music"_qs}).status, 0);
  EXPECT_EQ(run({u"refresh"_qs, u"-q"_qs}).status, 0);
  const test::Ended there = run({u"volumes"_qs, u"--json"_qs});
  EXPECT_THAT(there.output.toStdString(), HasSubstr("\"volume\":\"Music\""));
  EXPECT_THAT(there.output.toStdString(), HasSubstr("\"kind\":\"folder\",\"entries\":1"));
  EXPECT_THAT(there.output.toStdString(), HasSubstr("\"free\":"));
  ASSERT_TRUE(QDir(folder.pathOf(u"Music"_qs)).removeRecursively());
  const test::Ended gone = run({u"volumes"_qs, u"--json"_qs});
  EXPECT_THAT(gone.output.toStdString(), HasSubstr("\"path\":\""));
  EXPECT_THAT(gone.output.toStdString(), testing::Not(HasSubstr("\"free\":")));
}

TEST_F(VolumesProgram, ANoteIsShownUntilItIsTakenAway) {
  const test::Ended noted = volumes({u"--note"_qs, u"blue box,\nshelf \"3\""_qs, u"CD 1"_qs});
  EXPECT_EQ(noted.output, "");
  EXPECT_EQ(noted.errors, QString());
  EXPECT_EQ(noted.status, 0);
  EXPECT_THAT(volumes({u""_qs}).output.toStdString(), HasSubstr("  CD 1: blue box, shelf \"3\"\n"));
  EXPECT_THAT(volumes({u"--json"_qs, u""_qs}).output.toStdString(),
              HasSubstr(",\"note\":\"blue box, shelf \\\"3\\\"\"}\n"));
  EXPECT_EQ(volumes({u"--note"_qs, u""_qs, u"CD 1"_qs}).status, 0);
  EXPECT_THAT(volumes({u""_qs}).output.toStdString(), HasSubstr("  CD 1\n"));
}

TEST_F(VolumesProgram, ANameThatIsHardToWriteCanBeNotedAsWell) {
  EXPECT_EQ(volumes({u"--note"_qs, u"x"_qs, u"CD\t3 \"old\""_qs}).status, 0);
  EXPECT_THAT(notes().toStdString(), HasSubstr("/cds.txt\tCD\\t3 \"old\"\tx\n"));
  EXPECT_THAT(volumes({u""_qs}).output.toStdString(), HasSubstr("CD 3 \"old\": x\n"));
}

TEST_F(VolumesProgram, ANoteNeedsOneVolume) {
  const test::Ended unknown = volumes({u"--note"_qs, u"x"_qs, u"CD 9"_qs});
  EXPECT_EQ(unknown.errors,
            u"quorvin-cli: there is no volume \"CD 9\"; quorvin-cli volumes shows those that there are\n"_qs);
  EXPECT_EQ(unknown.status, 2);
  write(u"copy.txt"_qs, blockHead("CD 1", "\\") + entryLine("a"));
  const test::Ended several =
      run({u"volumes"_qs, u"--note"_qs, u"x"_qs, u"CD 1"_qs, u"cd1.txt"_qs, u"copy.txt"_qs});
  EXPECT_EQ(several.errors,
            u"quorvin-cli: several listings have a volume \"CD 1\"; name one of them behind it: cd1.txt, "
            "copy.txt\n"_qs);
  EXPECT_EQ(several.status, 2);
  EXPECT_FALSE(folder.has(u"home/quorvin/volumes.notes"_qs));
  EXPECT_EQ(run({u"volumes"_qs, u"--note"_qs, u"x"_qs, u"CD 1"_qs, u"copy.txt"_qs}).status, 0);
  EXPECT_THAT(notes().toStdString(), HasSubstr("/copy.txt\tCD 1\tx\n"));
}

TEST_F(VolumesProgram, MistakesAreTold) {
  const auto errorOf = [&](const QStringList& arguments) {
    const test::Ended ended = run(QStringList{u"volumes"_qs} + arguments);
    EXPECT_EQ(ended.status, 2);
    return ended.errors.section(u'\n', 0, 0);
  };
  EXPECT_EQ(errorOf({u"--note"_qs, u"x"_qs}), u"quorvin-cli: --note goes with the name of a volume"_qs);
  EXPECT_EQ(errorOf({u"--reverse"_qs}), u"quorvin-cli: --reverse goes with --sort"_qs);
  EXPECT_EQ(
      errorOf({u"--sort"_qs, u"colour"_qs}),
      u"quorvin-cli: volumes cannot be sorted by \"colour\", only by volume, files, size, newest, listed, "
      "free or note"_qs);
  EXPECT_EQ(errorOf({u"--note"_qs, QString(1001, u'x'), u"CD 1"_qs, u"cd1.txt"_qs}),
            u"quorvin-cli: A note has at most 1000 characters"_qs);
  EXPECT_EQ(errorOf({u""_qs, u"missing.txt"_qs}).left(13), u"quorvin-cli: "_qs);
}

TEST_F(VolumesProgram, ManyNotesAtOnceAreAllKept) {
  constexpr int kWriters = 8;
  QByteArray listing;
  for (int i = 0; i < kWriters; ++i) listing += blockHead("V" + QByteArray::number(i), "\\") + entryLine("a");
  write(u"many.txt"_qs, listing);
  std::vector<std::unique_ptr<QProcess>> writers;
  for (int i = 0; i < kWriters; ++i) {
    writers.push_back(std::make_unique<QProcess>());
    writers.back()->setProcessEnvironment(process.processEnvironment());
    writers.back()->setWorkingDirectory(folder.path());
    writers.back()->start(process.program(), {u"volumes"_qs, u"--note"_qs, u"of %1"_qs.arg(i),
                                              u"V%1"_qs.arg(i), u"many.txt"_qs});
  }
  for (const auto& writer : writers) {
    ASSERT_TRUE(writer->waitForFinished(60000));
    EXPECT_EQ(writer->exitCode(), 0) << writer->readAllStandardError().toStdString();
  }
  for (int i = 0; i < kWriters; ++i) {
    EXPECT_THAT(notes().toStdString(), HasSubstr(u"\tV%1\tof %1\n"_qs.arg(i).toStdString()));
  }
}

}  // namespace
}  // namespace quorvin
