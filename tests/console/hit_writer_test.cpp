#include "console/hit_writer.h"

#include "search/segment/segment.h"

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

TEST(HitWriter, TellsWhenTheOutputTakesNoMore) {
  std::FILE* full = std::fopen("/dev/full", "w");
  ASSERT_NE(full, nullptr);
  std::setvbuf(full, nullptr, _IONBF, 0);
  HitWriter writer(full, HitFormat::Tsv, QLocale::c());
  EXPECT_TRUE(writer.good());
  const auto segment = std::make_shared<GrowingSegment>();
  segment->beginBlock("V", "\\", true);
  segment->addEntry("song", true);
  segment->publish();
  const FoundEntry hit{0, 100};
  writer.startListing(SourceKind::Online);
  writer.addHits(segment, {&hit, 1});
  writer.flush();
  EXPECT_FALSE(writer.good());
  EXPECT_FALSE(writer.addHits(segment, {&hit, 1}));
  std::fclose(full);
}

}  // namespace
}  // namespace quorvin
