#include "state/view_settings.h"

#include "support/fault_number.h"
#include "support/memory_settings_store.h"
#include "support/qt_printing.h"

#include <gtest/gtest.h>

#include <tuple>

namespace quorvin {
namespace {

const QString kApplication = QStringLiteral("Ketta Quorvin");

std::tuple<QString, QString, QString> place(const QString& key) {
  return {kApplication, QStringLiteral("View"), key};
}

TEST(ViewSettings, AreTheDefaultsWhereNothingIsKept) {
  const MemorySettingsStore store;
  EXPECT_EQ(readViewSettings(store, kApplication).columns, QString());
}

TEST(ViewSettings, ComeBackAsTheyWereWritten) {
  MemorySettingsStore store;
  ViewSettings settings;
  settings.columns = QStringLiteral("Match 40");
  writeViewSettings(store, kApplication, settings);
  EXPECT_EQ(store.values[place(QStringLiteral("Columns"))], QStringLiteral("Match 40"));
  EXPECT_EQ(readViewSettings(store, kApplication), settings);
  EXPECT_EQ(readViewSettings(store, QStringLiteral("/lists/other.txt")), ViewSettings());
}

TEST(ViewSettings, OfSearchesComeBackToo) {
  MemorySettingsStore store;
  EXPECT_FALSE(readViewSettings(store, kApplication).searchWhileTyping);
  EXPECT_TRUE(readViewSettings(store, kApplication).keepSearchHistory);
  ViewSettings settings;
  settings.searchWhileTyping = true;
  settings.keepSearchHistory = false;
  settings.searches = {QStringLiteral("rock live"), QStringLiteral("tune ")};
  writeViewSettings(store, kApplication, settings);
  EXPECT_EQ(store.values[place(QStringLiteral("SearchWhileTyping"))], QStringLiteral("1"));
  EXPECT_EQ(store.values[place(QStringLiteral("KeepSearchHistory"))], QStringLiteral("0"));
  const auto texts = std::tuple{kApplication, QStringLiteral("Searches"), QStringLiteral("Texts")};
  EXPECT_EQ(store.values[texts], QStringLiteral("rock live\ntune "));
  EXPECT_EQ(readViewSettings(store, kApplication), settings);
}

TEST(ViewSettings, ThatMakeNoSenseAreTheDefaults) {
  MemorySettingsStore store;
  store.values[place(QStringLiteral("SearchWhileTyping"))] = QStringLiteral("maybe");
  store.values[place(QStringLiteral("KeepSearchHistory"))] = QStringLiteral("");
  EXPECT_EQ(readViewSettings(store, kApplication), ViewSettings());
}

TEST(ViewSettings, WritesOnlyWhatHasChanged) {
  MemorySettingsStore store;
  writeViewSettings(store, kApplication, {});
  EXPECT_TRUE(store.writes.empty());
  store.values[place(QStringLiteral("Columns"))] = QStringLiteral("Match 40");
  writeViewSettings(store, kApplication, readViewSettings(store, kApplication));
  EXPECT_TRUE(store.writes.empty());
  writeViewSettings(store, kApplication, {});
  ASSERT_EQ(store.writes.size(), 1U);
  EXPECT_EQ(store.writes[0].key, QStringLiteral("Columns"));
  EXPECT_EQ(store.writes[0].value, QString());
}

TEST(ViewSettings, AreNotWrittenOverAStoreThatCannotBeRead) {
  MemorySettingsStore store;
  store.refusesReads = true;
  ViewSettings settings;
  settings.columns = QStringLiteral("Match 40");
  EXPECT_FAULT(writeViewSettings(store, kApplication, settings), 70);
  EXPECT_TRUE(store.writes.empty());
}

}  // namespace
}  // namespace quorvin
