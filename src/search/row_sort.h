// SPDX-License-Identifier: GPL-2.0-or-later

// Sorting very many rows by keys, a slice of work at a time.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <vector>

namespace quorvin {

/// Asked every now and then by work that goes on in slices: true where the present slice is over.
using SliceEnd = std::function<bool()>;

/// After so many rows it is time to ask: they take some hundredths of a millisecond.
inline constexpr std::int64_t kRowsPerLook = 4096;

/// A row on its way to its place. In two halves, so that it takes 12 bytes: there may be tens of millions.
struct KeyedRow {
  std::array<std::uint32_t, 2> keyHalves;
  std::uint32_t row;

  KeyedRow() = default;
  KeyedRow(std::uint64_t key, std::uint32_t rowNumber) : row(rowNumber) { setKey(key); }
  std::uint64_t key() const { return std::bit_cast<std::uint64_t>(keyHalves); }
  void setKey(std::uint64_t key) { keyHalves = std::bit_cast<std::array<std::uint32_t, 2>>(key); }
};

/// The first eight bytes of a text as a key: keys compare as the texts do. Shorter texts are filled up with
/// zeros, so that a key that ends in one says that the text has come to its end.
constexpr bool isTextOver(std::uint64_t key) {
  return (key & 0xFF) == 0;
}

/// Sorts rows by key, those of equal keys by row number. In place: first by the upper bits into 256 parts,
/// then each of these in the same way, until a part is so small that it is sorted at once.
class RowSort {
 public:
  /// Gives `rows`, whose texts are alike in the first `bytesBefore` bytes and longer, the keys of the eight
  /// bytes that follow. At most a few thousand rows at a time.
  using NextKeys = std::function<void(std::span<KeyedRow> rows, std::size_t bytesBefore)>;

  /// `rows` have their first keys and are in ascending order of row number. With `nextKeys` the keys are
  /// parts of texts; with `descending` these are the complements of what would be the keys otherwise.
  explicit RowSort(std::vector<KeyedRow> rows, NextKeys nextKeys = {}, bool descending = false);

  /// Goes on until the slice or the work is over; true when all is sorted.
  bool goOn(const SliceEnd& isOver);

  /// The rows, which are sorted once goOn() has said so.
  std::vector<KeyedRow>& rows() { return rows_; }

 private:
  enum class Phase { FindBits, Count, Spread, Alike, Refill };
  /// Rows that are in their place as a whole, but not among themselves.
  struct Part {
    std::size_t begin;
    std::size_t end;
    /// Bytes of their texts, before those of the keys, that are alike.
    std::size_t bytesBefore = 0;
    /// Their keys differ in the lowest bits alone, at most in so many.
    int bits = 64;
    Phase phase = Phase::FindBits;
    bool isInRowOrder = false;
    /// The keys are the row numbers: all else is alike.
    bool isByRow = false;
  };

  /// Notes work on `rows` rows; true where the slice is over.
  bool spend(std::size_t rows, const SliceEnd& isOver);
  bool work(Part& part, const SliceEnd& isOver);
  bool findBits(Part& part, const SliceEnd& isOver);
  bool count(Part& part, const SliceEnd& isOver);
  bool spread(const Part& part, const SliceEnd& isOver);
  void decideOnAlike(Part& part);
  bool refill(Part& part, const SliceEnd& isOver);
  void split(const Part& part);
  void sortSmall(std::span<KeyedRow> rows, std::size_t bytesBefore);
  void sortAlike(std::span<KeyedRow> rows, std::size_t begin, std::size_t end);
  void refillAlike(std::span<KeyedRow> rows, std::size_t bytesBefore);
  bool isLastKey(std::uint64_t key) const { return !nextKeys_ || isTextOver(descending_ ? ~key : key); }
  static unsigned digitOf(const KeyedRow& row, int shift) {
    return static_cast<unsigned>(row.key() >> shift) & 0xFF;
  }

  std::vector<KeyedRow> rows_;
  NextKeys nextKeys_;
  bool descending_;
  /// What is still to be sorted; the last one first.
  std::vector<Part> parts_;
  std::size_t spent_ = 0;
  // Of a small part: from where to where rows are alike so far.
  struct Alike {
    std::size_t begin;
    std::size_t end;
  };
  std::vector<Alike> alike_;
  std::vector<Alike> nextAlike_;
  std::vector<KeyedRow> refilled_;
  // Of the phase that is under way: how far it has come, and what it has found.
  std::size_t at_ = 0;
  std::uint64_t differing_ = 0;
  std::array<std::size_t, 256> counts_{};
  std::array<std::size_t, 256> next_{};
  std::array<std::size_t, 256> ends_{};
  std::size_t digit_ = 0;
};

}  // namespace quorvin
