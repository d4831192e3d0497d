#include "search/segment/checked_span.h"

#include <algorithm>
// On this processor family the library has faster ways to the same sums, and a header that picks one.
#if defined(__x86_64__) && __has_include(<xxh_x86dispatch.h>)
#include <xxh_x86dispatch.h>
#else
#include <xxhash.h>
#endif

namespace quorvin {

DamagedSegment::DamagedSegment()
    : RuntimeFault(FaultNumber::DeviceError, QStringLiteral("A file of the search cache is damaged")) {}

ByteCheck::ByteCheck(std::span<const std::byte> bytes, std::span<const std::uint64_t> sums)
    : bytes_(bytes), sums_(sums), good_((bytes.size() + kBlockSize - 1) / kBlockSize, 0) {
  if (sums_.size() != good_.size()) throw DamagedSegment();
}

void ByteCheck::checkBlock(std::size_t block) const {
  const std::size_t begin = block * kBlockSize;
  if (block >= good_.size()) throw DamagedSegment();
  const std::size_t size = std::min(kBlockSize, bytes_.size() - begin);
  requireBlock(block, bytes_.subspan(begin, size));
  good_[block] = 1;
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
