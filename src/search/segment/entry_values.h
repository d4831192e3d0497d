// SPDX-License-Identifier: GPL-2.0-or-later

// Size and date out of the tail of an entry line, and the compact form in which segments keep them.
#pragma once

#include "dates/general_date_reader.h"

#include <QLocale>

#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>

namespace quorvin {

/// Where an entry's size and date come from.
enum class ValueState : std::uint8_t {
  /// They are in its line.
  Own,
  /// They are in the last line before it that was long enough.
  Carried,
  /// No line up to its own is long enough to hold any.
  Absent,
  /// There is text where they should be, but it cannot be read.
  Unreadable,
};

/// Whether there are values in that state.
constexpr bool hasValues(ValueState state) {
  return state == ValueState::Own || state == ValueState::Carried;
}

struct EntryValues {
  /// Bytes.
  std::int64_t size = 0;
  DateValue date = 0;

  bool operator==(const EntryValues&) const = default;
};

/// Finds the order in which a listing has day and month; nothing where its dates leave that open.
using OrderFinder = std::function<std::optional<DayMonthOrder>()>;

/// Size and date in eight bytes. Sizes of 4 GiB and more, negative ones and dates outside 1899 to 2035 do not
/// fit; those are kept aside.
struct CompactValues {
  std::uint32_t size;
  /// Seconds since 30 December 1899, or one of the marks below.
  std::uint32_t second;

  static constexpr std::uint32_t kAbsent = 0xFFFFFFFF;
  static constexpr std::uint32_t kUnreadable = 0xFFFFFFFE;
  static constexpr std::uint32_t kKeptAside = 0xFFFFFFFD;
};

/// Reads the tails of one listing by the rules of one locale.
class EntryValuesReader {
 public:
  /// `findOrder` is called once, when the first date comes that two orders make two dates of. Where it finds
  /// none, or is empty, the order is that of the locale.
  explicit EntryValuesReader(const QLocale& locale, OrderFinder findOrder = {});

  /// A reader that has found out as much as this one. Where it has yet to look for the order, it asks
  /// `findOrder`.
  EntryValuesReader copyWith(OrderFinder findOrder) const;

  /// Reads the UTF-8 text `tail` into `values`. They are changed only where the result is Own. Where `ascii`
  /// is true a column is a byte.
  ValueState read(std::string_view tail, bool ascii, EntryValues& values);

  /// Reads the values of a tail as this program writes it in the locale, at once. False where read() has to
  /// look: the tail is another one, or its values do not fit.
  bool readWritten(std::string_view tail, CompactValues& values) const;

  /// The order of day and month in the date of `tail`, if it is a date in one of them only.
  std::optional<DayMonthOrder> orderIn(std::string_view tail, bool ascii) const;

 private:
  GeneralDateReader dates_;
  OrderFinder findOrder_;
};

/// As readByteCount, for ASCII text. `bytes` is changed only where the result is true.
bool readAsciiByteCount(std::string_view text, std::int64_t& bytes);

/// The compact form; its `second` is kKeptAside where the values do not fit without loss.
CompactValues compact(ValueState state, const EntryValues& values);

/// The values of a compact form whose `second` is none of the marks.
EntryValues expand(const CompactValues& compact);

}  // namespace quorvin
