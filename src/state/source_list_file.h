// The two source list files: reading them, and saving them when the program ends. Their layout:
// docs/formats/source-lists.md.
#pragma once

#include "platform/message_box.h"
#include "state/program_state.h"
#include "state/source_table.h"

#include <QString>

namespace quorvin {

/// Appends the records of the source list at `path` to `table`: for each pair of fields `count` is raised by
/// one and the pair stored in that row. Throws RuntimeFault: 62 when the file ends inside a record, 9 at
/// record 2001, and file faults; the records before the fault are stored and counted.
void loadSourceList(const QString& path, SourceTable& table, int& count);

/// Writes rows 1 to `count` of `table` to `path`, in the system code page with CR LF line ends. The file is
/// written aside and put in place whole; when anything fails, RuntimeFault is thrown and the file that was
/// there before stays. A count of 0 gives an empty file.
void saveSourceList(const QString& path, const SourceTable& table, int count);

/// Saves the online sources as `LocFile` in `LocalFolder`. A folder without a single ordinary file counts as
/// invalid: that is reported, and nothing is saved. Throws as saveSourceList does.
///
/// A list that is there but was not read when the program started (it is broken, or another folder has
/// become the data folder since) is not lost: an empty table leaves it as it is, any other is saved only
/// after the list has been copied beside it. Both are reported. The list that was read is known under every
/// spelling of its path.
void saveOnlineSources(const ProgramState& state, MessageBoxes& messages);

/// The same for the offline sources and `OffLineFile`; the message on an invalid folder is that of the online
/// list too.
void saveOfflineSources(const ProgramState& state, MessageBoxes& messages);

}  // namespace quorvin
