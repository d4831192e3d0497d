// SPDX-License-Identifier: GPL-2.0-or-later

// The lists of all files in the packages of a Debian archive, as apt keeps them for apt-file.
#pragma once

#include <QString>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvin {

struct ContentsList {
  QString path;
  /// Made of the list's place in the archive, such as "DEBIAN-AMD64" or "DEBIAN-UPDATES-ALL".
  std::string volume;
};

/// The lists that apt has fetched here, sorted by volume; none when there are none. Throws
/// std::runtime_error when apt cannot be asked.
std::vector<ContentsList> fetchedContentsLists();

/// Calls `take` with each file's path in the order of the list ("usr/bin/vi", no leading slash; the text
/// lives only during the call). Throws std::runtime_error when the list cannot be read to its end.
void readContentsList(const ContentsList& list, const std::function<void(std::string_view)>& take);

}  // namespace quorvin
