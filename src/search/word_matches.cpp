#include "search/word_matches.h"

#include "search/instruction_set.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "search/word_matches.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace quorvin::HWY_NAMESPACE {

#include "search/text_gathering.h"

bool keepPlacesOf(std::string_view word, std::string_view text, std::uint64_t* places) {
  constexpr std::size_t kHeadSize = sizeof(std::uint64_t);
  const std::size_t headSize = word.size() < kHeadSize ? word.size() : kHeadSize;
  std::uint64_t head = 0;
  __builtin_memcpy(&head, word.data(), headSize);
  std::uint64_t headMask = 0;
  __builtin_memset(&headMask, 0xFF, headSize);
  std::uint64_t any = 0;
  for (std::size_t block = 0; block * 64 < text.size(); ++block) {
    std::uint64_t kept = 0;
    for (std::uint64_t left = places[block]; left != 0; left &= left - 1) {
      const std::size_t at = block * 64 + static_cast<unsigned>(__builtin_ctzll(left));
      // The head may reach behind the text, where no word goes: it would go on over the end of the last text.
      std::uint64_t there = 0;
      __builtin_memcpy(&there, text.data() + at, kHeadSize);
      bool stands = ((there ^ head) & headMask) == 0;
      if (word.size() > kHeadSize && stands) {
        stands = word.size() <= text.size() - at &&
                 __builtin_memcmp(text.data() + at, word.data(), word.size()) == 0;
      }
      kept |= stands ? left & (~left + 1) : 0;
    }
    places[block] = kept;
    any |= kept;
  }
  return any != 0;
}

void textsWithPlaces(std::span<const std::uint64_t> places, const std::uint64_t* ends, std::uint64_t* texts) {
  TextGathering gathering(texts);
  for (std::size_t block = 0; block < places.size(); ++block) gathering.add(places[block], ends[block]);
  gathering.finish();
}

}  // namespace quorvin::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

namespace quorvin {

bool keepPlacesOf(std::string_view word, std::string_view text, std::uint64_t* places) {
  static constexpr FunctionVersions<decltype(&keepPlacesOf)> kVersions = QUORVIN_VERSIONS_OF(keepPlacesOf);
  return kVersions.chosen()(word, text, places);
}

void textsWithPlaces(std::span<const std::uint64_t> places, const std::uint64_t* ends, std::uint64_t* texts) {
  static constexpr FunctionVersions<decltype(&textsWithPlaces)> kVersions =
      QUORVIN_VERSIONS_OF(textsWithPlaces);
  kVersions.chosen()(places, ends, texts);
}

}  // namespace quorvin

#endif  // HWY_ONCE
