// "quorvin-cli cache": what the search cache holds.
#pragma once

namespace quorvin {

/// Writes a line for each file of the user's search cache: its size in bytes, a tab, and the listing it is
/// for. Returns the exit status 0.
int listCache();

/// Removes those files. The exit status is 2 when one could not be removed, else 0.
int clearCache();

}  // namespace quorvin
