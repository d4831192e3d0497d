// The two source list files. Their layout: docs/formats/source-lists.md.
#pragma once

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

}  // namespace quorvin
