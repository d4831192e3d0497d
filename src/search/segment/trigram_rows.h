// SPDX-License-Identifier: GPL-2.0-or-later

// Which pages of a table of texts may hold a word.
#pragma once

#include "search/segment/checked_span.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace quorvin {

/// The trigrams (three bytes in a row, hashed) of the pages of a table: for each hash a row with a bit for
/// each page that has it. A word has few trigrams, so that few rows tell all that is to be known of it, and
/// no others have to be read. Rows follow each other without a gap: the bit of page p in row r has the number
/// r * pages + p (docs/formats/segment-cache.md). It refers to an array that somebody else owns; reading one
/// out of a file may throw DamagedSegment.
class TrigramRows {
 public:
  /// So many rows, one for each hash.
  static constexpr std::size_t kCount = 16384;

  /// No rows: every page may hold every word.
  TrigramRows() = default;

  /// `bits` has sizeFor(`pages`) elements, or is empty: then nobody has made the rows. Throws DamagedSegment
  /// where it has another number.
  TrigramRows(const CheckedSpan<std::uint64_t>& bits, std::size_t pages);

  /// Elements that hold the rows of `pages` pages.
  static constexpr std::size_t sizeFor(std::size_t pages) { return kCount / 64 * pages; }

  /// `row` < kCount; `page` is one of those promised. Not to be asked where empty().
  bool has(std::size_t row, std::size_t page) const {
    const std::size_t bit = row * pages_ + page;
    return (bits_[bit / 64] >> (bit % 64) & 1U) != 0;
  }
  bool empty() const { return bits_.empty(); }

 private:
  CheckedSpan<std::uint64_t> bits_;
  std::size_t pages_ = 0;
};

/// The trigrams of one word, ready to be looked up in many rows.
class TrigramProbe {
 public:
  explicit TrigramProbe(std::string_view word);

  /// False only if no text of the page holds the word. Always true for words of one or two bytes.
  bool mayBeIn(const TrigramRows& rows, std::size_t page) const {
    if (rows.empty()) return true;
    for (const std::uint16_t row : rows_) {
      if (!rows.has(row, page)) return false;
    }
    return true;
  }

 private:
  std::vector<std::uint16_t> rows_;
};

/// Makes the rows of a table, page by page.
class TrigramRowsBuilder {
 public:
  explicit TrigramRowsBuilder(std::size_t pages);

  /// Takes the text of the next page.
  void addPage(std::string_view text);

  /// To be called once, after as many pages as were promised. What TrigramRows refers to.
  std::vector<std::uint64_t> finish();

 private:
  /// The hashes of one page, a bit for each.
  using PageSet = std::array<std::uint64_t, TrigramRows::kCount / 64>;
  /// Turned into rows together: as many as bits in an element.
  static constexpr std::size_t kPagesAtOnce = 64;

  void turn();
  void addToRow(std::size_t row, std::uint64_t pages);

  std::size_t pages_;
  std::vector<std::uint64_t> bits_;
  /// Pages that are in the rows, and those that wait for their turn.
  std::size_t turned_ = 0;
  std::vector<PageSet> waiting_;
};

}  // namespace quorvin
