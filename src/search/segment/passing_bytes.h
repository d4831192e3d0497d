// SPDX-License-Identifier: GPL-2.0-or-later

// Bytes of a cache file that are read once, from front to back.
#pragma once

#include "files/file_reader.h"
#include "search/segment/checked_span.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <string_view>
#include <vector>

namespace quorvin {

/// Memory through which bytes pass, lent to those that are being read, by any thread: what one has given back
/// the next one takes.
class PassingBuffers {
 public:
  using Buffer = std::unique_ptr<std::byte[]>;

  /// A buffer that is not in use, or a new one of `size` bytes, which is the same at each call.
  Buffer take(std::size_t size);
  void giveBack(Buffer buffer);

 private:
  std::mutex mutex_;
  std::vector<Buffer> unused_;
};

/// Reads a stretch of a mapped file through a small buffer and checks each block on its way. For a single
/// pass this takes half the time of touching mapped pages: making and unmaking those costs more than copying.
class PassingBytes {
 public:
  /// The stretch starts at `offset` in the file at `path`, which is opened when bytes are first read. `check`
  /// has the sums of its blocks; it and `buffers` must outlive the object.
  PassingBytes(const QString& path, std::int64_t offset, const ByteCheck& check, PassingBuffers& buffers);

  /// The longest piece that take() returns.
  static constexpr std::size_t kLongestPiece = std::size_t{1} << 16;

  /// The `size` bytes of the stretch from `begin` on, with kScanPadding readable bytes behind them; valid
  /// until the next call. Nothing until several pieces in a row have each continued the one before
  /// (overlapping it a little at most), and nothing for too long a piece: the mapped bytes are quicker to
  /// look at then. Throws DamagedSegment, also when the file cannot be read.
  std::optional<std::string_view> take(std::size_t begin, std::size_t size);

  /// Closes the file and gives the buffer back until bytes are read again.
  void rest();

 private:
  bool goesOn(std::size_t begin) const;
  void keepFrom(std::size_t begin);
  void readBlocks();

  QString path_;
  std::int64_t offset_;
  const ByteCheck& check_;
  PassingBuffers& buffers_;
  /// None before it is needed.
  PassingBuffers::Buffer buffer_;
  std::optional<RandomAccessFile> file_;
  /// The part of the stretch that is in the buffer; its end is a block's end.
  std::size_t begin_ = 0;
  std::size_t end_ = 0;
  /// Where the piece before ended.
  std::size_t pieceEnd_ = 0;
  /// How many pieces in a row have continued the one before.
  int piecesInARow_ = 0;
};

}  // namespace quorvin
