// SPDX-License-Identifier: GPL-2.0-or-later

// Looking into the files that may be copies of each other.
#include "catalogue/copy_contents.h"

#include "catalogue/found_copies.h"

#include <QFile>
#include <gmock/gmock.h>

namespace quorvin {
namespace {

using test::blockHead;
using test::entryLine;
using testing::ElementsAre;
using testing::IsEmpty;

/// Own folders with files, each with the listing that it had when all files were there.
class CopyContentsTest : public testing::Test {
 protected:
  void addFolder(const QString& name, const std::vector<std::pair<QByteArray, QByteArray>>& files) {
    const QString place = folder_.makeFolder(name);
    QByteArray listing = blockHead(name.toUtf8(), QString(place).replace(u'/', u'\\').toUtf8());
    for (const auto& [file, content] : files) {
      folder_.writeFile(name + u'/' + QString::fromUtf8(file), content);
      listing += entryLine(file, QByteArray::number(content.size()));
    }
    const int row = ++state_.OnlineSourceCount;
    state_.OnlineSources.set(row, name, place);
    listings_.push_back(listing);
  }

  /// The places that were looked into.
  std::vector<std::uint32_t> placesLookedInto(const StopAsked& stop = [] { return false; }) {
    const test::FoundCopies found(listings_, setting_);
    std::vector<SourceKind> kinds(listings_.size(), SourceKind::Online);
    if (!kinds.empty()) kinds.back() = lastKind_;
    CopyContents contents(found.copies, {state_, kinds, [this](std::int64_t done, std::int64_t all) {
                                           progress_.emplace_back(done, all);
                                         }});
    isWhole_ = contents.read(stop);
    counts_ = contents.counts();
    found_ = contents.found();
    std::vector<std::uint32_t> places;
    for (const PlacedContent& content : found_) places.push_back(content.place);
    return places;
  }

  TemporaryFolder folder_;
  ProgramState state_;
  test::CopiesSetting setting_;
  SourceKind lastKind_ = SourceKind::Online;
  std::vector<QByteArray> listings_;
  std::vector<std::pair<std::int64_t, std::int64_t>> progress_;
  bool isWhole_ = false;
  CopyContents::Counts counts_;
  std::vector<PlacedContent> found_;
};

TEST_F(CopyContentsTest, OnlyFilesWithAnotherOfTheirGroupAtHandAreRead) {
  addFolder(u"one"_qs, {{"alone.txt", "1"}, {"both.txt", "abc"}, {"empty.txt", ""}, {"gone.txt", "12"}});
  addFolder(u"two"_qs, {{"both.txt", "abd"}, {"empty.txt", ""}, {"gone.txt", "12"}});
  QFile::remove(folder_.pathOf(u"two/gone.txt"_qs));
  EXPECT_THAT(placesLookedInto(), ElementsAre(1, 4));
  EXPECT_TRUE(isWhole_);
  EXPECT_NE(found_[0].content, found_[1].content);
  EXPECT_EQ(counts_.read, (FileSum{2, 6}));
  EXPECT_EQ(counts_.notAtHand, 1);
  EXPECT_THAT(progress_, ElementsAre(std::pair(3, 6), std::pair(6, 6)));
}

TEST_F(CopyContentsTest, TheSameBytesAreTheSameContentHoweverManyPiecesTheyTake) {
  const QByteArray large = QByteArray(3'000'000, 'x') + 'y';
  addFolder(u"one"_qs, {{"film.avi", large}});
  addFolder(u"two"_qs, {{"FILM.AVI", large}});
  addFolder(u"three"_qs, {{"film.avi", QByteArray(3'000'000, 'x') + 'z'}});
  EXPECT_THAT(placesLookedInto(), ElementsAre(0, 1, 2));
  EXPECT_EQ(found_[0].content, found_[1].content);
  EXPECT_NE(found_[0].content, found_[2].content);
  EXPECT_EQ(progress_.size(), 9U);
  EXPECT_EQ(progress_.back(), std::pair(std::int64_t{9'000'003}, std::int64_t{9'000'003}));
}

TEST_F(CopyContentsTest, AFileThatHasAnotherLengthByNowOrCannotBeReadIsNotAtHand) {
  addFolder(u"one"_qs, {{"a", "123"}, {"b", "123"}});
  addFolder(u"two"_qs, {{"a", "123"}, {"b", "123"}});
  folder_.writeFile(u"two/a"_qs, "1234");
  QFile::remove(folder_.pathOf(u"two/b"_qs));
  folder_.makeFolder(u"two/b"_qs);
  EXPECT_THAT(placesLookedInto(), IsEmpty());
  EXPECT_TRUE(isWhole_);
  EXPECT_EQ(counts_.notAtHand, 2);
}

TEST_F(CopyContentsTest, AListingFromElsewhereLeadsToNoFileOfThisMachine) {
  addFolder(u"one"_qs, {{"a", "123"}});
  addFolder(u"two"_qs, {{"a", "123"}});
  lastKind_ = SourceKind::Offline;
  EXPECT_THAT(placesLookedInto(), IsEmpty());
  EXPECT_EQ(counts_.notAtHand, 1);
}

TEST_F(CopyContentsTest, OnlyWhatIsWantedIsRead) {
  addFolder(u"one"_qs, {{"letter.txt", "123"}, {"photo.jpg", "123"}});
  addFolder(u"two"_qs, {{"letter.txt", "123"}, {"photo.jpg", "123"}});
  setting_.words.emplace(u"photo"_qs, 50);
  EXPECT_THAT(placesLookedInto(), ElementsAre(1, 3));
}

TEST_F(CopyContentsTest, StoppingEndsItAtEachPoint) {
  addFolder(u"one"_qs, {{"a", QByteArray(2'500'000, 'x')}, {"b", "123"}});
  addFolder(u"two"_qs, {{"a", QByteArray(2'500'000, 'x')}, {"b", "123"}});
  int asked = 0;
  placesLookedInto([&asked] {
    ++asked;
    return false;
  });
  EXPECT_TRUE(isWhole_);
  const int most = asked;
  EXPECT_GE(most, 10);
  for (int last = 0; last < most; ++last) {
    asked = 0;
    placesLookedInto([&asked, last] { return asked++ >= last; });
    EXPECT_FALSE(isWhole_) << last;
    EXPECT_LE(asked, last + 2) << last;
  }
}

}  // namespace
}  // namespace quorvin
