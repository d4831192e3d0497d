// SPDX-License-Identifier: GPL-2.0-or-later

// Random numbers that are the same on every machine and with every library: the standard library's
// distributions are not, and a committed figure must name a file that anybody can make again.
#pragma once

#include <bit>
#include <cstdint>
#include <string_view>

namespace quorvin {

/// Spreads the bits of a number over all 64 (the finishing step of SplitMix64).
constexpr std::uint64_t mixBits(std::uint64_t bits) {
  bits = (bits ^ (bits >> 30U)) * 0xbf58476d1ce4e5b9U;
  bits = (bits ^ (bits >> 27U)) * 0x94d049bb133111ebU;
  return bits ^ (bits >> 31U);
}

/// A hash of `text` (FNV-1a, mixed), the same for ever.
constexpr std::uint64_t stableHash(std::string_view text) {
  std::uint64_t hash = 0xcbf29ce484222325U;
  for (const char byte : text) {
    hash ^= static_cast<unsigned char>(byte);
    hash *= 0x100000001b3U;
  }
  return mixBits(hash);
}

/// A SplitMix64 sequence: equal seeds give equal numbers.
class RandomSource {
 public:
  explicit RandomSource(std::uint64_t seed) : state_(mixBits(seed)) {}

  std::uint64_t next() {
    state_ += 0x9e3779b97f4a7c15U;
    return mixBits(state_);
  }

  /// A number from 0 to `bound` - 1; `bound` is 1 to 2^31. The bias of at most 2^-33 does not matter here.
  std::uint32_t below(std::uint32_t bound) {
    return static_cast<std::uint32_t>(((next() >> 32U) * bound) >> 32U);
  }

  /// True in `percent` of a hundred cases.
  bool chance(std::uint32_t percent) { return below(100) < percent; }

  /// A number of a bell curve without any floating point: the count of heads in `tosses` (1 to 64) coin
  /// tosses.
  int heads(unsigned tosses) { return std::popcount(next() >> (64U - tosses)); }

 private:
  std::uint64_t state_;
};

}  // namespace quorvin
