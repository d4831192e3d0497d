// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/one_window.h"

#include "support/eventually.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <csignal>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace quorvin {
namespace {

/// The program that is there is this thread's; later ones are started in threads of their own.
class OneWindowTest : public testing::Test {
 protected:
  OneWindowOptions options(int patienceMilliseconds = test::kPatienceMilliseconds) const {
    return {folder_.pathOf(u"run"_qs), ::geteuid(), patienceMilliseconds};
  }

  /// Whether a later start is taken, while the events of this program run.
  bool isTaken(const QString& set, const LaterStart& start, const OneWindowOptions& options) const {
    std::atomic<bool> ended = false;
    bool taken = false;
    std::thread later([&] {
      taken = OneWindow(set, options).handOver(start);
      ended = true;
    });
    EXPECT_EVENTUALLY(ended);
    later.join();
    return taken;
  }

  std::function<bool(const LaterStart&)> recording() {
    return [this](const LaterStart& start) {
      taken_.push_back(start.commandLine + u'|' + start.activationToken);
      errands_.push_back(start.errand);
      return takes_;
    };
  }

  std::array<char, 5> name_{"test"};
  std::array<char*, 2> arguments_{name_.data(), nullptr};
  int argumentCount_ = 1;
  QCoreApplication application_{argumentCount_, arguments_.data()};
  TemporaryFolder folder_;
  std::vector<QString> taken_;
  std::vector<QString> errands_;
  bool takes_ = true;
};

TEST_F(OneWindowTest, TheFirstHasTheWindowAndTakesWhatLaterOnesHandOver) {
  OneWindow first(u"set"_qs, options());
  EXPECT_FALSE(first.handOver({u"ignored"_qs, {}, {}}));
  first.serve(recording());
  EXPECT_TRUE(isTaken(u"set"_qs, {u"/lists/d\u00efsk.txt"_qs, u"token"_qs, {}}, options()));
  EXPECT_TRUE(isTaken(u"set"_qs, {}, options()));
  EXPECT_EQ(taken_, std::vector<QString>({u"/lists/d\u00efsk.txt|token"_qs, u"|"_qs}));
}

TEST_F(OneWindowTest, WhatALaterOneAsksForComesThroughWhateverIsInIt) {
  OneWindow first(u"set"_qs, options());
  first.handOver({});
  first.serve(recording());
  EXPECT_TRUE(isTaken(u"set"_qs, {{}, {}, u"--folder /a 'b'\n\"c\" \u00e9"_qs}, options()));
  EXPECT_TRUE(isTaken(u"set"_qs, {u"disk.txt"_qs, u"token"_qs, {}}, options()));
  EXPECT_EQ(errands_, std::vector<QString>({u"--folder /a 'b'\n\"c\" \u00e9"_qs, {}}));
}

TEST_F(OneWindowTest, AnotherSetHasAnotherWindow) {
  OneWindow first(u"set"_qs, options());
  first.handOver({});
  first.serve(recording());
  EXPECT_FALSE(isTaken(u"other set"_qs, {}, options()));
  EXPECT_TRUE(taken_.empty());
}

TEST_F(OneWindowTest, AfterTheFirstTheNextHasTheWindow) {
  std::optional<OneWindow> first(std::in_place, u"set"_qs, options());
  first->handOver({});
  first->serve(recording());
  first.reset();
  OneWindow next(u"set"_qs, options());
  EXPECT_FALSE(next.handOver({}));
  next.serve(recording());
  EXPECT_TRUE(isTaken(u"set"_qs, {u"later"_qs, {}, {}}, options()));
  EXPECT_EQ(taken_, std::vector<QString>({u"later|"_qs}));
}

TEST_F(OneWindowTest, WhatAKilledProgramLeftBehindIsNobody) {
  const pid_t child = ::fork();
  if (child == 0) {
    OneWindow killed(u"killed set"_qs, options());
    killed.handOver({});
    killed.serve([](const LaterStart&) { return true; });
    ::raise(SIGKILL);
  }
  int status = 0;
  ASSERT_EQ(::waitpid(child, &status, 0), child);
  OneWindow next(u"killed set"_qs, options());
  EXPECT_FALSE(next.handOver({}));
  next.serve(recording());
  EXPECT_TRUE(isTaken(u"killed set"_qs, {}, options()));
}

TEST_F(OneWindowTest, OneThatIsClosingIsWaitedForAndThenThisOneHasTheWindow) {
  takes_ = false;
  std::optional<OneWindow> first(std::in_place, u"set"_qs, options());
  first->handOver({});
  first->serve(recording());
  std::atomic<int> outcome = -1;
  std::thread later([&] { outcome = OneWindow(u"set"_qs, options()).handOver({u"later"_qs, {}, {}}); });
  EXPECT_EVENTUALLY(taken_.size() >= 2);
  EXPECT_EQ(outcome, -1);
  first.reset();
  later.join();
  EXPECT_EQ(outcome, 0);
}

TEST_F(OneWindowTest, OneThatCannotBeReachedIsGivenUp) {
  OneWindow first(u"set"_qs, options());
  first.handOver({});
  OneWindow next(u"set"_qs, options(60));
  EXPECT_FALSE(next.handOver({}));
  // It does not have the window, so it does not answer for it.
  next.serve(recording());
  EXPECT_FALSE(OneWindow(u"set"_qs, options(60)).handOver({}));
  EXPECT_TRUE(taken_.empty());
}

TEST_F(OneWindowTest, AnotherUserIsNotTrustedWithTheStart) {
  OneWindow first(u"set"_qs, options());
  first.handOver({});
  first.serve(recording());
  OneWindowOptions ofAnother = options(300);
  ++ofAnother.user;
  EXPECT_FALSE(isTaken(u"set"_qs, {u"secret"_qs, {}, {}}, ofAnother));
  EXPECT_TRUE(taken_.empty());
}

TEST_F(OneWindowTest, AnotherUserIsNotHeard) {
  OneWindowOptions ofAnother = options();
  ++ofAnother.user;
  OneWindow first(u"set"_qs, ofAnother);
  first.handOver({});
  first.serve(recording());
  EXPECT_FALSE(isTaken(u"set"_qs, {u"foreign"_qs, {}, {}}, options(300)));
  EXPECT_TRUE(taken_.empty());
}

TEST_F(OneWindowTest, AFolderThatCannotBeMadeKeepsNobodyFromStarting) {
  folder_.writeFile(u"run"_qs, "a file in the way");
  OneWindow first(u"set"_qs, options());
  EXPECT_FALSE(first.handOver({}));
  first.serve(recording());
  EXPECT_FALSE(OneWindow(u"set"_qs, options()).handOver({}));
}

TEST_F(OneWindowTest, AMessageThatIsTooLongIsNotHeard) {
  OneWindow first(u"set"_qs, options());
  first.handOver({});
  first.serve(recording());
  EXPECT_FALSE(isTaken(u"set"_qs, {QString(20'000, u'x'), {}, {}}, options(300)));
  EXPECT_TRUE(taken_.empty());
}

TEST_F(OneWindowTest, TheFolderIsTheUsersAlone) {
  OneWindow first(u"set"_qs, options());
  first.handOver({});
  const QFile::Permissions others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                                    QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
  EXPECT_EQ(QFile::permissions(options().folder) & others, QFile::Permissions());
}

TEST(OneWindowOptions, AreInTheRuntimeFolderOfTheUser) {
  const TemporaryFolder folder;
  const QByteArray before = qgetenv("XDG_RUNTIME_DIR");
  qputenv("XDG_RUNTIME_DIR", QFile::encodeName(folder.path()));
  const OneWindowOptions options = usualOneWindowOptions();
  before.isNull() ? qunsetenv("XDG_RUNTIME_DIR") : qputenv("XDG_RUNTIME_DIR", before);
  EXPECT_EQ(QDir::cleanPath(options.folder), folder.pathOf(u"quorvin"_qs));
  EXPECT_EQ(options.user, ::geteuid());
}

TEST(OneWindowOptions, AreInTheCacheWithoutARuntimeFolder) {
  const QByteArray before = qgetenv("XDG_RUNTIME_DIR");
  qunsetenv("XDG_RUNTIME_DIR");
  const OneWindowOptions options = usualOneWindowOptions();
  if (!before.isNull()) qputenv("XDG_RUNTIME_DIR", before);
  EXPECT_TRUE(options.folder.endsWith(u"/quorvin/running"_qs)) << options.folder.toStdString();
}

}  // namespace
}  // namespace quorvin
