#include "search/segment/trigram_filter.h"

#include <algorithm>
#include <cstring>

namespace quorvin {

namespace {

constexpr unsigned kBits = 13;
static_assert(std::size_t{1} << kBits == sizeof(TrigramSet) * 8);

std::uint16_t hashOf(const char* text) {
  std::uint32_t trigram = 0;
  std::memcpy(&trigram, text, 2);
  trigram |= static_cast<std::uint32_t>(static_cast<unsigned char>(text[2])) << 16;
  // Multiplying by an odd constant spreads the letters over the upper bits, of which the uppermost are kept.
  return static_cast<std::uint16_t>((trigram * 0x9E3779B1U) >> (32 - kBits));
}

}  // namespace

void addTrigrams(TrigramSet& set, std::string_view text) {
  for (std::size_t i = 0; i + 3 <= text.size(); ++i) {
    const std::uint16_t bit = hashOf(text.data() + i);
    set[bit / 64] |= std::uint64_t{1} << (bit % 64);
  }
}

TrigramProbe::TrigramProbe(std::string_view word) {
  for (std::size_t i = 0; i + 3 <= word.size(); ++i) bits_.push_back(hashOf(word.data() + i));
  std::sort(bits_.begin(), bits_.end());
  bits_.erase(std::unique(bits_.begin(), bits_.end()), bits_.end());
}

}  // namespace quorvin
