// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/listed_files.h"

#include "catalogue/found_copies.h"
#include "support/fault_number.h"
#include "support/listing_lines.h"

#include <gmock/gmock.h>

namespace quorvin {
namespace {

using testing::ElementsAre;

/// The files of a listing, whose records nobody has taken yet.
class Listed {
 public:
  explicit Listed(const QByteArray& listing, ListedFiles::Options options = {}) : files(options) {
    const SearchQuery everything(QString::fromUtf16(ListedFiles::kEveryEntry), 1);
    const ScanRequest request{everything, QLocale::c(), &files, [](std::int64_t) { return false; }};
    const QString path = folder_.writeFile(u"listing.txt"_qs, listing);
    files.startListing(SourceKind::Offline, path);
    RunCounts counts;
    ScanOutcome outcome;
    scanListingFile(path, nullptr, request, counts, outcome);
  }

 private:
  TemporaryFolder folder_;

 public:
  ListedFiles files;
};

TEST(ListedFiles, TheDigitOfALargeSizeIsNoPartOfTheName) {
  const std::string_view longest = "123456789 123456789 123456789 123456789 123456789 123456789 12345";
  EXPECT_EQ(fileNameIn("film.avi", 1'000'000'000), "film.avi");
  EXPECT_EQ(fileNameIn(std::string("film.avi") + std::string(60, ' ') + '1', 1'000'000'000), "film.avi");
  EXPECT_EQ(fileNameIn(std::string(longest) + "   9", 9'000'000'000), longest);
  EXPECT_EQ(fileNameIn(std::string(longest) + "6789", 999'999'999), std::string(longest) + "6789");
  // Columns count characters.
  const std::string umlauts = QString(65, u'\u00E4').toStdString();
  EXPECT_EQ(fileNameIn(umlauts + "   4", 4'000'000'000), umlauts);
  EXPECT_EQ(fileNameIn(umlauts, 4'000'000'000), umlauts);
}

TEST(ListedFiles, AreVisitedInTheOrderOfPlacesWithTheirFolders) {
  const Listed listed(test::blockHead("A", "\\1\\") + test::entryLine("One", "5") + "no size\r\n" +
                      test::blockHead("B", "\\2\\") + test::entryLine("two", "4,294,967,296"));
  std::vector<std::string> visited;
  listed.files.visitFiles(
      [&](ListedFiles::Visited& file) {
        visited.push_back(std::to_string(file.place) + ' ' + std::string(file.name().listed) + ' ' +
                          std::string(file.name().folded) + ' ' + std::to_string(file.size) + ' ' +
                          listed.files.folders().path(file.folder));
      },
      [] { return false; });
  EXPECT_THAT(visited, ElementsAre("0 One one 5 \\1\\", "2 two two 4294967296 \\2\\"));
  EXPECT_EQ(listed.files.placeCount(), 3U);
  EXPECT_EQ(listed.files.withoutSize(), 1);
  EXPECT_EQ(listed.files.folders().path(listed.files.folderOf(1)), "\\1\\");
  EXPECT_EQ(listed.files.folders().volumes()[1].name, "B");
}

TEST(ListedFiles, RecordsComeByHashAndThenByPlaceAndOnceOnly) {
  QByteArray listing = test::blockHead("A", "\\");
  for (int i = 0; i < 6000; ++i) listing += test::entryLine("f" + QByteArray::number(i % 2000), "5");
  Listed listed(listing);
  std::size_t count = 0;
  for (std::size_t part = 0; part < ListedFiles::kParts; ++part) {
    const std::vector<FileRecord> records = listed.files.takePart(part);
    count += records.size();
    for (std::size_t i = 0; i < records.size(); ++i) {
      EXPECT_EQ(records[i].hash() >> 56, part);
      if (i == 0) continue;
      EXPECT_LE(records[i - 1].hash(), records[i].hash());
      if (records[i - 1].hash() == records[i].hash()) {
        EXPECT_LT(records[i - 1].place, records[i].place);
      }
    }
    EXPECT_TRUE(listed.files.takePart(part).empty());
  }
  EXPECT_EQ(count, 6000U);
}

TEST(ListedFiles, WordsSayWhichAreWanted) {
  QByteArray listing;
  for (int i = 0; i < 5000; ++i) {
    listing += i % 1000 == 0 ? test::blockHead("A", "\\" + QByteArray::number(i) + "\\") : QByteArray();
    listing += test::entryLine(i % 7 == 0 ? "wanted" : "other");
  }
  const SearchQuery words(u"wanted"_qs, 50);
  const Listed listed(listing, {&words});
  for (std::uint32_t place = 0; place < 5000; ++place) {
    EXPECT_EQ(listed.files.isWanted(place), place % 7 == 0) << place;
  }
}

TEST(ListedFiles, SmallListingsAreLetGoAndOpenedAgain) {
  TemporaryFolder folder;
  SegmentStore store({folder.pathOf(u"cache/"_qs), 0});
  int opened = 0;
  bool areThere = true;
  ListedFiles files({nullptr, 64, [&](const QString& listing) {
                       ++opened;
                       const auto key = segmentKeyOf(listing, QLocale::c());
                       return areThere && key ? store.find(*key) : SegmentStore::Segments();
                     }});
  const SearchQuery everything(QString::fromUtf16(ListedFiles::kEveryEntry), 1);
  const ScanRequest request{everything, QLocale::c(), &files, [](std::int64_t) { return false; }};
  QStringList paths;
  for (const char* name : {"a", "b", "c"}) {
    paths +=
        folder.writeFile(QString::fromLatin1(name), test::blockHead("V", "\\") + test::entryLine(name, "5"));
  }
  for (const QString& path : paths + paths.mid(2)) {
    files.startListing(SourceKind::Offline, path);
    RunCounts counts;
    ScanOutcome outcome;
    scanListingFile(path, &store, request, counts, outcome);
  }
  files.endListing();
  EXPECT_EQ(opened, 4);
  std::string names;
  const auto note = [&](ListedFiles::Visited& file) { names += file.name().listed; };
  files.visitFiles(note, [] { return false; });
  EXPECT_EQ(names, "abcc");
  EXPECT_EQ(opened, 8);
  areThere = false;
  EXPECT_FAULT(files.visitFiles(note, [] { return false; }), 57);
}

}  // namespace
}  // namespace quorvin
