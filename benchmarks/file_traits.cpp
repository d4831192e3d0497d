// SPDX-License-Identifier: GPL-2.0-or-later
#include "file_traits.h"

#include "random_source.h"

#include <algorithm>

namespace quorvin {
namespace {

// The number of bits in a size is bell-shaped, so sizes have a long tail. Whole numbers only: the tail of a
// floating-point formula would differ from one maths library to the next.
std::int64_t longTailedSize(RandomSource& random) {
  constexpr int kLargestPower = 30;
  const int power = std::min(random.heads(64) - 20, kLargestPower);
  if (power < 0) return 0;
  const std::uint64_t start = std::uint64_t{1} << static_cast<unsigned>(power);
  return static_cast<std::int64_t>(start + (random.next() & (start - 1)));
}

}  // namespace

FileTraits traitsOf(std::uint64_t seed) {
  RandomSource random(seed);
  FileTraits traits;
  traits.size = longTailedSize(random);
  traits.moment.day = static_cast<int>(random.below(kMomentDays));
  traits.moment.secondOfDay = static_cast<int>(random.below(kSecondsOfDay));
  return traits;
}

}  // namespace quorvin
