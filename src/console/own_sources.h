// The user's own settings and sources, as the window would load them.
#pragma once

#include "state/program_state.h"

#include <QLocale>

namespace quorvin {

/// Fills `state` from the user's settings store and source lists, as a start of the window without a command
/// line does. Throws RuntimeFault where that would report a start-up error; what was loaded before stays.
void loadOwnSources(ProgramState& state, const QLocale& locale);

}  // namespace quorvin
