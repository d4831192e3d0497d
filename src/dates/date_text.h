// SPDX-License-Identifier: GPL-2.0-or-later

// Date texts in the one form that all matching is done in, and the words that are in them: month names, and
// the two halves of a day.
#pragma once

#include <QLocale>
#include <QStringView>

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvin {

/// A text as the date reader looks at it: every decimal digit of any script is an ASCII digit, full-width
/// signs are ASCII signs, every dash is "-", runs of blanks of any kind are one plain blank, blanks at both
/// ends and invisible formatting characters are gone, and letters are case-folded. Allocates nothing.
class DateText {
 public:
  /// No date is longer; the bound keeps hostile texts cheap.
  static constexpr qsizetype kMaxLength = 200;

  explicit DateText(QStringView text);

  /// False when the text was longer than kMaxLength; view() is empty then.
  bool fits() const { return fits_; }
  std::u16string_view view() const { return {units_.data(), size_}; }

 private:
  void add(char32_t character);

  // One text unit never becomes more than one.
  std::array<char16_t, kMaxLength> units_;
  std::size_t size_ = 0;
  bool fits_ = true;
};

/// The same form of a literal or a word of a locale, except that blanks at its ends are kept.
std::u16string foldedDateLiteral(QStringView literal);

/// Whether `unit` is an ASCII digit.
constexpr bool isDigit(char16_t unit) {
  return unit >= u'0' && unit <= u'9';
}

/// Words with a meaning, of which the longest that fits is found.
class WordList {
 public:
  struct Found {
    int meaning;
    std::size_t length;
  };

  /// Adds `word`, folded; a word that is there already keeps its first meaning. Empty words are ignored.
  void add(QStringView word, int meaning);

  /// The longest word at the front of `text`, a DateText.
  std::optional<Found> at(std::u16string_view text) const;

 private:
  struct Word {
    std::u16string text;
    int meaning;
  };
  // Longest first.
  std::vector<Word> words_;
};

inline constexpr int kBeforeNoon = 0;
inline constexpr int kAfterNoon = 1;

/// The month names of `locale` and of English, long and abbreviated, the locale's winning; meanings are 1 to
/// 12. An abbreviation is known with its dot and without.
WordList monthNames(const QLocale& locale);

/// The words for the two halves of a day, the locale's and English, with their dots and blanks and without;
/// meanings are kBeforeNoon and kAfterNoon.
WordList halfDayNames(const QLocale& locale);

}  // namespace quorvin
