// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/segment/passing_bytes.h"

#include "search/segment/text_scan.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace quorvin {

namespace {

constexpr std::size_t kBlock = ByteCheck::kBlockSize;
/// Enough to keep the number of calls small, and little enough to stay in the processor's cache until it has
/// been searched.
constexpr std::size_t kBlocksAhead = (std::size_t{1} << 17) / kBlock;
/// Single pieces here and there are read more cheaply where they are mapped.
constexpr int kPiecesUntilPassing = 4;
/// Room for what is left of the piece before, the blocks read in one go, and what a scan may read past them.
constexpr std::size_t kBufferSize = PassingBytes::kLongestPiece + kBlocksAhead * kBlock + kScanPadding;
static_assert(PassingBytes::kLongestPiece + 2 * kBlock <= kBlocksAhead * kBlock);

}  // namespace

PassingBuffers::Buffer PassingBuffers::take(std::size_t size) {
  const std::scoped_lock lock(mutex_);
  if (unused_.empty()) return std::make_unique_for_overwrite<std::byte[]>(size);
  Buffer buffer = std::move(unused_.back());
  unused_.pop_back();
  return buffer;
}

void PassingBuffers::giveBack(Buffer buffer) {
  if (!buffer) return;
  const std::scoped_lock lock(mutex_);
  unused_.push_back(std::move(buffer));
}

PassingBytes::PassingBytes(const QString& path, std::int64_t offset, const ByteCheck& check,
                           PassingBuffers& buffers)
    : path_(path), offset_(offset), check_(check), buffers_(buffers) {}

std::optional<std::string_view> PassingBytes::take(std::size_t begin, std::size_t size) {
  const std::size_t end = begin + size;
  piecesInARow_ = goesOn(begin) ? piecesInARow_ + 1 : 0;
  pieceEnd_ = end;
  if (piecesInARow_ < kPiecesUntilPassing || size > kLongestPiece || end > check_.size()) return std::nullopt;
  if (!buffer_) buffer_ = buffers_.take(kBufferSize);
  if (begin < begin_ || end > end_) {
    keepFrom(begin);
    readBlocks();
  }
  return std::string_view(reinterpret_cast<const char*>(buffer_.get()) + (begin - begin_), size);
}

void PassingBytes::rest() {
  file_.reset();
  buffers_.giveBack(std::move(buffer_));
  begin_ = end_ = 0;
}

bool PassingBytes::goesOn(std::size_t begin) const {
  return begin <= pieceEnd_ && pieceEnd_ - begin < kBlock;
}

/// Moves what the buffer holds from `begin` on to its front. Where that is nothing, the buffer is to start
/// with the block of `begin`.
void PassingBytes::keepFrom(std::size_t begin) {
  if (begin < begin_ || begin >= end_) {
    begin_ = end_ = begin / kBlock * kBlock;
    return;
  }
  std::memmove(buffer_.get(), buffer_.get() + (begin - begin_), end_ - begin);
  begin_ = begin;
}

void PassingBytes::readBlocks() {
  const std::size_t size = std::min(kBlocksAhead * kBlock, check_.size() - end_);
  const std::span<std::byte> room(buffer_.get() + (end_ - begin_), size);
  try {
    if (!file_) file_.emplace(path_);
    file_->read(offset_ + static_cast<std::int64_t>(end_), room);
    for (std::size_t at = 0; at < size; at += kBlock) {
      check_.requireBlock((end_ + at) / kBlock, room.subspan(at, std::min(kBlock, size - at)));
    }
  } catch (const RuntimeFault&) {
    throw DamagedSegment();
  }
  end_ += size;
}

}  // namespace quorvin
