// SPDX-License-Identifier: GPL-2.0-or-later

// Walks that read ahead give what a walk gives that reads everything when it comes to it.
#include "index/walk_ahead_fixture.h"
#include "support/descriptors.h"
#include "support/sweep.h"

#include <condition_variable>
#include <thread>

namespace quorvin {
namespace {

using test::AheadWalk;
using test::FolderCall;
using test::FolderCallWatch;
using test::kPlain;
using test::RecordedCalls;
using test::TreeMaker;
using test::WayOfReading;

class WalkAhead : public test::WalkAheadTest {
 protected:
  void expectTheSame(int mostOpen = kMostOpenFolders) {
    const AheadWalk expected = walkBy(kPlain, mostOpen);
    for (const WayOfReading& way : test::waysOfReadingAhead()) {
      EXPECT_EQ(walkBy(way.readers, mostOpen), expected) << way.name;
    }
  }
};

TEST_F(WalkAhead, ListsEveryTreeTheSame) {
  for (unsigned seed = 0; seed < test::sweep(1000U, 6U); ++seed) {
    std::filesystem::remove_all(top());
    std::filesystem::create_directory(top());
    TreeMaker(seed).fill(top(), 4);
    flags = seed % 5 == 4 ? kToOutput1 | kFoldersOnly : kToOutput1;
    pattern = seed % 5 == 3 ? QStringLiteral("*1*") : QStringLiteral("*.*");
    SCOPED_TRACE(seed);
    expectTheSame();
  }
}

TEST_F(WalkAhead, MakesNoCallThatAPlainWalkDoesNotMakeAndEachOnce) {
  for (unsigned seed = 0; seed < test::sweep(300U, 5U); ++seed) {
    std::filesystem::remove_all(top());
    std::filesystem::create_directory(top());
    TreeMaker(seed).fill(top(), 4);
    flags = seed % 5 == 4 ? kToOutput1 | kFoldersOnly : kToOutput1;
    pattern = seed % 5 == 3 ? QStringLiteral("*1*") : QStringLiteral("*.*");
    const auto callsOf = [this](const ReadersAtOnce& readers) {
      const RecordedCalls recorded;
      walkBy(readers);
      return recorded.calls();
    };
    const RecordedCalls::Calls expected = callsOf(kPlain);
    for (const WayOfReading& way : test::waysOfReadingAhead()) {
      EXPECT_EQ(callsOf(way.readers), expected) << way.name << ", seed " << seed;
    }
  }
}

TEST_F(WalkAhead, ListsLargeFoldersTheSame) {
  for (int i = 0; i < 1500; ++i) addFile("file " + std::to_string(i));
  for (int i = 0; i < 300; ++i) addFile("folder " + std::to_string(i) + "/file");
  expectTheSame();
}

TEST_F(WalkAhead, ListsDeepTreesTheSameWithFewFoldersOpen) {
  std::string folder;
  for (int i = 0; i < 200; ++i) {
    folder += "d/";
    addFile(folder + "file");
    addFile(folder + "e/file");
    addFile(folder + "e/f/file");
  }
  expectTheSame(4);
}

TEST_F(WalkAhead, ListsTheSameWhereTheProcessMayOpenFewFolders) {
  for (int i = 0; i < 100; ++i) addFile("a" + std::to_string(i) + "/b/c/d/file");
  const AheadWalk expected = walkBy(kPlain);
  // The listing and the folder that it is in are open too.
  const test::FewDescriptors few(test::nextDescriptor() + 10);
  for (const WayOfReading& way : test::waysOfReadingAhead()) {
    EXPECT_EQ(walkBy(way.readers), expected) << way.name;
  }
}

// It ends, since so many calls are at hand at the same time.
TEST_F(WalkAhead, ManyReadersLookUpManyFilesAtOnceInOneFolderOrInMany) {
  constexpr int kAtOnce = 24;
  for (const char* folder : {"", "a/", "b/", "c/", "c/d/"}) {
    for (int i = 0; i < 40; ++i) addFile(folder + std::to_string(i));
  }
  std::mutex mutex;
  std::condition_variable arrived;
  int atOnce = 0;
  int atHand = 0;
  const std::string below = top();
  const FolderCallWatch watch([&](const FolderCall& call) {
    if (call.kind != FolderCall::LookUp || !call.path.starts_with(below)) return 0;
    std::unique_lock lock(mutex);
    ++atHand;
    atOnce = std::max(atOnce, atHand);
    arrived.notify_all();
    arrived.wait(lock, [&] { return atOnce >= kAtOnce; });
    --atHand;
    return 0;
  });
  walkBy(ReadersAtOnce::always(32, true));
  EXPECT_EQ(result.files, 200);
  EXPECT_GE(atOnce, kAtOnce);
}

// A disk whose arm has to go from one place to another, by a clock of its own. A call of another thread takes
// real time as well, or it could make many while the walk waits for a processor.
class Arm {
 public:
  ReadersAtOnce::Clock clock() {
    return [this] {
      const std::lock_guard lock(mutex_);
      return now_;
    };
  }
  std::chrono::nanoseconds now() { return clock()(); }

  int call(const FolderCall& call) {
    {
      const std::lock_guard lock(mutex_);
      // What a plain walk reads one after the other is one beside the other.
      const auto [place, isNew] = places_.try_emplace({call.kind, call.path}, places_.size());
      const bool isNear = place->second == at_ || place->second == at_ + 1;
      now_ += std::chrono::milliseconds(isNear ? 1 : 8);
      at_ = place->second;
    }
    if (std::this_thread::get_id() != walker_) std::this_thread::sleep_for(std::chrono::milliseconds(2));
    return 0;
  }

 private:
  const std::thread::id walker_ = std::this_thread::get_id();
  std::mutex mutex_;
  std::map<std::pair<int, std::string>, std::size_t> places_;
  std::size_t at_ = 0;
  std::chrono::nanoseconds now_{};
};

TEST_F(WalkAhead, ADiskWithOneArmIsNotSlower) {
  for (int folder = 0; folder < 100; ++folder) {
    for (int file = 0; file < 20; ++file) {
      addFile('a' + std::to_string(folder) + "/b/" + std::to_string(file));
    }
  }
  Arm arm;
  const FolderCallWatch watch([&](const FolderCall& call) { return arm.call(call); });
  walkBy(kPlain);
  const std::chrono::nanoseconds plain = arm.now();
  walkBy(ReadersAtOnce(2, arm.clock()));
  const std::chrono::nanoseconds ahead = arm.now() - plain;
  EXPECT_LT(ahead, plain * 11 / 10);
}

TEST_F(WalkAhead, AfterAStopRequestOnlyWhatTheWalkComesToIsRead) {
  for (const char* name : {"a/b/c/1", "a/d/2", "e/3", "f/4", "f/g/5"}) addFile(name);
  const auto callsOf = [this](const ReadersAtOnce& readers) {
    const RecordedCalls recorded;
    view.onEvents = [this] { state.AbortRequested = true; };
    const AheadWalk walked = walkBy(readers);
    EXPECT_FALSE(walked.isWhole);
    return recorded.calls();
  };
  const RecordedCalls::Calls expected = callsOf(kPlain);
  EXPECT_LT(expected.size(), 20U);
  for (const WayOfReading& way : test::waysOfReadingAhead())
    EXPECT_EQ(callsOf(way.readers), expected) << way.name;
}

}  // namespace
}  // namespace quorvin
