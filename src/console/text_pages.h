// SPDX-License-Identifier: GPL-2.0-or-later

// The help, the manual page and the shells' completions, made of command_texts.h.
#pragma once

#include "console/command_texts.h"

#include <string>
#include <string_view>

namespace quorvin {

/// The help of the program. No help has more than 24 lines of 80 characters.
std::string helpOfProgram();
/// The help of one command.
std::string helpOf(const CommandText& command);

/// The manual page of this version, for man(7).
std::string manualPage(std::string_view version);

/// The completion for "bash", "zsh" or "fish"; empty for others.
std::string completionFor(std::string_view shell);

}  // namespace quorvin
