// "quorvin-cli refresh": renews the listings of all online sources.
#pragma once

namespace quorvin {

/// Refreshes the listings of the user's own online sources as the window would. The settings and source lists
/// are only read. What went wrong with single names, and which listings were kept because their folder was
/// not there, is reported on standard error and changes nothing in the exit status: 0; 2 when the refresh was
/// ended by a fault; kInterrupted after an interrupt, which leaves the old listing of the source at work and
/// of those after it.
int runRefresh();

}  // namespace quorvin
