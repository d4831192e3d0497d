// SPDX-License-Identifier: GPL-2.0-or-later

// Which vector instructions the search uses.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace quorvin {

/// The sets of vector instructions that the search is compiled for, best first. Baseline is what every
/// processor of the family has.
enum class InstructionSet : unsigned char { Avx512, Avx2, Sse4, Ssse3, Baseline };
inline constexpr std::size_t kInstructionSetCount = 5;

/// Whether this processor, and the system on it, can run `set`.
bool canRun(InstructionSet set);

/// The best set that can be run, unless useInstructionSet() has named another.
InstructionSet usedInstructionSet();

/// From now on `set`, which canRun(); nothing for the best again. For tests. Not to be called while a search
/// runs.
void useInstructionSet(std::optional<InstructionSet> set);

/// The versions of one function, by InstructionSet; null where it was not compiled for a set, but there is
/// always one for Baseline. The vector library's own choosing is not used, since the mere loading of its
/// shared library takes 3 ms, half of the start of the console program.
template <typename Function>
struct FunctionVersions {
  std::array<Function, kInstructionSetCount> bySet;

  /// The version to be called.
  Function chosen() const {
    auto set = static_cast<std::size_t>(usedInstructionSet());
    while (bySet[set] == nullptr) ++set;
    return bySet[set];
  }
};

/// `number` as a number whose lowest byte comes first in memory, whatever the processor's own order; the same
/// call turns it back.
constexpr std::uint64_t lowestByteFirst(std::uint64_t number) {
  return std::endian::native == std::endian::big ? __builtin_bswap64(number) : number;
}

/// The bits of a vector mask as the vector library stores them, eight to a byte and the first lane lowest:
/// the first lane is bit 0.
inline std::uint64_t bitsOfStoredMask(const std::uint8_t (&stored)[8]) {
  std::uint64_t bits = 0;
  __builtin_memcpy(&bits, stored, sizeof bits);
  return lowestByteFirst(bits);
}

/// FunctionVersions of a function that was compiled once for each instruction set, as an initialiser.
#define QUORVIN_VERSIONS_OF(function)                                                  \
  {                                                                                    \
    {                                                                                  \
      HWY_CHOOSE_AVX3(function), HWY_CHOOSE_AVX2(function), HWY_CHOOSE_SSE4(function), \
          HWY_CHOOSE_SSSE3(function), HWY_CHOOSE_FALLBACK(function)                    \
    }                                                                                  \
  }

}  // namespace quorvin
