// SPDX-License-Identifier: GPL-2.0-or-later

// Rows that are made quickly are those that are made plainly, byte for byte.
#include "console/plain_hit_rows.h"
#include "support/qt_printing.h"
#include "support/sweep.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

namespace quorvin::test {
namespace {

constexpr std::int64_t kLargest = std::numeric_limits<std::int64_t>::max();

/// Names that formats, terminals and readers of UTF-8 stumble over.
const std::vector<std::string>& hardNames() {
  static const std::vector<std::string> names = {"",
                                                 "Plain Name.MP3",
                                                 " a,b ",
                                                 "\"",
                                                 "a\"b\"",
                                                 ",",
                                                 "\r\n",
                                                 "a\nb\tc",
                                                 "\x01\x1F\x7F",
                                                 std::string("nul\0nul", 7),
                                                 "\\",
                                                 "\\\"\\",
                                                 "\xC3\x84rger, \"ROCK\"",
                                                 "\xC2\x9B"
                                                 "31m",
                                                 "C2 alone \xC2",
                                                 "\xC2\xC2\x80",
                                                 "\xE4",
                                                 "caf\xE9, live",
                                                 "\xE2\x82",
                                                 "\xED\xA0\x80",
                                                 "\xF0\x9F\x8E\xB5 live",
                                                 "\xF4\x90\x80\x80",
                                                 "\xC0\xAF",
                                                 "\xFF\xFE",
                                                 "\xEF\xBB\xBFname",
                                                 "\xE2\x80\xA8",
                                                 "\xC4\xB0STANBUL",
                                                 "\xE2\x84\xAA"
                                                 "elvin",
                                                 "star*",
                                                 "what?",
                                                 std::string(65, 'x'),
                                                 std::string(70, 'L'),
                                                 "e\xCC\x81",
                                                 "=1+1",
                                                 "rock rock",
                                                 "\x1B[1;31mROCK\x1B[m"};
  return names;
}

const std::vector<std::string>& hardFolders() {
  static const std::vector<std::string> folders = {
      "\\",           "\\Music\\Rock\\",  "\\a, b\\", "\\\"quoted\"\\", "\\\xC3\x84rger\\", "\\tab\there\\",
      "\\\xC2\x9B\\", "\\no utf8 \xE4\\", ""};
  return folders;
}

const std::vector<std::optional<EntryValues>>& hardValues() {
  static const std::vector<std::optional<EntryValues>> values = {
      std::nullopt,
      EntryValues{0, 0},
      EntryValues{131072, 38001.5},
      EntryValues{-1, -1.25},
      EntryValues{5242, kFirstDay},
      EntryValues{5243, kLastDay + 0.99999},
      EntryValues{-5243, 1},
      EntryValues{kLargest, 40000.999999},
      EntryValues{-kLargest - 1, 36526},
      EntryValues{9999999999999, 45291.75},
      EntryValues{1048575, std::numeric_limits<double>::quiet_NaN()},
      EntryValues{123456789, 1e300}};
  return values;
}

/// As many hits, of a few to a folder, whatever names meet whatever folders and values.
std::vector<PlainHit> someHits(std::mt19937& random, std::size_t count) {
  const auto any = [&random](const auto& choices) { return choices[random() % choices.size()]; };
  std::vector<PlainHit> hits;
  PlainHit hit;
  while (hits.size() < count) {
    if (hits.empty() || random() % 3 == 0) {
      hit.kind = static_cast<SourceKind>(random() % 3);
      hit.volume = random() % 2 == 0 ? "CD 7" : any(hardNames());
      hit.folder = any(hardFolders());
      hit.listing = random() % 2 == 0 ? "/lists/cd7.txt" : "/lists/a,\"b\"\n.txt";
    }
    hit.name = any(hardNames());
    if (random() % 4 == 0) hit.name += any(hardNames());
    hit.values = any(hardValues());
    hit.areInherited = hit.values && random() % 4 == 0;
    hits.push_back(hit);
  }
  return hits;
}

bool isSameFolder(const PlainHit& a, const PlainHit& b) {
  return a.kind == b.kind && a.volume == b.volume && a.folder == b.folder && a.listing == b.listing;
}

class HitRowsAgreement : public testing::Test {
 protected:
  HitRowsAgreement() {
    folder_.writeFile(u"a b.mp3"_qs, "x");
    folder_.writeFile(u"what\n"_qs, "x");
    state_.OnlineSources.set(1, u"CD 7"_qs, folder_.pathOf(QString()));
    state_.OnlineSourceCount = 1;
  }

