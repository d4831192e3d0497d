// The setting for the user's own audio player.
#pragma once

#include "platform/settings_store.h"
#include "state/program_state.h"

#include <QString>

namespace quorvin {

/// The command in the setting "EnqueueCommand" of `state.RegKey`; empty text when there is none. To be read
/// anew each time, so that a player that was set while the program runs is taken.
QString enqueueCommand(const SettingsStore& settings, const ProgramState& state);

}  // namespace quorvin
