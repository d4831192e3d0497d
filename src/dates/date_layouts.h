// SPDX-License-Identifier: GPL-2.0-or-later

// A locale's own form of dates as bytes at fixed places: the quick way to read what this program has written.
#pragma once

#include "dates/date_pattern.h"

#include <QLocale>

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace quorvin {

/// The layouts that a date, a blank and a time can have in the general form of one locale: one for each
/// number of digits that day, month and hour may have, and for each half of the day. A text of a layout's
/// length is compared with it eight bytes at a time, and its numbers are taken from where the layout has
/// them; no step depends on the step before it. There are no layouts where the locale writes anything but
/// ASCII.
class DateLayouts {
 public:
  /// `date` and `time` are the patterns of the locale's general form, `words` the words that they are matched
  /// with.
  DateLayouts(const QLocale& locale, const DatePattern& date, const DatePattern& time,
              const DateVocabulary& words);

  /// Leaves in `match` what the DateForms of `date` and `time` find in `text` with a blank between them, when
  /// they take all of it. False where there is no layout for it, which says nothing about the text.
  bool match(std::string_view text, DateForm::Match& match) const;

  /// Part of a layout: see date_layouts.cpp.
  struct Piece;

 private:
  static constexpr std::size_t kShortest = 16;
  static constexpr std::size_t kLongest = 29;
  static constexpr std::size_t kWords = 4;

  /// Eight bytes of a text, the first one lowest. Bytes that are set in `literalMask` are to be those of
  /// `literal`, once the bits of `foldMask` have been set; bytes that are set in `digitMask` are to be
  /// digits.
  struct Word {
    std::size_t at = 0;
    std::uint64_t foldMask = 0;
    std::uint64_t literalMask = 0;
    std::uint64_t literal = 0;
    std::uint64_t digitMask = 0;
  };
  /// For each word, in each byte, the number that its digit and the next byte's make; bytes that are no
  /// digits count as 0. Behind them, the digits of the first word alone.
  using Pairs = std::array<std::uint64_t, kWords + 1>;
  /// A number of one digit or two: which of the pairs, and how many bits up its byte is.
  struct Number {
    std::uint8_t word = 0;
    std::uint8_t shift = 0;
  };
  struct Layout {
    std::size_t length = 0;
    /// Each byte and the one behind it are together in one of them.
    std::array<Word, kWords> words;
    Number century;
    Number year;
    Number month;
    Number day;
    Number hour;
    Number minute;
    Number second;
    /// Where three letters are the month; `month` is not used then.
    std::optional<std::uint8_t> monthName;
    int half = -1;
  };

  void add(const std::vector<Piece>& pieces);
  static Layout layoutOf(const std::vector<Piece>& pieces);
  static Number numberAt(const Layout& layout, std::size_t at, std::size_t digits);
  static void setNumber(Layout& layout, const Piece& piece, std::size_t at);
  static bool fits(const Layout& layout, const char* text, Pairs& pairs);
  bool read(const Layout& layout, const char* text, const Pairs& pairs, DateForm::Match& match) const;
  int monthNamed(const char* letters) const;

  /// By length.
  std::vector<Layout> layouts_;
  /// The first layout of each length, and of the next.
  std::array<std::uint8_t, kLongest + 2> firstOfLength_{};
  /// The letters of each month name as one number.
  std::array<std::uint32_t, 12> monthLetters_{};
};

}  // namespace quorvin
