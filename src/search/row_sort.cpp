// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/row_sort.h"

#include <algorithm>
#include <utility>

namespace quorvin {

namespace {

/// The clock is looked at after work on so many rows: some 0.1 ms.
constexpr auto kStep = static_cast<std::size_t>(kRowsPerLook);
/// So many rows are sorted at once; they fit into the nearest cache.
constexpr std::size_t kSmallPart = 2048;
constexpr int kDigitBits = 8;

int shiftOf(int bits) {
  return std::max(0, bits - kDigitBits);
}

}  // namespace

RowSort::RowSort(std::vector<KeyedRow> rows, NextKeys nextKeys, bool descending)
    : rows_(std::move(rows)), nextKeys_(std::move(nextKeys)), descending_(descending) {
  Part whole{0, rows_.size()};
  whole.isInRowOrder = true;
  parts_.push_back(whole);
}

bool RowSort::goOn(const SliceEnd& isOver) {
  while (!parts_.empty()) {
    Part& part = parts_.back();
    const std::size_t size = part.end - part.begin;
    if (size > kSmallPart) {
      if (!work(part, isOver)) return false;
      continue;
    }
    const std::span<KeyedRow> rows(rows_.data() + part.begin, size);
    const std::size_t bytesBefore = part.bytesBefore;
    parts_.pop_back();
    sortSmall(rows, bytesBefore);
    if (spend(size, isOver)) return parts_.empty();
  }
  return true;
}

bool RowSort::spend(std::size_t rows, const SliceEnd& isOver) {
  spent_ += rows;
  if (spent_ < kStep) return false;
  spent_ = 0;
  return isOver();
}

/// One phase of a large part; false where the slice was over before.
bool RowSort::work(Part& part, const SliceEnd& isOver) {
  switch (part.phase) {
    case Phase::FindBits:
      return findBits(part, isOver);
    case Phase::Count:
      return count(part, isOver);
    case Phase::Spread:
      if (!spread(part, isOver)) return false;
      split(part);
      return true;
    case Phase::Alike:
      decideOnAlike(part);
      return true;
    case Phase::Refill:
      return refill(part, isOver);
  }
  return true;
}

bool RowSort::findBits(Part& part, const SliceEnd& isOver) {
  const std::uint64_t first = rows_[part.begin].key();
  for (at_ = std::max(at_, part.begin); at_ < part.end;) {
    const std::size_t end = std::min(at_ + kStep, part.end);
    const std::size_t looked = end - at_;
    for (; at_ < end; ++at_) differing_ |= rows_[at_].key() ^ first;
    if (spend(looked, isOver)) return false;
  }
  part.bits = static_cast<int>(std::bit_width(differing_));
  part.phase = part.bits == 0 ? Phase::Alike : Phase::Count;
  at_ = 0;
  differing_ = 0;
  return true;
}

bool RowSort::count(Part& part, const SliceEnd& isOver) {
  const int shift = shiftOf(part.bits);
  for (at_ = std::max(at_, part.begin); at_ < part.end;) {
    const std::size_t end = std::min(at_ + kStep, part.end);
    const std::size_t looked = end - at_;
    for (; at_ < end; ++at_) ++counts_[digitOf(rows_[at_], shift)];
    if (spend(looked, isOver)) return false;
  }
  at_ = 0;
  if (counts_[digitOf(rows_[part.begin], shift)] == part.end - part.begin) {
    // They are alike in these bits, too.
    part.bits = shift;
    part.phase = shift == 0 ? Phase::Alike : Phase::Count;
  } else {
    std::size_t begin = part.begin;
    for (std::size_t digit = 0; digit < counts_.size(); ++digit) {
      next_[digit] = begin;
      begin += counts_[digit];
      ends_[digit] = begin;
    }
    digit_ = 0;
    part.phase = Phase::Spread;
  }
  counts_.fill(0);
  return true;
}

/// Each row goes to the next free place of its digit, and what was there is looked at next.
bool RowSort::spread(const Part& part, const SliceEnd& isOver) {
  const int shift = shiftOf(part.bits);
  for (; digit_ < next_.size(); ++digit_) {
    while (next_[digit_] < ends_[digit_]) {
      KeyedRow& here = rows_[next_[digit_]];
      const unsigned digit = digitOf(here, shift);
      if (digit == digit_) {
        ++next_[digit_];
      } else {
        std::swap(here, rows_[next_[digit]++]);
      }
      if (spend(1, isOver)) return false;
    }
  }
  return true;
}

/// Replaces a part that has been spread by those that it has come to, the first of which is sorted next.
void RowSort::split(const Part& part) {
  const int bits = shiftOf(part.bits);
  Part next{part.begin, part.end, part.bytesBefore, bits, bits == 0 ? Phase::Alike : Phase::Count};
  next.isByRow = part.isByRow;
  parts_.pop_back();
  const std::size_t begin = next.begin;
  for (std::size_t digit = ends_.size(); digit-- > 0;) {
    next.begin = digit == 0 ? begin : ends_[digit - 1];
    next.end = ends_[digit];
    if (next.end - next.begin > 1) parts_.push_back(next);
  }
}

/// All keys of the part are equal.
void RowSort::decideOnAlike(Part& part) {
  part.isByRow = isLastKey(rows_[part.begin].key());
  part.phase = Phase::Refill;
  if (part.isByRow && part.isInRowOrder) parts_.pop_back();
}

bool RowSort::refill(Part& part, const SliceEnd& isOver) {
  at_ = std::max(at_, part.begin);
  while (at_ < part.end) {
    const std::size_t count = std::min(kStep, part.end - at_);
    const std::span<KeyedRow> rows(rows_.data() + at_, count);
    if (part.isByRow) {
      for (KeyedRow& row : rows) row.setKey(row.row);
    } else {
      nextKeys_(rows, part.bytesBefore + sizeof(std::uint64_t));
    }
    at_ += count;
    if (spend(count, isOver)) return false;
  }
  at_ = 0;
  if (!part.isByRow) part.bytesBefore += sizeof(std::uint64_t);
  part.phase = Phase::FindBits;
  return true;
}

/// All rows whose keys are alike get their next keys together, so that many texts are fetched at once; then
/// those of each old key are sorted among themselves, and so on.
void RowSort::sortSmall(std::span<KeyedRow> rows, std::size_t bytesBefore) {
  alike_.assign(1, {0, rows.size()});
  while (!alike_.empty()) {
    nextAlike_.clear();
    for (const auto& [begin, end] : alike_) sortAlike(rows, begin, end);
    alike_.swap(nextAlike_);
    bytesBefore += sizeof(std::uint64_t);
    refillAlike(rows, bytesBefore);
  }
}

void RowSort::sortAlike(std::span<KeyedRow> rows, std::size_t begin, std::size_t end) {
  std::ranges::sort(rows.subspan(begin, end - begin), [](const KeyedRow& one, const KeyedRow& other) {
    return one.key() != other.key() ? one.key() < other.key() : one.row < other.row;
  });
  while (begin < end) {
    const std::uint64_t key = rows[begin].key();
    std::size_t behind = begin + 1;
    while (behind < end && rows[behind].key() == key) ++behind;
    if (behind - begin > 1 && !isLastKey(key)) nextAlike_.push_back({begin, behind});
    begin = behind;
  }
}

void RowSort::refillAlike(std::span<KeyedRow> rows, std::size_t bytesBefore) {
  refilled_.clear();
  for (const auto& [begin, end] : alike_) {
    refilled_.insert(refilled_.end(), rows.begin() + static_cast<std::ptrdiff_t>(begin),
                     rows.begin() + static_cast<std::ptrdiff_t>(end));
  }
  if (refilled_.empty()) return;
  nextKeys_(refilled_, bytesBefore);
  auto next = refilled_.begin();
  for (const auto& [begin, end] : alike_) {
    const auto behind = next + static_cast<std::ptrdiff_t>(end - begin);
    std::copy(next, behind, rows.begin() + static_cast<std::ptrdiff_t>(begin));
    next = behind;
  }
}

}  // namespace quorvin
