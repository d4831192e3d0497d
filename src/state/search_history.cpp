// SPDX-License-Identifier: GPL-2.0-or-later
#include "state/search_history.h"

#include <algorithm>

namespace quorvin {

namespace {

constexpr qsizetype kLongestSearch = 1000;
/// No search text holds one: it is typed on one line.
constexpr QChar kBetween = u'\n';

bool isWorthKeeping(const QString& text) {
  return !text.trimmed().isEmpty() && text.size() <= kLongestSearch && !text.contains(kBetween);
}

}  // namespace

void addSearch(QStringList& searches, const QString& text) {
  if (!isWorthKeeping(text)) return;
  searches.removeIf([&](const QString& known) { return known.compare(text, Qt::CaseInsensitive) == 0; });
  searches.prepend(text);
  if (searches.size() > kMostSearches) searches.resize(kMostSearches);
}

QString completionOf(const QStringList& searches, const QString& typed) {
  if (typed.isEmpty()) return {};
  const auto found = std::ranges::find_if(searches, [&](const QString& text) {
    return text.size() > typed.size() && text.startsWith(typed, Qt::CaseInsensitive);
  });
  return found == searches.end() ? QString() : *found;
}

QString joinedSearches(const QStringList& searches) {
  return searches.join(kBetween);
}

QStringList splitSearches(const QString& joined) {
  QStringList searches;
  const QStringList texts = joined.split(kBetween);
  for (auto text = texts.rbegin(); text != texts.rend(); ++text) addSearch(searches, *text);
  return searches;
}

}  // namespace quorvin
