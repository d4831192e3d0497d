// The optional start-up file "defaults.txt": defaults for a first run.
#pragma once

#include "state/program_state.h"

#include <QString>

namespace quorvin {

/// The bare file name; it is looked up in the current working folder.
inline constexpr char16_t kDefaultsFileName[] = u"defaults.txt";

/// Reads the four lines of the file at `path` into `LocalFolder`, `TextFile`, `ArchiveFile` and `WebServer`
/// of `state`, in this order, each line as it is (further lines are ignored). Throws RuntimeFault: 62
/// when there are fewer than four lines (those before it are stored), and file faults. Layout:
/// docs/formats/source-lists.md.
void readDefaultsFile(const QString& path, ProgramState& state);

/// The same for the file of that name in the current working folder; does nothing where there is none.
void readDefaultsFile(ProgramState& state);

}  // namespace quorvin
