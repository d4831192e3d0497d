// SPDX-License-Identifier: GPL-2.0-or-later

// How much is in folders, against a plain reference.
#include "catalogue/volumes/space_tree.h"

#include "catalogue/volumes/plain_volumes.h"
#include "catalogue/volumes/space_job.h"
#include "support/listing_lines.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

#include <map>

namespace quorvin {
namespace {

using test::blockHead;
using test::entryLine;
using test::VolumeEntry;
using ::testing::ElementsAre;

/// The space tree of listings that a test writes.
class SpaceTreeTest : public testing::Test {
 protected:
  const SpaceTree& treeOf(const std::vector<QByteArray>& listings) {
    std::vector<QString> paths;
    for (std::size_t i = 0; i < listings.size(); ++i) {
      paths.push_back(folder_.writeFile(QString::number(i) + u".txt"_qs, listings[i]));
    }
    job_ = std::make_unique<SpaceJob>(ProgramState(), paths, QLocale::c());
    job_->run();
    EXPECT_TRUE(job_->isComplete()) << job_->fault().toStdString();
    return job_->tree();
  }

  /// "0 VOLUME \Folder\", for a volume without its path.
  std::string placeOf(std::uint32_t folder) const {
    const FolderTree& folders = job_->tree().folders();
    const FolderTree::Volume& volume = folders.volumes()[folders.volumeOf(folder)];
    return std::to_string(volume.listing) + ' ' + volume.name + ' ' + folders.path(folder);
  }

  std::vector<std::string> partsOf(std::uint32_t folder) const {
    std::vector<std::string> texts;
    for (const SpaceTree::Part& part : job_->tree().partsOf(folder)) {
      const std::string files = part.areFiles ? " files" : "";
      texts.push_back(placeOf(part.folder) + files + ": " + std::to_string(part.bytes) + ' ' +
                      titleOf(part.kind).toStdString() + ' ' + titleOfYears(part.yearSpan).toStdString());
    }
    return texts;
  }

