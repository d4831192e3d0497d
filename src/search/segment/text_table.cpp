// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/segment/text_table.h"

#include "platform/instruction_set.h"
#include "platform/text_encoding.h"
#include "search/format/line_scan.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace quorvin {

namespace {

/// How much more room than needed is made at a time.
constexpr std::size_t kGrowth = std::size_t{1} << 16;

constexpr std::uint64_t lowBits(std::size_t count) {
  return (std::uint64_t{1} << count) - 1;
}

const char* endOfText(const char* begin) {
  return static_cast<const char*>(::rawmemchr(begin, kTextEnd));
}

/// The bits of eight letters, the first one lowest, as what tells a capital from a small letter in each byte.
constexpr std::uint64_t capitalBytes(std::uint8_t bits) {
  const std::uint64_t picked = bits * 0x0101010101010101U & 0x8040201008040201U;
  return ((picked + 0x7F7F7F7F7F7F7F7FU) & 0x8080808080808080U) >> 2;
}

/// Writes `folded` to `raised` with the capitals put back. Readable bytes follow it.
void raise(std::string_view folded, std::span<const std::uint8_t> upperBits, std::string& raised) {
  raised.resize(upperBits.size() * sizeof(std::uint64_t));
  for (std::size_t i = 0; i < upperBits.size(); ++i) {
    std::uint64_t eight = 0;
    std::memcpy(&eight, folded.data() + i * sizeof eight, sizeof eight);
    eight = lowestByteFirst(lowestByteFirst(eight) ^ capitalBytes(upperBits[i]));
    std::memcpy(raised.data() + i * sizeof eight, &eight, sizeof eight);
  }
}

}  // namespace

TextTable::Stretch TextTable::between(std::size_t beginMark, std::size_t endMark) const {
  const std::size_t begin = marks[beginMark].text;
  const std::size_t end = endMark < marks.size() ? marks[endMark].text : folded.size();
  return {begin, end - begin};
}

std::string_view TextTable::toSearch(Stretch stretch) const {
  if (passing != nullptr) {
    const auto copy = passing->take(folded.offset() + stretch.begin, stretch.size);
    if (copy) return *copy;
  }
  if (mapped != nullptr) {
    const auto there = mapped->take(folded.offset() + stretch.begin, stretch.size);
    if (there) return *there;
  }
  return textOf(folded.part(stretch.begin, stretch.size));
}

std::string TextTable::listedText(std::uint32_t text) const {
  ListedWalk walk;
  walk.start(*this);
  return std::string(walk.at(text).listed);
}

std::uint32_t TextWalk::placeOf(std::uint32_t text) {
  const bool isAhead = current_ <= text && current_ / kTextsPerMark == text / kTextsPerMark;
  if (!isAhead) {
    group_ = table_.between(text / kTextsPerMark, text / kTextsPerMark + 1);
    groupBegin_ = table_.folded.part(group_.begin, group_.size).data();
    at_ = groupBegin_;
    current_ = text - text % kTextsPerMark;
  }
  for (; current_ < text; ++current_) at_ = endOfText(at_) + 1;
  return static_cast<std::uint32_t>(group_.begin + static_cast<std::size_t>(at_ - groupBegin_));
}

std::string_view TextWalk::text(std::uint32_t text) {
  placeOf(text);
  return {at_, static_cast<std::size_t>(endOfText(at_) - at_)};
}

std::vector<std::uint64_t> TextTable::makeTrigrams() const {
  constexpr std::uint32_t kMarksPerPage = kTextsPerPage / kTextsPerMark;
  TrigramRowsBuilder rows(pageCount());
  for (std::size_t page = 0; page < pageCount(); ++page) {
    const Stretch stretch = between(page * kMarksPerPage, (page + 1) * kMarksPerPage);
    // Trigrams that span two texts are added too: that costs a few bits, and saves a test for each byte.
    rows.addPage(textOf(folded.part(stretch.begin, stretch.size)));
  }
  return rows.finish();
}

void ListedWalk::start(const TextTable& table) {
  table_ = &table;
  current_ = UINT32_MAX;
  exceptions_ = table.exceptions.all();
}

ListedWalk::Text ListedWalk::at(std::uint32_t text) {
  const bool isAhead = current_ <= text && current_ / kTextsPerMark == text / kTextsPerMark;
  if (!isAhead) enterGroup(text);
  while (current_ < text) goOn();
  return {listed(), {begin_, size()}};
}

void ListedWalk::enterGroup(std::uint32_t text) {
  const std::uint32_t group = text / kTextsPerMark;
  const TextTable::Stretch stretch = table_->between(group, group + 1);
  begin_ = table_->folded.part(stretch.begin, stretch.size).data();
  end_ = endOfText(begin_);
  upper_ = table_->marks[group].upper;
  // The texts of a mark have their bits in one element.
  withUpper_ = table_->hasUpper[text / 64];
  if (current_ == UINT32_MAX || current_ > text) {
    const auto found = std::ranges::lower_bound(exceptions_, text, {}, &TextTable::Exception::text);
    exception_ = static_cast<std::size_t>(found - exceptions_.begin());
  }
  current_ = text - text % kTextsPerMark;
}

void ListedWalk::goOn() {
  if (hasUpper()) upper_ += (size() + 7) / 8;
  begin_ = end_ + 1;
  end_ = endOfText(begin_);
  ++current_;
}

