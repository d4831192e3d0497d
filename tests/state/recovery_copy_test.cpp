// SPDX-License-Identifier: GPL-2.0-or-later
#include "state/recovery_copy.h"

#include "state/settings.h"
#include "state/source_list_file.h"
#include "support/memory_settings_store.h"
#include "support/qt_printing.h"
#include "support/recording_message_boxes.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <memory>

namespace quorvin {
namespace {

const QLocale kUsersLocale(QLocale::English, QLocale::UnitedStates);
const QString kUsualSet = QStringLiteral("Ketta Quorvin");

/// A run of the program, as far as a recovery copy knows it. One that is destroyed has crashed.
struct ProgramRun {
  /// `whenAsked` is done while the question is shown.
  ProgramRun(
      const TemporaryFolder& folder, std::deque<bool> answers, const QString& settingsSet,
      const std::function<void(ProgramRun&)>& whenAsked = [](ProgramRun&) {})
      : recovery(state, kUsersLocale, folder.pathOf(QStringLiteral("settings/settings.ini"))) {
    messages.answers = std::move(answers);
    messages.whenAsked = [this, whenAsked] { whenAsked(*this); };
    state.resetFileNames();
    state.RegKey = settingsSet;
    state.LocalFolder = folder.pathOf(QStringLiteral("data/"));
    readSettings(store, state, 38001, kUsersLocale);
    loadSourceLists(state);
    noteSettingsAtStart(store, state, kUsersLocale, [] { return QString(); });
    recovery.offer(messages);
  }

  void addOnline(const QString& description) {
    state.OnlineSources.set(++state.OnlineSourceCount, description, QStringLiteral("/music/"));
  }
  QStringList online() const {
    QStringList descriptions;
    for (int row = 1; row <= state.OnlineSourceCount; ++row) {
      descriptions += state.OnlineSources.description(row);
    }
    return descriptions;
  }

  MemorySettingsStore store;
  RecordingMessageBoxes messages;
  ProgramState state;
  RecoveryCopy recovery;
};

class Recovery : public testing::Test {
 protected:
  Recovery() { folder_.writeFile(QStringLiteral("data/Locations.txt"), "\"Old\",\"/old/\"\r\n"); }

  std::unique_ptr<ProgramRun> start(std::deque<bool> answers = {},
                                    const QString& settingsSet = kUsualSet) const {
    return std::make_unique<ProgramRun>(folder_, std::move(answers), settingsSet);
  }
  /// The names of the copies that are there.
  QStringList copies() const {
    return QDir(folder_.pathOf(QStringLiteral("settings"))).entryList(QDir::Files | QDir::Hidden, QDir::Name);
  }

