// SPDX-License-Identifier: GPL-2.0-or-later

// Names of files and folders as people give them: some words in one of several styles, numbers, an extension,
// and a few per cent with letters beyond ASCII.
#pragma once

#include "random_source.h"
#include "vocabulary.h"

#include <string>

namespace quorvin {

class NameMaker {
 public:
  /// The mean number of vocabulary words in a file's name.
  static constexpr double kMeanWords = 1.61;

  /// Both must outlive the maker.
  NameMaker(const Vocabulary& vocabulary, RandomSource& random) : vocabulary_(vocabulary), random_(random) {}

  /// UTF-8, 5 to about 100 bytes; some are longer than the 65 columns of a listing. About 4% are not ASCII.
  /// Names may come again, also in the same folder. Valid until the next call.
  const std::string& fileName();
  /// UTF-8, one to three words out of the commoner ones. Valid until the next call.
  const std::string& folderName();

 private:
  struct Style;

  Style anyStyle();
  void appendWord(std::string_view word, const Style& style, bool first);
  void appendNumber(const Style& style);
  void accentVowels();

  const Vocabulary& vocabulary_;
  RandomSource& random_;
  std::string name_;
};

}  // namespace quorvin
