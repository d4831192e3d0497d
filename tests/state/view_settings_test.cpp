// SPDX-License-Identifier: GPL-2.0-or-later
#include "state/view_settings.h"

#include "support/fault_number.h"
#include "support/memory_settings_store.h"
#include "support/qt_printing.h"

#include <gtest/gtest.h>

#include <tuple>

namespace quorvin {
namespace {

const QString kViewApplication = QStringLiteral("Ketta Quorvin");

std::tuple<QString, QString, QString> place(const QString& key) {
  return {kViewApplication, QStringLiteral("View"), key};
}

TEST(ViewSettings, AreTheDefaultsWhereNothingIsKept) {
  const MemorySettingsStore store;
  EXPECT_EQ(readViewSettings(store, kViewApplication).columns, QString());
}

TEST(ViewSettings, ComeBackAsTheyWereWritten) {
  MemorySettingsStore store;
  ViewSettings settings;
  settings.columns = QStringLiteral("Match 40");
  writeViewSettings(store, kViewApplication, settings);
  EXPECT_EQ(store.values[place(QStringLiteral("Columns"))], QStringLiteral("Match 40"));
  EXPECT_EQ(readViewSettings(store, kViewApplication), settings);
  EXPECT_EQ(readViewSettings(store, QStringLiteral("/lists/other.txt")), ViewSettings());
}

TEST(ViewSettings, OfSearchesComeBackToo) {
  MemorySettingsStore store;
  EXPECT_FALSE(readViewSettings(store, kViewApplication).searchWhileTyping);
  EXPECT_TRUE(readViewSettings(store, kViewApplication).keepSearchHistory);
  ViewSettings settings;
  settings.searchWhileTyping = true;
  settings.keepSearchHistory = false;
  settings.searches = {QStringLiteral("rock live"), QStringLiteral("tune ")};
  writeViewSettings(store, kViewApplication, settings);
  EXPECT_EQ(store.values[place(QStringLiteral("SearchWhileTyping"))], QStringLiteral("1"));
  EXPECT_EQ(store.values[place(QStringLiteral("KeepSearchHistory"))], QStringLiteral("0"));
  const auto texts = std::tuple{kViewApplication, QStringLiteral("Searches"), QStringLiteral("Texts")};
  EXPECT_EQ(store.values[texts], QStringLiteral("rock live\ntune "));
  EXPECT_EQ(readViewSettings(store, kViewApplication), settings);
}

TEST(ViewSettings, ThatMakeNoSenseAreTheDefaults) {
  MemorySettingsStore store;
  store.values[place(QStringLiteral("SearchWhileTyping"))] = QStringLiteral("maybe");
  store.values[place(QStringLiteral("KeepSearchHistory"))] = QStringLiteral("");
  EXPECT_EQ(readViewSettings(store, kViewApplication), ViewSettings());
}

TEST(ViewSettings, WritesOnlyWhatHasChanged) {
  MemorySettingsStore store;
  writeViewSettings(store, kViewApplication, {});
  EXPECT_TRUE(store.writes.empty());
  store.values[place(QStringLiteral("Columns"))] = QStringLiteral("Match 40");
  writeViewSettings(store, kViewApplication, readViewSettings(store, kViewApplication));
  EXPECT_TRUE(store.writes.empty());
  writeViewSettings(store, kViewApplication, {});
  ASSERT_EQ(store.writes.size(), 1U);
  EXPECT_EQ(store.writes[0].key, QStringLiteral("Columns"));
  EXPECT_EQ(store.writes[0].value, QString());
}

TEST(ViewSettings, AreNotWrittenOverAStoreThatCannotBeRead) {
  MemorySettingsStore store;
  store.refusesReads = true;
  ViewSettings settings;
  settings.columns = QStringLiteral("Match 40");
  EXPECT_FAULT(writeViewSettings(store, kViewApplication, settings), 70);
  EXPECT_TRUE(store.writes.empty());
}

}  // namespace
}  // namespace quorvin
