// SPDX-License-Identifier: GPL-2.0-or-later

// What is found at the places of sources, and in which words.
#include "editors/source_looks.h"

#include "files/drive_threads.h"
#include "support/eventually.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <QSemaphore>
#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <memory>

namespace quorvin::test {

namespace {

const QLocale kEnglish(QLocale::English, QLocale::UnitedStates);
const QDate kToday(2026, 3, 15);
const SourcePlaces kFolder{QStringLiteral("/m/"), QStringLiteral("/d/m.txt")};
const SourcePlaces kFile{QStringLiteral("/d/cd.txt"), {}};

SourceFacts listed(std::optional<std::int64_t> entries, QDate day) {
  return {true, true, entries, QDateTime(day, QTime(9, 5))};
}

QString brief(const SourceFacts& facts, const SourcePlaces& places = kFolder) {
  return factsInBrief(facts, places, kEnglish, kToday);
}

TEST(SourceInBrief, IsEntriesAndAgeOfTheListing) {
  EXPECT_EQ(brief(listed(81204, kToday.addDays(-3))), QStringLiteral("81,204 entries, 3 days old"));
  EXPECT_EQ(brief(listed(1, kToday)), QStringLiteral("1 entry, today"));
  EXPECT_EQ(brief(listed(0, kToday.addDays(-1))), QStringLiteral("0 entries, yesterday"));
  EXPECT_EQ(brief(listed(std::nullopt, kToday.addDays(-60))), QStringLiteral("60 days old"));
  EXPECT_EQ(brief(listed(std::nullopt, kToday.addDays(-61)), kFile), QStringLiteral("of 1/13/26"));
  EXPECT_EQ(brief(listed(2, kToday.addDays(1))), QStringLiteral("2 entries, today"));
}

TEST(SourceInBrief, SaysWhatIsMissing) {
  EXPECT_EQ(brief({}), QStringLiteral("not there"));
  EXPECT_EQ(brief({}, kFile), QStringLiteral("not there"));
  EXPECT_EQ(brief({true, false, {}, {}}), QStringLiteral("not listed yet"));
  SourceFacts away = listed(12, kToday);
  away.isThere = false;
  EXPECT_EQ(brief(away), QStringLiteral("not there, 12 entries, today"));
}

TEST(SourceInFull, IsSentences) {
  EXPECT_EQ(factsInFull(listed(81204, kToday), kFolder, kEnglish),
            QStringLiteral("The folder is there.\nIts listing has 81,204 entries and was last changed on "
                           "3/15/26, 9:05 AM."));
  EXPECT_EQ(factsInFull({}, kFolder, kEnglish),
            QStringLiteral("The folder is not there.\nIt has no listing yet; a rescan makes it."));
  EXPECT_EQ(factsInFull({}, kFile, kEnglish), QStringLiteral("The file is not there."));
  EXPECT_EQ(factsInFull(listed(std::nullopt, kToday), kFile, kEnglish),
            QStringLiteral("The file was last changed on 3/15/26, 9:05 AM."));
}

class LookedAt : public testing::Test {
 protected:
  TemporaryFolder folder_;
  QString listing_ = folder_.pathOf(QStringLiteral("m.txt"));
};

TEST_F(LookedAt, AFolderIsThereWithoutAListing) {
  EXPECT_EQ(lookAtSource({folder_.path(), listing_}, {}), (SourceFacts{true, false, {}, {}}));
}

TEST_F(LookedAt, AListingIsCountedAndHasItsTime) {
  folder_.writeFile(QStringLiteral("m.txt"), "x");
  const auto count = [this](const QString& path) {
    return path == listing_ ? std::optional<std::int64_t>(7) : std::nullopt;
  };
  const QDateTime changed = QFileInfo(listing_).lastModified();
  EXPECT_EQ(lookAtSource({folder_.path(), listing_}, count), (SourceFacts{true, true, 7, changed}));
  EXPECT_EQ(lookAtSource({listing_, {}}, count), (SourceFacts{true, true, 7, changed}));
  EXPECT_EQ(lookAtSource({folder_.pathOf(QStringLiteral("gone/")), listing_}, count),
            (SourceFacts{false, true, 7, changed}));
}

TEST_F(LookedAt, AFileIsNoFolderAndAFolderNoListing) {
  folder_.writeFile(QStringLiteral("m.txt"), "x");
  EXPECT_FALSE(lookAtSource({listing_, folder_.path()}, {}).isThere);
  EXPECT_FALSE(lookAtSource({folder_.path(), {}}, {}).isThere);
}

SourcePlaces place(int number) {
  return {QStringLiteral("/%1/").arg(number), QStringLiteral("/%1.txt").arg(number)};
}

class Looks : public testing::Test {
 protected:
  Looks() { pool_.setMaxThreadCount(8); }

