// Bytes from a file that are believed only after their checksum has been looked at.
#pragma once

#include "faults/runtime_fault.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace quorvin {

/// Thrown when bytes of a cache file are not those that were written.
class DamagedSegment : public RuntimeFault {
 public:
  DamagedSegment();
};

/// Checks a stretch of memory block by block, each block when it is first asked for.
class ByteCheck {
 public:
  static constexpr std::size_t kBlockSize = std::size_t{1} << 14;

  /// `sums` are the checksums of `bytes`, block by block; the last block may be shorter. Both must outlive
  /// the check.
  ByteCheck(std::span<const std::byte> bytes, std::span<const std::uint64_t> sums);

  /// The size of the stretch.
  std::size_t size() const { return bytes_.size(); }

  /// Where `data`, which lies in the stretch, stands in it.
  std::size_t offsetOf(const void* data) const {
    return static_cast<std::size_t>(static_cast<const std::byte*>(data) - bytes_.data());
  }

  /// Makes sure of the `size` bytes at `data`, which lie in the stretch. Throws DamagedSegment.
  void require(const void* data, std::size_t size) const {
    if (size == 0) return;
    const std::size_t offset = offsetOf(data);
    for (std::size_t block = offset / kBlockSize; block <= (offset + size - 1) / kBlockSize; ++block) {
      if (!good_[block]) checkBlock(block);
    }
  }

  /// Makes sure that `copy` is the content of `block`. Throws DamagedSegment.
  void requireBlock(std::size_t block, std::span<const std::byte> copy) const;

  /// Whether a block has turned out not to be what it was.
  bool foundDamage() const { return foundDamage_; }

 private:
  void checkBlock(std::size_t block) const;

  std::span<const std::byte> bytes_;
  std::span<const std::uint64_t> sums_;
  /// What has been looked at; asking does not change what the bytes are.
  mutable std::vector<std::uint8_t> good_;
  mutable bool foundDamage_ = false;
};

/// The checksum of `bytes` as ByteCheck wants it.
std::uint64_t checksumOf(std::span<const std::byte> bytes);

/// The checksums of all blocks of `bytes`.
std::vector<std::uint64_t> checksumsOf(std::span<const std::byte> bytes);

}  // namespace quorvin
