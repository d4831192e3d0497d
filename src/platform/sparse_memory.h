// SPDX-License-Identifier: GPL-2.0-or-later

// Memory that takes up room only where it is used.
#pragma once

#include <cstddef>
#include <span>

namespace quorvin {

/// Bytes that are all 0 at first and take up none of the machine's memory until they are written to.
class SparseMemory {
 public:
  /// Throws std::bad_alloc where the program may not have so much.
  explicit SparseMemory(std::size_t size);
  ~SparseMemory();
  SparseMemory(const SparseMemory&) = delete;
  SparseMemory& operator=(const SparseMemory&) = delete;

  /// All of it; the same place as long as the object lives.
  std::span<std::byte> bytes() const { return {data_, size_}; }

  /// Gives the room back. All bytes are 0 again.
  void release() const;

 private:
  std::byte* data_ = nullptr;
  std::size_t size_ = 0;
};

}  // namespace quorvin
