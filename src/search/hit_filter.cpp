// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/hit_filter.h"

#include "platform/text_encoding.h"
#include "search/segment/segment.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <bit>

namespace quorvin {

namespace {

/// What is looked at before the clock is looked at again: some 0.05 ms.
constexpr std::int64_t kRowsPerStep = 8192;
/// All entries between the first and the last of a stretch are searched where no more than so many come on
/// one row that matters: looking at a single one takes as long.
constexpr std::int64_t kEntriesPerRow = 32;
/// Matches above this have all words.
constexpr std::int16_t kAllWords = 99;

QStringList wordsOf(const QString& text) {
  QStringList words = simpleLowerCase(text).split(u' ', Qt::SkipEmptyParts);
  words.removeDuplicates();
  if (words.size() > kMostWords) words.resize(kMostWords);
  return words;
}

std::uint64_t lowestBits(std::int64_t count) {
  return count >= 64 ? ~std::uint64_t{0} : (std::uint64_t{1} << count) - 1;
}

}  // namespace

HitFilter::Word::Word(const QString& text)
    : bytes(text.toStdString()), query(text, kAllWords), search(query) {}

class HitFilter::RowLook {
 public:
  RowLook(const Segment& segment, const std::vector<Word*>& words)
      : words_(words),
        starts_(segment.arrays().blockStarts.all()),
        folders_(segment.arrays().folders),
        names_(segment.arrays().entries) {}

  bool hasWords(std::uint32_t entry) {
    if (!isInBlock(entry)) lookAtFolder(blockAt(starts_, entry));
    if (notInFolder_.empty()) return true;
    const std::string_view name = names_.text(entry);
    return std::ranges::all_of(notInFolder_, [&](const Word* word) { return isIn(*word, name); });
  }

 private:
  static bool isIn(const Word& word, std::string_view text) {
    return text.find(word.bytes) != std::string_view::npos;
  }
  bool isInBlock(std::uint32_t entry) const { return entry >= blockBegin_ && entry < blockEnd_; }
  void lookAtFolder(std::uint32_t block) {
    notInFolder_.clear();
    const std::string_view folder = folders_.text(block);
    for (const Word* word : words_) {
      if (!isIn(*word, folder)) notInFolder_.push_back(word);
    }
    blockBegin_ = starts_[block];
    blockEnd_ = block + 1 < starts_.size() ? starts_[block + 1] : UINT32_MAX;
  }

