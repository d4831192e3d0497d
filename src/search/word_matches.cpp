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

#if HWY_ARCH_X86 && HWY_TARGET <= HWY_AVX3

/// Gathering bits is a single instruction on every processor that has these vectors; on some older ones it is
/// slower than a loop. No branch depends on what was found, so that a word that stands everywhere costs no
/// more than one that stands in a few texts.
void textsWithPlaces(std::span<const std::uint64_t> places, const std::uint64_t* ends, std::uint64_t* texts) {
  unsigned char carry = 0;
  std::uint64_t gathered = 0;
  unsigned used = 0;
  for (std::size_t block = 0; block < places.size(); ++block) {
    const std::uint64_t end = ends[block];
    // The bytes of a text are a run of ones that ends below its end. Added to it, one place or more carry
    // over into the end, and from the last run of the block into the next block.
    unsigned long long sum = 0;
    carry = _addcarry_u64(carry, ~end, places[block], &sum);
    const std::uint64_t seen = _pext_u64(sum, end);
    const auto count = static_cast<unsigned>(__builtin_popcountll(end));
    gathered |= seen << used;
    *texts = gathered;
    const std::uint64_t overflow = (seen >> 1) >> (63 - used);
    const unsigned total = used + count;
    const bool full = total >= 64;
    texts += full ? 1 : 0;
    gathered = full ? overflow : gathered;
    used = total % 64;
  }
  *texts = gathered;
}

#else

void textsWithPlaces(std::span<const std::uint64_t> places, const std::uint64_t* ends, std::uint64_t* texts) {
  std::size_t text = 0;
  texts[0] = 0;
  for (std::size_t block = 0; block < places.size(); ++block) {
    std::uint64_t endsLeft = ends[block];
    for (std::uint64_t left = places[block]; left != 0;) {
      const std::uint64_t place = left & (~left + 1);
      for (; (endsLeft & (place - 1)) != 0; endsLeft &= endsLeft - 1) {
        if (++text % 64 == 0) texts[text / 64] = 0;
      }
      texts[text / 64] |= std::uint64_t{1} << (text % 64);
      // The rest of this text is passed over.
      const std::uint64_t upToEnd = endsLeft == 0 ? ~std::uint64_t{0} : endsLeft ^ (endsLeft - 1);
      left &= ~upToEnd;
    }
    for (; endsLeft != 0; endsLeft &= endsLeft - 1) {
      if (++text % 64 == 0) texts[text / 64] = 0;
    }
  }
}

#endif

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
