// SPDX-License-Identifier: GPL-2.0-or-later

// The two source list files: reading them, and saving them when the program ends. Their layout:
// docs/formats/source-lists.md.
#pragma once

#include "platform/message_box.h"
#include "state/program_state.h"
#include "state/source_table.h"

#include <QByteArray>
#include <QString>

namespace quorvin {

/// Appends the records of the source list at `path` to `table`: for each pair of fields `count` is raised by
/// one and the pair stored in that row. Gives the file's digest (see TextLineReader). Throws RuntimeFault: 62
/// when the file ends inside a record, 9 at record 2001, and file faults; the records before the fault are
/// stored and counted.
QByteArray loadSourceList(const QString& path, SourceTable& table, int& count);

/// Loads both source lists of `state` from `LocalFolder`, each if its file exists, appending to the tables.
/// Throws as loadSourceList does: then the list with the fault counts as not read, and so does the one after
/// it.
void loadSourceLists(ProgramState& state);

/// Writes rows 1 to `count` of `table` to `path`, in the system code page with CR LF line ends. The file is
/// written aside and put in place whole; when anything fails, RuntimeFault is thrown and the file that was
/// there before stays. A count of 0 gives an empty file.
void saveSourceList(const QString& path, const SourceTable& table, int count);

/// Saves the online sources as `LocFile` in `LocalFolder`, making the folders that a `LocFile` with
/// separators needs. A folder without a single ordinary file counts as invalid: that is reported, and nothing
/// is saved. False then. Throws as saveSourceList does.
///
/// Only the list that was read, or saved by this program, is replaced just so. Any other may hold records
/// that are in no table (it was broken, its folder was not connected or became the data folder later, another
/// program has written to it since); it stays where the user has nothing to save: the table is empty, or the
/// same as it was read from this list. Otherwise it is copied beside it, and a message says so. The list that
/// was read is known by its bytes, under every spelling of its path.
///
/// A list with a path where a description should be is damaged, most likely by a double quote, and saving it
/// would damage it further. It stays until the user changes the table, and is then copied as well; both are
/// reported.
bool saveOnlineSources(ProgramState& state, MessageBoxes& messages);

/// The same for the offline sources and `OffLineFile`; the message on an invalid folder is that of the online
/// list too.
bool saveOfflineSources(ProgramState& state, MessageBoxes& messages);

/// Whether the user has changed the online sources, or the offline sources, since they were read.
bool onlineSourcesAreChanged(const ProgramState& state);
bool offlineSourcesAreChanged(const ProgramState& state);

}  // namespace quorvin
