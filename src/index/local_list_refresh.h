// SPDX-License-Identifier: GPL-2.0-or-later

// The local list refresh: renews the listing of every online source.
#pragma once

#include "history/listing_changes.h"
#include "platform/message_box.h"
#include "state/program_state.h"
#include "work/work.h"

#include <QLocale>
#include <QString>

#include <cstdint>

namespace quorvin {

/// What a refresh has done.
struct RefreshOutcome {
  /// How many listings were made anew, and how many sources kept what they had.
  int made = 0;
  int kept = 0;
  /// Sources that kept their listing since their folder was not there.
  int missing = 0;
  /// The entries of the new listings, and those of them that the earlier ones did not have; and the entries
  /// of the earlier ones that are gone. What makes an entry a new one is said in history/listing_changes.h.
  std::int64_t entries = 0;
  ListingChanges changes;
  /// False where the changes of a listing could not be found out, so that they are more.
  bool areChangesKnown = true;
  /// How many names have no place in the new listings, since their folders hold more than a listing takes.
  std::int64_t leftOut = 0;
  /// `RescanAbort` ended it before its last source.
  bool isStopped = false;
  /// The message for the fault that ended it; empty when there was none.
  QString fault;
  /// What there is to report of single names and sources, lines that end with CR LF: the whole error log,
  /// which is empty now. After a fault the log is left for the next refresh.
  QString errorLog;
};

/// Makes the listings of all online sources anew, in table order, each first as `LocalFolder` + trimmed
/// description + ".tmp" and then put in the place of the ".txt" file; a search never reads a half-written
/// one. `job` is of the kind Refresh; it is shown, and hidden at the end. `RescanAbort` ends the refresh
/// after the current source, whose old listing stays. A source whose folder cannot be opened, or whose path
/// leads to another folder after the walk (a drive was pulled), keeps its old listing, and a line in the
/// error log says so. A source whose listing would overwrite the main data file or a source list is passed
/// over, and where two sources have one description the later one has the listing; both are logged too. What
/// a listing held before it is replaced is kept in the listing history; the error log names each listing that
/// is incomplete, or empty where it was not, and the earlier one that can be had back. What an interrupted
/// refresh has left of sources that are not in the table any more is removed. A history that cannot be
/// written is logged and stops nothing. At the end the title of `Progress` is as before, its status shows
/// `versionCaption`, and the mouse pointer is the default one. A fault ends the refresh at once; every
/// listing on disk is then the old or the new one, whole. Questions about single names go to `messages`.
///
/// One refresh at a time for a data folder, whatever program runs it: while there is another, this one does
/// nothing and its fault says so.
RefreshOutcome refreshLocalLists(ProgramState& state, Job& job, MessageBoxes& messages, const QLocale& locale,
                                 const QString& versionCaption);

}  // namespace quorvin
