// SPDX-License-Identifier: GPL-2.0-or-later

// What is searched for: words and the match that an entry must exceed.
#pragma once

#include <QString>
#include <QStringView>

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace quorvin {

/// The word table's capacity.
inline constexpr int kMostWords = 101;

/// The words of a search text, in order: the first starts at the first character, every later one at a blank;
/// each is trimmed of blanks. Runs of blanks and a trailing blank give empty words, which are kept. A blank
/// in the first character does not end a word. Throws fault 9 when there are more than 101.
std::vector<QString> splitSearchText(QStringView searchText);

/// The match of an entry in which `found` of `wordCount` words were found (0 <= found <= wordCount,
/// wordCount >= 1): the percentage, halves rounded to the even neighbour.
std::int16_t matchPercentage(int found, int wordCount);

/// The desired match that a text stands for: the number at its start, rounded, and from 1 to 100.
std::int16_t correctedMatch(const QString& desMatch);

/// The text of a match in the hit list: three digits and "%" ("067%").
QString matchText(std::int16_t match);

/// A prepared search text: its different words as UTF-8, each with the number of times it occurs in the
/// text. Empty words are found in every entry.
class SearchQuery {
 public:
  struct Word {
    std::string bytes;
    int times;
  };

  SearchQuery() = default;

  /// `lowerSearchText` is in lower case already; `desiredMatch` is 1 to 100. Throws fault 9 for more than 101
  /// words.
  SearchQuery(QStringView lowerSearchText, std::int16_t desiredMatch);

  /// The different words, the empty one left out.
  const std::vector<Word>& words() const { return words_; }
  /// How many empty words the text has; each counts as found.
  int emptyWords() const { return emptyWords_; }
  /// All words, with repetitions and empty ones.
  int wordCount() const { return wordCount_; }
  /// The fewest words found that make a hit; wordCount() + 1 when nothing can.
  int fewestForHit() const { return fewestForHit_; }
  /// The match of an entry in which `found` words (repetitions and empty ones counted) were found.
  std::int16_t match(int found) const { return matches_[static_cast<std::size_t>(found)]; }

 private:
  std::vector<Word> words_;
  int emptyWords_ = 0;
  int wordCount_ = 0;
  int fewestForHit_ = 1;
  std::array<std::int16_t, kMostWords + 1> matches_{};
};

}  // namespace quorvin
