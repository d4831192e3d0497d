// SPDX-License-Identifier: GPL-2.0-or-later

// What a comparison of two listings finds, written as plainly as possible. It judges the fast way.
#pragma once

#include <QByteArray>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quorvin::test {

struct PlainEntry {
  std::string volume;
  /// With a backslash at both ends.
  std::string folder;
  std::string name;
  /// Nothing where the line has neither size nor date.
  std::optional<std::int64_t> size = 1024;
  /// A day of January 2004.
  int day = 15;
};

/// A listing of the entries, which come in their order.
QByteArray listingOf(const std::vector<PlainEntry>& entries);

/// The changes, sorted: "+ \folder\name" for what was added, "- " for what was removed, "* " for what has
/// changed, and "> \folder\name < \folder\name" for what was moved. The volume is in front of the folder
/// where one of the two has more than one.
std::vector<std::string> plainChanges(const std::vector<PlainEntry>& before,
                                      const std::vector<PlainEntry>& after);

}  // namespace quorvin::test
