// SPDX-License-Identifier: GPL-2.0-or-later

// The commands of the console companion: "find", "copies", "compare", "plan", "volumes", "cache", "index",
// "verify", "import", "refresh", "sources" and "history". Each gives the exit status of the program.
#pragma once

#include "catalogue/copy_finder.h"
#include "catalogue/volumes/volume_finder.h"
#include "console/hit_rows.h"
#include "console/table_row.h"
#include "files/file_writer.h"
#include "search/hit_sort.h"

#include <QDate>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>
#include <vector>

namespace quorvin {

/// When words that were found are highlighted. Auto: on a terminal, unless the user wants no colours there.
enum class ColourUse { Auto, Always, Never };

/// What the command line asked of "find".
struct FindRequest {
  QString searchText;
  /// As typed: a number, which is corrected like that in the window's box.
  QString desiredMatch = QStringLiteral("50");
  RowFormat format = RowFormat::Tsv;
  /// Empty for those of the format.
  std::vector<HitField> fields = {};
  bool hasHeader = false;
  bool endsWithNul = false;
  /// How many rows are written at most; nothing for all.
  std::optional<std::int64_t> limit = {};
  /// The order of the rows; without a column that in which they are found.
  HitOrder order = {};
  ColourUse colours = ColourUse::Auto;
  /// Only the number of hits is written.
  bool countOnly = false;
  /// Neither progress nor the last line is written.
  bool isQuiet = false;
  /// Whether segments of listings are taken from and written to the user's cache folder.
  bool useCache = true;
  /// The listings to search, "-" for standard input; empty for the user's own sources.
  std::vector<QString> listings = {};
};

/// Runs the search; hits go to standard output, messages and the last line "F found, S searched" to standard
/// error. The exit status: 0 with hits, 1 without, 2 when anything could not be done or there is nothing to
/// search, stopStatus() when a signal ended it; the rows that were complete by then are written.
int runFind(const FindRequest& request);

/// What the command line asked of "copies".
struct CopiesRequest : CopyWish {
  TableFormat format = TableFormat::Text;
  bool hasHeader = false;
  bool endsWithNul = false;
  /// How many files, groups or sums are written at most; nothing for all.
  std::optional<std::int64_t> limit = {};
  /// Neither progress nor the last lines are written.
  bool isQuiet = false;
  /// As in FindRequest.
  std::vector<QString> listings = {};
};

/// Writes what is there more than once, or on one volume only, to standard output, and the sum of it to
/// standard error. The exit status is that of runFind(), where files or groups are its hits.
int runCopies(const CopiesRequest& request);

/// What the command line asked of "compare".
struct CompareRequest {
  /// A listing, a folder, or what has a history in the data folder.
  QString before;
  /// A listing or a folder; empty for the listing as it is now, of which `before` is an earlier version.
  QString after;
  /// Which version `before` is, or the day whose version it is; neither for the newest complete one.
  std::optional<int> version = {};
  std::optional<QDate> day = {};
  TableFormat format = TableFormat::Text;
  /// Sums of folders take the place of files.
  bool byFolder = false;
  bool hasHeader = false;
  bool endsWithNul = false;
  /// How many files or folders are written at most; nothing for all.
  std::optional<std::int64_t> limit = {};
  /// Neither progress nor the last line is written.
  bool isQuiet = false;
};

/// Writes what came, went, changed and was moved to standard output, and the sums to standard error. The exit
/// status, as that of diff: 0 where nothing differs, 1 where something does, 2 when anything could not be
/// done, stopStatus() when a signal ended it.
int runCompare(const CompareRequest& request);

/// What the command line asked of "plan".
struct PlanRequest {
  /// What is searched for; "-" for a list on standard input.
  QString searchText;
  /// As in FindRequest.
  QString desiredMatch = QStringLiteral("50");
  /// Text or Json.
  TableFormat format = TableFormat::Text;
  /// A script takes the place of the plan, and this is where it copies to.
  std::optional<QString> scriptFolder = {};
  /// Neither progress nor the last lines are written.
  bool isQuiet = false;
  bool useCache = true;
  /// As in FindRequest.
  std::vector<QString> listings = {};

