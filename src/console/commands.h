// The commands of the console companion: "find", "cache", "index", "refresh" and "history". Each gives the
// exit status of the program.
#pragma once

#include "console/hit_writer.h"

#include <QString>

#include <vector>

namespace quorvin {

/// What the command line asked of "find".
struct FindRequest {
  QString searchText;
  /// As typed: a number, which is corrected like that in the window's box.
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
/// error. The exit status: 0 with hits, 1 without, 2 when anything could not be done or there is nothing to
/// search, stopStatus() when a signal ended it; the rows that were complete by then are written.
int runFind(const FindRequest& request);

/// Writes a line for each file of the user's search cache: its size in bytes, a tab, and the listing it is
/// for. Files that are of no use to a search, left by a killed program or an earlier version, are marked as
/// such. The exit status is 2 when not all could be written, else 0.
int listCache();

/// Removes those files. The exit status is 2 when one could not be removed, else 0.
int clearCache();

/// What the command line asked of "index".
struct IndexRequest {
  QString folder;
  /// Stands after "Volume:" in every block; empty for the folder's own name.
  QString label;
  /// Where the listing goes; empty for standard output.
  QString output;
  bool foldersOnly = false;
};

/// Writes the listing. A file is written aside and put in place when it is whole; until then, and when
/// anything goes wrong, the one that was there before stays. Single names that could not be read are reported
/// on standard error and change nothing in the exit status: 0 when the listing is there, 2 when the folder
/// cannot be read, the listing cannot be written, or names were left out of it since their folder holds too
/// many, stopStatus() after a signal.
int runIndex(const IndexRequest& request);

/// Refreshes the listings of the user's own online sources as the window would. The settings and source lists
/// are only read. What went wrong with single names, and which listings were kept because their folder was
/// not there, is reported on standard error and changes nothing in the exit status: 0; 2 when the refresh was
/// ended by a fault, another one is running, or names were left out since their folder holds too many;
/// stopStatus() after a signal, which leaves the old listing of the source at work and of those after it.
int runRefresh();

/// What the command line asked of "history".
struct HistoryRequest {
  /// The description of an own folder, or the name or path of a listing; empty for all listings.
  QString listing;
  /// Whether a version is put in the listing's place, and which; 0 for the newest complete one.
  bool restores = false;
  int number = 0;
};

/// Writes a line for each earlier version: the listing's name, the version's number, when the listing was
/// made, its entries, its bytes, and "complete", "incomplete" or "damaged", parted by tabs, newest first. Or
/// restores one. The exit status: 0; 1 where there is no version to show; 2 when anything could not be done.
int runHistory(const HistoryRequest& request);

}  // namespace quorvin