  void expectEqualRows(const std::vector<PlainHit>& hits, const RowOptions& options, const QLocale& locale,
                       const SearchQuery& query) {
    HitRows quick(options, locale, query, state_);
    PlainHitRows plain(options, locale, query, state_);
    std::string quickText;
    std::string plainText;
    for (std::size_t i = 0; i < hits.size(); ++i) {
      PlainHit hit = hits[i];
      hit.match = plain.matchOf(hit);
      const bool isNewFolder = i == 0 || !isSameFolder(hit, hits[i - 1]);
      const bool isQuick = addQuickly(quick, hit, quickText, isNewFolder);
      ASSERT_EQ(isQuick, plain.add(plainText, hit)) << hit.name;
      ASSERT_EQ(quickText, plainText) << locale.name().toStdString();
      // Some are appended to rows that are there.
      if (i % 5 != 0) continue;
      quickText.clear();
      plainText.clear();
    }
  }

  TemporaryFolder folder_;
  ProgramState state_;
  const SearchQuery query_{u"rock live e \u00E4rger a\u00E9  rock \"", 1};
};

TEST_F(HitRowsAgreement, HoldsInEveryLocale) {
  const auto locales =
      QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory);
  ASSERT_GT(locales.size(), 500);
  std::vector<PlainHit> hits;
  for (const std::optional<EntryValues>& values : hardValues()) {
    hits.push_back({100, SourceKind::Offline, "V", "\\a\\", "Name", values, false, "/l"});
  }
  // The first day of each month, and days of one and of two digits.
  for (int day = 36526; day < 36526 + 366; day += 10) {
    hits.push_back(
        {100, SourceKind::Offline, "V", "\\a\\", "Name", EntryValues{day * 1000, day + 0.5}, false, "/l"});
  }
  for (const QLocale& locale : locales) {
    expectEqualRows(hits, {}, locale, query_);
    expectEqualRows(hits, {.format = RowFormat::Csv}, locale, query_);
    expectEqualRows(hits, {.format = RowFormat::Csv, .isForTerminal = true}, locale, query_);
    ASSERT_FALSE(HasFatalFailure());
  }
}

TEST_F(HitRowsAgreement, HoldsForEveryFormatAndOptionAndNaughtyNames) {
  std::mt19937 random(5);
  const std::vector<std::vector<HitField>> choices = {
      {},
      {HitField::Name},
      {HitField::Folder},
      {HitField::Path},
      {HitField::Words, HitField::Name},
      {HitField::Listing, HitField::Volume, HitField::Folder},
      {HitField::Size, HitField::Modified},
      {HitField::Path, HitField::Size, HitField::Path},
      {HitField::Modified},
      {HitField::Words},
      {HitField::Folder, HitField::Match, HitField::Name, HitField::Listing}};
  const std::vector<PlainHit> hits = someHits(random, sweep<std::size_t>(2000, 200));
  for (const RowFormat format : {RowFormat::Tsv, RowFormat::Csv, RowFormat::Json}) {
    for (const std::vector<HitField>& fields : choices) {
      for (unsigned bits = 0; bits < 8; ++bits) {
        const bool isColoured = (bits & 4U) != 0 && format == RowFormat::Tsv;
        const RowOptions options{format, fields, (bits & 1U) != 0, (bits & 2U) != 0, isColoured};
        expectEqualRows(hits, options, QLocale(u"de_DE"_qs), query_);
        ASSERT_FALSE(HasFatalFailure()) << static_cast<int>(format) << ' ' << fields.size() << ' ' << bits;
      }
    }
  }
}

TEST_F(HitRowsAgreement, HoldsForBytesThatAreNoText) {
  std::mt19937 random(7);
  std::vector<PlainHit> hits = someHits(random, sweep<std::size_t>(50000, 1000));
  for (PlainHit& hit : hits) {
    hit.name.clear();
    // Mostly those that are parts of characters, and those that are escaped.
    const std::string_view bytes("\xC2\x80\x9F\xE2\x82\xAC\xED\xA0\xF0\x90\xF4\xFF\"\\,\n\x1B\x7F e", 20);
    while (random() % 12 != 0) {
      hit.name += random() % 3 == 0 ? static_cast<char>(random() % 256) : bytes[random() % bytes.size()];
    }
  }
  for (const RowFormat format : {RowFormat::Tsv, RowFormat::Csv, RowFormat::Json}) {
    for (const bool isForTerminal : {false, true}) {
      expectEqualRows(hits, {.format = format, .isForTerminal = isForTerminal}, QLocale::c(), query_);
      ASSERT_FALSE(HasFatalFailure());
    }
  }
}

}  // namespace
}  // namespace quorvin::test
