// SPDX-License-Identifier: GPL-2.0-or-later

// The texts that searches run over.
#pragma once

#include "search/segment/text_table.h"

#include <string_view>

namespace quorvin::test {

/// The folded text of `text`, without its end byte.
inline std::string_view foldedText(const TextTable& table, std::uint32_t text) {
  const std::string_view folded = textOf(table.folded.all());
  std::size_t begin = table.marks[text / kTextsPerMark].text;
  for (std::uint32_t i = text % kTextsPerMark; i > 0; --i) begin = folded.find(kTextEnd, begin) + 1;
  return folded.substr(begin, folded.find(kTextEnd, begin) - begin);
}

}  // namespace quorvin::test