  bool isList() const { return searchText == QStringLiteral("-"); }
};

/// Writes the fewest volumes for the wanted files to standard output. The exit status is that of runFind(),
/// where files to copy are its hits.
int runPlan(const PlanRequest& request);

/// What the command line asked of "volumes".
struct VolumesRequest : VolumeFinder::Wish {
  /// Without one they come as the listings have them.
  std::optional<VolumeColumn> sortedBy = {};
  bool isDescending = false;
  bool isJson = false;
  /// Neither progress nor the last line is written.
  bool isQuiet = false;
  /// Nothing is shown, and this becomes the note of the volume that `searchText` names.
  std::optional<QString> note = {};
  /// As in FindRequest.
  std::vector<QString> listings = {};
};

/// Writes what is known of each volume to standard output, and the sum to standard error. The exit status is
/// that of runFind(), where volumes are its hits; for a note it is 0 when it is kept, else 2.
int runVolumes(const VolumesRequest& request);

/// What the command line asked of "cache".
struct CacheRequest {
  /// Only what is of no use to a search: of listings that are not there any more, damaged, left by a killed
  /// program or by an earlier version.
  bool onlyUnused = false;
  bool isJson = false;
};

/// Writes a row for each file of the user's search cache: its size in bytes, a tab, and the listing it is
/// for, behind that "(gone)" where the listing is not there. Files that are of no use to a search are marked
/// as such. The exit status is 2 when not all could be written, else 0.
int listCache(const CacheRequest& request);

/// Removes those files. The exit status is 2 when one could not be removed, else 0.
int clearCache(const CacheRequest& request);

/// What the command line asked of "index".
struct IndexRequest {
  QString folder;
  /// Stands after "Volume:" in every block; empty for the folder's own name.
  QString label;
  /// Where the listing goes; empty or "-" for standard output.
  QString output;
  bool foldersOnly = false;
  /// The checksums of all files are written beside the listing, which is a file then.
  bool hasChecksums = false;
  /// No progress is shown.
  bool isQuiet = false;
};

/// Writes the listing. A file is written aside and put in place when it is whole; until then, and when
/// anything goes wrong, the one that was there before stays. Single names that could not be read are reported
/// on standard error and change nothing in the exit status: 0 when the listing is there, 2 when the folder
/// cannot be read, the listing cannot be written, names were left out of it since their folder holds too
/// many, or files could not be read for their checksums, stopStatus() after a signal.
int runIndex(const IndexRequest& request);

/// What the command line asked of "verify".
struct VerifyRequest {
  /// The listing, or the description of an own folder.
  QString listing;
  /// Where what was listed is now; empty for where it was.
  QString folder;
  /// What was noted of a verification that was stopped does not count.
  bool beginsAgain = false;
  bool isJson = false;
  /// Neither progress nor the last line is written.
  bool isQuiet = false;
};

/// Reads the files of a folder again and writes those that are not as they were to standard output, and the
/// sum of it to standard error. The exit status: 0 where all are as they were, 1 where some are not, 2 when
/// anything could not be done or read, stopStatus() when a signal ended it.
int runVerify(const VerifyRequest& request);

struct IndexOutcome {
  /// As runIndex() gives it.
  int status = 0;
  /// A fault ended it, which has been reported: what was written is not the listing.
  bool hasFailed = false;
};

/// The same with a writer in place of IndexRequest::output.
IndexOutcome indexInto(FileWriter& writer, const IndexRequest& request);

/// What the command line asked of "import", each option as it was given; empty where it was not.
struct ImportCommand {
  /// Lists to read, "-" for standard input.
  QStringList lists;
  /// The folder for the listings.
  QString output;
  QString format;
  QString label;
  QString folder;
  QString pattern;
  QString columns;
  QString dates;
  QString made;
  QString encoding;
  bool areSizesBytes = false;
  bool replaces = false;
  bool isQuiet = false;
};

/// Makes a listing of each list. What was read, and what could not be, is reported on standard error. A
/// listing that is there stays unless it is to be replaced, and whatever goes wrong in between. The exit
/// status: 0; 2 when a list could not be read, lines of it were not understood, or names were left out;
/// stopStatus() after a signal, which leaves the listings that were complete.
int runImport(const ImportCommand& command);

/// What the command line asked of "refresh".
struct RefreshRequest {
  /// The descriptions of the sources to refresh; empty for all.
  QStringList names;
  bool isQuiet = false;
  /// What was done is written to standard output.
  bool isJson = false;
};

/// Refreshes the listings of the user's own online sources as the window would. The settings and source lists
/// are only read. What went wrong with single names, and which listings were kept because their folder was
/// not there, is reported on standard error and changes nothing in the exit status: 0; 2 when there is no
/// source of one of the names, and then nothing is done, when the refresh was ended by a fault, another one
/// is running, or names were left out since their folder holds too many; stopStatus() after a signal, which
/// leaves the old listing of the source at work and of those after it.
int runRefresh(const RefreshRequest& request);

/// What the command line asked of "sources".
struct SourcesRequest {
  enum class Action { List, Add, Remove, Move };
  Action action = Action::List;
  /// Paths to add, or descriptions or paths of sources.
  QStringList names;
  /// The description of the one that is added; empty for the usual one.
  QString description;
  /// Where the source is moved to in its list, from 1.
  int place = 0;
  bool isQuiet = false;
  bool isJson = false;
};

/// Shows or changes the lists of sources, by the rules of the window's editors. What cannot be done whole is
/// not done at all. The exit status: 0, or 2 with a sentence on standard error.
int runSources(const SourcesRequest& request);

/// What the command line asked of "history".
struct HistoryRequest {
  /// The description of an own folder, or the name or path of a listing; empty for all listings.
  QString listing;
  /// Whether a version is put in the listing's place, and which; 0 for the newest complete one.
  bool restores = false;
  int number = 0;
  bool isJson = false;
};

/// Writes a line for each earlier version: the listing's name, the version's number, when the listing was
/// made, its entries, its bytes, and "complete", "incomplete" or "damaged", parted by tabs, newest first. Or
/// restores one. The exit status: 0; 1 where there is no version to show; 2 when anything could not be done.
int runHistory(const HistoryRequest& request);

}  // namespace quorvin
