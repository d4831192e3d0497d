// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/segment/trigram_rows.h"

#include "platform/instruction_set.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace quorvin {

namespace {

constexpr unsigned kHashBits = 14;
static_assert(std::size_t{1} << kHashBits == TrigramRows::kCount);

std::uint16_t hashOf(std::uint32_t trigram) {
  // Multiplying by an odd constant spreads the letters over the upper bits, of which the uppermost are kept.
  return static_cast<std::uint16_t>((trigram * 0x9E3779B1U) >> (32 - kHashBits));
}

std::uint16_t trigramHash(const char* text) {
  const auto byte = [text](std::size_t i) { return std::uint32_t{static_cast<unsigned char>(text[i])}; };
  return hashOf(byte(0) | byte(1) << 8 | byte(2) << 16);
}

/// Six trigrams from eight bytes, of which each goes to `take` as its hash.
constexpr std::size_t kTrigramsAtOnce = 6;
template <typename Take>
void hashTrigrams(const char* text, Take take) {
  std::uint64_t bytes = 0;
  std::memcpy(&bytes, text, sizeof bytes);
  bytes = lowestByteFirst(bytes);
  for (std::size_t i = 0; i < kTrigramsAtOnce; ++i) {
    take(hashOf(static_cast<std::uint32_t>(bytes >> (8 * i)) & 0xFFFFFFU));
  }
}

/// A bit for each of 64 bytes that are 0 or 1, the first one lowest.
std::uint64_t bitsOfBytes(const std::uint8_t* bytes) {
  std::uint64_t bits = 0;
  for (std::size_t i = 0; i < 8; ++i) {
    std::uint64_t eight = 0;
    std::memcpy(&eight, bytes + 8 * i, sizeof eight);
    // Brings byte number n to bit 56 + n.
    bits |= (lowestByteFirst(eight) * 0x0102040810204080U >> 56) << (8 * i);
  }
  return bits;
}

/// Bit c of element r becomes bit r of element c: squares of 32 bits, then of 16, and so on change places.
void transpose(std::array<std::uint64_t, 64>& square) {
  std::uint64_t low = 0x00000000FFFFFFFFU;
  for (std::size_t side = 32; side != 0; side /= 2, low ^= low << side) {
    for (std::size_t r = 0; r < 64; r = (r + side + 1) & ~side) {
      const std::uint64_t changed = (square[r] >> side ^ square[r + side]) & low;
      square[r] ^= changed << side;
      square[r + side] ^= changed;
    }
  }
}

}  // namespace

TrigramRows::TrigramRows(const CheckedSpan<std::uint64_t>& bits, std::size_t pages)
    : bits_(bits), pages_(pages) {
  if (!bits_.empty() && bits_.size() != sizeFor(pages)) throw DamagedSegment();
}

TrigramProbe::TrigramProbe(std::string_view word) {
  for (std::size_t i = 0; i + 3 <= word.size(); ++i) rows_.push_back(trigramHash(word.data() + i));
  std::ranges::sort(rows_);
  rows_.erase(std::unique(rows_.begin(), rows_.end()), rows_.end());
}

TrigramRowsBuilder::TrigramRowsBuilder(std::size_t pages)
    : pages_(pages), bits_(TrigramRows::sizeFor(pages)) {
  waiting_.reserve(kPagesAtOnce);
}

void TrigramRowsBuilder::addPage(std::string_view text) {
  // A byte for each bit at first: nothing has to be read before it is written.
  std::array<std::uint8_t, TrigramRows::kCount> seen{};
  std::size_t i = 0;
  for (; i + sizeof(std::uint64_t) <= text.size(); i += kTrigramsAtOnce) {
    hashTrigrams(text.data() + i, [&seen](std::uint16_t hash) { seen[hash] = 1; });
  }
  for (; i + 3 <= text.size(); ++i) seen[trigramHash(text.data() + i)] = 1;
  PageSet& set = waiting_.emplace_back();
  for (std::size_t word = 0; word < set.size(); ++word) set[word] = bitsOfBytes(seen.data() + word * 64);
  if (waiting_.size() == kPagesAtOnce) turn();
}

std::vector<std::uint64_t> TrigramRowsBuilder::finish() {
  turn();
  return std::move(bits_);
}

/// Makes rows of the pages that wait.
void TrigramRowsBuilder::turn() {
  if (waiting_.empty()) return;
  for (std::size_t word = 0; word < TrigramRows::kCount / 64; ++word) {
    std::array<std::uint64_t, kPagesAtOnce> square{};
    for (std::size_t page = 0; page < waiting_.size(); ++page) square[page] = waiting_[page][word];
    transpose(square);
    for (std::size_t row = 0; row < square.size(); ++row) addToRow(word * 64 + row, square[row]);
  }
  turned_ += waiting_.size();
  waiting_.clear();
}

void TrigramRowsBuilder::addToRow(std::size_t row, std::uint64_t pages) {
  if (pages == 0) return;
  const std::size_t bit = row * pages_ + turned_;
  bits_[bit / 64] |= pages << (bit % 64);
  const std::uint64_t over = (pages >> 1) >> (63 - bit % 64);
  if (over != 0) bits_[bit / 64 + 1] |= over;
}

}  // namespace quorvin