  const std::vector<Word*>& words_;
  std::span<const std::uint32_t> starts_;
  TextWalk folders_;
  TextWalk names_;
  std::uint32_t blockBegin_ = 0;
  std::uint32_t blockEnd_ = 0;
  std::vector<const Word*> notInFolder_;
};

void HitFilter::setText(const QString& text) {
  const QStringList words = wordsOf(text);
  const auto isInNewWord = [&](const Word& before) {
    const QString known = textOfUtf8(before.bytes);
    return std::ranges::any_of(words, [&](const QString& word) { return word.contains(known); });
  };
  const bool narrows = isOn() && std::ranges::all_of(words_, isInNewWord);
  // Rows that have been looked at have bits of the text before, the others perhaps of the one before that,
  // which has been narrowed twice then.
  narrowedUntil_ = narrows ? std::max(lookedAt_, narrowedUntil_) : 0;
  std::deque<Word> before;
  before.swap(words_);
  allWords_.clear();
  newWords_.clear();
  for (const QString& word : words) {
    allWords_.push_back(&words_.emplace_back(word));
    const bool isKnown =
        std::ranges::any_of(before, [&](const Word& known) { return known.bytes == words_.back().bytes; });
    // The rows that were not looked at with the text before have not been asked for any of its words.
    if (!isKnown || lookedAt_ < narrowedUntil_) newWords_.push_back(allWords_.back());
  }
  lookedAt_ = 0;
}

void HitFilter::restart() {
  lookedAt_ = 0;
  narrowedUntil_ = 0;
  segment_.reset();
}

bool HitFilter::goOn(std::int64_t end, const SliceEnd& isOver) {
  bits_.resize(static_cast<std::size_t>((end + 63) / 64 + 1));
  while (lookedAt_ < end) {
    if (isOver()) return false;
    HitStretch stretch = table_.stretchAt(lookedAt_);
    std::int64_t most = std::min(kRowsPerStep, end - lookedAt_);
    // A piece lies on one side of this row.
    if (lookedAt_ < narrowedUntil_) most = std::min(most, narrowedUntil_ - lookedAt_);
    if (std::ssize(stretch.hits) > most) stretch.hits = stretch.hits.first(static_cast<std::size_t>(most));
    if (segment_ != stretch.segment && segment_ != nullptr) segment_->searched();
    segment_ = stretch.segment;
    look(stretch);
    lookedAt_ += std::ssize(stretch.hits);
  }
  if (segment_ != nullptr) segment_->searched();
  segment_.reset();
  return true;
}

void HitFilter::addRows(std::int64_t begin, std::int64_t end, std::vector<std::uint32_t>& rows) const {
  for (std::int64_t row = begin; row < end; row += 64) {
    const auto first = static_cast<std::uint32_t>(row);
    for (std::uint64_t left = bitsAt(row) & lowestBits(end - row); left != 0; left &= left - 1) {
      rows.push_back(first + static_cast<std::uint32_t>(std::countr_zero(left)));
    }
  }
}

void HitFilter::look(const HitStretch& stretch) {
  const std::int64_t rows = candidates(stretch);
  if (rows == 0) return;
  const std::int64_t entries =
      std::int64_t{stretch.hits.back().entry} - std::int64_t{stretch.hits.front().entry} + 1;
  try {
    if (entries <= rows * kEntriesPerRow) return lookAtAll(stretch);
  } catch (const DamagedSegment&) {
    // What can be read of it is looked at one by one.
  }
  lookAtEach(stretch);
}

/// How many rows of the stretch may have the words. The bits of the others are clear.
std::int64_t HitFilter::candidates(const HitStretch& stretch) const {
  if (stretch.firstRow >= narrowedUntil_) return std::ssize(stretch.hits);
  std::int64_t count = 0;
  for (std::int64_t i = 0; i < std::ssize(stretch.hits); i += 64) {
    const std::uint64_t inside = lowestBits(std::ssize(stretch.hits) - i);
    count += std::popcount(bitsAt(stretch.firstRow + i) & inside);
  }
  return count;
}

/// Searches the segment from the first entry of the stretch to the last, as a search does.
void HitFilter::lookAtAll(const HitStretch& stretch) {
  const std::uint32_t first = stretch.hits.front().entry;
  const std::uint32_t last = stretch.hits.back().entry + 1;
  const bool isWhole = last - first == stretch.hits.size();
  std::array<std::uint64_t, kRowsPerStep / 64> rows;
  rows.fill(~std::uint64_t{0});
  for (Word* word : wordsFor(stretch.firstRow)) {
    const std::span<const std::uint64_t> found = word->search.mark(*stretch.segment, first, last);
    if (found.empty()) rows.fill(0);
    if (isWhole) {
      for (std::size_t i = 0; i < found.size() && i < rows.size(); ++i) rows[i] &= found[i];
      continue;
    }
    for (std::size_t i = 0; !found.empty() && i < stretch.hits.size(); ++i) {
      const std::uint32_t at = stretch.hits[i].entry - first;
      const std::uint64_t isFound = found[at / 64] >> (at % 64) & 1U;
      rows[i / 64] &= ~((isFound ^ 1U) << (i % 64));
    }
  }
  for (std::int64_t i = 0; i < std::ssize(stretch.hits); i += 64) {
    keepBits(stretch.firstRow + i, std::ssize(stretch.hits) - i, rows[static_cast<std::size_t>(i / 64)]);
  }
}

void HitFilter::lookAtEach(const HitStretch& stretch) {
  RowLook row(*stretch.segment, wordsFor(stretch.firstRow));
  const bool isNarrowed = stretch.firstRow < narrowedUntil_;
  for (std::int64_t i = 0; i < std::ssize(stretch.hits); i += 64) {
    const std::int64_t count = std::min<std::int64_t>(64, std::ssize(stretch.hits) - i);
    std::uint64_t left = lowestBits(count) & (isNarrowed ? bitsAt(stretch.firstRow + i) : ~std::uint64_t{0});
    std::uint64_t kept = 0;
    for (; left != 0; left &= left - 1) {
      const int bit = std::countr_zero(left);
      try {
        const bool has = row.hasWords(stretch.hits[static_cast<std::size_t>(i + bit)].entry);
        kept |= std::uint64_t{has} << bit;
      } catch (const DamagedSegment&) {
        // A row that cannot be read is not shown among those that were found.
      }
    }
    keepBits(stretch.firstRow + i, count, kept);
  }
}

/// The bits of 64 rows from `row` on.
std::uint64_t HitFilter::bitsAt(std::int64_t row) const {
  const auto element = static_cast<std::size_t>(row / 64);
  const auto shift = static_cast<unsigned>(row % 64);
  if (shift == 0) return bits_[element];
  return bits_[element] >> shift | bits_[element + 1] << (64 - shift);
}

/// Of `count` rows from `row` on, at most 64, those whose bits are set have the words as far as they have
/// been looked for.
void HitFilter::keepBits(std::int64_t row, std::int64_t count, std::uint64_t bits) {
  const std::uint64_t inside = lowestBits(count);
  if (row < narrowedUntil_) bits &= bitsAt(row);
  const auto element = static_cast<std::size_t>(row / 64);
  const auto shift = static_cast<unsigned>(row % 64);
  bits_[element] = (bits_[element] & ~(inside << shift)) | (bits & inside) << shift;
  if (shift == 0) return;
  bits_[element + 1] = (bits_[element + 1] & ~(inside >> (64 - shift))) | (bits & inside) >> (64 - shift);
}

}  // namespace quorvin
