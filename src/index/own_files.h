// The user's own files in the local data folder, which no listing may overwrite.
#pragma once

#include "state/program_state.h"

#include <QString>

namespace quorvin {

/// Whether `path` is that of the main data file or of one of the two source lists, which need not be there
/// yet. Another way of writing the name of one that is there counts as well: capital letters, where the file
/// system takes them for small ones, or a link.
bool isOwnFile(const QString& path, const ProgramState& state);

}  // namespace quorvin
