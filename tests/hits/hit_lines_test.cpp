#include "hits/hit_lines.h"

#include "support/qt_printing.h"

#include <gtest/gtest.h>

namespace quorvin {
namespace {

HitRow sampleRow() {
  return {67, SourceKind::Online, u"CD 7"_qs, u"\\Music\\"_qs, u"Live, \"late\".mp3"_qs, 131072, 38001.5};
}

TEST(HitLine, TsvHasSixColumnsWithTabsBetween) {
  EXPECT_EQ(hitLine(sampleRow(), HitFormat::Tsv, QLocale::c()),
            u"067%\tCD 7\t\\Music\\\tLive, \"late\".mp3\t0.13mb\tJan, 15 04"_qs);
}

TEST(HitLine, TsvTurnsControlCharactersIntoBlanks) {
  HitRow row = sampleRow();
  row.name = u"a\tb\rc"_qs;
  EXPECT_EQ(hitLine(row, HitFormat::Tsv, QLocale::c()),
            u"067%\tCD 7\t\\Music\\\ta b c\t0.13mb\tJan, 15 04"_qs);
}

TEST(HitLine, CsvQuotesFieldsThatNeedIt) {
  EXPECT_EQ(hitLine(sampleRow(), HitFormat::Csv, QLocale::c()),
            u"067%,CD 7,\\Music\\,\"Live, \"\"late\"\".mp3\",0.13mb,\"Jan, 15 04\""_qs);
}

TEST(HitLine, JsonIsOneObjectALine) {
  EXPECT_EQ(hitLine(sampleRow(), HitFormat::Json, QLocale::c()),
            u"{\"date\":\"Jan, 15 04\",\"folder\":\"\\\\Music\\\\\",\"match\":\"067%\",\"name\":\"Live, "
            "\\\"late\\\".mp3\",\"size\":\"0.13mb\",\"volume\":\"CD 7\"}"_qs);
}

TEST(HitLine, TitlesAreThoseOfTheList) {
  EXPECT_EQ(hitHeadLine(HitFormat::Csv), u"Match,Volume,Folder,Name,Size,Date"_qs);
  EXPECT_EQ(hitHeadLine(HitFormat::Tsv), u"Match\tVolume\tFolder\tName\tSize\tDate"_qs);
  EXPECT_EQ(hitHeadLine(HitFormat::Json), QString());
}

}  // namespace
}  // namespace quorvin
