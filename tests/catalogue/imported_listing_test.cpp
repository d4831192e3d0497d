// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/import/imported_listing.h"

#include "catalogue/list_entries.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"
#include "support/time_zone.h"

#include <gtest/gtest.h>

namespace quorvin {
namespace {

using namespace std::string_view_literals;

class ImportedListings : public testing::Test {
 protected:
  std::string made(const std::vector<SortedEntry>& entries, std::optional<DayMonthOrder> order = {}) {
    FileAside file(folder_.pathOf(u"listing"_qs));
    ImportedListing listing(file.writer(), u"CD 7"_qs, QLocale::c(), order);
    for (const SortedEntry& entry : entries) listing.add(entry);
    listing.finish();
    file.commit();
    counts = listing.counts();
    return folder_.readFile(u"listing"_qs).toStdString();
  }

  static std::string block(const std::string& path) {
    return "\r\nVolume:    CD 7\r\nDirectory: " + path + "\r\n\r\n";
  }
  static std::string line(const std::string& name, const std::string& size, const std::string& date) {
    std::string text = name + std::string(65 - name.size(), ' ') + std::string(16 - size.size(), ' ') + size +
                       " bytes " + date;
    if (text.size() < 101) text.resize(101, ' ');
    return text + "\r\n";
  }

  ImportCounts counts;

 private:
  TemporaryFolder folder_;
};

TEST_F(ImportedListings, BlocksHaveFoldersBeforeFiles) {
  const ListDate date = test::wallClockOf("2004-01-15 10:20:30");
  EXPECT_EQ(
      made({{"", "", EntryKind::Folder},
            {"", "a.txt", EntryKind::File, 1'234, date},
            {"", "b", EntryKind::Folder},
            {"b", "", EntryKind::Folder}}),
      block("\\") + "<DIR> b\r\n\r\n" + line("a.txt", "1,234", "15 Jan 2004 10:20:30") + block("\\b\\"));
  EXPECT_EQ(counts.folders, 2);
  EXPECT_EQ(counts.files, 1);
}

TEST_F(ImportedListings, WhatIsNotKnownIsWrittenSoThatReadersTakeIt) {
  const ListDate midnight = test::wallClockOf("2004-01-15 00:00:00");
  EXPECT_EQ(made({{"", "", EntryKind::Folder},
                  {"", "a", EntryKind::File, 5, {}},
                  {"", "b", EntryKind::File, {}, midnight},
                  {"", "c\nd", EntryKind::File, 5, midnight}}),
            block("\\") + line("a", "5", "00:00:00") + line("b", "-1", "15 Jan 2004") +
                line("c?d", "-1", "00:00:00"));
  EXPECT_EQ(counts.withoutSize, 2);
  EXPECT_EQ(counts.withoutDate, 2);
}

TEST_F(ImportedListings, TheWayToTheFirstFolderHasNoBlocks) {
  EXPECT_EQ(made({{"", "media", EntryKind::Folder},
                  {"media", "cd", EntryKind::Folder},
                  {"media\0cd"sv, "", EntryKind::Folder},
                  {"media\0cd"sv, "x", EntryKind::Folder},
                  {"media\0cd\0x"sv, "", EntryKind::Folder}}),
            block("\\media\\cd\\") + "<DIR> x\r\n\r\n" + block("\\media\\cd\\x\\"));
}

TEST_F(ImportedListings, APathThatOthersGoThroughIsAFolderAndTheLastOfEqualNamesCounts) {
  EXPECT_EQ(made({{"", "", EntryKind::Folder},
                  {"", "a", EntryKind::Unknown, 4'096, {}},
                  {"", "a", EntryKind::Folder},
                  {"", "b", EntryKind::File, 1, {}},
                  {"", "b", EntryKind::File, 2, {}},
                  {"a", "x", EntryKind::Unknown, 3, {}}}),
            block("\\") + "<DIR> a\r\n\r\n" + line("b", "2", "00:00:00") + block("\\a\\") +
                line("x", "3", "00:00:00"));
  EXPECT_EQ(counts.repeated, 1);
}

TEST_F(ImportedListings, FoldersThatAListingCannotHoldAreLeftOutAndCounted) {
  EXPECT_EQ(made({{"", "", EntryKind::Folder},
                  {"", "a\\b", EntryKind::Folder},
                  {"", "c", EntryKind::Folder},
                  {"a\\b", "", EntryKind::Folder},
                  {"a\\b", "x", EntryKind::File, 1, {}},
                  {"c", "y", EntryKind::File, 1, {}}}),
            block("\\") + "<DIR> c\r\n\r\n" + block("\\c\\") + line("y", "1", "00:00:00"));
  EXPECT_EQ(counts.leftOut, 2);
  EXPECT_EQ(counts.files, 1);
}

TEST_F(ImportedListings, NamesThatHoldAMarkAreCounted) {
  made({{"", "", EntryKind::Folder},
        {"", "Directory: x", EntryKind::Folder},
        {"", "a <DIR> b", EntryKind::File, 1, {}},
        {"", std::string(70, 'x') + "<DIR>", EntryKind::File, 1, {}},
        {"", "plain", EntryKind::File, 1, {}}});
  EXPECT_EQ(counts.misread, 2);
  EXPECT_EQ(counts.files, 3);
}

TEST_F(ImportedListings, MomentsAreOfTheMachinesZoneAndWallClocksAsTheyAre) {
  const test::TimeZone zone{test::kCentralEurope};
  // This time was skipped when the clocks changed.
  EXPECT_EQ(made({{"", "", EntryKind::Folder},
                  {"", "a", EntryKind::File, 1, test::momentOf("2004-01-15 10:20:30")},
                  {"", "b", EntryKind::File, 1, test::wallClockOf("2004-03-28 02:30:00")}}),
            block("\\") + line("a", "1", "15 Jan 2004 11:20:30") + line("b", "1", "28 Mar 2004 02:30:00"));
}

TEST_F(ImportedListings, DatesWithTwoReadingsNeedAnOrder) {
  ListDate date = test::wallClockOf("2004-04-03 10:20:00");
  date.kind = ListDate::Kind::EitherOrder;
  const std::vector<SortedEntry> entries{{"", "", EntryKind::Folder}, {"", "a", EntryKind::File, 1, date}};
  EXPECT_EQ(made(entries), block("\\") + line("a", "1", "00:00:00"));
  EXPECT_EQ(counts.undecidedDates, 1);
  EXPECT_EQ(made(entries, DayMonthOrder::DayFirst), block("\\") + line("a", "1", "3 Apr 2004 10:20:00"));
  EXPECT_EQ(made(entries, DayMonthOrder::MonthFirst), block("\\") + line("a", "1", "4 Mar 2004 10:20:00"));
}

}  // namespace
}  // namespace quorvin
