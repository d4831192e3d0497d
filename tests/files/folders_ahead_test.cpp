// SPDX-License-Identifier: GPL-2.0-or-later

// What is read ahead of a walk, and what is not.
#include "files/folders_ahead.h"

#include "support/folder_call_watch.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <condition_variable>
#include <mutex>
#include <set>
#include <thread>

namespace quorvin {
namespace {

using test::FolderCall;
using test::FolderCallWatch;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

/// The calls of other threads than the test's own: "open b", "look up b/1".
class CallsAhead {
 public:
  explicit CallsAhead(const TemporaryFolder& folder) : top_(folder.path().toStdString()) {}

  /// Waits until as many have been made.
  void waitFor(std::size_t count) {
    std::unique_lock lock(mutex_);
    made_.wait(lock, [&] { return calls_.size() >= count; });
  }
  std::set<std::string> calls() {
    const std::lock_guard lock(mutex_);
    return calls_;
  }
  /// The error that look-ups of other threads give from now on.
  void failWith(int error) {
    const std::lock_guard lock(mutex_);
    error_ = error;
  }

 private:
  int watch(const FolderCall& call) {
    if (std::this_thread::get_id() == walker_ || call.kind == FolderCall::Names) return 0;
    const std::string what = call.kind == FolderCall::Open ? "open " : "look up ";
    const std::lock_guard lock(mutex_);
    calls_.insert(what + call.path.substr(top_.size()));
    made_.notify_all();
    return call.kind == FolderCall::LookUp ? error_ : 0;
  }

  const std::string top_;
  const std::thread::id walker_ = std::this_thread::get_id();
  std::mutex mutex_;
  std::condition_variable made_;
  std::set<std::string> calls_;
  int error_ = 0;
  const FolderCallWatch watch_{[this](const FolderCall& call) { return watch(call); }};
};

WalkPlan planForAll() {
  WalkPlan plan;
  plan.use = [](const FolderName& name) {
    return NameUse{.lookUpAtOnce = name.kind == NameKind::Link,
                   .lookUpLater = name.kind != NameKind::Folder,
                   .enter = name.kind == NameKind::Folder};
  };
  plan.mostSubFolders = plan.mostFiles = plan.longestWay = 100'000;
  return plan;
}

class FoldersAheadOfAWalk : public testing::Test {
 protected:
  FoldersAheadOfAWalk() {
    for (const char16_t* name : {u"a/1", u"a/2", u"a/b/3"})
      folder.writeFile(QString::fromUtf16(name), "12345");
  }

  std::unique_ptr<FolderReader> entered(const WalkPlan& plan, int readers = 2) {
    auto reader = makeFolderReader(kMostOpenFolders, ReadersAtOnce::always(readers, true));
    reader->planWalk(plan);
    EXPECT_EQ(reader->enterTop(folder.path()), 0);
    return reader;
  }

  static std::set<std::string> namesOf(FolderReader& reader) {
    std::set<std::string> names;
    FolderName name;
    while (reader.next(name) == 0 && !name.bytes.empty()) names.emplace(name.bytes);
    return names;
  }

