// SPDX-License-Identifier: GPL-2.0-or-later

// What is known of volumes, out of listings that the tests write.
#include "catalogue/volumes/volume_finder.h"

#include "catalogue/volumes/volume_texts.h"
#include "state/volume_notes.h"
#include "support/listing_lines.h"
#include "support/qt_printing.h"
#include "support/recording_message_boxes.h"
#include "support/temporary_folder.h"

#include <QFile>
#include <gmock/gmock.h>

namespace quorvin {
namespace {

using test::blockHead;
using test::entryLine;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class VolumeFinderTest : public testing::Test {
 protected:
  VolumeFinderTest() {
    state_.resetFileNames();
    state_.LocalFolder = data_.path();
    data_.writeFile(u"Music.txt"_qs,
                    blockHead("Music", "\\home\\ann\\Music\\") + entryLine("song.mp3", "3,000"));
    data_.writeFile(u"cds.txt"_qs, blockHead("CD 1", "\\") + entryLine("film.avi", "700") +
                                       "no size.txt\r\n" + blockHead("CD 2", "\\Songs\\") +
                                       entryLine("song.mp3", "3,000"));
    state_.OnlineSources.set(++state_.OnlineSourceCount, u"Music"_qs, u"/home/ann/Music/"_qs);
    state_.OfflineSources.set(++state_.OfflineSourceCount, u"Offline"_qs, data_.pathOf(u"cds.txt"_qs));
  }

  VolumeFinder::Parts parts() {
    VolumeFinder::Parts parts{state_, messages_, QLocale::c()};
    parts.endRequested = [this] { return isStopped_; };
    parts.freeBytesAt = [this](const QString& folder) {
      asked_ += folder;
      return free_;
    };
    return parts;
  }

  std::vector<KnownVolume> find(const QString& words = {}, const std::vector<QString>& listings = {}) {
    VolumeFinder finder({words, u"50"_qs, false}, parts());
    EXPECT_TRUE(finder.find(listings));
    sum_ = finder.sum();
    return finder.volumes();
  }

  static std::vector<QString> namesOf(const std::vector<KnownVolume>& volumes) {
    std::vector<QString> names;
    for (const KnownVolume& volume : volumes) names.push_back(volume.name);
    return names;
  }

  TemporaryFolder data_;
  ProgramState state_;
  RecordingMessageBoxes messages_;
  std::optional<std::int64_t> free_ = 5'000;
  QStringList asked_;
  FileSum sum_;
  bool isStopped_ = false;
};

TEST_F(VolumeFinderTest, VolumesComeAsTheListingsHaveThem) {
  const std::vector<KnownVolume> volumes = find();
  EXPECT_THAT(namesOf(volumes), ElementsAre(u"Music"_qs, u"CD 1"_qs, u"CD 2"_qs));
  EXPECT_EQ(volumes[1].sum.holds, (FileSum{2, 700}));
  EXPECT_EQ(volumes[1].sum.withoutSize, 1);
  EXPECT_EQ(volumes[2].listing, data_.pathOf(u"cds.txt"_qs));
  EXPECT_EQ(volumes[0].kind, SourceKind::Online);
  EXPECT_EQ(volumes[2].kind, SourceKind::Offline);
  EXPECT_EQ(sum_, (FileSum{4, 6'700}));
}

TEST_F(VolumeFinderTest, FreeSpaceIsThatOfTheFoldersThatAreThere) {
  EXPECT_EQ(find()[0].freeBytes, 5'000);
  EXPECT_EQ(asked_, QStringList{u"/home/ann/Music/"_qs}) << "offline lists have no folder";
  free_.reset();
  EXPECT_EQ(find()[0].freeBytes, std::nullopt);
  EXPECT_EQ(find()[0].folder, u"/home/ann/Music/"_qs);
}

TEST_F(VolumeFinderTest, TheSystemSaysHowMuchIsFree) {
  EXPECT_GT(VolumeFinder::freeBytesOfDrive(data_.path()).value(), 0);
  EXPECT_EQ(VolumeFinder::freeBytesOfDrive(data_.pathOf(u"nowhere"_qs)), std::nullopt);
}

TEST_F(VolumeFinderTest, KnowsWhenAListingWasWritten) {
  QFile file(data_.pathOf(u"cds.txt"_qs));
  ASSERT_TRUE(file.open(QIODevice::ReadWrite));
  const QDateTime written(QDate(2004, 3, 31), QTime(12, 0));
  ASSERT_TRUE(file.setFileTime(written, QFileDevice::FileModificationTime));
  file.close();
  EXPECT_EQ(find()[1].listed, written);
}

TEST_F(VolumeFinderTest, HasTheUsersNotes) {
  VolumeNotes(data_.path()).set(data_.pathOf(u"cds.txt"_qs), u"CD 2"_qs, u"blue box"_qs);
  const std::vector<KnownVolume> volumes = find();
  EXPECT_EQ(volumes[1].note, QString());
  EXPECT_EQ(volumes[2].note, u"blue box"_qs);
}

TEST_F(VolumeFinderTest, WordsLeaveOutVolumesThatHaveNoneOfThem) {
  EXPECT_THAT(namesOf(find(u"song.mp3"_qs)), ElementsAre(u"Music"_qs, u"CD 2"_qs));
  EXPECT_THAT(find(u"nowhere"_qs), IsEmpty());
}

TEST_F(VolumeFinderTest, ListingsThatAreNamedTakeThePlaceOfTheSources) {
  EXPECT_THAT(namesOf(find({}, {data_.pathOf(u"cds.txt"_qs)})), ElementsAre(u"CD 1"_qs, u"CD 2"_qs));
}

TEST_F(VolumeFinderTest, EndsWhenItIsAskedTo) {
  isStopped_ = true;
  VolumeFinder finder({}, parts());
  EXPECT_FALSE(finder.find());
  EXPECT_THAT(finder.volumes(), IsEmpty());
}

class VolumeOrderTest : public testing::Test {
 protected:
  VolumeOrderTest() : volumes_(4) {
    const QDate day(2004, 1, 15);
    volumes_[0] = {u"beta"_qs, u"/x/2.txt"_qs, SourceKind::Offline, {{5, 100}, 0, {{10, "", ""}}}};
    volumes_[1] = {u"Alpha"_qs, u"/y/1.txt"_qs, SourceKind::Online, {{5, 300}}};
    volumes_[1].freeBytes = 7;
    volumes_[1].listed = day.startOfDay();
    volumes_[2] = {u"gamma"_qs, u"/z/3.txt"_qs, SourceKind::Offline, {{4, 200}, 0, {{20, "", ""}}}};
    volumes_[2].note = u"shelf"_qs;
    volumes_[2].listed = day.addDays(-1).startOfDay();
    volumes_[3] = {u""_qs, u"/z/0.txt"_qs, SourceKind::Offline, {{1, 0}}};
    volumes_[3].freeBytes = 3;
    volumes_[3].note = u"Box"_qs;
  }
  std::vector<std::uint32_t> up(VolumeColumn column) const { return orderOfVolumes(volumes_, column, false); }
  std::vector<std::uint32_t> down(VolumeColumn column) const {
    return orderOfVolumes(volumes_, column, true);
  }

  std::vector<KnownVolume> volumes_;
};

TEST_F(VolumeOrderTest, NamesAreComparedWithoutCase) {
  EXPECT_THAT(up(VolumeColumn::Volume), ElementsAre(1, 0, 2, 3));
  EXPECT_THAT(up(VolumeColumn::Listing), ElementsAre(3, 1, 0, 2));
  EXPECT_THAT(down(VolumeColumn::Note), ElementsAre(2, 3, 0, 1));
}

TEST_F(VolumeOrderTest, WhatIsTheSameStaysInOrder) {
  EXPECT_THAT(up(VolumeColumn::Entries), ElementsAre(3, 2, 0, 1));
  EXPECT_THAT(down(VolumeColumn::Entries), ElementsAre(0, 1, 2, 3));
  EXPECT_THAT(down(VolumeColumn::Size), ElementsAre(1, 2, 0, 3));
}

TEST_F(VolumeOrderTest, WhatIsNotKnownComesLastEitherWay) {
  EXPECT_THAT(up(VolumeColumn::Newest), ElementsAre(0, 2, 1, 3));
  EXPECT_THAT(down(VolumeColumn::Newest), ElementsAre(2, 0, 1, 3));
  EXPECT_THAT(up(VolumeColumn::Free), ElementsAre(3, 1, 0, 2));
  EXPECT_THAT(down(VolumeColumn::Listed), ElementsAre(1, 2, 0, 3));
}

TEST(VolumeTexts, AnAgeIsSaidInTheUnitThatSaysMost) {
  const QDate today(2026, 3, 31);
  const auto age = [&](qint64 days) { return ageText(today.addDays(-days), today); };
  EXPECT_EQ(age(0), u"today"_qs);
  EXPECT_EQ(age(-3), u"today"_qs) << "a clock that is wrong";
  EXPECT_EQ(age(1), u"yesterday"_qs);
  EXPECT_EQ(age(59), u"59 days ago"_qs);
  EXPECT_EQ(age(60), u"2 months ago"_qs);
  EXPECT_EQ(age(729), u"24 months ago"_qs);
  EXPECT_EQ(age(730), u"2 years ago"_qs);
  EXPECT_EQ(ageText(QDate(), today), QString());
}

TEST(VolumeTexts, ColumnsSayWhatIsKnown) {
  KnownVolume volume{u"CD 7"_qs, u"/lists/cd7.txt"_qs};
  volume.sum = {{1'204, 1'572'864}, 2, {{38'001, "\\a\\", "b"}}};
  volume.note = u"blue box"_qs;
  const auto text = [&](VolumeColumn column) {
    return volumeText(volume, column, QDate(2026, 3, 31), QLocale::c());
  };
  EXPECT_EQ(text(VolumeColumn::Volume), u"CD 7"_qs);
  EXPECT_EQ(text(VolumeColumn::Entries), u"1204"_qs);
  EXPECT_EQ(text(VolumeColumn::Size), u"1.50 MB"_qs);
  EXPECT_EQ(text(VolumeColumn::Newest), u"15 Jan 2004"_qs);
  EXPECT_EQ(text(VolumeColumn::Listed), QString());
  EXPECT_EQ(text(VolumeColumn::Free), QString());
  EXPECT_EQ(text(VolumeColumn::Listing), u"cd7.txt"_qs);
  EXPECT_EQ(text(VolumeColumn::Note), u"blue box"_qs);
  EXPECT_EQ(volumesSumText(1, {1, 5}, QLocale::c()), u"1 volume: 1 file, 5 bytes"_qs);
  EXPECT_EQ(volumesSumText(2'000, {2, 5}, QLocale::c()), u"2000 volumes: 2 files, 5 bytes"_qs);
}

}  // namespace
}  // namespace quorvin
