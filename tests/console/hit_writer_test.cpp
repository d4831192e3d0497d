// SPDX-License-Identifier: GPL-2.0-or-later
#include "console/hit_writer.h"

#include "search/segment/segment.h"

#include <gtest/gtest.h>

#include <array>

namespace quorvin {
namespace {

class HitWriterTest : public testing::Test {
 protected:
  HitWriterTest() {
    segment_->beginBlock("V", "\\a\\", true);
    segment_->addEntry("song", true);
    segment_->addEntry("Film", true);
    segment_->beginBlock("V", "\\b\\", true);
    segment_->addEntry("tune", true);
    segment_->valueArrays().set(0, ValueState::Absent, {}, 1);
    segment_->valueArrays().set(1, ValueState::Own, {1500, 1}, 2);
    segment_->valueArrays().set(2, ValueState::Carried, {1500, 1}, 3);
    segment_->publish();
  }
  ~HitWriterTest() override { std::fclose(file_); }

  std::string written() {
    std::rewind(file_);
    std::array<char, 1 << 16> buffer{};
    return {buffer.data(), std::fread(buffer.data(), 1, buffer.size(), file_)};
  }

  static constexpr std::array<FoundEntry, 3> kAll{{{0, 100}, {1, 50}, {2, 67}}};
  ProgramState state_;
  HitRows rows_{{.format = RowFormat::Json, .fields = {HitField::Folder, HitField::Name, HitField::Size}},
                QLocale::c(),
                {},
                state_};
  std::FILE* file_ = std::tmpfile();
  std::shared_ptr<GrowingSegment> segment_ = std::make_shared<GrowingSegment>();
  const std::string song_ = "{\"folder\":\"\\\\a\\\\\",\"name\":\"song\"}\n";
  const std::string film_ = "{\"folder\":\"\\\\a\\\\\",\"name\":\"Film\",\"size\":1500}\n";
  const std::string tune_ = "{\"folder\":\"\\\\b\\\\\",\"name\":\"tune\",\"size\":1500,\"inherited\":true}\n";
};

TEST_F(HitWriterTest, SaysOfEachHitWhereItsValuesAreFrom) {
  HitWriter writer(file_, rows_);
  writer.startListing(SourceKind::Online, {});
  EXPECT_TRUE(writer.addHits(segment_, kAll));
  writer.flush();
  EXPECT_EQ(written(), song_ + film_ + tune_);
  EXPECT_EQ(writer.written(), 3);
}

TEST_F(HitWriterTest, ValuesAreNotInheritedFromAnotherListing) {
  HitWriter writer(file_, rows_);
  writer.startListing(SourceKind::Online, {});
  writer.addHits(segment_, kAll);
  writer.addHits(segment_, {kAll.data(), 1});
  writer.startListing(SourceKind::Online, {});
  writer.addHits(segment_, {kAll.data(), 1});
  writer.flush();
  EXPECT_EQ(written(), song_ + film_ + tune_ +
                           "{\"folder\":\"\\\\a\\\\\",\"name\":\"song\",\"size\":1500,\"inherited\":true}\n" +
                           song_);
}

TEST_F(HitWriterTest, RowsOfATableSayTheSame) {
  HitTable table;
  table.startListing(SourceKind::Online, {});
  table.addHits(segment_, kAll);
  HitWriter writer(file_, rows_);
  EXPECT_EQ(writer.writeRows(table, {2, 0, 1}), 0);
  writer.flush();
  EXPECT_EQ(written(), tune_ + song_ + film_);
}

TEST_F(HitWriterTest, HitsHereAndThereHaveTheirOwnNamesAndFolders) {
  HitRows rows({.fields = {HitField::Folder, HitField::Name, HitField::Size}}, QLocale::c(), {}, state_);
  const auto segment = std::make_shared<GrowingSegment>();
  std::vector<FoundEntry> hits;
  std::string expected;
  for (std::uint32_t entry = 0; entry < 2000; ++entry) {
    const std::string number = std::to_string(entry);
    const std::string folder = "\\Folder " + std::to_string(entry / 7) + "\\";
    if (entry % 7 == 0) segment->beginBlock("V", folder, true);
    const bool isAsciiName = entry % 3 != 0;
    const std::string name = (isAsciiName ? "Name " : "\xC3\x84RGER ") + number;
    segment->addEntry(name, isAsciiName);
    segment->valueArrays().set(entry, ValueState::Own, {entry, 1}, entry + 1);
    if (entry % 5 != 0 && entry % 11 != 1) continue;
    hits.push_back({entry, 100});
    expected += folder + '\t' + name + '\t' + number + '\n';
  }
  segment->publish();
  HitWriter writer(file_, rows);
  writer.startListing(SourceKind::Online, {});
  // The second half is of the folder in which the first one ends.
  writer.addHits(segment, std::span(hits).first(hits.size() / 2));
  writer.addHits(segment, std::span(hits).subspan(hits.size() / 2));
  writer.flush();
  EXPECT_EQ(written(), expected);
}

TEST_F(HitWriterTest, WantsNoMoreThanTheLimit) {
  HitWriter writer(file_, rows_, {.limit = 2});
  writer.startListing(SourceKind::Online, {});
  EXPECT_FALSE(writer.addHits(segment_, kAll));
  writer.flush();
  EXPECT_EQ(written(), song_ + film_);
}

TEST_F(HitWriterTest, ReportsThatTheOutputTakesNoMore) {
  std::FILE* full = std::fopen("/dev/full", "w");
  ASSERT_NE(full, nullptr);
  std::setvbuf(full, nullptr, _IONBF, 0);
  HitWriter writer(full, rows_);
  EXPECT_TRUE(writer.good());
  writer.startListing(SourceKind::Online, {});
  writer.addHits(segment_, {kAll.data(), 1});
  writer.flush();
  EXPECT_FALSE(writer.good());
  EXPECT_FALSE(writer.addHits(segment_, {kAll.data(), 1}));
  std::fclose(full);
}

}  // namespace
}  // namespace quorvin
