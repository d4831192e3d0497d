// Saving the two source lists when the program ends.
#pragma once

#include "platform/message_box.h"
#include "state/program_state.h"

namespace quorvin {

/// Saves the online sources as `LocFile` in `LocalFolder`. A folder without a single ordinary file counts as
/// invalid: that is reported, and nothing is saved. Throws as saveSourceList does.
///
/// A list that is there but was not read when the program started (it is broken, or another folder has
/// become the data folder since) is not lost: an empty table leaves it as it is, any other is saved only
/// after the list has been copied beside it. Both are reported. The list that was read is known under every
/// spelling of its path.
void saveOnlineSources(const ProgramState& state, MessageBoxes& messages);

/// The same for the offline sources and `OffLineFile`; the message on an invalid folder is that of the online
/// list too.
void saveOfflineSources(const ProgramState& state, MessageBoxes& messages);

}  // namespace quorvin
