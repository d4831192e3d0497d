// SPDX-License-Identifier: GPL-2.0-or-later

// Names that other programs stumble over, catalogued, found in each format, and read back by a plain parser.
#include "console/console_program.h"
#include "support/qt_printing.h"

#include <QFile>

#include <string>
#include <vector>

namespace quorvin {
namespace {

struct Name {
  std::string onDisk;
  /// What a listing has of it.
  std::string listed;
};

Name same(const char* name) {
  return {name, name};
}

std::vector<Name> naughtyNames() {
  std::vector<Name> names{{"trailing ", "trailing"},
                          {"new\nline", "new?line"},
                          {"carriage\rreturn", "carriage?return"},
                          {"back\\slash", "back?slash"},
                          {"no utf8 \xE4", "no utf8 ?"},
                          {"surrogate \xED\xA0\x80", "surrogate ???"},
                          {std::string(100, 'x'), std::string(65, 'x')}};
  for (const char* name : {"plain.txt",
                           "with blank.txt",
                           "two  blanks.txt",
                           " leading.txt",
                           "tab\there",
                           "quote\".txt",
                           "\"quoted\"",
                           "apostrophe's",
                           "comma,comma",
                           "semi;colon",
                           "pipe|",
                           "star*",
                           "question?",
                           "<angle>",
                           "colon:",
                           "percent%41",
                           "dollar$HOME",
                           "`command`",
                           "-dash",
                           "--help",
                           "~tilde",
                           "#hash",
                           "&amp;",
                           "=formula()",
                           "escape\x1B[2J",
                           "bell\x07",
                           "delete\x7F",
                           "c1\xC2\x9B"
                           "31m",
                           "mark\xEF\xBB\xBF",
                           "rtl\xE2\x80\xAE"
                           "gnp.exe",
                           "zero\xE2\x80\x8Bwidth",
                           "line\xE2\x80\xA8separator",
                           "combining e\xCC\x81",
                           "{\"json\":[1]}"}) {
    names.push_back(same(name));
  }
  return names;
}

/// Reads the rows of a file with python3, and gives the names in them.
constexpr char kPlainParser[] = R"(
import csv, json, sys
form, path = sys.argv[1:]
with open(path, encoding='utf-8', newline='') as file:
    if form == 'csv':
        rows = list(csv.DictReader(file))
    else:
        rows = [json.loads(line) for line in file.read().split('\n') if line]
for row in rows:
    assert int(row['size']) == 0 and row['volume'] == 'names' and row['listing'] == 'names.txt', row
    assert row['folder'].endswith('\\names\\') and row['modified'][4] == '-', row
rows = [row['name'] for row in rows]
sys.stdout.buffer.write(b'\0'.join(row.encode() for row in rows) + b'\0')
)";

class NaughtyNames : public test::ConsoleProgramTest {
 protected:
  NaughtyNames() {
    folder.makeFolder(u"names"_qs);
    for (const Name& name : names_) {
      const std::string path = folder.pathOf(u"names/"_qs).toStdString() + name.onDisk;
      std::FILE* file = std::fopen(path.c_str(), "w");
      EXPECT_NE(file, nullptr) << name.onDisk;
      if (file) std::fclose(file);
    }
    EXPECT_EQ(run({u"index"_qs, u"--output"_qs, u"names.txt"_qs, u"names"_qs}).status, 0);
  }

  QByteArray found(const QStringList& options) {
    const test::Ended ended =
        run(QStringList{u"find"_qs, u"--no-cache"_qs} + options + QStringList{u"names"_qs, u"names.txt"_qs});
    EXPECT_EQ(ended.status, 0) << ended.errors.toStdString();
    return ended.output;
  }
  /// Whole rows, of which the names are given.
  QByteArray readBack(const QString& format) {
    QStringList options{u"--format"_qs, format};
    if (format == u"csv"_qs)
      options += {u"--fields"_qs, u"match,volume,folder,name,size,modified,listing,words"_qs};
    const QString path = folder.writeFile(u"rows"_qs, found(options));
    QProcess python;
    python.start(u"python3"_qs, {u"-c"_qs, QString::fromLatin1(kPlainParser), format, path});
    EXPECT_TRUE(python.waitForFinished(60000));
    EXPECT_EQ(python.exitCode(), 0) << python.readAllStandardError().toStdString();
    return python.readAllStandardOutput();
  }

  void expectAll(const QByteArray& endedByNul) {
    std::vector<std::string> rows;
    for (const QByteArray& row : endedByNul.split('\0')) rows.push_back(row.toStdString());
    EXPECT_EQ(rows.back(), "");
    rows.pop_back();
    std::vector<std::string> listed;
    for (const Name& name : names_) listed.push_back(name.listed);
    std::ranges::sort(rows);
    std::ranges::sort(listed);
    EXPECT_EQ(rows, listed);
  }

  std::vector<Name> names_ = naughtyNames();
};

TEST_F(NaughtyNames, ComeBackEqualFromEachFormat) {
  ASSERT_EQ(names_.size(), 41U);
  const QStringList names{u"--fields"_qs, u"name"_qs};
  expectAll(found(names + QStringList{u"-0"_qs}));
  expectAll(readBack(u"csv"_qs));
  expectAll(readBack(u"json"_qs));
  // A row of tsv is one line, and control characters in it are blanks.
  for (Name& name : names_) {
    for (char& byte : name.listed) {
      if (static_cast<unsigned char>(byte) < 0x20 || byte == 0x7F) byte = ' ';
    }
  }
  expectAll(found(names).replace('\n', '\0'));
}

TEST_F(NaughtyNames, LeadToTheirFilesWhereverThereIsTextForThem) {
  EXPECT_EQ(run({u"sources"_qs, u"add"_qs, u"names"_qs}).status, 0);
  EXPECT_EQ(run({u"refresh"_qs}).status, 0);
  const QByteArray paths =
      run({u"find"_qs, u"--no-cache"_qs, u"-0"_qs, u"--fields"_qs, u"path"_qs, u"names"_qs}).output;
  const std::string before = folder.pathOf(u"names/"_qs).toStdString();
  QByteArray names;
  for (const QByteArray& path : paths.split('\0')) {
    if (path.isEmpty()) continue;
    EXPECT_TRUE(path.startsWith(before.c_str())) << path.toStdString();
    names += path.mid(static_cast<qsizetype>(before.size())) + '\0';
  }
  // The two whose bytes are no text have no path.
  for (Name& name : names_) name.listed = name.onDisk;
  std::erase_if(names_, [](const Name& name) {
    return name.onDisk.starts_with("no utf8") || name.onDisk.starts_with("surrogate");
  });
  expectAll(names);
}

}  // namespace
}  // namespace quorvin
