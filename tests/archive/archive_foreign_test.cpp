// SPDX-License-Identifier: GPL-2.0-or-later

// Archives of other programs, and the ways in which they write them.
#include "archive/archive_fixture.h"

#include <QProcess>

namespace quorvin::test {
namespace {

class ArchiveForeign : public ArchiveTest {};

MadeEntry streamed(const QByteArray& name, const QByteArray& content) {
  MadeEntry entry;
  entry.name = name;
  entry.content = content;
  entry.method = kDeflated;
  entry.isStreamed = true;
  return entry;
}

TEST_F(ArchiveForeign, WrittenInOneGoIsTaken) {
  EXPECT_EQ(unpack({streamed("a.txt", "aaa"), streamed("b.txt", "bb")}), UnpackingOutcome::Unpacked);
  EXPECT_EQ(tree(), (Tree{{u"a.txt"_qs, "aaa"}, {u"b.txt"_qs, "bb"}}));
}

TEST_F(ArchiveForeign, WrittenInOneGoWithTheSizeKnownBeforehandIsTaken) {
  MadeEntry entry = streamed("a.txt", "aaa");
  entry.headerSize = 3;
  EXPECT_EQ(unpack({entry, streamed("b.txt", "bb")}), UnpackingOutcome::Unpacked);
  EXPECT_EQ(tree(), (Tree{{u"a.txt"_qs, "aaa"}, {u"b.txt"_qs, "bb"}}));
}

TEST_F(ArchiveForeign, WrittenInOneGoWithAWrongChecksumIsRefused) {
  MadeEntry entry = streamed("a.txt", "aaa");
  entry.toldChecksum = 7;
  EXPECT_EQ(unpack({entry}), UnpackingOutcome::Failed);
  EXPECT_EQ(tree(), Tree());
}

TEST_F(ArchiveForeign, BytesBeforeAndBehindAreIgnored) {
  const QByteArray before = "#!/bin/sh\nexec unzip \"$0\"\n";
  for (const bool isLarge : {false, true}) {
    MadeEntry entry = streamed("a.txt", "aaa");
    entry.isStreamed = false;
    entry.isLarge = isLarge;
    ArchiveForm form;
    form.largeEnd = isLarge;
    EXPECT_EQ(unpack(before + archiveOf({entry}, form) + "behind"), UnpackingOutcome::Unpacked);
    EXPECT_EQ(tree(), (Tree{{u"a.txt"_qs, "aaa"}}));
  }
}

TEST_F(ArchiveForeign, ANameThatIsGivenInUtf8TooIsTakenFromThere) {
  MadeEntry entry = streamed("M?sica.txt", "aaa");
  entry.unicodeName = "M\xC3\xBAsica.txt";
  EXPECT_EQ(unpack({entry}), UnpackingOutcome::Unpacked);
  EXPECT_EQ(tree(), (Tree{{u"M\u00FAsica.txt"_qs, "aaa"}}));
}

TEST_F(ArchiveForeign, OneThatWasWrittenOverALongerOneIsTakenAlone) {
  MadeEntry longer;
  longer.name = "old.txt";
  longer.content = QByteArray(1000, 'o');
  MadeEntry own;
  own.name = "new.txt";
  own.content = "new";
  const QByteArray over = archiveOf({own});
  EXPECT_EQ(unpack(over + archiveOf({longer}).mid(over.size())), UnpackingOutcome::Unpacked);
  EXPECT_EQ(tree(), (Tree{{u"new.txt"_qs, "new"}}));
}

TEST_F(ArchiveForeign, ContentOfAPipeIsAFile) {
  MadeEntry entry = streamed("-", "aaa");
  entry.mode = kPipeMode;
  EXPECT_EQ(unpack({entry}), UnpackingOutcome::Unpacked);
  EXPECT_TRUE(QFileInfo(target_ + u'-').isFile());
  EXPECT_EQ(tree(), (Tree{{u"-"_qs, "aaa"}}));
}

/// A program that makes the archive `$OUT` of what is in the current folder.
struct Program {
  const char* what;
  const char* command;
};

void PrintTo(const Program& program, std::ostream* out) {
  *out << program.what;
}

class ArchiveOfProgram : public ArchiveTest, public testing::WithParamInterface<Program> {};

TEST_P(ArchiveOfProgram, IsUnpackedWhole) {
  const TemporaryFolder made;
  const QByteArray text = QByteArray("a line of a listing\r\n").repeated(5000);
  const TemporaryFolder content;
  content.writeFile(u"a.txt"_qs, text);
  content.writeFile(u"sub/\u00c4rger.txt"_qs, "b");
  content.writeFile(u"empty.txt"_qs, "");
  QProcess process;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(u"OUT"_qs, made.pathOf(u"made.zip"_qs));
  environment.insert(u"LC_ALL"_qs, u"C.UTF-8"_qs);
  process.setProcessEnvironment(environment);
  process.setWorkingDirectory(content.path());
  process.start(u"/bin/sh"_qs, {u"-c"_qs, u"set -e\n"_qs + QString::fromUtf8(GetParam().command)});
  ASSERT_TRUE(process.waitForFinished(60'000));
  ASSERT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
  EXPECT_EQ(unpackFile(made.pathOf(u"made.zip"_qs), target_), UnpackingOutcome::Unpacked);
  EXPECT_EQ(record_.descriptions, QStringList());
  Tree expected = {
      {u"a.txt"_qs, text}, {u"empty.txt"_qs, ""}, {u"sub/"_qs, ""}, {u"sub/\u00c4rger.txt"_qs, "b"}};
  if (QByteArray(GetParam().what).contains("standard input")) expected = {{u"-"_qs, text}};
  EXPECT_EQ(tree(), expected);
}

// Writes to a pipe, so that nothing can be put before a content afterwards.
constexpr char kPythonToPipe[] = R"(
python3 - <<'END' | cat >"$OUT"
import os, sys, zipfile
with zipfile.ZipFile(sys.stdout.buffer, 'w', zipfile.ZIP_DEFLATED) as archive:
    for folder, _, names in os.walk('.'):
        for name in names:
            archive.write(os.path.join(folder, name))
END
)";

INSTANTIATE_TEST_SUITE_P(
    Every, ArchiveOfProgram,
    testing::Values(
        Program{"bsdtar", "bsdtar --format zip -cf \"$OUT\" *"},
        Program{"bsdtar to a pipe", "bsdtar --format zip -cf - * | cat >\"$OUT\""},
        Program{"bsdtar without compression",
                "bsdtar --format zip --options zip:compression=store -cf \"$OUT\" *"},
        Program{"zip", "zip -qr \"$OUT\" ."}, Program{"zip without folders", "zip -qrD \"$OUT\" ."},
        Program{"zip without compression", "zip -qr0 \"$OUT\" ."},
        Program{"zip with descriptors", "zip -qr -fd \"$OUT\" ."},
        Program{"zip with large records", "zip -qr -fz \"$OUT\" ."},
        Program{"zip to a pipe", "zip -qr - . | cat >\"$OUT\""},
        Program{"zip of standard input", "zip -q \"$OUT\" - <a.txt"},
        Program{"zip of standard input to a pipe", "cat a.txt | zip -q - - | cat >\"$OUT\""},
        Program{"zip with a comment", "zip -qr \"$OUT\" . && echo 'a comment' | zip -qz \"$OUT\""},
        Program{"zip behind a program", "zip -qr \"$OUT\" . && cat /bin/sh \"$OUT\" >x && mv x \"$OUT\""},
        Program{"zip behind a program, adjusted",
                "zip -qr \"$OUT\" . && cat /bin/sh \"$OUT\" >x && mv x \"$OUT\" && zip -qA \"$OUT\""},
        Program{"python3", "python3 -m zipfile -c \"$OUT\" *"}, Program{"python3 to a pipe", kPythonToPipe},
        Program{"7zz", "7zz a -tzip \"$OUT\" . >/dev/null"}));

}  // namespace
}  // namespace quorvin::test
