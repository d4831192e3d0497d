// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/format/listing_line.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>

namespace quorvin {

LineKind classifyLine(std::string_view line) {
  if (line.empty()) return LineKind::Empty;
  if (line.find(kVolumeMark) != line.npos) return LineKind::Volume;
  if (line.find(kDirectoryMark) != line.npos) return LineKind::Directory;
  if (line.find(kSubFolderMark) != line.npos) return LineKind::SubFolder;
  if (line.find(kSeparatorMark) != line.npos) return LineKind::Separator;
  return LineKind::Entry;
}

std::string withoutMark(std::string_view line, std::string_view mark) {
  std::string rest;
  while (true) {
    const std::size_t at = line.find(mark);
    rest += line.substr(0, at);
    if (at == line.npos) break;
    line.remove_prefix(at + mark.size());
  }
  const std::size_t first = rest.find_first_not_of(' ');
  if (first == rest.npos) return {};
  return rest.substr(first, rest.find_last_not_of(' ') - first + 1);
}

bool isAscii(std::string_view line) {
  // Eight bytes at a time: nearly every line of nearly every listing goes through here.
  std::uint64_t seen = 0;
  std::size_t i = 0;
  for (; i + sizeof seen <= line.size(); i += sizeof seen) {
    std::uint64_t word = 0;
    std::memcpy(&word, line.data() + i, sizeof word);
    seen |= word;
  }
  for (; i < line.size(); ++i) seen |= static_cast<unsigned char>(line[i]);
  return (seen & 0x8080808080808080U) == 0;
}

std::size_t bytesOfCharacters(std::string_view utf8, std::size_t characters) {
  std::size_t i = 0;
  // Eight bytes at a time while they cannot hold the end.
  std::uint64_t word = 0;
  for (; i + sizeof word <= utf8.size() && characters >= sizeof word; i += sizeof word) {
    std::memcpy(&word, utf8.data() + i, sizeof word);
    // The bytes inside a character are those that start with the bits 10.
    const std::uint64_t inside = word & ~(word << 1) & 0x8080808080808080U;
    characters -= sizeof word - static_cast<std::size_t>(std::popcount(inside));
  }
  while (i < utf8.size()) {
    const bool begins = (static_cast<unsigned char>(utf8[i]) & 0xC0U) != 0x80U;
    if (begins && characters-- == 0) break;
    ++i;
  }
  return i;
}

EntryLine splitEntryLine(std::string_view line, bool ascii) {
  const auto end = [&](std::size_t columns) {
    return ascii ? std::min(columns, line.size()) : bytesOfCharacters(line, columns);
  };
  const std::size_t textEnd = end(kEntryColumns);
  if (textEnd == line.size()) return {line, {}};
  std::string_view text = line.substr(0, textEnd);
  text = text.substr(0, text.find_last_not_of(' ') + 1);
  // The tail starts in the last column of the entry text, which both share.
  return {text, line.substr(end(kEntryColumns - 1))};
}

}  // namespace quorvin
