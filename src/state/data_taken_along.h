// SPDX-License-Identifier: GPL-2.0-or-later

// What earlier versions kept beside the program, where an installed program and one in its build folder keep
// nothing any more.
#pragma once

#include "platform/message_box.h"
#include "platform/settings_store.h"
#include "platform/standard_folders.h"

#include <QString>

namespace quorvin {

/// To be called before the settings of `application` are read. Where the program keeps its data in the user's
/// data folder now, but `LocalFolder` still names the program's folder, or none is set (and no defaults.txt
/// gives one) and source lists stand beside the program: copies the user's data (source lists, listings, main
/// data file, archive, what came from peers, history) into the data folder, with the offline list's paths led
/// there; stores the new `LocalFolder` where one was stored; and says so. The files beside the program stay.
/// Nothing is ever replaced: where the data folder holds a different file of one of these names, nothing is
/// copied, and the user is asked to choose. A fault is reported too; then everything is as before, and the
/// next start tries again. Never throws.
void takeAlongData(SettingsStore& store, const QString& application, const ProgramPlace& place,
                   MessageBoxes& messages);

}  // namespace quorvin
