// SPDX-License-Identifier: GPL-2.0-or-later

// What the whole program shares while it runs.
#pragma once

#include "dates/general_date.h"
#include "state/source_table.h"

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

#include <functional>

namespace quorvin {

/// What is known of a source list on disk since it was read when the program started, or saved. A list of
/// which that is not known may hold records that no table has.
struct SourceListRead {
  /// Where the list was looked for; empty while none was.
  QString path;
  /// It was read to its end, or there was none.
  bool isComplete = false;
  /// digestOf() its bytes; empty where there was none.
  QByteArray digest;
  /// The records that were taken from it, as they would be written: the user has changed the table since then
  /// if it gives others.
  QByteArray records;
  /// The first of its descriptions that can only be a path: its records are shifted then, most likely by a
  /// double quote. Empty for none.
  QString shiftedPath;
};

/// The program's shared state. One object is made in main() and handed to everything by reference; it
/// outlives every window. Only the user-interface thread touches it. The names are those of the settings
/// keys and of the rules of the program.
struct ProgramState {
  // Settings.
  /// The local data folder, with a trailing separator once start-up has ended, however it did; file names are
  /// appended to it directly. Empty only where no folder could be made out.
  QString LocalFolder;
  /// The main data file, inside `LocalFolder` unless it is a whole path.
  QString TextFile;
  /// The compressed update archive: its name in `LocalFolder` and on the server.
  QString ArchiveFile;
  QString WebServer;
  /// When the program was first run.
  DateValue JoinDate = 0;
  QString NickName;

  /// The keys of the settings, window place included, that were read when the program started. What the store
  /// holds of the others is not known.
  QStringList settingsRead;
  /// What start-up left in the settings, as texts by their keys: one that still holds that has not been
  /// changed by the user.
  QMap<QString, QString> settingsAtStart;

  /// The listing that the command line named and that was not there; empty without such a one. While
  /// `TextFile` still is that, it is not saved: a typing error would be searched for at every start.
  QString missingListing;

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
  SourceListRead onlineListRead;
  SourceListRead offlineListRead;

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

  /// Where a file of this name is: in `LocalFolder`, unless the name is a whole path.
  QString placeOf(const QString& name) const;

  /// Sets `RegKey`, `LocFile` and `OffLineFile` to the values of a run without a command line.
  void resetFileNames();

  /// Where the listing of the online source of this description is kept: `LocalFolder`, the description
  /// without blanks at its ends, ".txt".
  QString onlineListingPath(const QString& description) const;

  /// Whether `path` is that of the main data file or of one of the two source lists, which need not be there
  /// yet: no listing may stand there. Another way of writing the name of one that is there counts as well:
  /// capital letters, where the file system takes them for small ones, or a link.
  bool isOwnFile(const QString& path) const;

  /// Whether the file at `path` is searched: the main data file, the listing of an online source, or an
  /// offline source.
  bool isListing(const QString& path) const;

  /// Whether there is anything to search: a source, or the name of a main data file.
  bool hasSources() const;
};

/// Asks isOwnFile() of `state` as it is now, in any thread and also when it is gone.
std::function<bool(const QString& path)> ownFileCheck(const ProgramState& state);

}  // namespace quorvin
