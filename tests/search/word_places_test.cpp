// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/word_places.h"

#include "platform/text_encoding.h"
#include "support/listing_lines.h"
#include "support/scan_of.h"

#include <gtest/gtest.h>

namespace quorvin::test {

namespace {

WordPlaces placesOf(const QString& searchText) {
  return WordPlaces(SearchQuery(simpleLowerCase(searchText), 50));
}

TEST(WordPlaces, AreFoundWhateverTheCase) {
  EXPECT_EQ(placesOf(u"LIVE wembley"_qs).in(u"Live at Wembley, live.mp3"),
            (TextRanges{{0, 4}, {8, 7}, {17, 4}}));
  EXPECT_EQ(placesOf(u"zebra"_qs).in(u"Live at Wembley.mp3"), TextRanges{});
}

TEST(WordPlaces, AreFoundInsideOfWordsAndJoinedWhereTheyOverlapOrTouch) {
  EXPECT_EQ(placesOf(u"arbo bour"_qs).in(u"Harbour"), (TextRanges{{1, 6}}));
  EXPECT_EQ(placesOf(u"ab cd"_qs).in(u"xabcdx"), (TextRanges{{1, 4}}));
  EXPECT_EQ(placesOf(u"aa"_qs).in(u"xaaaa"), (TextRanges{{1, 4}}));
  EXPECT_EQ(placesOf(u"harbour arb"_qs).in(u"harbour"), (TextRanges{{0, 7}}));
}

TEST(WordPlaces, AreThoseOfTheListedText) {
  // One letter in lower case, whatever the rules of a language say.
  EXPECT_EQ(placesOf(u"stra\u00DFe"_qs).in(u"Die STRA\u00DFE 1"), (TextRanges{{4, 6}}));
  EXPECT_EQ(placesOf(u"stambul"_qs).in(u"\u0130STAMBUL"), (TextRanges{{1, 7}}));
  // A letter of two code units, in front and in the word.
  EXPECT_EQ(placesOf(u"\U00010428b"_qs).in(u"\U00010400\U00010400B"), (TextRanges{{2, 3}}));
}

TEST(WordPlaces, WithoutWordsThereAreNone) {
  EXPECT_EQ(WordPlaces().in(u"anything"), TextRanges{});
  EXPECT_EQ(WordPlaces().explanation(u"\\", u"anything"), QString());
  EXPECT_EQ(placesOf(u" "_qs).in(u"two words"), TextRanges{});
}

TEST(WordPlacesExplanation, CountsTheWordsOfFolderAndNameAndNamesThoseThatAreMissing) {
  const WordPlaces places = placesOf(u"northern Harbour LIVE rock"_qs);
  EXPECT_EQ(places.explanation(u"\\Music\\Harbour Lights\\", u"Northern Rock.mp3"),
            u"3 of 4 words; missing: live"_qs);
  EXPECT_EQ(places.explanation(u"\\Music\\", u"Northern.mp3"),
            u"1 of 4 words; missing: harbour, live, rock"_qs);
  EXPECT_EQ(places.explanation(u"\\Harbour\\Live\\", u"Northern Rock.mp3"), u"4 of 4 words"_qs);
}

TEST(WordPlacesExplanation, CountsAsTheMatchDoes) {
  // The empty word is everywhere; a word that is there twice counts twice.
  EXPECT_EQ(placesOf(u"abc "_qs).explanation(u"\\", u"xyz"), u"1 of 2 words; missing: abc"_qs);
  EXPECT_EQ(placesOf(u"rock rock live"_qs).explanation(u"\\", u"rock"), u"2 of 3 words; missing: live"_qs);
}

TEST(WordPlacesExplanation, OfOneWordThereIsNone) {
  EXPECT_EQ(placesOf(u"rock"_qs).explanation(u"\\", u"rock"), QString());
}

TEST(WordPlaces, FindExactlyTheWordsThatTheSearchFinds) {
  const QByteArrayList folders = {"\\Music\\ROCK\\", "\\\xC3\x84RGER\\",
                                  "\\stra\xC3\x9F"
                                  "e\\"};
  const QByteArrayList names = {"Live at Wembley",
                                "LIVE \xE2\x84\xAA"
                                "elvin",
                                "\xC4\xB0stanbul",
                                "\xCE\xA3\xCE\x9F\xCE\xA3 live",
                                "\xC4rger in Windows-1252",
                                "rock"};
  const QString words = u"rock live \u00E4rger \u03C3\u03BF\u03C3 kelvin istanbul stra\u00DFe"_qs;
  QByteArray listing;
  for (const QByteArray& folder : folders) {
    listing += blockHead("DISK", folder);
    for (const QByteArray& name : names) listing += name + "\r\n";
  }
  HitTable table;
  const SearchQuery query(simpleLowerCase(words), 1);
  const WordPlaces places(query);
  RunCounts counts;
  ScanOutcome outcome;
  table.startListing(SourceKind::Online, {});
  scanListing([&] { return MemoryListing(listing); }, {query, QLocale::c(), &table, YieldLog()}, counts,
              outcome);
  ASSERT_GT(table.rowCount(), 10);
  for (std::int64_t row = 0; row < table.rowCount(); ++row) {
    const HitRow hit = table.row(row);
    EXPECT_EQ(matchPercentage(places.found(hit.folder, hit.name), query.wordCount()), hit.match)
        << (hit.folder + hit.name).toStdString();
  }
}

}  // namespace

}  // namespace quorvin::test