  TemporaryFolder folder_;
};

TEST_F(Recovery, WithoutAChangeThereIsNoCopy) {
  const auto run = start();
  run->recovery.keep();
  EXPECT_FALSE(folder_.has(QStringLiteral("settings")));
}

TEST_F(Recovery, AfterACrashTheChangesComeBack) {
  {
    const auto crashing = start();
    crashing->addOnline(QStringLiteral("12\" vinyl"));
    crashing->state.OfflineSources.set(1, QStringLiteral("Offline"), QStringLiteral("/cds.txt"));
    crashing->state.OfflineSourceCount = 1;
    crashing->state.NickName = QStringLiteral("Ann");
    crashing->state.JoinDate = 38306.5;
    crashing->recovery.keep();
  }
  const auto next = start({true});
  EXPECT_EQ(next->online(), QStringList({QStringLiteral("Old"), QStringLiteral("12\" vinyl")}));
  EXPECT_EQ(next->state.OnlineSources.path(2), QStringLiteral("/music/"));
  ASSERT_EQ(next->state.OfflineSourceCount, 1);
  EXPECT_EQ(next->state.OfflineSources.path(1), QStringLiteral("/cds.txt"));
  EXPECT_EQ(next->state.NickName, QStringLiteral("Ann"));
  EXPECT_EQ(next->state.JoinDate, 38306.5);
  ASSERT_EQ(next->messages.asked.size(), 1U);
  const QString asked = next->messages.asked.front();
  EXPECT_TRUE(asked.startsWith(u"An earlier run ended without saving these changes, the last of them on "));
  EXPECT_TRUE(
      asked.endsWith(u":\r\n\r\nLocal folders in the search list: 2\r\nOffline list files: 1\r\n"
                     "JoinDate: 11/15/2004 12:00:00 PM\r\nNickName: Ann\r\n\r\n"
                     "Do you want to have them back? No removes them."))
      << asked.toStdString();
}

TEST_F(Recovery, WhatWasTakenOverOutlivesASecondCrash) {
  {
    const auto crashing = start();
    crashing->addOnline(QStringLiteral("New"));
    crashing->recovery.keep();
  }
  start({true});
  EXPECT_EQ(start({true})->online(), QStringList({QStringLiteral("Old"), QStringLiteral("New")}));
}

TEST_F(Recovery, WithNoTheCopyIsRemoved) {
  {
    const auto crashing = start();
    crashing->addOnline(QStringLiteral("New"));
    crashing->recovery.keep();
  }
  EXPECT_EQ(start({false})->online(), QStringList{QStringLiteral("Old")});
  EXPECT_EQ(copies(), QStringList());
  EXPECT_TRUE(start()->messages.asked.empty());
}

TEST_F(Recovery, WhatHasBeenSavedAfterAllIsNotOffered) {
  {
    const auto crashing = start();
    crashing->addOnline(QStringLiteral("New"));
    crashing->recovery.keep();
    // Killed between saving and removing the copy.
    ASSERT_TRUE(saveOnlineSources(crashing->state, crashing->messages));
  }
  const auto next = start({true});
  EXPECT_TRUE(next->messages.asked.empty());
  EXPECT_EQ(next->online(), QStringList({QStringLiteral("Old"), QStringLiteral("New")}));
  EXPECT_EQ(copies(), QStringList());
}

TEST_F(Recovery, AfterSavingThereIsNoCopyAndNoNewOne) {
  const auto run = start();
  run->addOnline(QStringLiteral("New"));
  run->recovery.keep();
  EXPECT_EQ(copies().size(), 1);
  run->recovery.close(true);
  run->addOnline(QStringLiteral("Too late"));
  run->recovery.keep();
  EXPECT_EQ(copies(), QStringList());
}

TEST_F(Recovery, WhatCouldNotBeSavedIsKeptAtTheLastMoment) {
  {
    const auto run = start();
    run->addOnline(QStringLiteral("New"));
    run->recovery.close(false);
  }
  EXPECT_EQ(start({true})->online(), QStringList({QStringLiteral("Old"), QStringLiteral("New")}));
}

TEST_F(Recovery, AChangeThatIsTakenBackLeavesNoCopy) {
  const auto run = start();
  run->addOnline(QStringLiteral("New"));
  run->recovery.keep();
  run->state.OnlineSourceCount = 1;
  run->recovery.keep();
  EXPECT_EQ(copies(), QStringList());
}

TEST_F(Recovery, AListThatWasOnlyReadIsNotTakenOverAnOtherOne) {
  {
    const auto crashing = start();
    crashing->state.NickName = QStringLiteral("Ann");
    crashing->recovery.keep();
  }
  folder_.writeFile(QStringLiteral("data/Locations.txt"), "\"Newer\",\"/newer/\"\r\n");
  EXPECT_EQ(start({true})->online(), QStringList{QStringLiteral("Newer")});
}

TEST_F(Recovery, TheCopyOfARunningProgramIsNeitherOfferedNorReplaced) {
  const auto running = start();
  running->addOnline(QStringLiteral("Running"));
  running->recovery.keep();
  {
    const auto second = start({true});
    EXPECT_TRUE(second->messages.asked.empty());
    second->addOnline(QStringLiteral("Second"));
    second->recovery.keep();
    second->recovery.close(true);
  }
  EXPECT_EQ(copies().size(), 1);
  running->addOnline(QStringLiteral("More"));
  running->recovery.keep();
  EXPECT_TRUE(folder_.readFile(QStringLiteral("settings/") + copies().front()).contains("More"));
}

TEST_F(Recovery, EachSettingsSetHasItsOwn) {
  const QString listing = QStringLiteral("/lists/") + QString(300, u'x');
  {
    const auto crashing = start({}, listing);
    crashing->addOnline(QStringLiteral("New"));
    crashing->recovery.keep();
  }
  EXPECT_TRUE(start({true})->messages.asked.empty());
  EXPECT_EQ(start({true}, listing)->online(), QStringList({QStringLiteral("Old"), QStringLiteral("New")}));
}

TEST_F(Recovery, ADamagedCopyIsRemovedWithoutAQuestion) {
  const QString path = start()->recovery.path();
  for (const QByteArray& damaged : {QByteArray("{"), QByteArray("[1]"), QByteArray(R"({"online": 3})")}) {
    folder_.writeFile(path.mid(folder_.path().size()), damaged);
    const auto next = start({true});
    EXPECT_TRUE(next->messages.asked.empty());
    EXPECT_EQ(next->online(), QStringList{QStringLiteral("Old")});
    EXPECT_EQ(copies(), QStringList());
  }
}

TEST_F(Recovery, BeforeTheOfferNothingIsTouched) {
  {
    const auto crashing = start();
    crashing->addOnline(QStringLiteral("New"));
    crashing->recovery.keep();
  }
  ProgramState closedEarly;
  closedEarly.resetFileNames();
  RecoveryCopy recovery(closedEarly, kUsersLocale, folder_.pathOf(QStringLiteral("settings/settings.ini")));
  recovery.keep();
  recovery.close(true);
  EXPECT_EQ(copies().size(), 1);
}

TEST_F(Recovery, ClosedOverTheQuestionTheCopyStays) {
  {
    const auto crashing = start();
    crashing->addOnline(QStringLiteral("New"));
    crashing->recovery.keep();
  }
  const auto closed = std::make_unique<ProgramRun>(folder_, std::deque<bool>(), kUsualSet,
                                                   [](ProgramRun& run) { run.recovery.close(false); });
  EXPECT_EQ(closed->messages.asked.size(), 1U);
  EXPECT_EQ(copies().size(), 1);
  EXPECT_EQ(start({true})->online(), QStringList({QStringLiteral("Old"), QStringLiteral("New")}));
}

TEST_F(Recovery, APlaceThatCannotBeWrittenIsPassedOver) {
  folder_.writeFile(QStringLiteral("settings"), "a file where the folder should be");
  const auto run = start();
  run->addOnline(QStringLiteral("New"));
  run->recovery.keep();
  run->recovery.close(true);
  EXPECT_EQ(folder_.readFile(QStringLiteral("settings")), "a file where the folder should be");
}

}  // namespace
}  // namespace quorvin