  QThreadPool pool_;
};

TEST_F(Looks, FindTwoThousandSourcesEachOnce) {
  std::atomic<int> looked = 0;
  SourceLooks looks(
      pool_,
      [&](const SourcePlaces& places) {
        ++looked;
        return SourceFacts{true, false, places.path.size(), {}};
      },
      nullptr);
  std::vector<SourcePlaces> all;
  for (int number = 0; number < 2000; ++number) all.push_back(place(number));
  looks.lookAt(all);
  looks.lookAt(all);
  EXPECT_EVENTUALLY(std::ranges::all_of(all, [&](const SourcePlaces& one) { return looks.facts(one); }));
  EXPECT_EQ(looks.facts(place(1999))->entries, 6);
  EXPECT_EQ(looked, 2000);
}

TEST_F(Looks, AreNotHeldUpByADriveThatDoesNotAnswer) {
  QSemaphore answer;
  SourceLooks looks(
      pool_,
      [&](const SourcePlaces& places) {
        if (places == place(0)) answer.acquire();
        return SourceFacts{true, false, {}, {}};
      },
      nullptr);
  looks.lookAt({place(0), place(1), place(2)});
  EXPECT_EVENTUALLY(looks.facts(place(1)) && looks.facts(place(2)));
  EXPECT_EQ(looks.facts(place(0)), nullptr);
  answer.release();
  EXPECT_EVENTUALLY(looks.facts(place(0)));
}

TEST_F(Looks, AreGivenUpAtTheEndWithoutWaiting) {
  QSemaphore answer;
  std::atomic<int> looked = 0;
  auto looks = std::make_unique<SourceLooks>(
      pool_,
      [&](const SourcePlaces&) {
        ++looked;
        answer.acquire();
        return SourceFacts{};
      },
      nullptr);
  std::vector<SourcePlaces> all;
  for (int number = 0; number < 100; ++number) all.push_back(place(number));
  looks->lookAt(all);
  EXPECT_EVENTUALLY(looked == 4);
  looks.reset();
  answer.release(100);
  pool_.waitForDone();
  EXPECT_EQ(looked, 4);
}

/// A drive that does not answer before its `answer` has been let go.
class LostDrive {
 public:
  std::function<SourceFacts(const SourcePlaces&)> look() {
    return [shared = shared_](const SourcePlaces&) {
      ++shared->asked;
      shared->answer.acquire();
      ++shared->answered;
      return SourceFacts{};
    };
  }
  int asked() const { return shared_->asked; }
  int answered() const { return shared_->answered; }
  void answer() { shared_->answer.release(1000); }

 private:
  struct Shared {
    std::atomic<int> asked = 0;
    std::atomic<int> answered = 0;
    QSemaphore answer;
  };
  /// The threads may outlive the test.
  std::shared_ptr<Shared> shared_ = std::make_shared<Shared>();
};

TEST(ThreadsThatLook, AreLeftToThemselvesAtTheEndWhereADriveDoesNotAnswer) {
  LostDrive drive;
  {
    DriveThreads threads(8, std::chrono::milliseconds(1));
    SourceLooks looks(threads.pool(), drive.look(), nullptr);
    looks.lookAt({place(0), place(1)});
    EXPECT_EVENTUALLY(drive.asked() == 2);
  }
  EXPECT_EQ(drive.answered(), 0) << "the end has not waited for the drive";
  drive.answer();
  EXPECT_EVENTUALLY(drive.answered() == 2);
}

TEST(ThreadsThatLook, ThatHaveNotStartedDoNotStartAfterTheEnd) {
  LostDrive drive;
  {
    DriveThreads threads(1, std::chrono::milliseconds(1));
    SourceLooks first(threads.pool(), drive.look(), nullptr);
    SourceLooks second(threads.pool(), drive.look(), nullptr);
    first.lookAt({place(0)});
    EXPECT_EVENTUALLY(drive.asked() == 1);
    second.lookAt({place(1)});
  }
  drive.answer();
  EXPECT_EVENTUALLY(drive.answered() == 1);
  EXPECT_EQ(drive.asked(), 1);
}

}  // namespace

}  // namespace quorvin::test
