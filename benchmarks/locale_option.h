// SPDX-License-Identifier: GPL-2.0-or-later

// The locale that a catalogue is written in, by its name.
#pragma once

#include <QLocale>

#include <string>

namespace quorvin {

/// "C" or a name such as "en_US" or "de_DE". Throws std::invalid_argument when there is no such locale.
QLocale localeNamed(const std::string& name);

}  // namespace quorvin