std::string_view ListedWalk::listed() {
  while (exception_ < exceptions_.size() && exceptions_[exception_].text < current_) ++exception_;
  if (exception_ < exceptions_.size() && exceptions_[exception_].text == current_) {
    const std::uint32_t start = exceptions_[exception_].start;
    return textOf(table_->exceptionTexts.part(start, table_->exceptions[exception_ + 1].start - start));
  }
  if (!hasUpper()) return {begin_, size()};
  raise({begin_, size()}, table_->upperBits.part(upper_, (size() + 7) / 8), raised_);
  return std::string_view(raised_).substr(0, size());
}

void TextTableBuilder::add(std::string_view listed, bool ascii) {
  beginText();
  if (ascii) {
    addAscii(listed);
  } else {
    addOther(listed);
  }
}

void TextTableBuilder::addColumns(const char* line, std::size_t columns, bool trimmed) {
  beginText();
  makeRoom(kFoldWidth + 1);
  FoldedColumns folded = foldColumns(line, folded_.data() + foldedSize_);
  std::size_t length = columns;
  if (trimmed) {
    const std::uint64_t high = columns > 64 ? folded.textHigh & lowBits(columns - 64) : 0;
    const std::uint64_t low = columns < 64 ? folded.textLow & lowBits(columns) : folded.textLow;
    length = high != 0 ? 128 - static_cast<std::size_t>(std::countl_zero(high))
                       : 64 - static_cast<std::size_t>(std::countl_zero(low));
  }
  folded.upperLow = length < 64 ? folded.upperLow & lowBits(length) : folded.upperLow;
  folded.upperHigh = length > 64 ? folded.upperHigh & lowBits(length - 64) : 0;
  if ((folded.upperLow | folded.upperHigh) != 0) {
    hasUpper_.back() |= std::uint64_t{1} << (count_ % 64);
    addUpperBits(folded, length);
  }
  endText(length);
}

void TextTableBuilder::completeTrigrams() {
  if (trigrams_.empty()) trigrams_ = table().makeTrigrams();
}

void TextTableBuilder::clear() {
  count_ = 0;
  foldedSize_ = 0;
  marks_.clear();
  trigrams_.clear();
  hasUpper_.clear();
  upperBits_.clear();
  exceptions_.assign(1, {kNoText, 0});
  exceptionTexts_.clear();
}

void TextTableBuilder::beginText() {
  if (count_ % kTextsPerMark == 0) {
    marks_.push_back(
        {static_cast<std::uint32_t>(foldedSize_), static_cast<std::uint32_t>(upperBits_.size())});
  }
  if (count_ % 64 == 0) hasUpper_.push_back(0);
}

void TextTableBuilder::endText(std::size_t length) {
  foldedSize_ += length;
  folded_[foldedSize_++] = kTextEnd;
  ++count_;
}

void TextTableBuilder::makeRoom(std::size_t bytes) {
  const std::size_t needed = foldedSize_ + bytes + kScanPadding;
  if (folded_.size() < needed) folded_.resize(std::max(folded_.size() * 3 / 2, needed + kGrowth));
}

void TextTableBuilder::giveBackRoom() {
  const std::size_t needed = foldedSize_ + kScanPadding;
  if (folded_.size() < 2 * needed) return;
  folded_.resize(needed);
  folded_.shrink_to_fit();
}

void TextTableBuilder::addAscii(std::string_view listed) {
  makeRoom(listed.size() + kFoldWidth + 1);
  const std::size_t bits = upperBits_.size();
  bool anyUpper = false;
  for (std::size_t at = 0; at < listed.size(); at += kFoldWidth) {
    const std::string_view piece = listed.substr(at, kFoldWidth);
    char padded[kFoldWidth] = {};
    std::memcpy(padded, piece.data(), piece.size());
    const FoldedColumns folded = foldColumns(padded, folded_.data() + foldedSize_ + at);
    anyUpper |= (folded.upperLow | folded.upperHigh) != 0;
    // A full piece has a whole number of bytes of bits, so those of the next one follow without a gap.
    addUpperBits(folded, piece.size());
  }
  if (anyUpper) {
    hasUpper_.back() |= std::uint64_t{1} << (count_ % 64);
  } else {
    upperBits_.resize(bits);
  }
  endText(listed.size());
}

void TextTableBuilder::addUpperBits(const FoldedColumns& folded, std::size_t length) {
  const std::uint64_t upper[2] = {lowestByteFirst(folded.upperLow), lowestByteFirst(folded.upperHigh)};
  const auto* bits = reinterpret_cast<const std::uint8_t*>(upper);
  upperBits_.insert(upperBits_.end(), bits, bits + (length + 7) / 8);
}

void TextTableBuilder::addOther(std::string_view listed) {
  const std::string lower = simpleLowerCase(textOfUtf8(listed)).toStdString();
  const std::uint32_t number = count_;
  addAscii(lower);
  if (lower == listed) return;
  exceptions_.back().text = number;
  exceptionTexts_ += listed;
  exceptions_.push_back({kNoText, static_cast<std::uint32_t>(exceptionTexts_.size())});
}

TextTable TextTableBuilder::table() const {
  TextTable table;
  table.count = count_;
  table.folded = std::string_view(folded_).substr(0, foldedSize_);
  table.marks = marks_;
  table.trigrams = trigrams_;
  table.hasUpper = hasUpper_;
  table.upperBits = upperBits_;
  table.exceptions = exceptions_;
  table.exceptionTexts = exceptionTexts_;
  return table;
}

std::size_t TextTableBuilder::memorySize() const {
  return folded_.capacity() + marks_.capacity() * sizeof(TextTable::Mark) +
         trigrams_.capacity() * sizeof(std::uint64_t) + hasUpper_.capacity() * sizeof(std::uint64_t) +
         upperBits_.capacity() + exceptions_.capacity() * sizeof(TextTable::Exception) +
         exceptionTexts_.capacity();
}

}  // namespace quorvin
