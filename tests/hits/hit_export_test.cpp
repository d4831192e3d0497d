// SPDX-License-Identifier: GPL-2.0-or-later

// Hits written to files, and read again.
#include "hits/hit_export.h"

#include "hits/scan_into.h"
#include "support/fault_number.h"
#include "support/listing_lines.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <gtest/gtest.h>

#include <numeric>

namespace quorvin::test {

namespace {

const QLocale kEnglish(QLocale::English, QLocale::UnitedStates);

HitRow rowOf(const QString& name, std::int64_t size = 131072, DateValue date = 38001.5) {
  return {67, SourceKind::Offline, QStringLiteral("CD 7"), QStringLiteral("\\Music\\"), name, size, date};
}

std::string textOf(ExportText& text, const std::vector<HitRow>& rows) {
  std::string made;
  text.start(made);
  for (const HitRow& row : rows) text.add(made, row);
  text.end(made);
  return made;
}

TEST(ExportFormats, AreToldByTheEndingOfTheName) {
  EXPECT_EQ(exportFormatOf(QStringLiteral("/a/hits.csv")), ExportFormat::Csv);
  EXPECT_EQ(exportFormatOf(QStringLiteral("/a/hits.HTML")), ExportFormat::Html);
  EXPECT_EQ(exportFormatOf(QStringLiteral("/a/hits.htm")), ExportFormat::Html);
  EXPECT_EQ(exportFormatOf(QStringLiteral("/a/hits.txt")), ExportFormat::Listing);
  EXPECT_EQ(exportFormatOf(QStringLiteral("/a/hits")), std::nullopt);
  EXPECT_EQ(exportFormatOf(QStringLiteral("/a/hits.csv.gz")), std::nullopt);
}

TEST(ExportedTable, HasTitlesAndALineForEachHit) {
  const auto text = makeExportText(ExportFormat::Csv, kEnglish, Qt::LeftToRight);
  EXPECT_EQ(textOf(*text, {rowOf(QStringLiteral("a.mp3")), rowOf(QStringLiteral("b, \"live\".mp3"))}),
            "Match,Volume,Folder,Name,Size,Date\r\n"
            "067%,CD 7,\\Music\\,a.mp3,0.13mb,\"Jan, 15 04\"\r\n"
            "067%,CD 7,\\Music\\,\"b, \"\"live\"\".mp3\",0.13mb,\"Jan, 15 04\"\r\n");
}

TEST(ExportedListing, HasABlockForEachFolderAndALineForEachHit) {
  HitRow other = rowOf(QStringLiteral("c.mp3"), 5'000'000'000, 38001);
  other.folder = QStringLiteral("\\Films\\");
  EXPECT_EQ(textOf(*makeListingText(),
                   {rowOf(QStringLiteral("a.mp3")), rowOf(QStringLiteral("b.mp3"), -1, 0), other}),
            "\r\nVolume:    CD 7\r\nDirectory: \\Music\\\r\n\r\n"
            "a.mp3" +
                std::string(70, ' ') +
                "131072 bytes 2004-01-15 12:00:00\r\n"
                "b.mp3" +
                std::string(74, ' ') +
                "-1 bytes 1899-12-30 00:00:00\r\n"
                "\r\nVolume:    CD 7\r\nDirectory: \\Films\\\r\n\r\n"
                "c.mp3" +
                std::string(66, ' ') + "5000000000 bytes 2004-01-15 00:00:00\r\n");
}

class ReadAgain : public testing::Test {
 protected:
  static std::vector<HitRow> hitsIn(const QByteArray& listing, const QString& words) {
    HitTable table;
    scanInto(table, SourceKind::Offline, listing, words);
    std::vector<HitRow> rows;
    for (std::int64_t row = 0; row < table.rowCount(); ++row) rows.push_back(table.row(row));
    return rows;
  }
  static QStringList told(const std::vector<HitRow>& rows) {
    QStringList lines;
    for (const HitRow& row : rows) {
      lines.append(QStringLiteral("%1|%2|%3|%4|%5|%6")
                       .arg(row.match)
                       .arg(row.volume, row.folder, row.name)
                       .arg(row.size)
                       .arg(row.date, 0, 'f', 6));
    }
    return lines;
  }
  /// A search finds the same hits in the listing and in an export of what it has found there.
  static void expectTheSame(const QByteArray& listing, const QString& words, int hits) {
    const std::vector<HitRow> found = hitsIn(listing, words);
    ASSERT_EQ(static_cast<int>(found.size()), hits);
    const QByteArray exported = QByteArray::fromStdString(textOf(*makeListingText(), found));
    EXPECT_EQ(told(hitsIn(exported, words)), told(found)) << exported.toStdString();
  }
};

TEST_F(ReadAgain, AListingFindsTheSameHits) {
  expectTheSame(blockHead("CD 7", "\\Rock\\") + entryLine("live.mp3", "131,072") + entryLine("other.mp3") +
                    blockHead("CD 8", "\\Jazz\\") + entryLine("live a.mp3", "0") + blockHead("CD 8", "\\") +
                    entryLine("live b.mp3", "999,999,999"),
                QStringLiteral("live"), 3);
}

TEST_F(ReadAgain, FoldersAloneAreFoundToo) {
  expectTheSame(blockHead("CD 7", "\\Rock\\") + entryLine("a") + entryLine("b"), QStringLiteral("rock"), 2);
}

TEST_F(ReadAgain, VeryLargeSizesKeepTheDigitThatEndsTheirName) {
  expectTheSame(blockHead("CD 7", "\\") + entryLine("film.avi", "1,234,567,890") +
                    entryLine("film.mkv", "9,999,999,999") + entryLine("film.iso", "12345678901") +
                    entryLine("film.img", "1234567890123"),
                QStringLiteral("film"), 4);
}

TEST_F(ReadAgain, NamesOfEveryLengthKeepTheirText) {
  QByteArray listing = blockHead("CD 7", "\\");
  for (int length = 1; length <= 70; ++length)
    listing += entryLine(QByteArray(length, 'x'), QByteArray::number(length));
  expectTheSame(listing, QStringLiteral("x"), 70);
}

TEST_F(ReadAgain, LinesWithoutValuesShowThoseOfTheHitBefore) {
  expectTheSame(blockHead("CD 7", "\\") + "song without any\r\n" + entryLine("song", "7") +
                    "song that carries\r\n" + QByteArray("song ").leftJustified(69, 'y') + "\r\n",
                QStringLiteral("song"), 4);
}

TEST_F(ReadAgain, NamesThatAreNotAsciiKeepTheirColumns) {
  expectTheSame(blockHead("Grün", "\\日本\\") +
                    entryLine("песня.mp3").replace("песня.mp3     ", "песня.mp3          ") + "caf\xE9 x" +
                    entryLine("").mid(6),
                QStringLiteral("日本"), 2);
}

TEST_F(ReadAgain, HitsBeforeAnyVolumeAndFolder) {
  expectTheSame(entryLine("song", "7"), QStringLiteral("song"), 1);
}

/// All hits of a page, as its script sees them.
QList<QJsonArray> rowsOfPage(const std::string& page) {
  static const QRegularExpression block(QStringLiteral("<script type=\"application/json\">(.*?)</script>"),
                                        QRegularExpression::DotMatchesEverythingOption);
  QList<QJsonArray> rows;
  auto blocks = block.globalMatch(QString::fromStdString(page));
  while (blocks.hasNext()) {
    QJsonParseError error;
    const QJsonDocument json = QJsonDocument::fromJson(blocks.next().captured(1).toUtf8(), &error);
    EXPECT_EQ(error.error, QJsonParseError::NoError) << error.errorString().toStdString();
    for (const QJsonValue& row : json.array()) rows.append(row.toArray());
  }
  return rows;
}

TEST(ExportedPage, HoldsEveryHitUnderItsVolumeAndFolder) {
  const auto text = makeExportText(ExportFormat::Html, kEnglish, Qt::LeftToRight);
  const std::string page = textOf(*text, {rowOf(QStringLiteral("a.mp3")), rowOf(QStringLiteral("b.mp3"))});
  EXPECT_TRUE(page.starts_with("<!DOCTYPE html>\n<html lang=\"en\" dir=\"ltr\" data-locale=\"en\">"));
  EXPECT_TRUE(page.ends_with("</html>\n"));
  EXPECT_NE(page.find("<script type=\"application/json\">[\n[\"CD 7\",\"\\u005cMusic\\u005c\"],\n"
                      "[2,67,\"a.mp3\",131072,\"0.13mb\",38001.5,\"Jan, 15 04\"],\n"
                      "[2,67,\"b.mp3\",131072,\"0.13mb\",38001.5,\"Jan, 15 04\"]\n]</script>"),
            std::string::npos);
}

TEST(ExportedPage, IsReadFromTheRightWhereTheProgramIs) {
  const auto text = makePageText(QLocale(QLocale::Arabic, QLocale::Egypt), Qt::RightToLeft);
  EXPECT_NE(textOf(*text, {}).find("dir=\"rtl\" data-locale=\"ar\""), std::string::npos);
}

TEST(ExportedPage, AsksForNothingFromElsewhere) {
  const std::string page = textOf(*makePageText(kEnglish, Qt::LeftToRight), {});
  EXPECT_NE(page.find("default-src 'none'"), std::string::npos);
  for (const char* word : {"http://", "https://", "src=", "href=", "url(", "@import", "fetch("}) {
    EXPECT_EQ(page.find(word), std::string::npos) << word;
  }
}

TEST(ExportedPage, NoNameEndsTheScriptOrChangesOnTheWay) {
  QStringList names = {QStringLiteral("</script><script>alert(1)</script>"),
                       QStringLiteral("<!--<script>"),
                       QStringLiteral("]]>&amp;&lt;"),
                       QStringLiteral("\"it's\" \\u0041 `${x}`"),
                       QStringLiteral("\u2028\u2029\uFEFF\u0085\u202E"),
                       QStringLiteral("שלום 日本 😀"),
                       QStringLiteral("tab\tline\nend\r\x1B\x7F"),
                       QString(3, u'\0')};
  for (char16_t unit = 1; unit < 0x180; ++unit) names.append(QString(QChar(unit)));
  std::vector<HitRow> rows;
  for (const QString& name : names) rows.push_back(rowOf(name));
  const std::string page = textOf(*makePageText(kEnglish, Qt::LeftToRight), rows);
  const QList<QJsonArray> read = rowsOfPage(page);
  ASSERT_EQ(read.size(), names.size() + 1);
  for (qsizetype i = 0; i < names.size(); ++i) EXPECT_EQ(read[i + 1][2].toString(), names[i]);
}

TEST(ExportedPage, HalfACharacterStaysHalfACharacter) {
  const std::string page =
      textOf(*makePageText(kEnglish, Qt::LeftToRight), {rowOf(QStringLiteral("a") + QChar(0xD83D))});
  EXPECT_NE(page.find("\"a\\ud83d\""), std::string::npos);
}

TEST(ExportedPage, ManyHitsAreReadInBlocks) {
  std::vector<HitRow> rows(2500, rowOf(QStringLiteral("a")));
  EXPECT_EQ(rowsOfPage(textOf(*makePageText(kEnglish, Qt::LeftToRight), rows)).size(), 2501);
}

class ExportedFile : public testing::Test {
 protected:
  ExportedFile() {
    scanInto(table_, SourceKind::Offline, blockHead("CD", "\\") + entryLine("song 1").repeated(20'000),
             QStringLiteral("song"));
    rows_.resize(static_cast<std::size_t>(table_.rowCount()));
    std::iota(rows_.begin(), rows_.end(), 0);
  }
  bool exportTo(
      const QString& name, const ExportProgress& goOn = [](std::int64_t) { return true; }) {
    const auto text = makeExportText(ExportFormat::Csv, kEnglish, Qt::LeftToRight);
    return exportHits(folder_.pathOf(name), *text, table_, rows_, goOn);
  }

  TemporaryFolder folder_;
  HitTable table_;
  std::vector<int> rows_;
};

TEST_F(ExportedFile, HoldsTheRowsThatWereAskedForInThatOrder) {
  rows_ = {2, 0};
  EXPECT_TRUE(exportTo(QStringLiteral("a.csv")));
  EXPECT_EQ(folder_.readFile(QStringLiteral("a.csv")),
            "Match,Volume,Folder,Name,Size,Date\r\n100%,CD,\\,song 1,0.00mb,\"Jan, 15 04\"\r\n"
            "100%,CD,\\,song 1,0.00mb,\"Jan, 15 04\"\r\n");
}

TEST_F(ExportedFile, SaysHowFarItIsAndReachesTheEnd) {
  std::vector<std::int64_t> steps;
  EXPECT_TRUE(exportTo(QStringLiteral("a.csv"), [&](std::int64_t written) {
    steps.push_back(written);
    return true;
  }));
  ASSERT_FALSE(steps.empty());
  EXPECT_TRUE(std::ranges::is_sorted(steps));
  EXPECT_EQ(steps.back(), 20'000);
}

TEST_F(ExportedFile, ThatIsStoppedLeavesWhatWasThereAndNothingElse) {
  folder_.writeFile(QStringLiteral("a.csv"), "before");
  EXPECT_FALSE(exportTo(QStringLiteral("a.csv"), [](std::int64_t) { return false; }));
  EXPECT_EQ(folder_.readFile(QStringLiteral("a.csv")), "before");
  EXPECT_EQ(QDir(folder_.path()).entryList(QDir::Files | QDir::Hidden), QStringList(QStringLiteral("a.csv")));
}

TEST_F(ExportedFile, AFolderThatIsNotThereIsAFault) {
  EXPECT_FAULT(exportTo(QStringLiteral("gone/a.csv")), 53);
}

}  // namespace

}  // namespace quorvin::test
