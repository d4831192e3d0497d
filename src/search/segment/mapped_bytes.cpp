// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/segment/mapped_bytes.h"

#include <utility>

namespace quorvin {

MappedBytes::Map::Map(const RandomAccessFile& file, std::int64_t offset, std::size_t size,
                      std::span<const std::uint64_t> sums)
    : writing(file.lastWriting()), map(file, offset, size), check(map.bytes(), sums) {}

MappedBytes::MappedBytes(std::shared_ptr<const RandomAccessFile> file, std::int64_t offset, std::size_t size,
                         std::span<const std::uint64_t> sums)
    : file_(std::move(file)), offset_(offset), size_(size), sums_(sums) {}

std::optional<std::string_view> MappedBytes::take(std::size_t begin, std::size_t size) {
  if (!map_) map();
  if (!map_) return std::nullopt;
  try {
    map_->check.require(begin, size);
  } catch (const DamagedSegment&) {
    foundDamage_ = true;
    throw;
  }
  return std::string_view(reinterpret_cast<const char*>(map_->map.bytes().data()) + begin, size);
}

void MappedBytes::map() {
  if (cannotBeMapped_) return;
  try {
    map_.emplace(*file_, offset_, size_, sums_);
  } catch (const RuntimeFault&) {
    // Who wants the bytes can still read them, or finds out what is wrong with them.
    cannotBeMapped_ = true;
  }
}

void MappedBytes::requireTaken() {
  if (!map_ || !map_->map.isLost()) return;
  foundDamage_ = true;
  throw DamagedSegment();
}

bool MappedBytes::wasChanged() const {
  try {
    return map_ && file_->lastWriting() != map_->writing;
  } catch (const RuntimeFault&) {
    return true;
  }
}

void MappedBytes::release() {
  map_.reset();
  cannotBeMapped_ = false;
}

}  // namespace quorvin
