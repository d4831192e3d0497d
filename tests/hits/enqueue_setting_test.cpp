// SPDX-License-Identifier: GPL-2.0-or-later

// The setting for the user's own audio player, as it is stored.
#include "hits/hit_actions.h"
#include "support/memory_settings_store.h"
#include "support/qt_printing.h"

#include <gtest/gtest.h>

namespace quorvin::test {

namespace {

class EnqueueSetting : public testing::Test {
 protected:
  EnqueueSetting() { state_.resetFileNames(); }

  MemorySettingsStore settings_;
  ProgramState state_;
};

TEST_F(EnqueueSetting, IsTheStoredCommand) {
  settings_.put(QStringLiteral("Ketta Quorvin"), QStringLiteral("EnqueueCommand"), QStringLiteral("mpv %f"));
  EXPECT_EQ(enqueueCommand(settings_, state_), QStringLiteral("mpv %f"));
}

TEST_F(EnqueueSetting, IsEmptyWhenNoneIsStored) {
  EXPECT_EQ(enqueueCommand(settings_, state_), QString());
}

TEST_F(EnqueueSetting, BelongsToTheApplicationThatTheCommandLineNames) {
  settings_.put(QStringLiteral("Ketta Quorvin"), QStringLiteral("EnqueueCommand"), QStringLiteral("mpv %f"));
  state_.RegKey = QStringLiteral("Another");
  EXPECT_EQ(enqueueCommand(settings_, state_), QString());
}

TEST_F(EnqueueSetting, IsReadAnewEachTime) {
  enqueueCommand(settings_, state_);
  settings_.put(QStringLiteral("Ketta Quorvin"), QStringLiteral("EnqueueCommand"), QStringLiteral("vlc"));
  EXPECT_EQ(enqueueCommand(settings_, state_), QStringLiteral("vlc"));
}

}  // namespace

}  // namespace quorvin::test
