// SPDX-License-Identifier: GPL-2.0-or-later
#include "state/text_line_reader.h"

#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace quorvin {
namespace {

QStringList linesOf(const QByteArray& bytes) {
  const TemporaryFolder folder;
  TextLineReader reader(folder.writeFile(QStringLiteral("text.txt"), bytes));
  QStringList lines;
  while (const std::optional<TextLine> line = reader.next()) lines += line->text;
  return lines;
}

TEST(TextLineReader, TakesBothLineEnds) {
  EXPECT_EQ(linesOf("a\r\nb\nc"),
            QStringList({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")}));
}

TEST(TextLineReader, GivesNoEmptyLineAfterTheLastLineEnd) {
  EXPECT_EQ(linesOf("a\r\n"), QStringList({QStringLiteral("a")}));
  EXPECT_EQ(linesOf("a\r\n\r\n"), QStringList({QStringLiteral("a"), QString()}));
  EXPECT_EQ(linesOf(""), QStringList());
}

TEST(TextLineReader, TheFirstLineMayBeEmpty) {
  EXPECT_EQ(linesOf("\nb"), QStringList({QString(), QStringLiteral("b")}));
}

TEST(TextLineReader, KeepsACarriageReturnInsideALine) {
  EXPECT_EQ(linesOf("a\rb\r\r\n"), QStringList({QStringLiteral("a\rb\r")}));
}

TEST(TextLineReader, TellsHowALineEnds) {
  const TemporaryFolder folder;
  TextLineReader reader(folder.writeFile(QStringLiteral("text.txt"), "a\r\nb\nc"));
  EXPECT_EQ(reader.next()->end, QStringLiteral("\r\n"));
  EXPECT_EQ(reader.next()->end, QStringLiteral("\n"));
  EXPECT_EQ(reader.next()->end, QString());
  EXPECT_EQ(reader.next(), std::nullopt);
}

TEST(TextLineReader, FindsLineEndsAtEveryPlaceOfTheReadBuffer) {
  for (int length = 16 * 1024 - 3; length <= 16 * 1024 + 1; ++length) {
    const QByteArray first(length, 'x');
    EXPECT_EQ(linesOf(first + "\r\nsecond\r\n"),
              QStringList({QString::fromLatin1(first), QStringLiteral("second")}))
        << length;
  }
}

TEST(TextLineReader, PassesOverAByteOrderMarkAtTheFront) {
  EXPECT_EQ(linesOf("\xEF\xBB\xBF"
                    "a\r\n\xEF\xBB\xBF"
                    "b"),
            QStringList({QStringLiteral("a"), QStringLiteral(u"\uFEFFb")}));
  EXPECT_EQ(linesOf("\xEF\xBB\xBF"), QStringList());
  EXPECT_EQ(linesOf("\xEF\xBB"), QStringList{QStringLiteral(u"\u00EF\u00BB")});
}

TEST(TextLineReader, TellsTheBytesOfTheWholeFile) {
  const TemporaryFolder folder;
  const QByteArray bytes = "\xEF\xBB\xBF" + QByteArray(40'000, 'x') + "\r\nb";
  TextLineReader reader(folder.writeFile(QStringLiteral("text.txt"), bytes));
  while (reader.next()) {
  }
  EXPECT_EQ(reader.digest(), digestOf(bytes));
  EXPECT_NE(reader.digest(), digestOf(bytes.mid(3)));
}

}  // namespace
}  // namespace quorvin
