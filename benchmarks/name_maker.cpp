// SPDX-License-Identifier: GPL-2.0-or-later
#include "name_maker.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace quorvin {
namespace {

constexpr std::uint32_t kPercentForeignWord = 1;
constexpr std::uint32_t kPercentAccented = 3;

// The commonest first; drawn with a weight that falls with the place.
constexpr auto kExtensions = std::to_array<std::string_view>({
    ".jpg", ".mp3", ".txt", ".pdf", ".doc", ".html", ".JPG", ".png", ".gif", ".avi", ".xls",  ".zip",
    ".htm", ".wav", ".mpg", ".bmp", ".ogg", ".exe",  ".cpp", ".iso", ".rar", ".tif", ".flac", ".odt",
});

// Scripts with and without case; the dotted capital I has a lower case of its own.
constexpr auto kForeignWords = std::to_array<std::string_view>({
    "Привет", "МОСКВА",  "лето", "Αθήνα", "ΘΑΛΑΣΣΑ", "καλημέρα", "İstanbul",   "ÇİÇEK",
    "東京",   "写真",    "音楽", "서울",  "Łódź",    "ŽIVOT",    "Þingvellir", "smörgåsbord",
    "Straße", "naïveté", "Ægir", "ŒUVRE", "Привет",  "日本語",   "שלום",       "سلام",
});

struct Accent {
  char plain;
  std::string_view accented;
};

constexpr auto kAccents = std::to_array<Accent>({
    {'a', "ä"},
    {'e', "é"},
    {'i', "í"},
    {'o', "ö"},
    {'u', "ü"},
    {'A', "Ä"},
    {'E', "É"},
    {'I', "Í"},
    {'O', "Ö"},
    {'U', "Ü"},
    {'n', "ñ"},
    {'c', "ç"},
    {'N', "Ñ"},
    {'C', "Ç"},
});

char upperCase(char letter) {
  return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
}

std::string_view accented(char letter) {
  for (const Accent& accent : kAccents) {
    if (accent.plain == letter) return accent.accented;
  }
  return {};
}

// One to five words, 1.61 in the mean: with that names are about as long as those of the Debian archive.
int wordCount(RandomSource& random) {
  const std::uint32_t percent = random.below(100);
  if (percent < 60) return 1;
  if (percent < 85) return 2;
  if (percent < 95) return 3;
  return percent < 99 ? 4 : 5;
}

void appendDigits(std::string& name, std::uint32_t number, std::size_t width) {
  const std::string digits = std::to_string(number);
  if (digits.size() < width) name.append(width - digits.size(), '0');
  name += digits;
}

std::string_view anyExtension(RandomSource& random) {
  // The smaller of two draws: the first places come most often.
  const auto count = static_cast<std::uint32_t>(kExtensions.size());
  return kExtensions[std::min(random.below(count), random.below(count))];
}

}  // namespace

struct NameMaker::Style {
  enum class Case { Lower, EachWord, FirstWord, Upper };

  std::string_view separator;
  Case letters = Case::Lower;
};

NameMaker::Style NameMaker::anyStyle() {
  constexpr auto kSeparators =
      std::to_array<std::string_view>({" ", " ", " ", " ", "_", "_", "_", "-", "-", "."});
  constexpr auto kCases = std::to_array<Style::Case>({
      Style::Case::EachWord,
      Style::Case::EachWord,
      Style::Case::EachWord,
      Style::Case::EachWord,
      Style::Case::Lower,
      Style::Case::Lower,
      Style::Case::Lower,
      Style::Case::FirstWord,
      Style::Case::FirstWord,
      Style::Case::Upper,
  });
  return {kSeparators[random_.below(10)], kCases[random_.below(10)]};
}

const std::string& NameMaker::fileName() {
  name_.clear();
  const Style style = anyStyle();
  if (random_.chance(15)) {
    appendDigits(name_, 1 + random_.below(24), 2);
    name_ += style.separator == " " ? " - " : style.separator;
  }
  const int words = wordCount(random_);
  for (int i = 0; i < words; ++i) appendWord(vocabulary_.draw(random_), style, i == 0);
  if (random_.chance(kPercentForeignWord)) {
    name_ += style.separator;
    name_ += kForeignWords[random_.below(static_cast<std::uint32_t>(kForeignWords.size()))];
  }
  if (random_.chance(30)) appendNumber(style);
  if (random_.chance(kPercentAccented)) accentVowels();
  name_ += anyExtension(random_);
  return name_;
}

const std::string& NameMaker::folderName() {
  name_.clear();
  const Style style = anyStyle();
  const std::uint32_t words = 1 + random_.below(3);
  for (std::uint32_t i = 0; i < words; ++i) appendWord(vocabulary_.drawForFolder(random_), style, i == 0);
  if (random_.chance(15)) appendNumber(style);
  if (random_.chance(kPercentAccented)) accentVowels();
  return name_;
}

void NameMaker::appendWord(std::string_view word, const Style& style, bool first) {
  if (!first) name_ += style.separator;
  const std::size_t start = name_.size();
  name_ += word;
  if (style.letters == Style::Case::Upper) {
    for (std::size_t i = start; i < name_.size(); ++i) name_[i] = upperCase(name_[i]);
  } else if (style.letters == Style::Case::EachWord || (style.letters == Style::Case::FirstWord && first)) {
    name_[start] = upperCase(name_[start]);
  }
}

void NameMaker::appendNumber(const Style& style) {
  name_ += style.separator;
  switch (random_.below(3)) {
    case 0:
      return appendDigits(name_, random_.below(10000), 4);
    case 1:
      return appendDigits(name_, 1970 + random_.below(57), 4);
    default:
      name_ += '(';
      appendDigits(name_, 1 + random_.below(9), 1);
      name_ += ')';
  }
}

// Every other letter that can: a word that is searched without accents is then often no longer found, as it
// is in real catalogues.
void NameMaker::accentVowels() {
  std::string result;
  bool due = true;
  for (const char letter : name_) {
    const std::string_view replacement = accented(letter);
    if (!replacement.empty() && due) {
      result += replacement;
    } else {
      result += letter;
    }
    if (!replacement.empty()) due = !due;
  }
  name_ = std::move(result);
}

}  // namespace quorvin
