// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/segment/entry_values.h"

#include "dates/eight_bytes.h"
#include "dates/general_date.h"
#include "dates/general_number.h"
#include "platform/text_encoding.h"
#include "search/format/listing_line.h"

#include <QString>

#include <algorithm>
#include <array>
#include <bit>
#include <limits>
#include <utility>

namespace quorvin {

namespace {

bool readSize(std::string_view field, bool ascii, std::int64_t& size) {
  if (ascii) return readAsciiByteCount(field, size);
  const std::optional<std::int64_t> read = readByteCount(textOfUtf8(field));
  if (read) size = *read;
  return read.has_value();
}

std::size_t endOfColumns(std::string_view tail, bool ascii, std::size_t columns) {
  return ascii ? std::min(columns, tail.size()) : bytesOfCharacters(tail, columns);
}

std::string_view dateTextOf(std::string_view tail, bool ascii) {
  return tail.substr(endOfColumns(tail, ascii, kDateOffset));
}

/// Whether the columns between size and date, 13 to 20, are ASCII and so bytes.
bool isAsciiBeforeDate(std::string_view tail) {
  static_assert(kDateOffset - kSizeWidth < sizeof(std::uint64_t));
  return (eightBytesAt(tail.data() + kSizeWidth) & eightTimes('\x80')) == 0;
}

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

/// A look-up: which of them it is can not be guessed.
bool isGrouping(char c) {
  constexpr auto bit = [](char sign) { return std::uint64_t{1} << sign; };
  constexpr std::uint64_t kSigns = bit(',') | bit('.') | bit(' ') | bit('\'');
  return static_cast<unsigned char>(c) < 64 && (kSigns >> c & 1U) != 0;
}

/// The columns of a size that has `blanks` blanks in front, as this program writes it: digits in groups of
/// three with a sign between them. They are looked at as two words of eight bytes, the first byte lowest, of
/// which the second ends with the last column.
struct SizeLayout {
  struct Word {
    std::uint64_t blanks = 0;
    std::uint64_t signs = 0;
    std::uint64_t digits = 0;
  };
  Word front;
  Word back;
};
constexpr std::size_t kBackWord = kSizeWidth - sizeof(std::uint64_t);

constexpr SizeLayout sizeLayout(std::size_t blanks) {
  SizeLayout layout;
  // No size starts with a sign.
  if ((kSizeWidth - blanks) % 4 == 0) return layout;
  for (std::size_t column = 0; column < kSizeWidth; ++column) {
    const bool isSign = (kSizeWidth - column) % 4 == 0;
    const auto kind = column < blanks ? &SizeLayout::Word::blanks
                      : isSign        ? &SizeLayout::Word::signs
                                      : &SizeLayout::Word::digits;
    if (column < sizeof(std::uint64_t)) layout.front.*kind |= std::uint64_t{0xFF} << (8 * column);
    if (column >= kBackWord) layout.back.*kind |= std::uint64_t{0xFF} << (8 * (column - kBackWord));
  }
  return layout;
}

constexpr std::array<SizeLayout, kSizeWidth> kSizeLayouts = [] {
  std::array<SizeLayout, kSizeWidth> layouts;
  for (std::size_t blanks = 0; blanks < layouts.size(); ++blanks) layouts[blanks] = sizeLayout(blanks);
  return layouts;
}();

/// Leaves the digits of `bytes` in `digits`, all other bytes 0. Where it is not 0, it is not as in `layout`.
std::uint64_t strays(std::uint64_t bytes, std::uint64_t signs, const SizeLayout::Word& layout,
                     std::uint64_t& digits) {
  return ((bytes ^ eightTimes(' ')) & layout.blanks) | ((bytes ^ signs) & layout.signs) |
         noDigitsAmong(bytes, layout.digits, digits);
}

/// Reads the size at `columns` as this program writes it, without a step that depends on how long it is.
/// False where it has to be looked at closely.
bool readWrittenSize(const char* columns, std::uint64_t& size) {
  const std::uint64_t front = eightBytesAt(columns);
  const std::uint64_t back = eightBytesAt(columns + kBackWord);
  const std::uint64_t frontText = front ^ eightTimes(' ');
  const std::uint64_t backText = back ^ eightTimes(' ');
  if (backText == 0) return false;
  const std::size_t frontBlanks = static_cast<std::size_t>(std::countr_zero(frontText)) / 8;
  const std::size_t backBlanks = static_cast<std::size_t>(std::countr_zero(backText)) / 8 + kBackWord;
  // Eight blanks in front say nothing; with 16 the other number is the smaller one. This needs no branch,
  // which would often be guessed wrong.
  const SizeLayout& layout = kSizeLayouts[std::min(frontBlanks + frontBlanks / 8 * 8, backBlanks)];
  constexpr std::size_t kLastSign = kSizeWidth - 4;
  const char sign = columns[kLastSign];
  std::uint64_t high = 0;
  std::uint64_t low = 0;
  const std::uint64_t signs = eightTimes(sign);
  if ((strays(front, signs, layout.front, high) | strays(back, signs, layout.back, low)) != 0) return false;
  // Where a size has no signs there is a blank.
  if (!isGrouping(sign) || (layout.back.digits >> 56) == 0) return false;
  const auto digit = [](std::uint64_t word, int byte) { return word >> (8 * byte) & 0xFF; };
  const std::uint64_t millions = digit(high, 2) * 100 + digit(high, 3) * 10 + digit(high, 4);
  const std::uint64_t thousands = digit(low, 1) * 100 + digit(low, 2) * 10 + digit(low, 3);
  const std::uint64_t ones = digit(low, 5) * 100 + digit(low, 6) * 10 + digit(low, 7);
  size = digit(high, 0) * 1000000000 + millions * 1000000 + thousands * 1000 + ones;
  return true;
}

constexpr int kDaysThatFit = 49710;

std::uint32_t secondsOf(DayAndSecond moment) {
  return static_cast<std::uint32_t>(moment.day) * static_cast<std::uint32_t>(kSecondsPerDay) +
         static_cast<std::uint32_t>(moment.second);
}

/// Appends a digit to a value that is zero or negative; false where the result does not fit.
bool appendDigit(std::int64_t& value, char digit) {
  return !__builtin_mul_overflow(value, std::int64_t{10}, &value) &&
         !__builtin_sub_overflow(value, std::int64_t{digit - '0'}, &value);
}

}  // namespace

bool readAsciiByteCount(std::string_view text, std::int64_t& bytes) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == text.npos) return false;
  text = text.substr(first, text.find_last_not_of(' ') - first + 1);
  const bool negative = text.front() == '-';
  if (negative) text.remove_prefix(1);
  // Kept negative: the smallest value has no positive counterpart.
  std::int64_t value = 0;
  bool digitBefore = false;
  for (const char c : text) {
    const bool digit = isDigit(c);
    if (!digit && !(digitBefore && isGrouping(c))) return false;
    if (digit && !appendDigit(value, c)) return false;
    digitBefore = digit;
  }
  if (!digitBefore) return false;
  if (!negative && value == std::numeric_limits<std::int64_t>::min()) return false;
  bytes = negative ? value : -value;
  return true;
}

