#include "search/segment/entry_values.h"

#include "dates/general_date.h"
#include "dates/general_number.h"
#include "platform/text_encoding.h"
#include "search/format/listing_line.h"

#include <QString>

#include <algorithm>
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

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

bool isGrouping(char c) {
  return c == ',' || c == '.' || c == ' ' || c == '\'';
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
  constexpr DateValue kDaysThatFit = 49710;
  if (!(values.date >= 0 && values.date < kDaysThatFit)) return aside;
  const DayAndSecond moment = splitDateValue(values.date);
  const auto second = static_cast<std::uint32_t>(moment.day) * static_cast<std::uint32_t>(kSecondsPerDay) +
                      static_cast<std::uint32_t>(moment.second);
  const CompactValues fitting{static_cast<std::uint32_t>(values.size), second};
  return expand(fitting) == values ? fitting : aside;
}

EntryValues expand(const CompactValues& compact) {
  constexpr auto kDay = static_cast<std::uint32_t>(kSecondsPerDay);
  const DayAndSecond moment{static_cast<int>(compact.second / kDay), static_cast<int>(compact.second % kDay)};
  return {compact.size, joinDateValue(moment)};
}

}  // namespace quorvin
