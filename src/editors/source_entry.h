// The entries of a source list while they are edited.
#pragma once

#include "state/source_table.h"

#include <QString>

#include <optional>
#include <vector>

namespace quorvin {

/// A source as the user sees it: columns 1 and 2 of a source table.
struct SourceEntry {
  QString description;
  QString path;

  bool operator==(const SourceEntry&) const = default;
};

/// Why `entry` cannot be added, as a message to the user: a path of fewer than 3 characters, or a description
/// that is empty or holds one of :|*?\/ (an online source's description is part of a file name). The path is
/// looked at first. Nothing when the entry can be added; texts are taken as they stand.
std::optional<QString> whyNotAdded(const SourceEntry& entry);

/// Rows 1 to `count` of `table`.
std::vector<SourceEntry> entriesOf(const SourceTable& table, int count);

/// Puts `entries` into rows 1 onwards of `table` and makes `count` their number; the rows above keep what
/// they held. Entries that do not all fit are refused: the result is then the message to the user, and
/// nothing has been stored.
std::optional<QString> storeEntries(const std::vector<SourceEntry>& entries, SourceTable& table, int& count);

}  // namespace quorvin
