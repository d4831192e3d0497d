// SPDX-License-Identifier: GPL-2.0-or-later

// What folders have in common.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

namespace quorvin {

/// Cuts `folder` to the deepest folder that `other` is, or is below, too. Both end with a backslash, and so
/// does what is left, unless that is nothing.
inline void cutToCommonFolder(std::string& folder, std::string_view other) {
  const auto same = static_cast<std::size_t>(std::ranges::mismatch(folder, other).in1 - folder.begin());
  if (same < folder.size()) folder.resize(folder.substr(0, same).rfind('\\') + 1);
}

}  // namespace quorvin
