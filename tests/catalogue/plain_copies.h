// SPDX-License-Identifier: GPL-2.0-or-later

// What copies are, written as plainly as possible. It judges the fast way.
#pragma once

#include <QString>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quorvin::test {

struct PlainFile {
  int listing = 0;
  QString volume;
  /// With a backslash at both ends.
  QString folder;
  QString name;
  /// Nothing where the listing does not say it.
  std::optional<std::int64_t> size;
  /// Files with the same name and size are of another kind where they hold something else.
  std::uint64_t kind = 0;
};

/// The lines, without an order, each as textOfLine() in found_copies.h has it.
std::vector<std::string> plainLines(const std::vector<PlainFile>& files);

/// The files on one volume only, in the order of the listings, as singlesOf() has them.
std::vector<std::string> plainSingles(const std::vector<PlainFile>& files);

}  // namespace quorvin::test
