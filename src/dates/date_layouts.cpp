// SPDX-License-Identifier: GPL-2.0-or-later
#include "dates/date_layouts.h"

#include "dates/eight_bytes.h"

#include <algorithm>
#include <string>
#include <utility>

namespace quorvin {

/// A stretch of a layout.
struct DateLayouts::Piece {
  PatternField field = PatternField::Literal;
  /// What is written there in lower case, for literals and words for a half of the day.
  std::string text;
  /// Digits of a number, letters of a name.
  std::size_t width = 0;
  int half = -1;

  std::size_t size() const { return text.empty() ? width : text.size(); }
};

namespace {

using Piece = DateLayouts::Piece;
using Pieces = std::vector<Piece>;

constexpr std::size_t kNameLetters = 3;
constexpr std::size_t kMostLayouts = 64;
constexpr int kMonths = 12;

constexpr bool isLetter(char16_t unit) {
  return unit >= u'a' && unit <= u'z';
}

/// Empty where `text` is not ASCII.
std::string asciiOf(std::u16string_view text) {
  std::string ascii;
  for (const char16_t unit : text) {
    if (unit >= 0x80) return {};
    ascii += static_cast<char>(unit);
  }
  return ascii;
}

/// What the locale writes for the halves of the day.
Pieces halfDayPieces(const QLocale& locale, const WordList& halves) {
  Pieces pieces;
  for (const QString& written : {locale.amText(), locale.pmText()}) {
    const std::u16string word = foldedDateLiteral(withPlainBlanks(written));
    const auto found = halves.at(word);
    std::string text = asciiOf(word);
    if (text.empty() || !found || found->length != word.size()) return {};
    pieces.push_back({PatternField::HalfDay, std::move(text), 0, found->meaning});
  }
  return pieces;
}

/// What the locale writes: as many digits as the number needs where it is not filled up with zeros.
Pieces numberPieces(const PatternPart& part) {
  const std::size_t most = part.field == PatternField::Year ? 4 : 2;
  Pieces pieces{{part.field, {}, most, -1}};
  if (part.width < 2) pieces.push_back({part.field, {}, 1, -1});
  return pieces;
}

/// The ways to write one part of a pattern; none where there is no layout for it.
Pieces piecesOf(const PatternPart& part, const QLocale& locale, const WordList& halves) {
  switch (part.field) {
    case PatternField::Literal: {
      const std::u16string literal = foldedDateLiteral(part.text);
      std::string text = asciiOf(literal);
      // A number in front of a digit would take it.
      if (text.empty() || isDigit(literal.front())) return {};
      return {{part.field, std::move(text), 0, -1}};
    }
    case PatternField::HalfDay:
      return halfDayPieces(locale, halves);
    case PatternField::MonthNameShort:
      return {{part.field, {}, kNameLetters, -1}};
    case PatternField::MonthNameLong:
    case PatternField::YearTwoDigits:
      return {};
    default:
      return numberPieces(part);
  }
}

/// Numbers that touch each other are not told apart by what is between them.
bool touches(const PatternPart& part, const PatternPart& next) {
  return part.field != PatternField::Literal && next.field != PatternField::Literal;
}

/// Every way to go on behind each of `fronts`.
std::vector<Pieces> continued(const std::vector<Pieces>& fronts, const Pieces& ways) {
  std::vector<Pieces> all;
  for (const Pieces& front : fronts) {
    for (const Piece& way : ways) {
      all.push_back(front);
      all.back().push_back(way);
    }
  }
  return all;
}

bool hasEachOnce(const Pieces& pieces) {
  const auto count = [&pieces](PatternField field) {
    return std::ranges::count(pieces, field, &Piece::field);
  };
  return count(PatternField::Day) == 1 && count(PatternField::Year) == 1 &&
         count(PatternField::Month) + count(PatternField::MonthNameShort) == 1 &&
         count(PatternField::Hour24) + count(PatternField::Hour12) == 1 && count(PatternField::Minute) == 1 &&
         count(PatternField::Second) == 1 && count(PatternField::HalfDay) <= 1;
}

/// Three letters as one number, in lower case. Only letters become small letters so.
std::uint32_t lettersOf(const char* letters) {
  const auto byte = [letters](std::size_t i) {
    return std::uint32_t{static_cast<unsigned char>(letters[i])};
  };
  return (byte(0) | byte(1) << 8 | byte(2) << 16) | 0x202020U;
}

/// The short names of all months; empty where one is not of three letters that mean just this month.
std::vector<std::uint32_t> monthLettersOf(const QLocale& locale, const WordList& months) {
  std::vector<std::uint32_t> names;
  for (int month = 1; month <= kMonths; ++month) {
    const std::u16string name = foldedDateLiteral(locale.monthName(month, QLocale::ShortFormat));
    if (name.size() != kNameLetters || !std::ranges::all_of(name, isLetter)) return {};
    const auto found = months.at(name);
    if (!found || found->meaning != month || found->length != kNameLetters) return {};
    names.push_back(lettersOf(asciiOf(name).c_str()));
  }
  return names;
}

}  // namespace

DateLayouts::DateLayouts(const QLocale& locale, const DatePattern& date, const DatePattern& time,
                         const DateVocabulary& words) {
  DatePattern parts = date;
  parts.push_back({PatternField::Literal, 0, QStringLiteral(" ")});
  parts.insert(parts.end(), time.begin(), time.end());
  if (std::ranges::adjacent_find(parts, touches) != parts.end()) return;
  std::vector<Pieces> all(1);
  for (const PatternPart& part : parts) {
    all = continued(all, piecesOf(part, locale, words.halves));
    if (all.size() > kMostLayouts) return;
  }
  if (all.empty() || !hasEachOnce(all.front())) return;
  if (std::ranges::count(all.front(), PatternField::MonthNameShort, &Piece::field) != 0) {
    const std::vector<std::uint32_t> letters = monthLettersOf(locale, words.months);
    if (letters.empty()) return;
    std::ranges::copy(letters, monthLetters_.begin());
  }
  for (const Pieces& pieces : all) add(pieces);
  std::ranges::stable_sort(layouts_, {}, &Layout::length);
  for (std::size_t length = 0; length < firstOfLength_.size(); ++length) {
    firstOfLength_[length] = static_cast<std::uint8_t>(
        std::ranges::lower_bound(layouts_, length, {}, &Layout::length) - layouts_.begin());
  }
}

void DateLayouts::add(const Pieces& pieces) {
  std::size_t length = 0;
  for (const Piece& piece : pieces) length += piece.size();
  if (length < kShortest || length > kLongest) return;
  layouts_.push_back(layoutOf(pieces));
}

DateLayouts::Layout DateLayouts::layoutOf(const Pieces& pieces) {
  Layout layout;
  char fold[kLongest] = {};
  char mask[kLongest] = {};
  char literal[kLongest] = {};
  char digit[kLongest] = {};
  for (const Piece& piece : pieces) {
    const std::size_t at = layout.length;
    for (std::size_t i = 0; i < piece.text.size(); ++i) {
      literal[at + i] = piece.text[i];
      mask[at + i] = static_cast<char>(0xFF);
      if (isLetter(static_cast<unsigned char>(piece.text[i]))) fold[at + i] = 'a' - 'A';
    }
    const bool isName = piece.field == PatternField::MonthNameShort;
    if (piece.text.empty() && !isName) std::fill_n(digit + at, piece.width, static_cast<char>(0xFF));
    layout.half = std::max(layout.half, piece.half);
    layout.length += piece.size();
  }
  const std::size_t last = layout.length - sizeof(std::uint64_t);
  constexpr std::size_t kStep = sizeof(std::uint64_t) - 1;
  const std::array<std::size_t, kWords> places = {0, kStep, std::min(2 * kStep, last), last};
  for (std::size_t i = 0; i < places.size(); ++i) {
    const std::size_t at = places[i];
    layout.words[i] = {at, eightBytesAt(fold + at), eightBytesAt(mask + at), eightBytesAt(literal + at),
                       eightBytesAt(digit + at)};
  }
  std::size_t at = 0;
  for (const Piece& piece : pieces) {
    if (piece.text.empty()) setNumber(layout, piece, at);
    at += piece.size();
  }
  return layout;
}

DateLayouts::Number DateLayouts::numberAt(const Layout& layout, std::size_t at, std::size_t digits) {
  if (at == 0 && digits == 1) return {static_cast<std::uint8_t>(kWords), 0};
  // In front of a single digit is no other, so that one counts as a 0.
  const std::size_t first = digits == 1 ? at - 1 : at;
  const auto holdsBoth = [first](const Word& word) {
    return word.at <= first && first + 2 <= word.at + sizeof(std::uint64_t);
  };
  const auto word = std::ranges::find_if(layout.words, holdsBoth);
  return {static_cast<std::uint8_t>(word - layout.words.begin()),
          static_cast<std::uint8_t>((first - word->at) * 8)};
}

void DateLayouts::setNumber(Layout& layout, const Piece& piece, std::size_t at) {
  const Number number = numberAt(layout, at, std::min<std::size_t>(piece.width, 2));
  switch (piece.field) {
    case PatternField::Year:
      layout.century = number;
      layout.year = numberAt(layout, at + 2, 2);
      break;
    case PatternField::MonthNameShort:
      layout.monthName = static_cast<std::uint8_t>(at);
      break;
    case PatternField::Month:
      layout.month = number;
      break;
    case PatternField::Day:
      layout.day = number;
      break;
    case PatternField::Minute:
      layout.minute = number;
      break;
    case PatternField::Second:
      layout.second = number;
      break;
    default:
      layout.hour = number;
  }
}

bool DateLayouts::fits(const Layout& layout, const char* text, Pairs& pairs) {
  std::uint64_t wrong = 0;
  for (std::size_t i = 0; i < kWords; ++i) {
    const Word& word = layout.words[i];
    const std::uint64_t bytes = eightBytesAt(text + word.at);
    wrong |= ((bytes | word.foldMask) ^ word.literal) & word.literalMask;
    std::uint64_t digits = 0;
    wrong |= noDigitsAmong(bytes, word.digitMask, digits);
    pairs[i] = digits * 10 + (digits >> 8);
    if (i == 0) pairs[kWords] = digits;
  }
  return wrong == 0;
}

int DateLayouts::monthNamed(const char* letters) const {
  const std::uint32_t wanted = lettersOf(letters);
  int month = 0;
  // All of them: the compiler looks at several at once, and no branch is guessed wrong.
  for (std::size_t i = 0; i < monthLetters_.size(); ++i) {
    month |= monthLetters_[i] == wanted ? static_cast<int>(i + 1) : 0;
  }
  return month;
}

bool DateLayouts::read(const Layout& layout, const char* text, const Pairs& pairs,
                       DateForm::Match& match) const {
  const auto number = [&pairs](Number place) {
    return static_cast<int>(pairs[place.word] >> place.shift & 0xFF);
  };
  match.date.month = layout.monthName ? monthNamed(text + *layout.monthName) : number(layout.month);
  match.date.year = number(layout.century) * 100 + number(layout.year);
  match.date.day = number(layout.day);
  match.clock.hour = number(layout.hour);
  match.clock.minute = number(layout.minute);
  match.clock.second = number(layout.second);
  match.clock.half = layout.half;
  match.length = layout.length;
  return match.date.month != 0;
}

bool DateLayouts::match(std::string_view text, DateForm::Match& match) const {
  if (text.size() < kShortest || text.size() > kLongest) return false;
  Pairs pairs;
  for (std::size_t i = firstOfLength_[text.size()]; i < firstOfLength_[text.size() + 1]; ++i) {
    const Layout& layout = layouts_[i];
    if (fits(layout, text.data(), pairs)) return read(layout, text.data(), pairs, match);
  }
  return false;
}

}  // namespace quorvin
