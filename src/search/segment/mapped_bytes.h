// SPDX-License-Identifier: GPL-2.0-or-later

// Bytes of a cache file that are looked at where the system keeps them.
#pragma once

#include "files/guarded_map.h"
#include "search/segment/checked_span.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string_view>

namespace quorvin {

/// Maps a stretch of a file for looks that stay within bounds whatever they read: nothing is copied, and the
/// memory is the system's. Each block is checked when it is first taken, but it may become another
/// afterwards.
class MappedBytes {
 public:
  /// The stretch of `size` bytes starts at `offset` in `file`; `sums` are the checksums of its blocks, and
  /// must outlive the object. It is mapped when bytes are first taken.
  MappedBytes(std::shared_ptr<const RandomAccessFile> file, std::int64_t offset, std::size_t size,
              std::span<const std::uint64_t> sums);

  /// The `size` bytes from `begin` on, which may change while they are looked at; valid until release().
  /// Nothing where the file cannot be mapped. Throws DamagedSegment.
  std::optional<std::string_view> take(std::size_t begin, std::size_t size);

  /// To be called when bytes have been looked at, before anything that was found in them is believed. Throws
  /// DamagedSegment when they could not be had.
  void requireTaken();

  /// Whether somebody has written to the file since the first bytes were taken. The system is asked.
  bool wasChanged() const;

  /// Whether bytes were damaged or could not be had, or wasChanged().
  bool foundDamage() const { return foundDamage_ || wasChanged(); }

  /// Gives the map back until bytes are taken again.
  void release();

 private:
  struct Map {
    RandomAccessFile::Writing writing;
    GuardedMap map;
    ByteCheck check;

    Map(const RandomAccessFile& file, std::int64_t offset, std::size_t size,
        std::span<const std::uint64_t> sums);
  };

  void map();

  std::shared_ptr<const RandomAccessFile> file_;
  std::int64_t offset_;
  std::size_t size_;
  std::span<const std::uint64_t> sums_;
  std::optional<Map> map_;
  bool cannotBeMapped_ = false;
  bool foundDamage_ = false;
};

}  // namespace quorvin
