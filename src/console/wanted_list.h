// SPDX-License-Identifier: GPL-2.0-or-later

// A list of wanted files, as a user or another program writes it.
#pragma once

#include "catalogue/fetch/wanted_files.h"
#include "catalogue/import/list_lines.h"

namespace quorvin {

/// Adds the file of each line to `wanted`: a JSON object with "name" and "size", as "find --format json"
/// writes it, or else a name, of which only what follows the last slash or backslash counts. Empty lines and
/// lines of blanks are left out. Throws what `read` throws.
void readWantedList(const ListLines::Read& read, WantedFiles& wanted);

}  // namespace quorvin