  TemporaryFolder folder;
  NameStatus status;
};

TEST_F(FoldersAheadOfAWalk, AreReadWithAllBelowThem) {
  CallsAhead ahead(folder);
  const auto reader = entered(planForAll());
  ahead.waitFor(5);
  EXPECT_THAT(ahead.calls(),
              UnorderedElementsAre("open a", "look up a/1", "look up a/2", "open a/b", "look up a/b/3"));
  EXPECT_EQ(namesOf(*reader), (std::set<std::string>{"a"}));
  ASSERT_EQ(reader->enter("a"), 0);
  EXPECT_EQ(namesOf(*reader), (std::set<std::string>{"1", "2", "b"}));
  ASSERT_EQ(reader->enter("b"), 0);
  EXPECT_EQ(namesOf(*reader), (std::set<std::string>{"3"}));
  EXPECT_EQ(reader->lookUp("3", status), 0);
  EXPECT_EQ(status.size, 5);
}

TEST_F(FoldersAheadOfAWalk, AreNotReadWithoutAPlanOrByOneReader) {
  CallsAhead ahead(folder);
  for (const int readers : {1, 8}) {
    const auto reader = entered(readers == 1 ? planForAll() : WalkPlan{}, readers);
    namesOf(*reader);
    EXPECT_EQ(reader->enter("a"), 0);
    EXPECT_EQ(reader->lookUp("1", status), 0);
  }
  EXPECT_THAT(ahead.calls(), IsEmpty());
}

TEST_F(FoldersAheadOfAWalk, AreOnlyThoseThatThePlanNames) {
  CallsAhead ahead(folder);
  WalkPlan plan = planForAll();
  plan.use = [](const FolderName& name) {
    return NameUse{.lookUpLater = name.bytes == "2", .enter = name.bytes == "a"};
  };
  const auto reader = entered(plan);
  ahead.waitFor(2);
  namesOf(*reader);
  EXPECT_EQ(reader->enter("a"), 0);
  namesOf(*reader);
  EXPECT_EQ(reader->lookUp("2", status), 0);
  EXPECT_THAT(ahead.calls(), UnorderedElementsAre("open a", "look up a/2"));
}

// A plan with room for fewer names than there are: which the walk comes to is not known.
TEST_F(FoldersAheadOfAWalk, AreNotReadWhereThereAreMoreNamesThanTheWalkTakes) {
  folder.writeFile(u"a/c/4"_qs, "");
  for (const bool isLink : {false, true}) {
    if (isLink) {
      ASSERT_TRUE(QFile::remove(folder.pathOf(u"a/c/4"_qs)));
      ASSERT_TRUE(QDir().rmdir(folder.pathOf(u"a/c"_qs)));
      ASSERT_TRUE(QFile::link(folder.pathOf(u"a/b"_qs), folder.pathOf(u"a/c"_qs)));
    }
    CallsAhead ahead(folder);
    WalkPlan plan = planForAll();
    plan.mostSubFolders = 1;
    plan.mostFiles = 1;
    const auto reader = entered(plan);
    ahead.waitFor(isLink ? 2 : 1);
    namesOf(*reader);
    EXPECT_EQ(reader->enter("a"), 0);
    EXPECT_EQ(namesOf(*reader), (std::set<std::string>{"1", "2", "b", "c"}));
    EXPECT_EQ(reader->lookUp("1", status), 0);
    EXPECT_EQ(status.size, 5);
    const std::set<std::string> expected =
        isLink ? std::set<std::string>{"open a", "look up a/c"} : std::set<std::string>{"open a"};
    EXPECT_EQ(ahead.calls(), expected);
    EXPECT_EQ(reader->enter("b"), 0);
  }
}

TEST_F(FoldersAheadOfAWalk, AreNotReadWhereThePathIsLongerThanTheWalkTakes) {
  CallsAhead ahead(folder);
  WalkPlan plan = planForAll();
  plan.longestWay = 3;
  const auto reader = entered(plan);
  ahead.waitFor(3);
  namesOf(*reader);
  EXPECT_EQ(reader->enter("a"), 0);
  namesOf(*reader);
  EXPECT_THAT(ahead.calls(), UnorderedElementsAre("open a", "look up a/1", "look up a/2"));
  EXPECT_EQ(reader->enter("b"), 0);
}

TEST_F(FoldersAheadOfAWalk, GiveAnErrorOnceAndThenTheSystemIsAsked) {
  CallsAhead ahead(folder);
  ahead.failWith(EIO);
  const auto reader = entered(planForAll());
  ahead.waitFor(5);
  namesOf(*reader);
  ASSERT_EQ(reader->enter("a"), 0);
  namesOf(*reader);
  EXPECT_EQ(reader->lookUp("1", status), EIO);
  EXPECT_EQ(reader->lookUp("1", status), 0);
  EXPECT_EQ(status.size, 5);
}

TEST_F(FoldersAheadOfAWalk, AreReadAgainWhenTheyAreForgotten) {
  CallsAhead ahead(folder);
  const auto reader = entered(planForAll());
  ahead.waitFor(5);
  folder.writeFile(u"a/1"_qs, "1234567");
  folder.writeFile(u"a/4"_qs, "");
  reader->forgetAhead();
  namesOf(*reader);
  ASSERT_EQ(reader->enter("a"), 0);
  EXPECT_EQ(namesOf(*reader), (std::set<std::string>{"1", "2", "4", "b"}));
  EXPECT_EQ(reader->lookUp("1", status), 0);
  EXPECT_EQ(status.size, 7);
}

TEST_F(FoldersAheadOfAWalk, LeaveNoNameOutWhenThePlanEndsInTheMiddleOfAFolder) {
  const auto reader = entered(planForAll());
  namesOf(*reader);
  ASSERT_EQ(reader->enter("a"), 0);
  FolderName name;
  ASSERT_EQ(reader->next(name), 0);
  std::set<std::string> names{std::string(name.bytes)};
  reader->planWalk({});
  names.merge(namesOf(*reader));
  EXPECT_EQ(names, (std::set<std::string>{"1", "2", "b"}));
  ASSERT_EQ(reader->enter("b"), 0);
  EXPECT_EQ(namesOf(*reader), (std::set<std::string>{"3"}));
  reader->leave();
  EXPECT_EQ(reader->lookUp("1", status), 0);
}

TEST_F(FoldersAheadOfAWalk, AreSoManyAtMost) {
  constexpr int kFolders = 300;
  for (int i = 0; i < kFolders; ++i) folder.writeFile(QStringLiteral("wide/%1/1").arg(i), "");
  std::mutex mutex;
  std::size_t opened = 0;
  std::size_t walked = 0;
  std::size_t most = 0;
  const FolderCallWatch watch([&](const FolderCall& call) {
    const std::lock_guard lock(mutex);
    if (call.kind == FolderCall::Open) most = std::max(most, ++opened - walked);
    return 0;
  });
  const auto reader = makeFolderReader(kMostOpenFolders, ReadersAtOnce::always(8, true));
  reader->planWalk(planForAll());
  ASSERT_EQ(reader->enterTop(folder.pathOf(u"wide"_qs)), 0);
  std::vector<std::string> names;
  FolderName found;
  while (reader->next(found) == 0 && !found.bytes.empty()) names.emplace_back(found.bytes);
  ASSERT_EQ(names.size(), std::size_t{kFolders});
  for (const std::string& name : names) {
    {
      const std::lock_guard lock(mutex);
      ++walked;
    }
    ASSERT_EQ(reader->enter(name.c_str()), 0);
    reader->leave();
  }
  EXPECT_LE(most, ReadingWindow::kMostFolders);
  EXPECT_GE(most, 8U);
}

}  // namespace
}  // namespace quorvin
