// SPDX-License-Identifier: GPL-2.0-or-later

// Plans for generated wishes, against a plain reference.
#include "catalogue/fetch/planned_files.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <random>
#include <set>

namespace quorvin {
namespace {

using test::Holders;

class WishMaker {
 public:
  explicit WishMaker(unsigned seed) : random_(seed) {}

  unsigned below(unsigned limit) { return std::uniform_int_distribution<unsigned>(0, limit - 1)(random_); }

  /// Each file is on up to `most` of the volumes, some on none where `mayMiss`.
  Holders wishes(unsigned volumes, unsigned files, unsigned most, bool mayMiss) {
    Holders holders(files);
    for (std::set<unsigned>& file : holders) {
      for (unsigned copies = below(most) + (mayMiss && below(10) == 0 ? 0 : 1); copies > 0; --copies) {
        file.insert(below(volumes));
      }
    }
    return holders;
  }

  /// Each file is on two or three volumes that are anywhere, so that little can be settled beforehand.
  Holders tangled(unsigned volumes, unsigned files) {
    Holders holders(files);
    for (std::set<unsigned>& file : holders) {
      const std::size_t copies = 2 + below(2);
      while (file.size() < copies) file.insert(below(volumes));
    }
    return holders;
  }

 private:
  std::mt19937 random_;
};

/// Each file is copied once, from a volume that has it, or said to be missing; and no volume comes for
/// nothing or before one that is fetched for more.
void expectComplete(const FetchPlan& plan, const Holders& holders) {
  std::multiset<std::uint32_t> planned(plan.missing.begin(), plan.missing.end());
  for (const std::uint32_t file : plan.missing) EXPECT_TRUE(holders[file].empty());
  std::size_t before = SIZE_MAX;
  for (const FetchPlan::Volume& volume : plan.volumes) {
    EXPECT_FALSE(volume.files.empty());
    EXPECT_LE(volume.files.size(), before);
    EXPECT_EQ(volume.sum, (FileSum{static_cast<std::int64_t>(volume.files.size()),
                                   static_cast<std::int64_t>(volume.files.size())}));
    before = volume.files.size();
    for (const FetchPlan::File& file : volume.files) {
      EXPECT_TRUE(holders[file.file].contains(volume.volume));
      EXPECT_EQ(file.copy.volume, volume.volume);
      planned.insert(file.file);
    }
  }
  EXPECT_EQ(planned.size(), holders.size());
  EXPECT_EQ(std::set(planned.begin(), planned.end()).size(), holders.size());
}

TEST(FetchPlanAgreement, UpToTenVolumesAreTheFewest) {
  for (unsigned seed = 0; seed < 400; ++seed) {
    SCOPED_TRACE(seed);
    WishMaker maker(seed);
    const unsigned volumes = 1 + maker.below(10);
    const Holders holders = maker.below(2) == 0
                                ? maker.wishes(volumes, maker.below(30), 1 + maker.below(volumes), true)
                                : maker.tangled(volumes + 3, maker.below(40));
    const FetchPlan plan = test::plannedFor(test::wantedOn(holders), test::namesOfVolumes(volumes + 3));
    EXPECT_TRUE(plan.isFewest);
    EXPECT_EQ(plan.volumes.size(), test::fewestVolumes(holders, volumes + 3));
    expectComplete(plan, holders);
  }
}

TEST(FetchPlanAgreement, ManyVolumesAreEnoughAndNoneIsNeedless) {
  int nearly = 0;
  for (unsigned seed = 0; seed < 20; ++seed) {
    SCOPED_TRACE(seed);
    WishMaker maker(seed);
    const unsigned volumes = 60 + maker.below(60);
    const Holders holders = maker.tangled(volumes, volumes * 2);
    const FetchPlan plan = test::plannedFor(test::wantedOn(holders), test::namesOfVolumes(volumes));
    nearly += plan.isFewest ? 0 : 1;
    expectComplete(plan, holders);
    std::set<unsigned> chosen;
    for (const FetchPlan::Volume& volume : plan.volumes) chosen.insert(volume.volume);
    for (const unsigned volume : chosen) {
      const bool isNeeded = std::ranges::any_of(holders, [&](const std::set<unsigned>& file) {
        return file.contains(volume) &&
               std::ranges::none_of(file, [&](unsigned v) { return v != volume && chosen.contains(v); });
      });
      EXPECT_TRUE(isNeeded) << volume;
    }
  }
  EXPECT_EQ(nearly, 20);
}

}  // namespace
}  // namespace quorvin
