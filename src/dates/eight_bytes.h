// SPDX-License-Identifier: GPL-2.0-or-later

// Text looked at eight bytes at a time, as a number whose lowest byte is the first one: numbers at fixed
// places are told from other text without a branch for each column.
#pragma once

#include <bit>
#include <cstdint>
#include <cstring>

namespace quorvin {

/// `sign` in each of eight bytes.
constexpr std::uint64_t eightTimes(char sign) {
  return 0x0101010101010101U * static_cast<unsigned char>(sign);
}

/// The eight bytes at `text`.
inline std::uint64_t eightBytesAt(const char* text) {
  std::uint64_t bytes = 0;
  std::memcpy(&bytes, text, sizeof bytes);
  return std::endian::native == std::endian::big ? __builtin_bswap64(bytes) : bytes;
}

/// Leaves those of `bytes` that are set in `mask` in `digits`, as the numbers 0 to 9, and all others as 0.
/// Gives 0 where each of them is a digit.
constexpr std::uint64_t noDigitsAmong(std::uint64_t bytes, std::uint64_t mask, std::uint64_t& digits) {
  digits = (bytes ^ eightTimes('0')) & mask;
  // A digit is 0 to 9 now; all else reaches the uppermost bit, by itself or with 118 added.
  return (digits | (digits + eightTimes(118))) & eightTimes('\x80');
}

}  // namespace quorvin
