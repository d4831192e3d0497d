// SPDX-License-Identifier: GPL-2.0-or-later

// A map of a file whose end is not the program's.
#pragma once

#include "files/file_reader.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace quorvin {

struct GuardedPlace;

/// A stretch of a file mapped for reading, for a program that has something to lose. Where the file turns out
/// to be cut or its disk to fail when a byte is looked at, all bytes of the map become 0, the map is lost,
/// and the look goes on.
///
/// The bytes may change at any moment: others can write to the file, and zeros come in the place of what is
/// gone. So they are for code that stays within bounds whatever it reads, reads nothing twice where that has
/// to be the same, and asks isLost() before it relies on what it has made of them. Zeros come without any
/// sign behind the end of a file that was cut, up to the end of that page of memory:
/// RandomAccessFile::lastWriting() tells.
///
/// The first map takes over the signal SIGBUS for the whole program. What it says of any other place goes on
/// to whoever had the signal before, as if nobody had taken it over. Maps can be made, used and removed by
/// several threads at once.
class GuardedMap {
 public:
  /// So many can be there at a time.
  static constexpr std::size_t kMostMaps = 1024;

  /// Maps `size` bytes (more than 0) from `offset` on, which is a multiple of kMappingAlignment. Throws
  /// RuntimeFault when the file is shorter than that, cannot be mapped, or too many are mapped already.
  GuardedMap(const RandomAccessFile& file, std::int64_t offset, std::size_t size);
  ~GuardedMap();
  GuardedMap(const GuardedMap&) = delete;
  GuardedMap& operator=(const GuardedMap&) = delete;

  std::span<const std::byte> bytes() const { return {data_, size_}; }

  /// Whether bytes could not be had when they were looked at: all of them are 0 since.
  bool isLost() const;

 private:
  const std::byte* data_ = nullptr;
  std::size_t size_ = 0;
  GuardedPlace* place_ = nullptr;
};

}  // namespace quorvin
