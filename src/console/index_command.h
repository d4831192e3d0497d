// "quorvin-cli index": the listing of one folder.
#pragma once

#include <QString>

namespace quorvin {

/// What the command line asked for.
struct IndexRequest {
  QString folder;
  /// Stands after "Volume:" in every block; empty for the folder's own name.
  QString label;
  /// Where the listing goes; empty for standard output.
  QString output;
  bool foldersOnly = false;
};

/// The exit status of a command that was ended by an interrupt.
inline constexpr int kInterrupted = 130;

/// Writes the listing. A file is written aside and put in place when it is whole; until then, and when
/// anything goes wrong, the one that was there before stays. Single names that could not be read are reported
/// on standard error and change nothing in the exit status: 0 when the listing is there, 2 when the folder
/// cannot be read or the listing cannot be written, kInterrupted after an interrupt.
int runIndex(const IndexRequest& request);

}  // namespace quorvin
