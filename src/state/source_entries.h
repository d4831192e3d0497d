// SPDX-License-Identifier: GPL-2.0-or-later

// Sources as the user edits them, and what may be among them.
#pragma once

#include "files/path_style.h"
#include "state/program_state.h"
#include "state/source_table.h"

#include <QString>
#include <QStringList>

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
/// looked at first. A path with a double quote is refused last: it leads nowhere without it, and a list of
/// sources cannot keep it. Nothing when the entry can be added; texts are taken as they are.
std::optional<QString> whyNotAdded(const SourceEntry& entry);

/// What the user should know of the descriptions of folders, as a sentence: that two of them would have one
/// listing, or that one would have its listing in the place of a file of the program's own. Empty where each
/// has a listing of its own.
QString descriptionNotice(const std::vector<SourceEntry>& entries, const ProgramState& state);

/// The description that is proposed for the folder at `path`: its name, with "_" for each character that no
/// description may hold. Empty for a path that ends in no name.
QString descriptionOfFolder(const QString& path, PathStyle style);

/// Rows 1 to `count` of `table`.
std::vector<SourceEntry> entriesOf(const SourceTable& table, int count);

/// Puts `entries` into rows 1 onwards of `table` and makes `count` their number; the rows above keep what
/// they held. Entries that do not all fit are refused: the result is then the message to the user, and
/// nothing has been stored.
std::optional<QString> storeEntries(const std::vector<SourceEntry>& entries, SourceTable& table, int& count);

/// Appends each folder that is not among `entries` yet as a source, under its name as the description, or
/// that name with a number where another folder has it already. The result names, a sentence a line, those
/// that were not added; empty where all were.
QString addFolders(const QStringList& folders, std::vector<SourceEntry>& entries, PathStyle style);
/// The same for listing files, which are all described as "Offline".
QString addListings(const QStringList& files, std::vector<SourceEntry>& entries);

}  // namespace quorvin
