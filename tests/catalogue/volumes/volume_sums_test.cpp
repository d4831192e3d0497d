// SPDX-License-Identifier: GPL-2.0-or-later

// What is on volumes of generated catalogues, against a plain reference.
#include "catalogue/volumes/volume_sums.h"

#include "catalogue/listed_files.h"
#include "catalogue/volumes/plain_volumes.h"
#include "search/listing_scan.h"
#include "search/segment/segment_store.h"
#include "support/listing_lines.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

namespace quorvin {
namespace {

using test::blockHead;
using test::entryLine;
using test::VolumeEntry;
using ::testing::ElementsAre;

struct VolumeSetting {
  QString words = QString::fromUtf16(ListedFiles::kEveryEntry);
  ScanLimits limits = {};
  bool areKept = true;
};

class SummedVolumes {
 public:
  explicit SummedVolumes(const std::vector<QByteArray>& listings, const VolumeSetting& setting = {})
      : store_({folder_.pathOf(u"cache/"_qs), std::size_t{1} << 30}) {
    for (std::size_t i = 0; i < listings.size(); ++i) {
      const QString path = folder_.writeFile(QString::number(i) + u".txt"_qs, listings[i]);
      sums.startListing(SourceKind::Offline, path);
      const SearchQuery query(setting.words, 1);
      const ScanRequest request{query, QLocale::c(), &sums, [](std::int64_t) { return false; }};
      RunCounts counts;
      ScanOutcome outcome;
      scanListingFile(path, setting.areKept ? &store_ : nullptr, request, counts, outcome, setting.limits);
    }
  }

  /// As plainVolumes() has it.
  std::vector<std::string> lines() const {
    std::vector<std::string> lines;
    for (const VolumeSums::Volume& volume : sums.volumes()) {
      std::string line = std::to_string(volume.listing) + ' ' + volume.name + ": " +
                         std::to_string(volume.sum.holds.files) + " entries, " +
                         std::to_string(volume.sum.withoutSize) + " without size, " +
                         std::to_string(volume.sum.holds.bytes) + " bytes";
      if (volume.sum.newest) {
        line += ", newest " +
                dateTimeOf(volume.sum.newest->date).toString(u"yyyy-MM-ddTHH:mm:ss"_qs).toStdString() + ' ' +
                volume.sum.newest->folder + ' ' + volume.sum.newest->name;
      }
      lines.push_back(line);
    }
    return lines;
  }

 private:
  TemporaryFolder folder_;
  SegmentStore store_;

 public:
  VolumeSums sums;
};

std::vector<VolumeEntry> entriesWith(const QString& word, const std::vector<VolumeEntry>& entries) {
  std::vector<VolumeEntry> with;
  for (const VolumeEntry& entry : entries) {
    if ((entry.folder + u' ' + entry.name).toLower().contains(word)) with.push_back(entry);
  }
  return with;
}

TEST(VolumeSums, OfALargeCatalogueAreThoseOfAPlainReference) {
  const std::vector<VolumeEntry> entries = test::madeUpEntries(1, 5, 20'000);
  const std::vector<std::string> plain = test::plainVolumes(entries);
  EXPECT_EQ(plain.size(), 25U);
  const SummedVolumes summed(test::listingsOfEntries(entries, 5));
  EXPECT_EQ(summed.lines(), plain);
  EXPECT_EQ(summed.sums.listings().size(), 5U);
}

TEST(VolumeSums, AreTheSameWhereSegmentsEndAnywhere) {
  VolumeSetting setting;
  setting.limits.chunkSize = 4096;
  setting.limits.keptSegment = std::size_t{1} << 16;
  setting.limits.passingSegment = std::size_t{1} << 14;
  const std::vector<VolumeEntry> entries = test::madeUpEntries(2, 3, 6'000);
  const std::vector<std::string> plain = test::plainVolumes(entries);
  EXPECT_EQ(SummedVolumes(test::listingsOfEntries(entries, 3), setting).lines(), plain);
  setting.areKept = false;
  EXPECT_EQ(SummedVolumes(test::listingsOfEntries(entries, 3), setting).lines(), plain);
}

TEST(VolumeSums, OverManySmallCatalogues) {
  for (unsigned seed = 10; seed < 50; ++seed) {
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    const std::vector<VolumeEntry> entries = test::madeUpEntries(seed, 3, 40);
    EXPECT_EQ(SummedVolumes(test::listingsOfEntries(entries, 3)).lines(), test::plainVolumes(entries));
  }
}

TEST(VolumeSums, OfASearchCountOnlyWhatItFinds) {
  for (const unsigned seed : {3U, 4U}) {
    const std::vector<VolumeEntry> entries = test::madeUpEntries(seed, 4, 3'000);
    VolumeSetting setting;
    setting.words = u"harbour"_qs;
    const std::vector<VolumeEntry> with = entriesWith(setting.words, entries);
    ASSERT_GT(with.size(), 300U);
    EXPECT_EQ(SummedVolumes(test::listingsOfEntries(entries, 4), setting).lines(), test::plainVolumes(with));
  }
}

TEST(VolumeSums, OfSeveralNewestFilesTheFirstOneIsNamed) {
  const SummedVolumes summed({blockHead("A", "\\one\\") + entryLine("a", "1", "2004-01-15 10:20:30") +
                              entryLine("b", "2", "2004-01-15 10:20:31") + blockHead("A", "\\two\\") +
                              entryLine("c", "3", "2004-01-15 10:20:31")});
  EXPECT_THAT(summed.lines(),
              ElementsAre("0 A: 3 entries, 0 without size, 6 bytes, newest 2004-01-15T10:20:31 \\one\\ b"));
}

TEST(VolumeSums, ASizeThatReachesIntoTheNameIsNoPartOfIt) {
  const QByteArray name(65, 'n');
  const SummedVolumes summed(
      {blockHead("A", "\\") + entryLine(name, "1234567890123", "2004-01-15 10:20:30")});
  EXPECT_EQ(summed.sums.volumes().at(0).sum.newest->name, name.toStdString());
}

TEST(VolumeSums, OfSizesThatAreTooLargeTogetherStayAtTheLargestNumber) {
  VolumeSum sum{{1, INT64_MAX - 5}};
  sum.add({{1, 10}});
  EXPECT_EQ(sum.holds.bytes, INT64_MAX);
}

}  // namespace
}  // namespace quorvin
