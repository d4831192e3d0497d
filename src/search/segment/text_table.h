// Texts in lower case, one after another in one array, and beside them what is needed to show them as listed.
#pragma once

#include "search/format/entry_columns.h"
#include "search/segment/byte_check.h"
#include "search/segment/byte_pair_scan.h"
#include "search/segment/passing_bytes.h"
#include "search/segment/trigram_filter.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quorvin {

/// Ends each text; UTF-8 never holds it, so no word can match across two texts.
inline constexpr char kTextEnd = static_cast<char>(0xFF);

/// Every 32nd text has its place noted; 1024 texts make a page, which has a trigram set of its own.
inline constexpr std::uint32_t kTextsPerMark = 32;
inline constexpr std::uint32_t kTextsPerPage = 1024;

/// A table of texts, numbered from 0. It refers to arrays that somebody else owns: a TextTableBuilder or a
/// mapped file.
struct TextTable {
  /// Where every 32nd text begins.
  struct Mark {
    /// In `folded`.
    std::uint32_t text;
    /// In `upperBits`.
    std::uint32_t upper;
  };
  /// A text whose lower case is more than ASCII letters made small.
  struct Exception {
    std::uint32_t text;
    /// Where it begins in `exceptionTexts`; it ends where the next exception begins.
    std::uint32_t start;
  };

  /// Number of texts.
  std::uint32_t count = 0;
  /// The folded texts, each followed by kTextEnd; kScanPadding readable bytes stand behind the last.
  std::string_view folded;
  /// One for each 32 texts.
  std::span<const Mark> marks;
  /// One for each page, or none at all while the table is being built.
  std::span<const TrigramSet> trigrams;

  /// A bit for each text: it has ASCII capitals.
  std::span<const std::uint64_t> hasUpper;
  /// For each such text, in order, a bit for each byte (whole bytes a text, lowest bit first): it was a
  /// capital.
  std::span<const std::uint8_t> upperBits;
  /// In ascending order of text; the last one, of no text, tells where exceptionTexts ends.
  std::span<const Exception> exceptions;
  std::string_view exceptionTexts;

  /// Where the arrays come from a file: what is read of them is to be checked first. Else null.
  const ByteCheck* check = nullptr;
  /// Where `folded` is to be searched once only: the way to read it for that. Else null.
  PassingBytes* passing = nullptr;

  /// Checks the `size` bytes at `data`, which lie in one of the arrays. Throws DamagedSegment.
  void require(const void* data, std::size_t size) const {
    if (check != nullptr) check->require(data, size);
  }

  /// `stretch`, a part of `folded`, checked and ready to be searched: itself, or a copy that is valid until
  /// the next call. kScanPadding readable bytes stand behind it. Throws DamagedSegment.
  std::string_view toSearch(std::string_view stretch) const;

  /// The folded texts from the 32-text mark `beginMark` to `endMark` (or the end of the table); not checked.
  std::string_view between(std::size_t beginMark, std::size_t endMark) const;

  /// The folded text of `text`, without its end byte.
  std::string_view foldedText(std::uint32_t text) const;
  /// The text as listed, UTF-8.
  std::string listedText(std::uint32_t text) const;
};

/// Grows a TextTable.
class TextTableBuilder {
 public:
  /// Adds a text as listed, UTF-8; `ascii` tells that all its bytes are below 0x80.
  void add(std::string_view listed, bool ascii);

  /// Adds the first `columns` (at most 69) bytes at `line`, which are ASCII, without the blanks at their end
  /// where `trimmed`. kFoldWidth bytes can be read there.
  void addColumns(const char* line, std::size_t columns, bool trimmed);

  /// Makes the trigram sets of all pages. A table has none before; it is then searched without them.
  void completeTrigrams();

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
  std::vector<TrigramSet> trigrams_;
  std::vector<std::uint64_t> hasUpper_;
  std::vector<std::uint8_t> upperBits_;
  static constexpr std::uint32_t kNoText = UINT32_MAX;
  std::vector<TextTable::Exception> exceptions_{{kNoText, 0}};
  std::string exceptionTexts_;
};

}  // namespace quorvin
