#include "search/match/search_query.h"

#include <algorithm>

namespace quorvin {

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