  TemporaryFolder folder_;
  std::unique_ptr<SpaceJob> job_;
};

/// What a folder holds with all that is below it, summed as plainly as possible.
struct PlainSpace {
  std::int64_t bytes = 0;
  std::map<FileKind, std::int64_t> kinds;
};

std::map<std::string, PlainSpace> plainSpaces(const std::vector<VolumeEntry>& entries) {
  std::map<std::string, PlainSpace> spaces;
  for (const VolumeEntry& entry : entries) {
    if (!entry.size || *entry.size < 0) continue;
    const std::string volume = std::to_string(entry.listing) + ' ' + entry.volume.toStdString() + ' ';
    // The path of the volume itself is empty; "\" is the folder without a name in it.
    std::vector<std::string> places{volume};
    for (qsizetype at = entry.folder.indexOf(u'\\'); at >= 0; at = entry.folder.indexOf(u'\\', at + 1)) {
      places.push_back(volume + entry.folder.left(at + 1).toStdString());
    }
    for (const std::string& place : places) {
      spaces[place].bytes += *entry.size;
      spaces[place].kinds[kindOfName(entry.name.toLower().toStdString())] += *entry.size;
    }
  }
  return spaces;
}

TEST_F(SpaceTreeTest, OfALargeCatalogueIsThatOfAPlainReference) {
  const std::vector<VolumeEntry> entries = test::madeUpEntries(5, 4, 20'000);
  const SpaceTree& tree = treeOf(test::listingsOfEntries(entries, 4));
  const std::map<std::string, PlainSpace> plain = plainSpaces(entries);
  std::int64_t all = 0;
  std::size_t seen = 0;
  for (std::uint32_t folder = 0; folder < tree.folders().count(); ++folder) {
    const auto found = plain.find(placeOf(folder));
    if (found == plain.end()) {
      EXPECT_EQ(tree.sumOf(folder).bytes, 0) << placeOf(folder);
      continue;
    }
    ++seen;
    EXPECT_EQ(tree.sumOf(folder).bytes, found->second.bytes) << placeOf(folder);
    std::int64_t parts = 0;
    for (const SpaceTree::Part& part : tree.partsOf(folder)) parts += part.bytes;
    EXPECT_EQ(parts, found->second.bytes) << placeOf(folder);
    if (tree.folders().parent(folder) == FolderTree::kNone) all += found->second.bytes;
  }
  EXPECT_EQ(seen, plain.size());
  EXPECT_GT(seen, 500U);
  EXPECT_EQ(tree.sumOf(SpaceTree::kTop).bytes, all);
  for (const SpaceTree::Part& volume : tree.partsOf(SpaceTree::kTop)) {
    const auto& kinds = plain.at(placeOf(volume.folder)).kinds;
    const auto most = std::ranges::max_element(kinds, {}, [](const auto& kind) { return kind.second; });
    EXPECT_EQ(volume.kind, most->first) << placeOf(volume.folder);
  }
}

TEST_F(SpaceTreeTest, PartsComeLargestFirstWithTheFilesRightThere) {
  treeOf({blockHead("CD", "\\") + entryLine("a.txt", "10") + blockHead("CD", "\\Films\\") +
          entryLine("f.avi", "500", "2010-05-01 10:20:30") + blockHead("CD", "\\Films\\Old\\") +
          entryLine("g.avi", "100", "1990-05-01 10:20:30") + blockHead("CD", "\\Empty\\") +
          entryLine("zero", "0")});
  const std::uint32_t top = job_->tree().firstWithParts(SpaceTree::kTop);
  EXPECT_EQ(placeOf(top), "0 CD \\");
  EXPECT_THAT(partsOf(top), ElementsAre("0 CD \\Films\\: 600 Video 2010\u20132014",
                                        "0 CD \\ files: 10 Documents 2000\u20132004"));
  const std::uint32_t films = job_->tree().partsOf(top)[0].folder;
  EXPECT_THAT(partsOf(films), ElementsAre("0 CD \\Films\\ files: 500 Video 2010\u20132014",
                                          "0 CD \\Films\\Old\\: 100 Video Up to 1994"));
  EXPECT_EQ(job_->tree().above(films), top);
  EXPECT_EQ(job_->tree().above(top), SpaceTree::kTop);
}

TEST_F(SpaceTreeTest, FoldersThatAreAllThereIsArePassedOver) {
  treeOf({blockHead("CD", "\\home\\ann\\") + entryLine("a", "1") + blockHead("CD", "\\home\\ann\\b\\") +
              entryLine("b", "2"),
          blockHead("DISK", "\\x\\y\\") + entryLine("c", "5")});
  EXPECT_EQ(job_->tree().firstWithParts(SpaceTree::kTop), SpaceTree::kTop);
  EXPECT_THAT(partsOf(SpaceTree::kTop),
              ElementsAre("1 DISK : 5 Others 2000\u20132004", "0 CD : 3 Others 2000\u20132004"));
  const std::vector<SpaceTree::Part> volumes = job_->tree().partsOf(SpaceTree::kTop);
  EXPECT_EQ(placeOf(job_->tree().firstWithParts(volumes[1].folder)), "0 CD \\home\\ann\\");
  EXPECT_EQ(placeOf(job_->tree().firstWithParts(volumes[0].folder)), "1 DISK \\x\\y\\");
  EXPECT_EQ(job_->tree().above(job_->tree().firstWithParts(volumes[1].folder)), SpaceTree::kTop);
}

TEST_F(SpaceTreeTest, OfNothingIsEmpty) {
  treeOf({""});
  EXPECT_TRUE(job_->tree().partsOf(SpaceTree::kTop).empty());
  EXPECT_EQ(job_->tree().firstWithParts(SpaceTree::kTop), SpaceTree::kTop);
  EXPECT_EQ(job_->tree().sumOf(SpaceTree::kTop), FileSum());
}

TEST_F(SpaceTreeTest, AStoppedJobHasNone) {
  SpaceJob job(ProgramState(), {folder_.writeFile(u"a.txt"_qs, entryLine("a"))}, QLocale::c());
  job.stop();
  job.run();
  EXPECT_FALSE(job.isComplete());
}

}  // namespace
}  // namespace quorvin
