// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/import/list_import.h"

#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>

namespace quorvin {
namespace {

class ListImports : public testing::Test {
 protected:
  std::string import(const std::string& list, const ImportRequest& request = {}) {
    const QString place = folder_.pathOf(u"listing"_qs);
    FileAside file(place);
    std::size_t at = 0;
    const ListLines::Read read = [&](std::span<char> buffer) {
      const std::size_t count = std::min(buffer.size(), list.size() - at);
      std::memcpy(buffer.data(), list.data() + at, count);
      at += count;
      return count;
    };
    report = importList(read, request, QLocale::c(), place, file.writer(), progress);
    file.commit();
    return folder_.readFile(u"listing"_qs).toStdString();
  }

  ImportReport report;
  ImportProgress progress = [](std::int64_t) { return true; };

 private:
  TemporaryFolder folder_;
};

TEST_F(ListImports, PathsStartWhereTheRequestSays) {
  ImportRequest request;
  request.folder = u"/media/cd"_qs;
  const std::string listing = import("./a/../b/.//x\n./b/y\n/top/z\n", request);
  EXPECT_EQ(report.format->name, "paths");
  EXPECT_THAT(listing, testing::HasSubstr("Directory: \\\r\n\r\n<DIR> media\r\n<DIR> top\r\n"));
  EXPECT_THAT(listing, testing::HasSubstr("Directory: \\media\\cd\\b\\\r\n\r\nx "));
  EXPECT_THAT(listing, testing::HasSubstr("Directory: \\top\\\r\n\r\nz "));
  EXPECT_EQ(report.counts.files, 3);
}

TEST_F(ListImports, NoPathLeadsAboveTheTop) {
  ImportRequest request;
  request.format = listFormatNamed("paths");
  const std::string listing = import("../../etc/x\na/../../../y\n", request);
  EXPECT_THAT(listing, testing::StartsWith("\r\nVolume:    \r\nDirectory: \\\r\n\r\n<DIR> etc\r\n\r\ny "));
  EXPECT_THAT(listing, testing::HasSubstr("\r\nDirectory: \\etc\\\r\n\r\nx "));
  EXPECT_EQ(report.counts.files, 2);
}

TEST_F(ListImports, LinesThatWereNotUnderstoodAreCountedAndTheFirstOnesKept) {
  std::string list;
  for (int i = 0; i < 10; ++i) list += "5 2004-01-15 10:20:30.000000000 x" + std::to_string(i) + "\nnoise\n";
  import(list);
  EXPECT_EQ(report.lines, 20);
  EXPECT_EQ(report.notUnderstood, 10);
  ASSERT_EQ(report.firstNotUnderstood.size(), ImportReport::kFirstLines);
  EXPECT_EQ(report.firstNotUnderstood[1].number, 4);
  EXPECT_EQ(report.firstNotUnderstood[1].text, u"noise"_qs);
}

TEST_F(ListImports, WithoutAFormatNothingIsWritten) {
  EXPECT_EQ(import("Dear Ann,\nthank you.\n"), "");
  EXPECT_EQ(report.format, nullptr);
  ImportRequest request;
  request.format = listFormatNamed("paths");
  EXPECT_THAT(import("Dear Ann,\nthank you.\n", request), testing::HasSubstr("\r\nDear Ann,  "));
}

TEST_F(ListImports, OtherDatesOfTheListSayTheOrderOfDayAndMonth) {
  const std::string head = "path,modified\n/a,03/04/2004 10:20\n";
  EXPECT_THAT(import(head + "/b,12/31/2004\n"), testing::HasSubstr("4 Mar 2004 10:20:00"));
  EXPECT_THAT(import(head + "/b,31/12/2004\n"), testing::HasSubstr("3 Apr 2004 10:20:00"));
  import(head + "/b,12/31/2004\n/c,31/12/2004\n");
  EXPECT_EQ(report.counts.undecidedDates, 1);
  ImportRequest request;
  request.order = DayMonthOrder::MonthFirst;
  EXPECT_THAT(import(head, request), testing::HasSubstr("4 Mar 2004 10:20:00"));
  EXPECT_EQ(report.decided, u"path=1 \"path\", date=2 \"modified\""_qs);
}

TEST_F(ListImports, ALongListTakesNoMoreMemoryThanAllowedAndGivesTheSameListing) {
  std::string list;
  for (int i = 0; i < 20'000; ++i) {
    list += std::to_string(i) + " 2004-01-15 10:20:30.000000000 f" + std::to_string(i * 7919 % 500) + "/n" +
            std::to_string(i) + "\n";
  }
  const std::string listing = import(list);
  EXPECT_EQ(report.counts.files, 20'000);
  EXPECT_EQ(report.counts.folders, 501);
  ImportRequest request;
  request.memory = 100'000;
  EXPECT_EQ(import(list, request), listing);
}

TEST_F(ListImports, ProgressCanStopIt) {
  std::string list;
  for (int i = 0; i < 5'000; ++i) list += "/n" + std::to_string(i) + "\n";
  std::vector<std::int64_t> seen;
  progress = [&](std::int64_t lines) {
    seen.push_back(lines);
    return lines < 4'000;
  };
  EXPECT_EQ(import(list), "");
  EXPECT_TRUE(report.isStopped);
  EXPECT_THAT(seen, testing::ElementsAre(2'000, 4'000));
}

TEST_F(ListImports, LinesThatAreNoTextAreCounted) {
  ImportRequest request;
  import("/\xFC\n/b\n", request);
  EXPECT_EQ(report.noText, 1);
  request.encoding = "windows-1252";
  EXPECT_THAT(import("/\xFC\n/b\n", request), testing::HasSubstr("\r\n\u00FC "));
  EXPECT_EQ(report.noText, 0);
}

}  // namespace
}  // namespace quorvin
