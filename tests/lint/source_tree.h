// SPDX-License-Identifier: GPL-2.0-or-later

// The files of the project, as the lint tests read them.
#pragma once

#include "lint/include_rules.h"

#include <string>
#include <string_view>
#include <vector>

namespace quorvin::lint {

/// The whole text of the file at `path`, which is taken from the top of the project on. Throws
/// std::runtime_error when it cannot be read.
std::string projectText(const std::string& path);

/// Whether the project has a file or folder at `path`.
bool projectHas(const std::string& path);

/// The names of the folders right below `folder`, sorted.
std::vector<std::string> foldersIn(const std::string& folder);

/// The files below `folder`, sorted by path, whose names end in one of `endings`; none when there is no such
/// folder.
std::vector<SourceFile> filesBelow(const std::string& folder, const std::vector<std::string_view>& endings);

/// All C++ files of the project, tests included.
std::vector<SourceFile> codeFiles();

}  // namespace quorvin::lint
