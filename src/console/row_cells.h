// SPDX-License-Identifier: GPL-2.0-or-later

// Single values in rows for scripts and terminals. Millions of rows are made of them, so all are appended to
// a buffer, and none asks for memory of its own.
#pragma once

#include "dates/general_date.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvin {

/// What becomes of a text that is put into a row.
enum class CellRule : std::uint8_t {
  AsItIs,
  /// Control characters turn into blanks.
  Blanks,
  /// RFC 4180: in quotes where it has commas, quotes or line ends.
  Quotes
};

/// Makes cells of texts by one rule.
class CellForm {
 public:
  /// For a terminal no rule lets control characters through: not those above ASCII either, nor bytes that are
  /// no UTF-8.
  CellForm(CellRule rule, bool isForTerminal);

  /// Appends `value`, which is UTF-8, as a cell.
  void add(std::string& text, std::string_view value) const {
    const std::size_t start = text.size();
    text += value;
    finish(text, start);
  }

  /// Makes a cell of what `text` has from `start` on.
  void finish(std::string& text, std::size_t start) const {
    if (needsCare(text.data() + start, text.data() + text.size())) finishCarefully(text, start);
  }

 private:
  bool needsCare(const char* begin, const char* end) const {
    std::uint8_t care = 0;
    for (; begin != end; ++begin) care |= care_[static_cast<unsigned char>(*begin)];
    return care != 0;
  }
  void finishCarefully(std::string& text, std::size_t start) const;

  CellRule rule_;
  bool isForTerminal_;
  /// For each byte: 1 where a text that holds it may have to be changed.
  std::array<std::uint8_t, 256> care_{};
};

/// Appends a whole number in ASCII digits.
template <typename Number>
void addNumber(std::string& text, Number number) {
  std::array<char, 24> digits;
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
  text.append(digits.data(), end);
}

/// Appends a moment like "2004-01-15T10:20:30".
void addMoment(std::string& text, DateValue date);

/// Texts of days, each made once and kept: rows have few days, and each of them often.
class DayTexts {
 public:
  /// `make` gives the text of a day number, kFirstDay to kLastDay.
  explicit DayTexts(std::function<std::string(int day)> make) : make_(std::move(make)) {}

  /// The text of `day`; valid until the next call.
  const std::string& of(int day) {
    if (kept_.empty()) kept_.resize(kDays);
    Kept& kept = kept_[static_cast<unsigned>(day) % kDays];
    if (kept.day != day) kept = {day, make_(day)};
    return kept.text;
  }

 private:
  /// 44 years in a row have a place each.
  static constexpr unsigned kDays = 1U << 14;
  struct Kept {
    int day = kNoDay;
    std::string text;
  };

  std::function<std::string(int day)> make_;
  std::vector<Kept> kept_;
};

}  // namespace quorvin
