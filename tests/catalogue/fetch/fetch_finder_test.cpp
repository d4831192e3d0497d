// SPDX-License-Identifier: GPL-2.0-or-later

// Wanted files and their places, in listings that the tests write.
#include "catalogue/fetch/fetch_finder.h"

#include "support/listing_lines.h"
#include "support/qt_printing.h"
#include "support/recording_message_boxes.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

namespace quorvin {
namespace {

using test::blockHead;
using test::entryLine;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class FetchFinderTest : public ::testing::Test {
 protected:
  FetchFinderTest() {
    write(u"one.txt"_qs, blockHead("CD 1", "\\media\\cd\\Films\\") + entryLine("Film.avi", "734,003,200") +
                             entryLine("readme.txt", "10") + "no size.txt\r\n" +
                             blockHead("CD 1", "\\media\\cd\\Music\\Rock\\") +
                             entryLine("Song.mp3", "3,000"));
    write(u"two.txt"_qs, blockHead("CD 2", "\\Copies\\") + entryLine("FILM.AVI", "734,003,200") +
                             entryLine("readme.txt", "11") + "no size.txt\r\n");
  }

  void write(const QString& name, const QByteArray& text) {
    listings_.push_back(folder_.writeFile(name, text));
  }

  bool find(const QString& words, const QString& match = u"99"_qs) {
    return finder().find(FetchFinder::Words{words, match}, listings_);
  }
  bool findList() { return finder().find(std::nullopt, listings_); }

  FetchFinder& finder() {
    if (!finder_) {
      FetchFinder::Parts parts{state_, messages_, QLocale::c()};
      parts.useCache = false;
      parts.endRequested = [this] { return isStopped_; };
      finder_.emplace(parts);
    }
    return *finder_;
  }

  /// Each file as "name size: volume folder name, ...".
  std::vector<std::string> found() {
    const FolderTree& folders = finder().places().folders;
    std::vector<std::string> texts;
    for (const WantedFile& file : finder().files()) {
      std::string text = std::string(file.name) + ' ' + std::to_string(file.size) + ':';
      for (const FileCopy& copy : file.copies) {
        text += ' ' + folders.volumes()[copy.volume].name + ' ' + folders.path(copy.folder) + ' ' +
                std::string(copy.name);
      }
      texts.push_back(text);
    }
    return texts;
  }

  TemporaryFolder folder_;
  std::vector<QString> listings_;
  ProgramState state_;
  RecordingMessageBoxes messages_;
  bool isStopped_ = false;
  std::optional<FetchFinder> finder_;
};

TEST_F(FetchFinderTest, AHitIsWantedWithAllItsCopies) {
  EXPECT_TRUE(find(u"music song"_qs));
  EXPECT_THAT(found(), ElementsAre("Song.mp3 3000: CD 1 \\media\\cd\\Music\\Rock\\ Song.mp3"));
}

// The copy in \Copies\ is none of the hits.
TEST_F(FetchFinderTest, CopiesAreFoundWhereTheWordsAreNot) {
  EXPECT_TRUE(find(u"films avi"_qs));
  EXPECT_THAT(found(), ElementsAre("Film.avi 734003200: CD 1 \\media\\cd\\Films\\ Film.avi "
                                   "CD 2 \\Copies\\ FILM.AVI"));
}

TEST_F(FetchFinderTest, AnotherSizeIsAnotherFile) {
  EXPECT_TRUE(find(u"films readme"_qs));
  EXPECT_THAT(found(), ElementsAre("readme.txt 10: CD 1 \\media\\cd\\Films\\ readme.txt"));
}

TEST_F(FetchFinderTest, AHitWithoutASizeIsKnownByItsFolder) {
  EXPECT_TRUE(find(u"copies size"_qs));
  EXPECT_THAT(found(), ElementsAre("no size.txt -1: CD 2 \\Copies\\ no size.txt"));
  EXPECT_EQ(finder().plan().volumes.size(), 1U);
}

TEST_F(FetchFinderTest, AListedNameMeansEveryFileOfThatName) {
  finder().wanted().add(u"README.TXT"_qs, std::nullopt);
  EXPECT_TRUE(findList());
  EXPECT_THAT(found(), ElementsAre("README.TXT 10: CD 1 \\media\\cd\\Films\\ readme.txt",
                                   "README.TXT 11: CD 2 \\Copies\\ readme.txt"));
}

TEST_F(FetchFinderTest, AListedNameWithASizeMeansThatFile) {
  finder().wanted().add(u"readme.txt"_qs, 11);
  finder().wanted().add(u"Readme.txt"_qs, 11);
  finder().wanted().add(u"readme.txt"_qs, 12);
  EXPECT_TRUE(findList());
  EXPECT_THAT(found(), ElementsAre("readme.txt 11: CD 2 \\Copies\\ readme.txt", "readme.txt 12:"));
  EXPECT_THAT(finder().plan().missing, ElementsAre(1));
}

TEST_F(FetchFinderTest, AListedNameThatIsNowhereIsMissing) {
  finder().wanted().add(u"gone.txt"_qs, std::nullopt);
  finder().wanted().add(u"no size.txt"_qs, std::nullopt);
  EXPECT_TRUE(findList());
  EXPECT_THAT(found(), ElementsAre("no size.txt -1: CD 1 \\media\\cd\\Films\\ no size.txt",
                                   "no size.txt -1: CD 2 \\Copies\\ no size.txt", "gone.txt -1:"));
  EXPECT_THAT(finder().plan().missing, ElementsAre(2));
}

TEST_F(FetchFinderTest, LongNamesAreTheSameByWhatAListingHoldsOfThem) {
  const QByteArray cut(65, 'n');
  write(u"three.txt"_qs, blockHead("CD 3", "\\") + entryLine(cut, "1,000,000,000"));
  finder().wanted().add(QString::fromLatin1(cut) + u" and more.avi"_qs, 1'000'000'000);
  EXPECT_TRUE(findList());
  EXPECT_THAT(found(), ElementsAre(cut.toStdString() + " 1000000000: CD 3 \\ " + cut.toStdString()));
}

TEST_F(FetchFinderTest, AVolumeKnowsTheFolderThatItsFilesHaveInCommon) {
  EXPECT_TRUE(find(u"avi"_qs));
  EXPECT_THAT(finder().places().tops, ElementsAre("\\media\\cd\\", "\\Copies\\"));
}

TEST_F(FetchFinderTest, AMissingListingIsToldOnceAndCounted) {
  listings_.push_back(folder_.pathOf(u"gone.txt"_qs));
  EXPECT_TRUE(find(u"avi"_qs));
  EXPECT_EQ(finder().failedListings(), 1);
  EXPECT_EQ(messages_.informed.size(), 1U);
}

TEST_F(FetchFinderTest, NothingFoundIsAnEmptyPlan) {
  EXPECT_TRUE(find(u"nothing like that"_qs));
  EXPECT_THAT(found(), IsEmpty());
  EXPECT_THAT(finder().plan().volumes, IsEmpty());
}

TEST_F(FetchFinderTest, CanBeEnded) {
  isStopped_ = true;
  EXPECT_FALSE(find(u"avi"_qs));
}

}  // namespace
}  // namespace quorvin
