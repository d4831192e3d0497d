// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/word_places.h"

#include "platform/text_encoding.h"
#include "texts/texts.h"

#include <QStringList>

#include <algorithm>

namespace quorvin {

WordPlaces::WordPlaces(const SearchQuery& query) : wordCount_(query.wordCount()) {
  for (const SearchQuery::Word& word : query.words()) words_.push_back({textOfUtf8(word.bytes), word.times});
}

TextRanges WordPlaces::in(QStringView text) const {
  TextRanges places;
  // One character for one, so that places in it are places in the text.
  const QString lower = simpleLowerCase(text);
  for (const Word& word : words_) {
    for (qsizetype at = lower.indexOf(word.text); at >= 0; at = lower.indexOf(word.text, at + 1)) {
      places.push_back({at, word.text.size()});
    }
  }
  std::ranges::sort(places, {}, &TextRange::start);
  TextRanges joined;
  for (const TextRange& place : places) {
    if (joined.empty() || joined.back().start + joined.back().length < place.start) {
      joined.push_back(place);
      continue;
    }
    TextRange& last = joined.back();
    last.length = std::max(last.length, place.start + place.length - last.start);
  }
  return joined;
}

std::vector<WordPlaces::Word> WordPlaces::missing(QStringView folder, QStringView name) const {
  const QString lowerFolder = simpleLowerCase(folder);
  const QString lowerName = simpleLowerCase(name);
  std::vector<Word> missing;
  for (const Word& word : words_) {
    if (!lowerFolder.contains(word.text) && !lowerName.contains(word.text)) missing.push_back(word);
  }
  return missing;
}

int WordPlaces::found(QStringView folder, QStringView name) const {
  int found = wordCount_;
  for (const Word& word : missing(folder, name)) found -= word.times;
  return found;
}

QString WordPlaces::explanation(QStringView folder, QStringView name) const {
  if (wordCount_ < 2) return {};
  const QString count = Texts::tr("%1 of %2 words").arg(found(folder, name)).arg(wordCount_);
  QStringList missingWords;
  for (const Word& word : missing(folder, name)) missingWords += word.text;
  if (missingWords.isEmpty()) return count;
  return Texts::tr("%1; missing: %2").arg(count, missingWords.join(QStringLiteral(", ")));
}

}  // namespace quorvin
