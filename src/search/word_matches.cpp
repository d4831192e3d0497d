#include "search/word_matches.h"

#include "search/instruction_set.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "search/word_matches.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace quorvin::HWY_NAMESPACE {

// Nothing here is a vector, but counting bits and finding the lowest one are single instructions only where
// the processor is known to have them.
std::size_t textsWithWord(std::string_view text, std::string_view word, const PlacesInText& places,
                          std::uint32_t* numbers) {
  constexpr std::size_t kHeadSize = sizeof(std::uint64_t);
  const std::size_t headSize = word.size() < kHeadSize ? word.size() : kHeadSize;
  std::uint64_t head = 0;
  __builtin_memcpy(&head, word.data(), headSize);
  std::uint64_t headMask = 0;
  __builtin_memset(&headMask, 0xFF, headSize);
  std::size_t count = 0;
  for (std::size_t block = 0; block * 64 < text.size(); ++block) {
    for (std::uint64_t matches = places.matches[block]; matches != 0; matches &= matches - 1) {
      const auto bit = static_cast<unsigned>(__builtin_ctzll(matches));
      const std::size_t at = block * 64 + bit;
      // The head may reach behind the text, where no word goes: it would go on over the end of the last text.
      std::uint64_t there = 0;
      __builtin_memcpy(&there, text.data() + at, kHeadSize);
      bool stands = ((there ^ head) & headMask) == 0;
      if (word.size() > kHeadSize && stands) {
        stands = word.size() <= text.size() - at &&
                 __builtin_memcmp(text.data() + at, word.data(), word.size()) == 0;
      }
      const std::uint64_t before = places.ends[block] & ((std::uint64_t{1} << bit) - 1);
      // Written in any case: going on without a branch costs less than one that is often guessed wrong.
      numbers[count] = places.endsBefore[block] + static_cast<std::uint32_t>(__builtin_popcountll(before));
      count += stands ? 1 : 0;
    }
  }
  return count;
}

}  // namespace quorvin::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

namespace quorvin {

std::size_t textsWithWord(std::string_view text, std::string_view word, const PlacesInText& places,
                          std::uint32_t* numbers) {
  static constexpr FunctionVersions<decltype(&textsWithWord)> kVersions = QUORVIN_VERSIONS_OF(textsWithWord);
  return kVersions.chosen()(text, word, places, numbers);
}

}  // namespace quorvin

#endif  // HWY_ONCE
