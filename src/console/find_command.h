// "quorvin-cli find" and "quorvin-cli cache": a search in the terminal, and what searches have kept.
#pragma once

#include "console/hit_writer.h"

#include <QString>

#include <vector>

namespace quorvin {

/// What the command line asked for.
struct FindRequest {
  QString searchText;
  /// As typed; corrected like the window's box.
  QString desiredMatch = QStringLiteral("50");
  HitFormat format = HitFormat::Tsv;
  /// Only the number of hits is written.
  bool countOnly = false;
  /// Whether segments of listings are taken from and written to the user's cache folder.
  bool useCache = true;
  /// The listings to search; empty for the user's own sources.
  std::vector<QString> listings;
};

/// Runs the search; hits go to standard output, messages and the last line "F found, S searched" to standard
/// error. The exit status: 0 with hits, 1 without, 2 when anything could not be done.
int runFind(const FindRequest& request);

/// Writes a line for each file of the user's search cache: its size in bytes, a tab, and the listing it is
/// for. Returns the exit status 0.
int listCache();

/// Removes those files. The exit status is 2 when one could not be removed, else 0.
int clearCache();

}  // namespace quorvin
