// SPDX-License-Identifier: GPL-2.0-or-later

// "quorvin-cli import" as a user runs it, with lists that the real programs make of a real tree.
#include "console/console_program.h"
#include "support/plain_walker.h"
#include "support/qt_printing.h"

#include <fcntl.h>
#include <map>
#include <set>
#include <sys/stat.h>
#include <unistd.h>

namespace quorvin {
namespace {

/// What a program does not tell, so that it is left out on both sides of a comparison.
struct NotTold {
  bool sizes = false;
  bool dates = false;
  bool seconds = false;
  bool times = false;
  bool emptyFolders = false;
};

struct Facts {
  std::string size;
  std::string date;

  bool operator==(const Facts&) const = default;
};

void PrintTo(const Facts& facts, std::ostream* out) {
  *out << facts.size << ", " << facts.date;
}

/// What a listing says.
struct Told {
  std::set<std::string> folders;
  std::map<std::string, Facts> files;
};

Told toldBy(const QByteArray& listing, const std::string& label, NotTold notTold) {
  Told told;
  for (const auto& [path, block] : test::blocksOf(listing, label)) {
    for (const std::string& name : block.subFolders) told.folders.insert(path + name);
    for (const std::string& line : block.entries) {
      const QString text = QString::fromStdString(line);
      QString date = text.mid(88).trimmed();
      const bool isKnown = date != u"00:00:00"_qs;
      if (isKnown && notTold.seconds && date.size() > 12) date = date.chopped(2) + u"00"_qs;
      if (isKnown && notTold.times) date = date.left(11).trimmed();
      if (notTold.dates) date.clear();
      const QString size = notTold.sizes ? QString() : text.mid(65, 16).trimmed();
      QString name = text.left(65);
      while (name.endsWith(u' ')) name.chop(1);
      told.files[path + name.toStdString()] = {size.toStdString(), date.toStdString()};
    }
  }
  return told;
}

class ImportProgram : public test::ConsoleProgramTest {
 protected:
  ImportProgram() {
    QProcessEnvironment environment = process.processEnvironment();
    environment.insert(u"TZ"_qs, u"CET-1CEST,M3.5.0,M10.5.0/3"_qs);
    process.setProcessEnvironment(environment);
    folder.makeFolder(u"tree/a b/deeper"_qs);
    folder.makeFolder(u"tree/empty"_qs);
    add("one song.mp3", 1'234'567, 1'074'162'030);
    add("a b/two  blanks", 5, 1'080'435'599);
    add("a b/deeper/big", 5'000'000'000, 946'684'800);
    add("a b/deeper/old", 0, -86'401);
    add("\xC3\xBC\xE5\x86\x99.txt", 12, 1'100'513'999);
    add(std::string(80, 'x').c_str(), 1, 1'100'513'999);
  }

  void add(const char* name, std::int64_t size, std::int64_t modified) {
    const QByteArray path = folder.pathOf(u"tree/"_qs).toUtf8() + name;
    const int file = ::open(path.constData(), O_CREAT | O_WRONLY | O_CLOEXEC, 0644);
    ASSERT_GE(file, 0) << path.constData();
    const timespec times[2] = {{modified, 250'000'000}, {modified, 250'000'000}};
    EXPECT_EQ(::ftruncate(file, size), 0);
    EXPECT_EQ(::futimens(file, times), 0);
    ::close(file);
  }

  void addNaughtyNames() {
    for (const char* name :
         {" lead", "trail ", "tab\there", "quo\"te", "'", "back\\slash", "bad\xE4", "star*", "-dash",
          "a -> b", "colon:", "[x]", "100%", "(1)", "\x1B[2J", "#012", "\xC2\x85"}) {
      add(name, 7, 1'074'162'030);
    }
  }

  void addLineEnd() { add("new\nline", 7, 1'074'162'030); }

  /// Has a shell write a list in the tree.
  void list(const QString& command) {
    process.setProgram(u"sh"_qs);
    process.setWorkingDirectory(folder.pathOf(u"tree"_qs));
    const test::Ended ended = run({u"-c"_qs, command + u" > ../tree.lst"_qs});
    ASSERT_EQ(ended.status, 0) << ended.errors.toStdString();
    process.setWorkingDirectory(folder.path());
    process.setProgram(QStringLiteral(QUORVIN_CLI));
  }

  void expectEqualsTheIndex(const QString& command, const QStringList& options, NotTold notTold = {}) {
    list(command);
    const test::Ended ended = run(QStringList{u"import"_qs, u"--replace"_qs, u"--output"_qs, u"."_qs,
                                              u"--folder"_qs, folder.pathOf(u"tree"_qs), u"tree.lst"_qs} +
                                  options);
    EXPECT_EQ(ended.status, 0) << command.toStdString() << '\n' << ended.errors.toStdString();
    const QByteArray indexed = run({u"index"_qs, u"tree"_qs}).output;
    Told expected = toldBy(indexed, "tree", notTold);
    Told imported = toldBy(folder.readFile(u"tree.txt"_qs), "tree", notTold);
    if (notTold.emptyFolders) {
      std::erase_if(expected.folders, [](const std::string& path) { return path.ends_with("\\empty"); });
      std::erase_if(imported.files, [](const auto& file) { return file.first.ends_with("\\empty"); });
    }
    EXPECT_EQ(imported.folders, expected.folders) << command.toStdString();
    EXPECT_EQ(imported.files, expected.files) << command.toStdString() << '\n' << ended.errors.toStdString();
  }

  test::Ended import(const QStringList& arguments) {
    return run(QStringList{u"import"_qs, u"--output"_qs, u"."_qs} + arguments);
  }
};

TEST_F(ImportProgram, ListsOfLsEqualTheIndex) {
  addNaughtyNames();
  expectEqualsTheIndex(u"ls -lR --full-time"_qs, {u"--format"_qs, u"ls"_qs});
  expectEqualsTheIndex(u"ls -lR --time-style=+%s"_qs, {u"--format"_qs, u"ls"_qs});
  expectEqualsTheIndex(u"ls -lR"_qs, {u"--format"_qs, u"ls"_qs}, {.times = true});
  addLineEnd();
  expectEqualsTheIndex(u"ls -lRb --full-time"_qs, {});
  expectEqualsTheIndex(u"ls -lRQ --time-style=long-iso"_qs, {}, {.seconds = true});
}

TEST_F(ImportProgram, ListsOfFindEqualTheIndex) {
  addNaughtyNames();
  addLineEnd();
  expectEqualsTheIndex(u"find . -ls"_qs, {}, {.times = true});
  expectEqualsTheIndex(u"find \"$PWD\" -ls"_qs, {}, {.times = true});
  expectEqualsTheIndex(u"find . -printf '%y %s %T@ %p\\0'"_qs, {u"--pattern"_qs, u"%y %s %T@ %p\\0"_qs});
  expectEqualsTheIndex(u"find . -print0"_qs, {u"--format"_qs, u"paths"_qs},
                       {.sizes = true, .dates = true, .emptyFolders = true});
}

TEST_F(ImportProgram, ListsOfDuAndTreeEqualTheIndex) {
  expectEqualsTheIndex(u"tree -sDF --timefmt '%Y-%m-%d %H:%M:%S'"_qs, {});
  expectEqualsTheIndex(u"tree -sDFQ"_qs, {}, {.times = true});
  addNaughtyNames();
  addLineEnd();
  ASSERT_EQ(::rmdir(folder.pathOf(u"tree/empty"_qs).toUtf8().constData()), 0);
  expectEqualsTheIndex(u"du -ab0"_qs, {u"--bytes"_qs}, {.dates = true});
  expectEqualsTheIndex(u"du -a0 --time --time-style=full-iso"_qs, {}, {.sizes = true});
}

TEST_F(ImportProgram, ListsOfArchivesAndTransfersEqualTheIndex) {
  add("a b/deeper/big", 500'000, 946'684'800);
  // An archive of this kind has no dates before 1980.
  add("a b/deeper/old", 0, 315'965'159);
  expectEqualsTheIndex(u"zip -qr ../tree.zip . && unzip -l ../tree.zip"_qs, {}, {.seconds = true});
  expectEqualsTheIndex(u"unzip -v ../tree.zip"_qs, {}, {.seconds = true});
  addNaughtyNames();
  addLineEnd();
  expectEqualsTheIndex(u"tar -cf - . | tar -tvf - --full-time"_qs, {});
  expectEqualsTheIndex(u"tar -cf - . | tar -tvf -"_qs, {}, {.seconds = true});
  expectEqualsTheIndex(u"rsync --list-only -r ."_qs, {});
  expectEqualsTheIndex(u"TZ=Europe/Berlin rclone --config '' --log-level ERROR lsl ."_qs, {},
                       {.emptyFolders = true});
}

TEST_F(ImportProgram, ManifestsEqualTheIndex) {
  add("a b/deeper/big", 500'000, 946'684'800);
  addNaughtyNames();
  addLineEnd();
  const NotTold notTold{.sizes = true, .dates = true, .emptyFolders = true};
  expectEqualsTheIndex(u"find . -type f -exec md5sum {} +"_qs, {}, notTold);
  expectEqualsTheIndex(u"find . -type f -exec sha256sum --tag {} +"_qs, {}, notTold);
}

TEST_F(ImportProgram, TablesEqualTheIndex) {
  addNaughtyNames();
  addLineEnd();
  folder.writeFile(u"table.py"_qs,
                   "import csv, datetime, os, sys\n"
                   "out = open(1, 'w', encoding='utf-8', errors='surrogateescape', newline='')\n"
                   "table = csv.writer(out, delimiter=sys.argv[1])\n"
                   "table.writerow(['Path', 'Type', 'Size', 'Modified'])\n"
                   "for top, folders, files in os.walk('.'):\n"
                   "    for name in folders + files:\n"
                   "        path = os.path.join(top, name)\n"
                   "        facts = os.stat(path)\n"
                   "        kind = 'folder' if name in folders else 'file'\n"
                   "        date = datetime.datetime.fromtimestamp(facts.st_mtime_ns // 10**9)\n"
                   "        table.writerow([path, kind, facts.st_size, date])\n");
  expectEqualsTheIndex(u"python3 ../table.py ,"_qs, {});
  expectEqualsTheIndex(u"python3 ../table.py ';'"_qs, {});
}

TEST_F(ImportProgram, SaysWhatItReadAndWhatNot) {
  folder.writeFile(u"cd7.lst"_qs, ".:\ntotal 4\n-rw-r--r-- 1 a a 5 Jan 15  2004 x\nnoise\x1B[2J\n");
  const test::Ended ended = import({u"cd7.lst"_qs});
  EXPECT_EQ(ended.errors,
            u"cd7.lst: read as ls; ./cd7.txt has 1 files, 1 folders\n"
            "  lines that were not understood: 1\n    line 4: noise?[2J\n"_qs);
  EXPECT_EQ(ended.status, 2);
  EXPECT_EQ(ended.output, "");
  EXPECT_EQ(folder.readFile(u"cd7.txt"_qs), "\r\nVolume:    cd7\r\nDirectory: \\\r\n\r\n" +
                                                QByteArray("x").leftJustified(80) +
                                                "5 bytes 15 Jan 2004  \r\n");
}

TEST_F(ImportProgram, FilesWithoutSizeOrDateAreFoundWithThoseOfTheirOwn) {
  folder.writeFile(u"x.lst"_qs,
                   "path,size,date\n/a/one,5,\n/a/two,,2004-01-15\n/a/three,7,2004-01-15 10:20:30\n");
  EXPECT_EQ(import({u"x.lst"_qs}).status, 0);
  EXPECT_EQ(run({u"find"_qs, u"--no-cache"_qs, u"-q"_qs, u"--fields"_qs, u"name,size,modified"_qs, u"a"_qs,
                 u"x.txt"_qs})
                .output,
            "one\t5\t1899-12-30T00:00:00\nthree\t7\t2004-01-15T10:20:30\ntwo\t-1\t2004-01-15T00:00:00\n");
}

TEST_F(ImportProgram, AListingThatIsThereStays) {
  folder.writeFile(u"x.lst"_qs, "/a\n");
  folder.writeFile(u"x.txt"_qs, "/a\n");
  test::Ended ended = import({u"x.lst"_qs});
  EXPECT_EQ(ended.status, 2);
  EXPECT_EQ(ended.errors, u"quorvin-cli: ./x.txt is there already; nothing was imported of x.lst\n"_qs);
  EXPECT_EQ(folder.readFile(u"x.txt"_qs), "/a\n");
  // The list itself is never replaced.
  EXPECT_EQ(import({u"--replace"_qs, u"x.txt"_qs}).status, 2);
  EXPECT_EQ(folder.readFile(u"x.txt"_qs), "/a\n");
  EXPECT_EQ(import({u"--replace"_qs, u"x.lst"_qs}).status, 0);
  EXPECT_TRUE(folder.readFile(u"x.txt"_qs).contains("Volume:    x\r\n"));
}

TEST_F(ImportProgram, SeveralListsAndStandardInput) {
  folder.writeFile(u"one.lst"_qs, "/a\n");
  folder.writeFile(u"two.lst"_qs, "Dear Ann,\n");
  const test::Ended ended = import({u"-q"_qs, u"one.lst"_qs, u"two.lst"_qs, u"gone.lst"_qs});
  EXPECT_EQ(ended.status, 2);
  EXPECT_TRUE(ended.errors.startsWith(u"quorvin-cli: two.lst is no list of a known format; "_qs));
  EXPECT_TRUE(ended.errors.endsWith(u"\nquorvin-cli: File not found: gone.lst\n"_qs));
  EXPECT_TRUE(folder.has(u"one.txt"_qs));
  EXPECT_FALSE(folder.has(u"two.txt"_qs));
  start({u"import"_qs, u"-q"_qs, u"--output"_qs, u"."_qs, u"--label"_qs, u"CD 7"_qs, u"-"_qs});
  process.write("/a\n");
  process.closeWriteChannel();
  EXPECT_EQ(end().status, 0);
  EXPECT_TRUE(folder.readFile(u"CD 7.txt"_qs).contains("Volume:    CD 7\r\n"));
}

TEST_F(ImportProgram, WrongUseIsToldAndEndsWith2) {
  folder.writeFile(u"x.lst"_qs, "/a\n");
  EXPECT_EQ(run({u"import"_qs, u"x.lst"_qs}).errors,
            u"quorvin-cli: import needs --output, the folder for the listings\n"_qs);
  for (const QStringList& arguments :
       {QStringList{}, QStringList{u"-"_qs}, QStringList{u"--format"_qs, u"word"_qs, u"x.lst"_qs},
        QStringList{u"--dates"_qs, u"ymd"_qs, u"x.lst"_qs},
        QStringList{u"--made"_qs, u"today"_qs, u"x.lst"_qs},
        QStringList{u"--encoding"_qs, u"ebcdic"_qs, u"x.lst"_qs},
        QStringList{u"--pattern"_qs, u"%s"_qs, u"x.lst"_qs},
        QStringList{u"--columns"_qs, u"colour=1"_qs, u"x.lst"_qs},
        QStringList{u"--label"_qs, u"a"_qs, u"x.lst"_qs, u"x.lst"_qs}}) {
    const test::Ended ended = import(arguments);
    EXPECT_EQ(ended.status, 2) << arguments.join(u' ').toStdString();
    EXPECT_TRUE(ended.errors.startsWith(u"quorvin-cli: "_qs)) << ended.errors.toStdString();
  }
  EXPECT_FALSE(folder.has(u"x.txt"_qs));
}

TEST_F(ImportProgram, AnInterruptLeavesNothing) {
  start({u"import"_qs, u"--output"_qs, u"."_qs, u"--label"_qs, u"CD"_qs, u"-"_qs});
  process.write("/a\n");
  QDir here(folder.path());
  while (process.state() == QProcess::Running &&
         here.entryList({u".quorvin-*"_qs}, QDir::Files | QDir::Hidden).isEmpty()) {
    process.waitForFinished(1);
  }
  ::kill(static_cast<pid_t>(process.processId()), SIGINT);
  EXPECT_EQ(end().status, 130);
  EXPECT_TRUE(here.entryList({u".quorvin-*"_qs}, QDir::Files | QDir::Hidden).isEmpty());
  EXPECT_FALSE(folder.has(u"CD.txt"_qs));
}

}  // namespace
}  // namespace quorvin
