// SPDX-License-Identifier: GPL-2.0-or-later
#include "state/view_settings.h"

#include "state/search_history.h"

#include <vector>

namespace quorvin {

namespace {

struct Entry {
  QString section;
  QString key;
  QString text;
};

QString viewSection() {
  return QStringLiteral("View");
}

QString textOf(bool isSet) {
  return isSet ? QStringLiteral("1") : QStringLiteral("0");
}

bool isSet(const QString& text, bool fallback) {
  if (text == u"1") return true;
  return text == u"0" ? false : fallback;
}

std::vector<Entry> entriesOf(const ViewSettings& settings) {
  return {{viewSection(), QStringLiteral("Columns"), settings.columns},
          {viewSection(), QStringLiteral("SearchWhileTyping"), textOf(settings.searchWhileTyping)},
          {viewSection(), QStringLiteral("KeepSearchHistory"), textOf(settings.keepSearchHistory)},
          {QStringLiteral("Searches"), QStringLiteral("Texts"), joinedSearches(settings.searches)}};
}

}  // namespace

ViewSettings readViewSettings(const SettingsStore& store, const QString& application) {
  const auto read = [&](const QString& key) { return store.read(application, viewSection(), key, {}); };
  ViewSettings settings;
  settings.columns = read(QStringLiteral("Columns"));
  settings.searchWhileTyping = isSet(read(QStringLiteral("SearchWhileTyping")), settings.searchWhileTyping);
  settings.keepSearchHistory = isSet(read(QStringLiteral("KeepSearchHistory")), settings.keepSearchHistory);
  settings.searches =
      splitSearches(store.read(application, QStringLiteral("Searches"), QStringLiteral("Texts"), {}));
  return settings;
}

void writeViewSettings(SettingsStore& store, const QString& application, const ViewSettings& settings) {
  const std::vector<Entry> kept = entriesOf(readViewSettings(store, application));
  const std::vector<Entry> wanted = entriesOf(settings);
  for (std::size_t i = 0; i < wanted.size(); ++i) {
    if (wanted[i].text == kept[i].text) continue;
    store.write(application, wanted[i].section, wanted[i].key, wanted[i].text);
  }
}

}  // namespace quorvin
