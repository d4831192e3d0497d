// SPDX-License-Identifier: GPL-2.0-or-later

// A fetch plan as a script that does it.
#pragma once

#include "catalogue/fetch/plan_text.h"

#include <QString>

#include <functional>
#include <string>
#include <string_view>

namespace quorvin {

/// `text` as one word of a POSIX shell, whatever is in it.
std::string shellWord(std::string_view text);

/// Writes a script for a POSIX shell that asks for each volume, one after another, and copies its files with
/// rsync into a folder of the volume's own in the folder `to`, an absolute path. `write` takes it piece by
/// piece, UTF-8, and returns false where no more is wanted.
void writePlanScript(const FetchFinder& finder, const QString& to, const QLocale& locale,
                     const std::function<bool(const std::string& piece)>& write);

}  // namespace quorvin
