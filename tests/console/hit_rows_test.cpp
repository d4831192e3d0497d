// SPDX-License-Identifier: GPL-2.0-or-later
#include "console/hit_rows.h"

#include "console/plain_hit_rows.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace quorvin {
namespace {

class HitRowsTest : public testing::Test {
 protected:
  static test::PlainHit sampleHit() {
    return {67,    SourceKind::Online, "CD 7", "\\Music\\", "Live, \"late\".mp3", {{131072, 38001.5}},
            false, "/lists/cd7.txt"};
  }

  std::string rowOf(const test::PlainHit& hit, RowOptions options) {
    HitRows rows(std::move(options), QLocale::c(), SearchQuery(u"live at music", 1), state_);
    std::string text;
    isWritten_ = test::addQuickly(rows, hit, text);
    return text;
  }
  std::string headOf(RowOptions options) {
    const HitRows rows(std::move(options), QLocale::c(), {}, state_);
    std::string text;
    rows.addHead(text);
    return text;
  }
  std::string tsvOf(std::string_view name) {
    test::PlainHit hit = sampleHit();
    hit.name = name;
    return rowOf(hit, {.fields = {HitField::Name}});
  }
  std::string jsonOf(std::string_view name, bool isForTerminal = false) {
    test::PlainHit hit = sampleHit();
    hit.name = name;
    return rowOf(hit,
                 {.format = RowFormat::Json, .fields = {HitField::Name}, .isForTerminal = isForTerminal});
  }

