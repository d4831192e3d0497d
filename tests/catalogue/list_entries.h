// SPDX-License-Identifier: GPL-2.0-or-later

// Lists read line by line in tests.
#pragma once

#include "catalogue/import/list_entry.h"

#include <QDateTime>

#include <memory>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace quorvin {

inline void PrintTo(const ListEntry& entry, std::ostream* out) {
  *out << entry.path << " kind " << static_cast<int>(entry.kind) << " size " << entry.size.value_or(-1)
       << " date kind " << static_cast<int>(entry.modified.kind) << ' ' << entry.modified.seconds;
}

namespace test {

/// "2004-01-15 10:20:30" as a wall clock shows it.
inline ListDate wallClockOf(const char* text) {
  const QDateTime time = QDateTime::fromString(QString::fromLatin1(text) + u'Z', Qt::ISODate);
  return {ListDate::Kind::WallClock, time.toSecsSinceEpoch()};
}

inline ListDate momentOf(const char* text) {
  return {ListDate::Kind::Moment, wallClockOf(text).seconds};
}

/// The entries of a list's lines, and what was said of each line: "e", "d", "-" or "?".
struct ReadList {
  std::vector<ListEntry> entries;
  std::string says;
};

inline ReadList readLines(ListReader& reader, const std::vector<std::string_view>& lines) {
  ReadList list;
  for (const std::string_view line : lines) {
    ListEntry entry;
    const LineSays says = reader.read(line, entry);
    list.says += "ed-?"[static_cast<int>(says)];
    if (says == LineSays::Entry || says == LineSays::DoubtfulEntry) list.entries.push_back(entry);
  }
  return list;
}

}  // namespace test
}  // namespace quorvin
