// The local list refresh: renews the listing of every online source.
#pragma once

#include "index/index_view.h"
#include "platform/message_box.h"
#include "state/program_state.h"

#include <QLocale>
#include <QString>

namespace quorvin {

/// Makes the listings of all online sources anew, in table order, each first as `LocalFolder` + trimmed
/// description + ".tmp" and then put in the place of the ".txt" file; a search never reads a half-written
/// one. `RescanRunning` is set meanwhile. `RescanAbort` ends the refresh after the current source, whose old
/// listing stays. A source whose folder cannot be opened, or whose path leads to another folder after the
/// walk (a drive was pulled), keeps its old listing, and a line in the error log says so. A source whose
/// listing would overwrite the main data file or a source list is passed over, which is logged too. At the
/// end the title of `Progress` is as before, its status shows `versionCaption`, and a non-empty error log is
/// shown and emptied. A fault is reported as "Error Refreshing Local Lists:" with its description and ends
/// the refresh; every listing on disk is then the old or the new one, whole. Does nothing while a refresh is
/// already running. User-interface thread only.
void refreshLocalLists(ProgramState& state, RefreshView& view, MessageBoxes& messages, const QLocale& locale,
                       const QString& versionCaption);

}  // namespace quorvin
