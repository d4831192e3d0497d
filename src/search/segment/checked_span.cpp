// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/segment/checked_span.h"

#include "texts/texts.h"

#include <algorithm>
#include <utility>
// On this processor family the library has faster ways to the same sums, and a header that picks one.
#if defined(__x86_64__) && __has_include(<xxh_x86dispatch.h>)
#include <xxh_x86dispatch.h>
#else
#include <xxhash.h>
#endif

namespace quorvin {

DamagedSegment::DamagedSegment()
    : RuntimeFault(FaultNumber::DeviceError, Texts::tr("A file of the search cache is damaged")) {}

ByteCheck::ByteCheck(std::span<const std::byte> bytes, std::span<const std::uint64_t> sums, Fetch fetch)
    : bytes_(bytes),
      sums_(sums),
      fetch_(std::move(fetch)),
      good_((bytes.size() + kBlockSize - 1) / kBlockSize) {
  if (sums_.size() != good_.size()) throw DamagedSegment();
}

void ByteCheck::forget() {
  for (std::atomic<std::uint8_t>& block : good_) block = 0;
  goodBlocks_ = 0;
}

/// Fetches and checks the block `first`, which was not good yet, and some of those after it up to `last`.
void ByteCheck::checkBlocks(std::size_t first, std::size_t last) const {
  // So many that they are still in the processor's cache when they are checked.
  constexpr std::size_t kMostAtOnce = 8;
  if (last >= good_.size()) throw DamagedSegment();
  const std::scoped_lock lock(mutex_);
  std::size_t end = first;
  while (end <= last && end - first < kMostAtOnce && !isGood(end)) ++end;
  // Another thread has done it meanwhile.
  if (end == first) return;
  fetchBlocks(first, end - first);
  for (std::size_t block = first; block < end; ++block) {
    const std::size_t begin = block * kBlockSize;
    requireBlock(block, bytes_.subspan(begin, std::min(kBlockSize, bytes_.size() - begin)));
    good_[block].store(1, std::memory_order_release);
    ++goodBlocks_;
  }
}

void ByteCheck::fetchBlocks(std::size_t first, std::size_t count) const {
  if (!fetch_) return;
  const std::size_t begin = first * kBlockSize;
  try {
    fetch_(begin, std::min(count * kBlockSize, bytes_.size() - begin));
  } catch (const RuntimeFault&) {
    foundDamage_ = true;
    throw DamagedSegment();
  }
}

void ByteCheck::requireBlock(std::size_t block, std::span<const std::byte> copy) const {
  if (block < sums_.size() && checksumOf(copy) == sums_[block]) return;
  foundDamage_ = true;
  throw DamagedSegment();
}

std::uint64_t checksumOf(std::span<const std::byte> bytes) {
  return XXH3_64bits(bytes.data(), bytes.size());
}

std::vector<std::uint64_t> checksumsOf(std::span<const std::byte> bytes) {
  std::vector<std::uint64_t> sums;
  while (!bytes.empty()) {
    const std::size_t size = std::min(ByteCheck::kBlockSize, bytes.size());
    sums.push_back(checksumOf(bytes.first(size)));
    bytes = bytes.subspan(size);
  }
  return sums;
}

}  // namespace quorvin
