// SPDX-License-Identifier: GPL-2.0-or-later

// What the readers of other programs' lists hand over. Which formats there are, and what each of them does
// not tell: docs/formats/imports.md.
#pragma once

#include "dates/general_date.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quorvin {

/// A date and time as a list tells it.
struct ListDate {
  enum class Kind : std::uint8_t {
    /// The list does not tell it, or only a part of it that says nothing by itself.
    None,
    /// `seconds` are those since the start of 1970, UTC.
    Moment,
    /// The list names no zone: `seconds` are those of the wall clock, counted as if it showed UTC.
    WallClock,
    /// The same, but day and month may have changed places; `seconds` are those with the day first.
    EitherOrder,
  };
  Kind kind = Kind::None;
  std::int64_t seconds = 0;
  /// The order in which the numbers of this date are a date, where they are one in a single order.
  std::optional<DayMonthOrder> evidence = {};

  bool operator==(const ListDate&) const = default;
};

/// Unknown: a path, of which the list does not tell whether it is a file's. It is a folder where another path
/// goes through it.
enum class EntryKind : std::uint8_t { File, Folder, Unknown };

/// A file or a folder in a list.
struct ListEntry {
  /// With slashes; absolute, or from where the list was made.
  std::string path;
  EntryKind kind = EntryKind::File;
  /// In bytes; nothing where the list tells none, or a rounded one.
  std::optional<std::int64_t> size = {};
  ListDate modified = {};

  bool operator==(const ListEntry&) const = default;
};

/// What a reader says of a line.
enum class LineSays : std::uint8_t {
  /// There is an entry in it.
  Entry,
  /// There is one, but a list of this format hardly looks like that: another format may fit better.
  DoubtfulEntry,
  /// It belongs to the format, and names nothing that is listed.
  NoEntry,
  NotUnderstood,
};

/// Reads the lines of one list, from the first to the last.
class ListReader {
 public:
  ListReader() = default;
  virtual ~ListReader() = default;
  ListReader(const ListReader&) = delete;
  ListReader& operator=(const ListReader&) = delete;

  /// `line` has no line end, and is text in UTF-8 unless its bytes are no text. `entry` is left in any state
  /// unless there is an entry in the line.
  virtual LineSays read(std::string_view line, ListEntry& entry) = 0;
  /// What of the format the list itself decided, for the user to check, such as the columns of a table.
  virtual std::string decided() const { return {}; }
};

}  // namespace quorvin