  ProgramState state_;
  bool isWritten_ = false;
};

TEST_F(HitRowsTest, TsvHasTheWindowsColumnsWithTabsBetween) {
  EXPECT_EQ(rowOf(sampleHit(), {}), "067%\tCD 7\t\\Music\\\tLive, \"late\".mp3\t0.13mb\tJan, 15 04\n");
  EXPECT_EQ(headOf({}), "Match\tVolume\tFolder\tName\tSize\tDate\n");
}

TEST_F(HitRowsTest, CsvQuotesColumnsThatNeedIt) {
  EXPECT_EQ(rowOf(sampleHit(), {.format = RowFormat::Csv}),
            "067%,CD 7,\\Music\\,\"Live, \"\"late\"\".mp3\",0.13mb,\"Jan, 15 04\"\n");
  EXPECT_EQ(headOf({.format = RowFormat::Csv}), "Match,Volume,Folder,Name,Size,Date\n");
}

TEST_F(HitRowsTest, ChosenColumnsComeInTheChosenOrder) {
  const std::vector<HitField> fields{HitField::Size,    HitField::Name,  HitField::Modified, HitField::Path,
                                     HitField::Listing, HitField::Words, HitField::Match};
  EXPECT_EQ(rowOf(sampleHit(), {.fields = fields}),
            "131072\tLive, \"late\".mp3\t2004-01-15T12:00:00\t\t/lists/cd7.txt\tlive at music\t67\n");
  EXPECT_EQ(headOf({.fields = fields}), "size\tname\tmodified\tpath\tlisting\twords\tmatch\n");
}

TEST_F(HitRowsTest, JsonHasEveryFieldTyped) {
  EXPECT_EQ(rowOf(sampleHit(), {.format = RowFormat::Json}),
            "{\"match\":67,\"volume\":\"CD 7\",\"folder\":\"\\\\Music\\\\\",\"name\":\"Live, "
            "\\\"late\\\".mp3\",\"size\":131072,\"modified\":\"2004-01-15T12:00:00\",\"listing\":\"/lists/"
            "cd7.txt\",\"words\":[\"live\",\"at\",\"music\"]}\n");
  EXPECT_EQ(headOf({.format = RowFormat::Json}), "");
}

TEST_F(HitRowsTest, InheritedValuesAreMarkedAndAbsentOnesLeftOut) {
  test::PlainHit hit = sampleHit();
  hit.areInherited = true;
  const RowOptions options{.format = RowFormat::Json,
                           .fields = {HitField::Match, HitField::Size, HitField::Modified}};
  EXPECT_EQ(rowOf(hit, options),
            "{\"match\":67,\"size\":131072,\"modified\":\"2004-01-15T12:00:00\",\"inherited\":true}\n");
  hit.areInherited = false;
  hit.values.reset();
  EXPECT_EQ(rowOf(hit, options), "{\"match\":67}\n");
  EXPECT_EQ(rowOf(hit, {.fields = options.fields}), "67\t\t\n");
  // The window's columns show the values that the window shows.
  EXPECT_EQ(rowOf(hit, {}), "067%\tCD 7\t\\Music\\\tLive, \"late\".mp3\t0.00mb\tDec, 30 99\n");
}

TEST_F(HitRowsTest, TsvTurnsControlCharactersIntoBlanks) {
  EXPECT_EQ(tsvOf("a\tb\rc\x1B[2J\x7F"), "a b c [2J \n");
}

TEST_F(HitRowsTest, TextsOfOneColumnAreLeftAsTheyAreWhereRowsEndWithNul) {
  test::PlainHit hit = sampleHit();
  hit.name = "a\tb\nc";
  EXPECT_EQ(rowOf(hit, {.fields = {HitField::Name}, .endsWithNul = true}), std::string("a\tb\nc\0", 6));
  EXPECT_EQ(rowOf(hit, {.fields = {HitField::Match, HitField::Name}, .endsWithNul = true}),
            std::string("67\ta b c\0", 9));
}

TEST_F(HitRowsTest, JsonEscapesControlCharactersAndReplacesWhatIsNoUtf8) {
  EXPECT_EQ(jsonOf("a\tb\x1B\x7F"), "{\"name\":\"a\\u0009b\\u001b\\u007f\"}\n");
  EXPECT_EQ(jsonOf("C1 \xC2\x9B"
                   "31m"),
            "{\"name\":\"C1 \\u009b31m\"}\n");
  EXPECT_EQ(jsonOf("\xC3\xA4\xE2\x82\xAC\xF0\x9F\x8E\xB5"),
            "{\"name\":\"\xC3\xA4\xE2\x82\xAC\xF0\x9F\x8E\xB5\"}\n");
  // A surrogate, a byte alone, an overlong slash, a character cut off, one beyond the last.
  EXPECT_EQ(jsonOf("\xED\xA0\x80"), "{\"name\":\"\\ufffd\\ufffd\\ufffd\"}\n");
  EXPECT_EQ(jsonOf("\xE4x"), "{\"name\":\"\\ufffdx\"}\n");
  EXPECT_EQ(jsonOf("\xC0\xAF"), "{\"name\":\"\\ufffd\\ufffd\"}\n");
  EXPECT_EQ(jsonOf("a\xE2\x82"), "{\"name\":\"a\\ufffd\\ufffd\"}\n");
  EXPECT_EQ(jsonOf("\xF4\x90\x80\x80"), "{\"name\":\"\\ufffd\\ufffd\\ufffd\\ufffd\"}\n");
}

TEST_F(HitRowsTest, NoControlCharacterReachesATerminal) {
  test::PlainHit hit = sampleHit();
  hit.name =
      "\x1B[2J\xC2\x9B"
      "31m\xC3\xA4\r";
  EXPECT_EQ(rowOf(hit, {.fields = {HitField::Name}, .isForTerminal = true}), " [2J?31m\xC3\xA4 \n");
  EXPECT_EQ(rowOf(hit, {.format = RowFormat::Csv, .fields = {HitField::Name}, .isForTerminal = true}),
            "\"?[2J?31m\xC3\xA4?\"\n");
  EXPECT_EQ(rowOf(hit, {.fields = {HitField::Name}, .endsWithNul = true, .isForTerminal = true}),
            std::string(" [2J?31m\xC3\xA4 \0", 12));
  // In a pipe, a script gets them as they are.
  EXPECT_EQ(rowOf(hit, {.format = RowFormat::Csv, .fields = {HitField::Name}}),
            "\"\x1B[2J\xC2\x9B"
            "31m\xC3\xA4\r\"\n");
}

TEST_F(HitRowsTest, WordsThatWereFoundAreHighlighted) {
  EXPECT_EQ(rowOf(sampleHit(),
                  {.fields = {HitField::Folder, HitField::Name, HitField::Volume}, .isColoured = true}),
            "\\\x1B[1;31mMusic\x1B[m\\\t\x1B[1;31mLive\x1B[m, \"l\x1B[1;31mat\x1B[me\".mp3\tCD 7\n");
}

class PathsOfRows : public HitRowsTest {
 protected:
  PathsOfRows() {
    folder_.writeFile(u"Music/c\nd.mp3"_qs, "x");
    folder_.writeFile(u"Music/a b.mp3"_qs, "x");
    state_.OnlineSources.set(1, u"CD 7"_qs, folder_.pathOf(u"Music/"_qs));
    state_.OnlineSourceCount = 1;
    listed_ = folder_.pathOf(u"Music/"_qs).replace(u'/', u'\\').toStdString();
  }
  std::string pathOf(std::string_view name, SourceKind kind = SourceKind::Online) {
    test::PlainHit hit = sampleHit();
    hit.kind = kind;
    hit.folder = listed_;
    hit.name = name;
    return rowOf(hit, {.fields = {HitField::Path}, .endsWithNul = true});
  }
  std::string expected(const QString& name) const {
    return folder_.pathOf(u"Music/"_qs + name).toStdString() + '\0';
  }

  TemporaryFolder folder_;
  std::string listed_;
};

TEST_F(PathsOfRows, AreThoseOfTheFilesAlsoWhereTheListingHasSignsInPlaceOfOthers) {
  EXPECT_EQ(pathOf("a b.mp3"), expected(u"a b.mp3"_qs));
  EXPECT_EQ(pathOf("c?d.mp3"), expected(u"c\nd.mp3"_qs));
}

TEST_F(PathsOfRows, AreMadeOfTheListingWhereTheFileIsNotThereUnlessItLeavesThemOpen) {
  EXPECT_EQ(pathOf("gone.mp3"), expected(u"gone.mp3"_qs));
  EXPECT_EQ(pathOf("gone?.mp3"), "");
  EXPECT_FALSE(isWritten_);
}

TEST_F(PathsOfRows, AreKnownForOwnFoldersAlone) {
  EXPECT_EQ(pathOf("a b.mp3", SourceKind::Offline), "");
  EXPECT_FALSE(isWritten_);
  EXPECT_EQ(pathOf("a b.mp3", SourceKind::MainDataFile), "");
}

}  // namespace
}  // namespace quorvin
