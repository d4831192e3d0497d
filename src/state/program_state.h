// What the whole program shares while it runs.
#pragma once

#include "dates/general_date.h"
#include "state/source_table.h"

#include <QString>

namespace quorvin {

/// The program's shared state. One object is made in main() and handed to everything by reference; it
/// outlives every window. Only the user-interface thread touches it. The names are those of the settings
/// keys and of the rules of the program.
struct ProgramState {
  // Settings.
  /// The local data folder, always with a trailing separator once start-up is through; file names are
  /// appended to it directly.
  QString LocalFolder;
  /// The main data file, inside `LocalFolder` unless it is a whole path.
  QString TextFile;
  /// The compressed update archive: its name in `LocalFolder` and on the server.
  QString ArchiveFile;
  QString WebServer;
  /// When the program was first run.
  DateValue JoinDate = 0;
  QString NickName;

  /// All settings were read when the program started. Where that failed, an empty one may only be unknown.
  bool settingsRead = false;

  // Names that the command line may change.
  /// The application name under which the settings are kept.
  QString RegKey;
  /// The file names of the two source lists inside `LocalFolder`.
  QString LocFile;
  QString OffLineFile;

  // Sources; rows 1 to the count are in use.
  SourceTable OnlineSources;
  int OnlineSourceCount = 0;
  SourceTable OfflineSources;
  int OfflineSourceCount = 0;
  /// The source list files that were read to their end when the program started, or found missing; empty
  /// while that is not so. A list on disk that was not read holds records that no table knows.
  QString onlineListRead;
  QString offlineListRead;

  // Requests and conditions that long loops poll.
  /// Asks a running search, indexing or download to stop.
  bool AbortRequested = false;
  /// A local list refresh is running.
  bool RescanRunning = false;
  /// Asks a running refresh to stop after the current source.
  bool RescanAbort = false;
  /// The program is closing.
  bool QuitPending = false;
  /// Shutdown has been done.
  bool ShuttingDown = false;

  /// What went wrong with single names while folders were indexed: lines ended by CR LF.
  QString errorLog;

  /// Sets `RegKey`, `LocFile` and `OffLineFile` to the values of a run without a command line.
  void resetFileNames();

  /// Where the listing of the online source of this description is kept: `LocalFolder`, the description
  /// without blanks at its ends, ".txt".
  QString onlineListingPath(const QString& description) const;

  /// Whether `path` is that of the main data file or of one of the two source lists, which need not be there
  /// yet: no listing may stand there. Another way of writing the name of one that is there counts as well:
  /// capital letters, where the file system takes them for small ones, or a link.
  bool isOwnFile(const QString& path) const;

  /// Whether there is anything to search: a source, or the name of a main data file.
  bool hasSources() const;
};

}  // namespace quorvin
