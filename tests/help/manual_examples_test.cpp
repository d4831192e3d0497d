// SPDX-License-Identifier: GPL-2.0-or-later

// What the manual says of the match percentage is what the search does.
#include "help/manual_pages.h"
#include "support/listing_lines.h"
#include "support/scan_of.h"

#include <gtest/gtest.h>

namespace quorvin::test {
namespace {

/// The rows of cells of the table whose head starts with `firstHead`.
QList<QStringList> tableRows(const QString& firstHead) {
  const QString page = manualText(QStringLiteral("manual/searching.htm"));
  const QString pattern = QStringLiteral("<tr><th>%1</th>(.*?)</table>").arg(firstHead);
  QList<QStringList> rows;
  for (const QString& row :
       allMatches(allMatches(page, pattern).value(0), QStringLiteral("<tr>(.*?)</tr>"))) {
    rows.append(allMatches(row, QStringLiteral("<td>(.*?)</td>")));
  }
  return rows;
}

/// The match of one entry as the scan computes it; "0%" when it is no hit at all.
QString matchOf(const QString& searchText, const QByteArray& folder, const QByteArray& name) {
  const QByteArray listing = blockHead("DISK", folder) + entryLine(name);
  const ReferenceResult result = scanOf(listing, searchText, 0);
  return QStringLiteral("%1%").arg(result.hits.empty() ? 0 : result.hits[0].match);
}

bool isHit(const QString& searchText, const QByteArray& name, int desiredMatch) {
  return !scanOf(blockHead("DISK", "\\") + entryLine(name), searchText, desiredMatch).hits.empty();
}

/// `words` different words; the first `found` of them are in the name.
QString wordsFor(int words) {
  QStringList list;
  for (int word = 0; word < words; ++word) list.append(QStringLiteral("word%1x").arg(word));
  return list.join(u' ');
}

TEST(ManualExamples, WordsFoundGiveThePercentagesInTheTable) {
  const QList<QStringList> rows = tableRows(QStringLiteral("Words of the text"));
  ASSERT_GE(rows.size(), 7);
  for (const QStringList& row : rows) {
    const QByteArray name = wordsFor(row[1].toInt()).toLatin1();
    EXPECT_EQ(matchOf(wordsFor(row[0].toInt()), "\\", name), row[2]) << row.join(u' ').toStdString();
    EXPECT_EQ(isHit(wordsFor(row[0].toInt()), name, 50), row[3] == QStringLiteral("yes"))
        << row.join(u' ').toStdString();
  }
}

TEST(ManualExamples, RealFilesMatchAsTheTableSays) {
  const QList<QStringList> rows = tableRows(QStringLiteral("Search text"));
  ASSERT_GE(rows.size(), 5);
  for (const QStringList& row : rows) {
    EXPECT_EQ(matchOf(row[0], row[1].toLatin1(), row[2].toLatin1()), row[3]) << row.join(u'|').toStdString();
  }
}

TEST(ManualExamples, NumbersForOneBothOrEitherWordDoWhatTheTableSays) {
  const QString one = QStringLiteral("word0x");
  const QString two = wordsFor(2);
  for (const int number : {1, 99}) EXPECT_TRUE(isHit(one, "word0x", number)) << number;
  for (const int number : {50, 99}) {
    EXPECT_TRUE(isHit(two, "word0x word1x", number)) << number;
    EXPECT_FALSE(isHit(two, "word0x", number)) << number;
  }
  for (const int number : {1, 49}) EXPECT_TRUE(isHit(two, "word1x", number)) << number;
  EXPECT_TRUE(isHit(wordsFor(50), "word7x", 1));
  EXPECT_FALSE(isHit(wordsFor(101), wordsFor(100).toLatin1(), 99));
  EXPECT_FALSE(isHit(one, "word0x", 100));
}

TEST(ManualExamples, ABlankTooManyIsAWordThatIsFoundEverywhere) {
  EXPECT_EQ(matchOf(QStringLiteral("abc "), "\\", "other.txt"), QStringLiteral("50%"));
  EXPECT_EQ(matchOf(QStringLiteral("a  b"), "\\", "other.txt"), QStringLiteral("33%"));
  EXPECT_EQ(matchOf(QStringLiteral(" "), "\\", "anything.txt"), QStringLiteral("100%"));
}

TEST(ManualExamples, TheVolumeIsNotSearchedAndStarsAreNoWildcards) {
  EXPECT_EQ(matchOf(QStringLiteral("disk"), "\\", "song.mp3"), QStringLiteral("0%"));
  EXPECT_EQ(matchOf(QStringLiteral("*.mp3"), "\\", "song.mp3"), QStringLiteral("0%"));
  EXPECT_EQ(matchOf(QStringLiteral(".mp3"), "\\", "song.mp3"), QStringLiteral("100%"));
  EXPECT_EQ(matchOf(QStringLiteral("arbo"), "\\", "Harbour.txt"), QStringLiteral("100%"));
}

}  // namespace
}  // namespace quorvin::test
