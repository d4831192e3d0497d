// SPDX-License-Identifier: GPL-2.0-or-later

// Arrays that may lie in a kept file: what is read of them is checked first.
#pragma once

#include "faults/runtime_fault.h"

#include <algorithm>
#include <atomic>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <mutex>
#include <span>
#include <string_view>
#include <vector>

namespace quorvin {

/// Thrown when bytes of a kept file are not those that were written.
class DamagedSegment : public RuntimeFault {
 public:
  DamagedSegment();
};

/// Fetches a stretch of a kept file into memory and checks it, block by block, each block when it is first
/// asked for. From then on it stays what it was when it was checked, whatever becomes of the file. Several
/// threads may ask at once.
class ByteCheck {
 public:
  static constexpr std::size_t kBlockSize = std::size_t{1} << 14;

  /// Brings the `size` bytes of the stretch from `offset` on to their place in memory. May throw
  /// RuntimeFault, which counts as damage.
  using Fetch = std::function<void(std::size_t offset, std::size_t size)>;

  /// `bytes` is where the stretch has its place; without `fetch` it is there already. `sums` are its
  /// checksums, block by block; the last block may be shorter. Both must outlive the check.
  ByteCheck(std::span<const std::byte> bytes, std::span<const std::uint64_t> sums, Fetch fetch = {});

  /// The size of the stretch.
  std::size_t size() const { return bytes_.size(); }

  /// Makes sure of the `size` bytes from `offset` on, which lie in the stretch. Throws DamagedSegment.
  void require(std::size_t offset, std::size_t size) const {
    if (size == 0) return;
    const std::size_t last = (offset + size - 1) / kBlockSize;
    for (std::size_t block = offset / kBlockSize; block <= last; ++block) {
      if (!isGood(block)) checkBlocks(block, last);
    }
  }

  /// Forgets what has been fetched: it is fetched again when it is asked for. Elements that were given out
  /// are no longer valid, so nobody else may be asking.
  void forget();

  /// How many bytes have been fetched.
  std::size_t fetchedSize() const { return std::min(goodBlocks_ * kBlockSize, bytes_.size()); }

  /// Makes sure that `copy` is the content of `block`. Throws DamagedSegment.
  void requireBlock(std::size_t block, std::span<const std::byte> copy) const;

  /// Whether a block has turned out not to be what was written.
  bool foundDamage() const { return foundDamage_; }

 private:
  bool isGood(std::size_t block) const { return good_[block].load(std::memory_order_acquire) != 0; }
  void checkBlocks(std::size_t first, std::size_t last) const;
  void fetchBlocks(std::size_t first, std::size_t count) const;

  std::span<const std::byte> bytes_;
  std::span<const std::uint64_t> sums_;
  Fetch fetch_;
  /// Held while blocks are fetched and checked.
  mutable std::mutex mutex_;
  /// True for each block that is there and good; asking does not change what the bytes are.
  mutable std::vector<std::atomic<std::uint8_t>> good_;
  mutable std::atomic<std::size_t> goodBlocks_ = 0;
  mutable std::atomic<bool> foundDamage_ = false;
};

/// An array that somebody else owns. Elements of one that comes out of a kept file are given out only through
/// a check of their blocks, others as they are.
template <typename Element>
class CheckedSpan {
 public:
  CheckedSpan() = default;

  /// An array in memory: a vector, a string or the like. Not explicit, so that it can be assigned.
  template <typename Elements>
  requires(!std::same_as<Elements, CheckedSpan> &&
           std::convertible_to<const Elements&, std::span<const Element>>)
      CheckedSpan(const Elements& elements)
      : elements_(elements) {}

  /// The array of `count` elements that starts at `offset` in the stretch `bytes`, which `check` knows and
  /// which holds all of it. `check` must outlive every use.
  CheckedSpan(std::span<const std::byte> bytes, std::size_t offset, std::size_t count, const ByteCheck& check)
      : elements_(reinterpret_cast<const Element*>(bytes.data() + offset), count),
        check_(&check),
        offset_(offset) {}

  std::size_t size() const { return elements_.size(); }
  std::size_t sizeInBytes() const { return elements_.size_bytes(); }
  bool empty() const { return elements_.empty(); }
  /// Where the array starts in its checked stretch; 0 in memory.
  std::size_t offset() const { return offset_; }

  /// The `count` elements from `first` on. They may be read again and again without further checks. Throws
  /// DamagedSegment, also when there are not so many.
  std::span<const Element> part(std::size_t first, std::size_t count) const {
    if (first > size() || count > size() - first) throw DamagedSegment();
    if (check_ != nullptr) check_->require(offset_ + first * sizeof(Element), count * sizeof(Element));
    return elements_.subspan(first, count);
  }
  std::span<const Element> all() const { return part(0, size()); }
  const Element& operator[](std::size_t at) const { return part(at, 1).front(); }

 private:
  std::span<const Element> elements_;
  /// Null for an array in memory.
  const ByteCheck* check_ = nullptr;
  std::size_t offset_ = 0;
};

/// Checked characters as text.
inline std::string_view textOf(std::span<const char> characters) {
  return {characters.data(), characters.size()};
}

/// The checksum of `bytes` as ByteCheck wants it.
std::uint64_t checksumOf(std::span<const std::byte> bytes);

/// The checksums of all blocks of `bytes`.
std::vector<std::uint64_t> checksumsOf(std::span<const std::byte> bytes);

}  // namespace quorvin
