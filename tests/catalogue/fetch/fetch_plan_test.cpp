// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/fetch/fetch_plan.h"

#include "catalogue/fetch/planned_files.h"

#include <gmock/gmock.h>

namespace quorvin {
namespace {

using test::Holders;
using test::namesOfVolumes;
using test::plannedFor;
using test::wantedOn;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::vector<std::uint32_t> volumesOf(const FetchPlan& plan) {
  std::vector<std::uint32_t> volumes;
  for (const FetchPlan::Volume& volume : plan.volumes) volumes.push_back(volume.volume);
  return volumes;
}

std::vector<std::uint32_t> filesOf(const FetchPlan::Volume& volume) {
  std::vector<std::uint32_t> files;
  for (const FetchPlan::File& file : volume.files) files.push_back(file.file);
  return files;
}

TEST(FetchPlan, NothingWantedTakesNoVolume) {
  const FetchPlan plan = plannedFor({}, namesOfVolumes(3));
  EXPECT_THAT(plan.volumes, IsEmpty());
  EXPECT_THAT(plan.missing, IsEmpty());
  EXPECT_TRUE(plan.isFewest);
  EXPECT_EQ(plan.sum, FileSum{});
}

TEST(FetchPlan, WhatNoVolumeHasIsMissing) {
  const FetchPlan plan = plannedFor(wantedOn({{}, {1}, {}}), namesOfVolumes(2));
  EXPECT_THAT(plan.missing, ElementsAre(0, 2));
  EXPECT_THAT(volumesOf(plan), ElementsAre(1));
  EXPECT_EQ(plan.sum, (FileSum{1, 1}));
}

// Taking the largest volume first would take three.
TEST(FetchPlan, TheLargestVolumeIsLeftOutWhereTwoOthersDo) {
  const Holders holders{{0, 1}, {0, 1}, {0, 2}, {0, 2}, {1}, {2}};
  EXPECT_THAT(volumesOf(plannedFor(wantedOn(holders), namesOfVolumes(3))), ElementsAre(1, 2));
}

// None of them is the only one to hold a file, and none stands for another.
TEST(FetchPlan, CombinationsAreTriedWhereNothingIsSettled) {
  const Holders holders{{0, 1}, {0, 1}, {0, 1}, {1, 2}, {2, 3}, {2, 3}, {2, 3}, {0, 3}};
  const FetchPlan plan = plannedFor(wantedOn(holders), namesOfVolumes(4));
  EXPECT_TRUE(plan.isFewest);
  EXPECT_THAT(volumesOf(plan), ElementsAre(0, 2));
}

TEST(FetchPlan, MostFilesComeFirstThenNamesThenNumbers) {
  const Holders holders{{0}, {1}, {2}, {3}, {3}};
  EXPECT_THAT(volumesOf(plannedFor(wantedOn(holders), {"b", "a", "a", "z"})), ElementsAre(3, 1, 2, 0));
}

TEST(FetchPlan, OfVolumesThatHoldTheSameTheFirstByNameIsTaken) {
  EXPECT_THAT(volumesOf(plannedFor(wantedOn({{0, 1, 2}, {0, 1, 2}}), {"c", "a", "b"})), ElementsAre(1));
}

// The first two would do as well.
TEST(FetchPlan, OfEqualWaysTheOneWithTheLargestVolumeIsTaken) {
  const Holders holders{{0, 2}, {0, 3}, {0, 3}, {1, 2}, {1, 3}, {1, 3}};
  const FetchPlan plan = plannedFor(wantedOn(holders), namesOfVolumes(4));
  EXPECT_THAT(volumesOf(plan), ElementsAre(3, 2));
  EXPECT_THAT(filesOf(plan.volumes[0]), ElementsAre(1, 2, 4, 5));
  EXPECT_THAT(filesOf(plan.volumes[1]), ElementsAre(0, 3));
}

TEST(FetchPlan, AFileIsCopiedFromTheFirstVolumeThatHasIt) {
  const FetchPlan plan = plannedFor(wantedOn({{0}, {0, 1}, {0}, {1}}), namesOfVolumes(2));
  EXPECT_THAT(volumesOf(plan), ElementsAre(0, 1));
  EXPECT_THAT(filesOf(plan.volumes[0]), ElementsAre(0, 1, 2));
  EXPECT_THAT(filesOf(plan.volumes[1]), ElementsAre(3));
}

TEST(FetchPlan, FilesAreByFolderAndFromTheFirstPlaceOnTheVolume) {
  std::vector<WantedFile> files{{"a", 10}, {"b", -1}, {"c", 5}};
  files[0].copies = {{0, 7, "A"}, {0, 2, "a"}};
  files[1].copies = {{0, 3, "b"}};
  files[2].copies = {{0, 7, "c"}};
  const FetchPlan plan = plannedFor(files, {"CD"});
  ASSERT_EQ(plan.volumes.size(), 1U);
  EXPECT_THAT(filesOf(plan.volumes[0]), ElementsAre(1, 0, 2));
  EXPECT_EQ(plan.volumes[0].files[1].copy.name, "A");
  EXPECT_EQ(plan.sum, (FileSum{3, 15}));
}

/// Rings of three volumes each, of which two are needed; nothing in a ring can be settled beforehand.
Holders rings(unsigned count) {
  Holders holders;
  for (unsigned ring = 0; ring < count; ++ring) {
    const unsigned first = 3 * ring;
    holders.insert(holders.end(), {{first, first + 1}, {first + 1, first + 2}, {first, first + 2}});
  }
  return holders;
}

TEST(FetchPlan, VolumesWithoutACommonFileAreChosenApart) {
  const FetchPlan plan = plannedFor(wantedOn(rings(100)), namesOfVolumes(300));
  EXPECT_TRUE(plan.isFewest);
  EXPECT_EQ(plan.volumes.size(), 200U);
}

/// One ring: each volume shares a file with the next.
Holders ring(unsigned volumes) {
  Holders holders;
  for (unsigned volume = 0; volume < volumes; ++volume) holders.push_back({volume, (volume + 1) % volumes});
  return holders;
}

TEST(FetchPlan, TwentyVolumesAreTheFewestAndTwentyOneAreNearly) {
  const FetchPlan twenty = plannedFor(wantedOn(ring(20)), namesOfVolumes(20));
  EXPECT_TRUE(twenty.isFewest);
  EXPECT_EQ(twenty.volumes.size(), 10U);
  const FetchPlan more = plannedFor(wantedOn(ring(21)), namesOfVolumes(21));
  EXPECT_FALSE(more.isFewest);
  EXPECT_GE(more.volumes.size(), 11U);
}

TEST(FetchPlan, ThreeHundredVolumesThatShareNothingAreTheFewest) {
  Holders holders;
  for (unsigned volume = 0; volume < 300; ++volume) holders.push_back({volume});
  const FetchPlan plan = plannedFor(wantedOn(holders), namesOfVolumes(300));
  EXPECT_TRUE(plan.isFewest);
  EXPECT_EQ(plan.volumes.size(), 300U);
}

TEST(FetchPlan, CanBeStopped) {
  EXPECT_FALSE(planFetch(wantedOn(ring(30)), namesOfVolumes(30), [] { return true; }).has_value());
}

TEST(FetchPlan, SumsNeverOverflow) {
  std::vector<WantedFile> files(3, {"a", INT64_MAX});
  for (WantedFile& file : files) file.copies = {{0, 0, "a"}};
  EXPECT_EQ(plannedFor(files, {"CD"}).sum, (FileSum{3, INT64_MAX}));
}

}  // namespace
}  // namespace quorvin
