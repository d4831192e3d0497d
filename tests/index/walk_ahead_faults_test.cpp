// SPDX-License-Identifier: GPL-2.0-or-later

// Walks that read ahead, where something fails, changes or hangs.
#include "index/walk_ahead_fixture.h"
#include "support/plain_walker.h"
#include "support/sweep.h"

#include <atomic>
#include <cerrno>
#include <condition_variable>
#include <thread>

namespace quorvin {
namespace {

using test::AheadWalk;
using test::FolderCall;
using test::FolderCallWatch;
using test::kPlain;
using test::TreeMaker;
using test::WayOfReading;

/// Paths at which calls fail until the user has mended them.
class BadPaths {
 public:
  void add(FolderCall::Kind kind, const std::string& path, int error) {
    const std::lock_guard lock(mutex_);
    errors_[{kind, path}] = error;
  }
  int errorOf(const FolderCall& call) const {
    const std::lock_guard lock(mutex_);
    const auto found = errors_.find({call.kind, call.path});
    return found == errors_.end() ? 0 : found->second;
  }
  /// Mends all whose name is in the question.
  void mend(const std::string& question) {
    const std::lock_guard lock(mutex_);
    std::erase_if(errors_, [&](const auto& bad) {
      const std::string& path = bad.first.second;
      return question.find(path.substr(path.rfind('/') + 1)) != std::string::npos;
    });
  }

 private:
  mutable std::mutex mutex_;
  std::map<std::pair<int, std::string>, int> errors_;
};

class WalkAheadFaults : public test::WalkAheadTest {};

// Whenever the user is asked, all files grow, so that the listing shows which were looked up before which
// question.
class GrowingTree {
 public:
  GrowingTree(const std::string& top, unsigned seed) : maker_(seed) {
    std::filesystem::remove_all(top);
    std::filesystem::create_directory(top);
    maker_.fill(top, 4);
    for (const std::string& file : maker_.files) sizes_.push_back(std::filesystem::file_size(file));
    const std::vector<int> errors{EIO, EIO, EIO, ESTALE, EACCES, ENOENT, ENOTDIR};
    const auto error = [&] { return errors[static_cast<std::size_t>(maker_.below(7))]; };
    for (const std::string& file : maker_.files) {
      if (maker_.below(8) == 0) first_.emplace_back(FolderCall::LookUp, file, error());
    }
    for (const std::string& folder : maker_.folders) {
      if (maker_.below(8) == 0) first_.emplace_back(FolderCall::Open, folder, error());
      if (maker_.below(8) == 0) first_.emplace_back(FolderCall::Names, folder, error());
    }
    for (int i = 0; i < 200; ++i) {
      const int answer = maker_.below(8);
      answers.push_back(answer < 4   ? FaultAnswer::Retry
                        : answer < 7 ? FaultAnswer::Ignore
                                     : FaultAnswer::Abort);
    }
    if (seed % 4 == 0) answers.resize(2);
  }

  void restore(BadPaths& bad) {
    grown_ = 0;
    resize();
    for (const auto& [kind, path, error] : first_) bad.add(kind, path, error);
  }
  void grow() {
    ++grown_;
    resize();
  }

  std::deque<FaultAnswer> answers;

 private:
  void resize() {
    for (std::size_t i = 0; i < sizes_.size(); ++i) {
      std::filesystem::resize_file(maker_.files[i], sizes_[i] + grown_);
      test::setModified(QString::fromStdString(maker_.files[i]), test::kMoment);
    }
  }

