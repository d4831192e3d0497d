// SPDX-License-Identifier: GPL-2.0-or-later

// Texts in lower case, one after another in one array, and beside them what is needed to show them as listed.
#pragma once

#include "search/format/line_scan.h"
#include "search/segment/checked_span.h"
#include "search/segment/mapped_bytes.h"
#include "search/segment/passing_bytes.h"
#include "search/segment/text_scan.h"
#include "search/segment/trigram_rows.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quorvin {

/// Ends each text; UTF-8 never holds it, so no word can match across two texts.
inline constexpr char kTextEnd = static_cast<char>(0xFF);

/// Every 32nd text has its place noted; 1024 texts make a page, whose trigrams are known.
inline constexpr std::uint32_t kTextsPerMark = 32;
inline constexpr std::uint32_t kTextsPerPage = 1024;

/// A table of texts, numbered from 0. It refers to arrays that somebody else owns: a TextTableBuilder or a
/// segment out of a file. Reading the latter may throw DamagedSegment.
struct TextTable {
  /// Where every 32nd text starts.
  struct Mark {
    /// In `folded`.
    std::uint32_t text;
    /// In `upperBits`.
    std::uint32_t upper;
  };
  /// A text whose lower case is more than ASCII letters made small.
  struct Exception {
    std::uint32_t text;
    /// Where it starts in `exceptionTexts`; it ends where the next exception starts.
    std::uint32_t start;
  };

  /// Number of texts.
  std::uint32_t count = 0;
  /// The folded texts, each followed by kTextEnd; kScanPadding readable bytes follow the last.
  CheckedSpan<char> folded;
  /// One for each 32 texts.
  CheckedSpan<Mark> marks;
  /// What TrigramRows refers to, or nothing as long as nobody has made it.
  CheckedSpan<std::uint64_t> trigrams;

  /// A bit for each text: it has ASCII capitals.
  CheckedSpan<std::uint64_t> hasUpper;
  /// For each such text, in order, a bit for each byte (whole bytes a text, lowest bit first): it was a
  /// capital.
  CheckedSpan<std::uint8_t> upperBits;
  /// In ascending order of text; the last one, of no text, marks where exceptionTexts ends.
  CheckedSpan<Exception> exceptions;
  CheckedSpan<char> exceptionTexts;

  /// Where `folded` is to be searched once only: the way to read it for that. Else null.
  PassingBytes* passing = nullptr;
  /// Where `folded` is searched more often, but lies in a file: the way to search it there. Else null.
  MappedBytes* mapped = nullptr;

  /// A part of `folded`.
  struct Stretch {
    std::size_t begin;
    std::size_t size;
  };
  /// The folded texts from the 32-text mark `beginMark` to `endMark` (or the end of the table).
  Stretch between(std::size_t beginMark, std::size_t endMark) const;

  /// A stretch ready to be searched: itself, or a copy that is valid until the next call. kScanPadding
  /// readable bytes follow it. Others may change what it holds while it is searched, the number of its ends
  /// too.
  std::string_view toSearch(Stretch stretch) const;

  /// To be called before anything is believed that was found in what toSearch() has returned. Throws
  /// DamagedSegment when that was not the texts any more.
  void requireSearched() const {
    if (mapped != nullptr) mapped->requireTaken();
  }

  /// The text as listed, UTF-8.
  std::string listedText(std::uint32_t text) const;

  std::size_t pageCount() const { return (std::size_t{count} + kTextsPerPage - 1) / kTextsPerPage; }

  /// The trigrams of all pages, if somebody has made them.
  TrigramRows trigramRows() const { return {trigrams, pageCount()}; }

  /// Makes them.
  std::vector<std::uint64_t> makeTrigrams() const;
};

/// Finds folded texts one after another.
class TextWalk {
 public:
  /// `table` must outlive the walk and not change meanwhile.
  explicit TextWalk(const TextTable& table) : table_(table) {}

  /// Where `text` starts in `folded`. The cost is the texts that lie between it and the text that was asked
  /// for before, 31 at most; that of the first call, and of a call that goes back, is up to 31 texts too.
  std::uint32_t placeOf(std::uint32_t text);

  /// The folded text, without its end.
  std::string_view text(std::uint32_t text);

 private:
  const TextTable& table_;
  TextTable::Stretch group_{0, 0};
  const char* groupBegin_ = nullptr;
  /// The text that starts at `at_`.
  std::uint32_t current_ = UINT32_MAX;
  const char* at_ = nullptr;
};

/// Gives texts as listed, one after another: far cheaper than listedText() for many of them in ascending
/// order.
class ListedWalk {
 public:
  struct Text {
    /// As listed, UTF-8.
    std::string_view listed;
    /// The same in lower case.
    std::string_view folded;
  };

  /// Starts on `table`, which must outlive the walk there and not change meanwhile.
  void start(const TextTable& table);

  /// `text` of the table; valid until the next call. The cost is that of TextWalk.
  Text at(std::uint32_t text);

 private:
  void enterGroup(std::uint32_t text);
  void goOn();
  std::string_view listed();
  bool hasUpper() const { return (withUpper_ >> (current_ % 64) & 1U) != 0; }
  std::size_t size() const { return static_cast<std::size_t>(end_ - begin_); }

  const TextTable* table_ = nullptr;
  /// The text that is at `begin_` and ends at `end_`.
  std::uint32_t current_ = UINT32_MAX;
  const char* begin_ = nullptr;
  const char* end_ = nullptr;
  /// The element of `hasUpper` for it, and where its own bits in `upperBits` would start.
  std::uint64_t withUpper_ = 0;
  std::size_t upper_ = 0;
  std::span<const TextTable::Exception> exceptions_;
  /// The first exception that is not before it.
  std::size_t exception_ = 0;
  std::string raised_;
};

/// Grows a TextTable.
class TextTableBuilder {
 public:
  /// Adds a text as listed, UTF-8; with `ascii` all its bytes are below 0x80.
  void add(std::string_view listed, bool ascii);

  /// Adds the first `columns` (at most 69) bytes at `line`, which are ASCII, without the blanks at their end
  /// where `trimmed`. kFoldWidth bytes can be read there.
  void addColumns(const char* line, std::size_t columns, bool trimmed);

  /// Makes the trigrams of all pages, once no more texts come. A table has none before; it is then
  /// searched without them.
  void completeTrigrams();

  /// Gives back what was reserved for more texts where that is more than the texts take up: a small listing
  /// is kept for long. table() is to be asked for again.
  void giveBackRoom();

  /// Forgets all texts and keeps the memory.
  void clear();

  std::uint32_t count() const { return count_; }

  /// The table so far; valid until the next add().
  TextTable table() const;

  /// Bytes that the arrays take up.
  std::size_t memorySize() const;

 private:
  void beginText();
  void endText(std::size_t length);
  void makeRoom(std::size_t bytes);
  void addAscii(std::string_view listed);
  void addUpperBits(const FoldedColumns& folded, std::size_t length);
  void addOther(std::string_view listed);

  std::uint32_t count_ = 0;
  std::size_t foldedSize_ = 0;
  /// Longer than foldedSize_ by kScanPadding at least; texts are folded in place.
  std::string folded_ = std::string(kScanPadding, '\0');
  std::vector<TextTable::Mark> marks_;
  std::vector<std::uint64_t> trigrams_;
  std::vector<std::uint64_t> hasUpper_;
  std::vector<std::uint8_t> upperBits_;
  static constexpr std::uint32_t kNoText = UINT32_MAX;
  std::vector<TextTable::Exception> exceptions_{{kNoText, 0}};
  std::string exceptionTexts_;
};

}  // namespace quorvin
