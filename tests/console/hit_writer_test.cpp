#include "console/hit_writer.h"

#include "search/segment/segment.h"

#include <gtest/gtest.h>

namespace quorvin {
namespace {

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
  writer.startListing(SourceKind::Online, {});
  writer.addHits(segment, {&hit, 1});
  writer.flush();
  EXPECT_FALSE(writer.good());
  EXPECT_FALSE(writer.addHits(segment, {&hit, 1}));
  std::fclose(full);
}

}  // namespace
}  // namespace quorvin