  TreeMaker maker_;
  std::vector<std::uintmax_t> sizes_;
  std::vector<std::tuple<FolderCall::Kind, std::string, int>> first_;
  std::uintmax_t grown_ = 0;
};

TEST_F(WalkAheadFaults, AreAskedAboutInTheSameOrderAndNothingReadBeforeAQuestionIsUsedAfterIt) {
  std::size_t questions = 0;
  for (unsigned seed = 0; seed < test::sweep(1000U, 20U); ++seed) {
    GrowingTree growing(top(), seed);
    BadPaths bad;
    const FolderCallWatch watch([&](const FolderCall& call) { return bad.errorOf(call); });
    messages.whenAskedOfFault = [&] {
      growing.grow();
      const auto& answers = messages.faultAnswers;
      if (answers.empty() || answers.front() != FaultAnswer::Retry) return;
      bad.mend(messages.askedOfFaults.back().toStdString());
    };
    const auto walkIt = [&](const ReadersAtOnce& readers) {
      growing.restore(bad);
      messages.faultAnswers = growing.answers;
      return walkBy(readers);
    };
    const AheadWalk expected = walkIt(kPlain);
    questions += expected.questions.size();
    for (const WayOfReading& way : test::waysOfReadingAhead()) {
      EXPECT_EQ(walkIt(way.readers), expected) << way.name << ", seed " << seed;
    }
  }
  EXPECT_GT(questions, 5U);
}

TEST_F(WalkAheadFaults, OfOtherThreadsThatLackDescriptorsOrMemoryAreNotTheWalks) {
  TreeMaker(7).fill(top(), 5);
  const AheadWalk expected = walkBy(kPlain);
  const std::thread::id walker = std::this_thread::get_id();
  for (const int error : {EMFILE, ENFILE, ENOMEM}) {
    const FolderCallWatch watch(
        [&](const FolderCall&) { return std::this_thread::get_id() == walker ? 0 : error; });
    for (const WayOfReading& way : test::waysOfReadingAhead()) {
      EXPECT_EQ(walkBy(way.readers), expected) << way.name << ", error " << error;
    }
  }
}

TEST_F(WalkAheadFaults, WhatWasReadBeforeTheWalkHasRestedIsReadAgain) {
  constexpr int kFolders = 20;
  for (int i = 0; i < kFolders; ++i) addFile('a' + std::to_string(i) + "/file");
  std::mutex mutex;
  std::condition_variable lookedUp;
  int lookUps = 0;
  const FolderCallWatch watch([&](const FolderCall& call) {
    const std::lock_guard lock(mutex);
    if (call.kind == FolderCall::LookUp && call.path.ends_with("/file")) ++lookUps;
    lookedUp.notify_all();
    return 0;
  });
  // After the top folder, all is read; then nothing is for more than a second.
  view.onEvents = [&, passes = 0]() mutable {
    if (++passes != 2) return;
    std::unique_lock lock(mutex);
    lookedUp.wait(lock, [&] { return lookUps >= kFolders; });
    lock.unlock();
    for (int i = 0; i < kFolders; ++i) {
      std::filesystem::resize_file(top() + "/a" + std::to_string(i) + "/file", 6);
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(1100));
  };
  const AheadWalk walked = walkBy(ReadersAtOnce::always(32, true));
  EXPECT_EQ(walked.listing.count("               6 bytes "), kFolders);
}

// A folder that goes away during the walk is listed as it was, or as it is.
TEST_F(WalkAheadFaults, AFolderThatGoesAwayMeanwhileHarmsNothingElse) {
  for (int i = 0; i < 12; ++i) {
    for (const char* name : {"1", "2", "b/3", "b/c/4", "d/5"}) addFile('a' + std::to_string(i) + '/' + name);
  }
  TemporaryFolder elsewhere;
  const std::string from = top() + "/a5";
  const std::string to = elsewhere.path().toStdString() + "a5";
  const std::string gone = listed(tree.path()).toStdString() + "a5\\";
  const test::PlainBlocks expected = test::blocksOf(walkBy(kPlain).listing, "DATA1");
  for (const WayOfReading& way : test::waysOfReadingAhead()) {
    for (int at = 3; at < test::sweep(200, 60); at += test::sweep(3, 17)) {
      std::atomic<int> calls = 0;
      const FolderCallWatch watch([&](const FolderCall&) {
        if (++calls == at) std::filesystem::rename(from, to);
        return 0;
      });
      const AheadWalk walked = walkBy(way.readers);
      ASSERT_GE(calls, at);
      std::filesystem::rename(to, from);
      EXPECT_TRUE(walked.questions.empty());
      test::PlainBlocks blocks = test::blocksOf(walked.listing, "DATA1");
      for (const auto& [folder, block] : expected) {
        if (folder.starts_with(gone)) {
          blocks.erase(folder);
        } else {
          ASSERT_TRUE(blocks.contains(folder));
          EXPECT_EQ(blocks.extract(folder).mapped(), block) << way.name << ", call " << at << ", " << folder;
        }
      }
      EXPECT_TRUE(blocks.empty());
    }
  }
}

/// A drive that does not answer to one call until it is let go.
class HangingCall {
 public:
  void hang() {
    std::unique_lock lock(mutex_);
    hangs_ = true;
    changed_.notify_all();
    changed_.wait(lock, [this] { return isLetGo_; });
    hangs_ = false;
    changed_.notify_all();
  }
  void waitUntilItHangs() {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return hangs_; });
  }
  void letGo() {
    std::unique_lock lock(mutex_);
    isLetGo_ = true;
    changed_.notify_all();
    changed_.wait(lock, [this] { return !hangs_; });
  }

 private:
  std::mutex mutex_;
  std::condition_variable changed_;
  bool hangs_ = false;
  bool isLetGo_ = false;
};

TEST_F(WalkAheadFaults, AStopDoesNotWaitForACallThatTheWalkHasNotComeTo) {
  for (int i = 0; i < 20; ++i) addFile('a' + std::to_string(i) + "/b/file");
  const QByteArray plain = walkBy(kPlain).listing;
  const qsizetype start = plain.lastIndexOf("<DIR> a") + 6;
  const std::string last = top() + '/' + plain.mid(start, plain.indexOf('\r', start) - start).toStdString();
  for (const bool areCallsSlow : {true, false}) {
    // The thread that hangs may outlive the test.
    const auto call = std::make_shared<HangingCall>();
    const FolderCallWatch watch([call, last](const FolderCall& made) {
      if (made.path == last + "/b/file") call->hang();
      return 0;
    });
    view.onEvents = [&, passes = 0]() mutable {
      if (++passes != 2) return;
      call->waitUntilItHangs();
      state.AbortRequested = true;
    };
    const AheadWalk walked = walkBy(ReadersAtOnce::always(32, areCallsSlow));
    EXPECT_FALSE(walked.isWhole);
    EXPECT_TRUE(plain.startsWith(walked.listing));
    call->letGo();
  }
}

}  // namespace
}  // namespace quorvin
