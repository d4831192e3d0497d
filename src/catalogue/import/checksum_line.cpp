// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/import/checksum_line.h"

#include "catalogue/import/list_text.h"

#include <algorithm>
#include <array>

namespace quorvin {

namespace {

/// A line before its escapes are replaced.
struct Parts {
  std::string_view checksum;
  std::string_view path;
};

std::optional<Parts> pathBehind(std::string_view line) {
  const std::size_t blank = line.find(' ');
  if (blank == std::string_view::npos || !isChecksum(line.substr(0, blank))) return std::nullopt;
  const std::string_view checksum = line.substr(0, blank);
  line.remove_prefix(blank + 1);
  if (!takeText(line, " ") && !takeText(line, "*")) return std::nullopt;
  return Parts{checksum, line};
}

std::optional<Parts> pathInBrackets(std::string_view line) {
  const std::size_t open = line.find(" (");
  const std::size_t close = line.rfind(") = ");
  if (open == std::string_view::npos || close == std::string_view::npos || close < open + 2) {
    return std::nullopt;
  }
  const std::string_view checksum = line.substr(close + 4);
  if (!isChecksum(checksum)) return std::nullopt;
  return Parts{checksum, line.substr(open + 2, close - open - 2)};
}

}  // namespace

bool isChecksum(std::string_view text) {
  static constexpr std::array<std::size_t, 6> kLengths{32, 40, 56, 64, 96, 128};
  return std::ranges::find(kLengths, text.size()) != kLengths.end() &&
         text.find_first_not_of("0123456789abcdefABCDEF") == std::string_view::npos;
}

std::optional<ChecksumLine> checksumLineIn(std::string_view line) {
  const bool hasEscapes = takeText(line, "\\");
  std::optional<Parts> parts = pathBehind(line);
  if (!parts) parts = pathInBrackets(line);
  if (!parts || parts->path.empty()) return std::nullopt;
  std::optional<std::string> path =
      hasEscapes ? withoutEscapes(parts->path) : std::optional(std::string(parts->path));
  if (!path) return std::nullopt;
  return ChecksumLine{parts->checksum, std::move(*path)};
}

}  // namespace quorvin
