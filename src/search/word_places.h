// SPDX-License-Identifier: GPL-2.0-or-later

// Which words of a search an entry holds, and where: what a search has found, explained.
#pragma once

#include "search/match/search_query.h"

#include <QString>
#include <QStringView>

#include <vector>

namespace quorvin {

/// Characters of a text, by their first and their number (UTF-16).
struct TextRange {
  qsizetype start = 0;
  qsizetype length = 0;

  bool operator==(const TextRange&) const = default;
};
using TextRanges = std::vector<TextRange>;

/// Finds the words of one query as the search does: in lower case, anywhere in the folder or in the name.
class WordPlaces {
 public:
  /// Without words.
  WordPlaces() = default;
  explicit WordPlaces(const SearchQuery& query);

  /// Where words are in `text`, a folder or a name as listed: from left to right, all of them, with those
  /// joined that overlap or touch.
  TextRanges in(QStringView text) const;

  /// How many words of the search text the entry holds, counted as for its match: repetitions count again,
  /// and empty words are found everywhere.
  int found(QStringView folder, QStringView name) const;

  /// "3 of 4 words; missing: live", the missing ones as they are searched for. Empty for fewer than two
  /// words, where there is nothing to explain.
  QString explanation(QStringView folder, QStringView name) const;

 private:
  struct Word {
    QString text;
    int times;
  };

  /// The words that are in neither.
  std::vector<Word> missing(QStringView folder, QStringView name) const;

  std::vector<Word> words_;
  int wordCount_ = 0;
};

}  // namespace quorvin