EntryValuesReader::EntryValuesReader(const QLocale& locale, OrderFinder findOrder)
    : dates_(locale), findOrder_(std::move(findOrder)) {}

EntryValuesReader EntryValuesReader::copyWith(OrderFinder findOrder) const {
  EntryValuesReader copy = *this;
  if (findOrder_) copy.findOrder_ = std::move(findOrder);
  return copy;
}

ValueState EntryValuesReader::read(std::string_view tail, bool ascii, EntryValues& values) {
  if (endOfColumns(tail, ascii, kShortTailLength) == tail.size()) return ValueState::Absent;
  std::int64_t size = 0;
  if (!readSize(tail.substr(0, endOfColumns(tail, ascii, kSizeWidth)), ascii, size)) {
    return ValueState::Unreadable;
  }
  const std::string_view text = dateTextOf(tail, ascii);
  std::optional<DateReading> date = dates_.readingOfAscii(text);
  if (!date) return ValueState::Unreadable;
  if (date->evidence == OrderEvidence::Either && findOrder_) {
    if (const auto order = std::exchange(findOrder_, nullptr)()) dates_.setOrder(*order);
    date = dates_.readingOfAscii(text);
  }
  values = {size, date->value};
  return ValueState::Own;
}

bool EntryValuesReader::readWritten(std::string_view tail, CompactValues& values) const {
  if (tail.size() <= kShortTailLength || !isAsciiBeforeDate(tail)) return false;
  std::uint64_t size = 0;
  if (!readWrittenSize(tail.data(), size) || size > UINT32_MAX) return false;
  GeneralDateReader::WrittenMoment date;
  if (!dates_.readWritten(tail.substr(kDateOffset), date)) return false;
  if (date.moment.day < 0 || date.moment.day >= kDaysThatFit) return false;
  // The order of day and month is to be looked for first.
  if (date.evidence == OrderEvidence::Either && findOrder_) return false;
  values.size = static_cast<std::uint32_t>(size);
  values.second = secondsOf(date.moment);
  return true;
}

std::optional<DayMonthOrder> EntryValuesReader::orderIn(std::string_view tail, bool ascii) const {
  if (endOfColumns(tail, ascii, kShortTailLength) == tail.size()) return std::nullopt;
  const std::optional<DateReading> date = dates_.readingOfAscii(dateTextOf(tail, ascii));
  return date ? orderOf(date->evidence) : std::nullopt;
}

CompactValues compact(ValueState state, const EntryValues& values) {
  if (state == ValueState::Absent) return {0, CompactValues::kAbsent};
  if (state == ValueState::Unreadable) return {0, CompactValues::kUnreadable};
  const CompactValues aside{0, CompactValues::kKeptAside};
  if (values.size < 0 || values.size > UINT32_MAX) return aside;
  if (!(values.date >= 0 && values.date < kDaysThatFit)) return aside;
  const CompactValues fitting{static_cast<std::uint32_t>(values.size),
                              secondsOf(splitDateValue(values.date))};
  return expand(fitting) == values ? fitting : aside;
}

EntryValues expand(const CompactValues& compact) {
  constexpr auto kDay = static_cast<std::uint32_t>(kSecondsPerDay);
  const DayAndSecond moment{static_cast<int>(compact.second / kDay), static_cast<int>(compact.second % kDay)};
  return {compact.size, joinDateValue(moment)};
}

}  // namespace quorvin
