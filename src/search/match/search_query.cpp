// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/match/search_query.h"

#include "dates/general_number.h"
#include "faults/runtime_fault.h"
#include "platform/text_encoding.h"

#include <algorithm>

namespace quorvin {

std::vector<QString> splitSearchText(QStringView searchText) {
  std::vector<QString> words;
  qsizetype start = 0;
  while (true) {
    if (words.size() == kMostWords) throw RuntimeFault(FaultNumber::SubscriptOutOfRange);
    const qsizetype blank = searchText.indexOf(u' ', start + 1);
    if (blank < 0) break;
    words.push_back(trimBlanks(searchText.mid(start, blank - start)).toString());
    start = blank;
  }
  words.push_back(trimBlanks(searchText.mid(start)).toString());
  return words;
}

std::int16_t matchPercentage(int found, int wordCount) {
  if (found == 0) return 0;
  return roundToInt16(static_cast<double>(found) / wordCount * 100);
}

std::int16_t correctedMatch(const QString& desMatch) {
  return roundToInt16(std::clamp(leadingNumber(desMatch), 1.0, 100.0));
}

QString matchText(std::int16_t match) {
  return QStringLiteral("%1%").arg(match, 3, 10, QLatin1Char('0'));
}

SearchQuery::SearchQuery(QStringView lowerSearchText, std::int16_t desiredMatch) {
  const std::vector<QString> words = splitSearchText(lowerSearchText);
  wordCount_ = static_cast<int>(words.size());
  for (const QString& word : words) {
    if (word.isEmpty()) {
      ++emptyWords_;
      continue;
    }
    std::string bytes = word.toStdString();
    const auto same =
        std::find_if(words_.begin(), words_.end(), [&](const Word& known) { return known.bytes == bytes; });
    if (same != words_.end()) {
      ++same->times;
    } else {
      words_.push_back({std::move(bytes), 1});
    }
  }
  fewestForHit_ = wordCount_ + 1;
  for (int found = wordCount_; found >= 0; --found) {
    const std::int16_t match = matchPercentage(found, wordCount_);
    matches_[static_cast<std::size_t>(found)] = match;
    if (match > desiredMatch) fewestForHit_ = found;
  }
}

}  // namespace quorvin
