// The stretch of a listing that is in memory at a time.
#pragma once

#include "search/format/listing_source.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace quorvin {

/// Reads a listing chunk by chunk; what is not consumed stands in front of the next chunk. There are always
/// kLinePadding bytes to read on both sides of the text.
class ListingText {
 public:
  /// `source` must outlive the text; `chunkSize` is at least 1.
  ListingText(ListingSource& source, std::size_t chunkSize);

  /// Adds the next chunk behind what is left of the text; false at the end of the listing. Pointers into the
  /// text are invalid afterwards. Throws what the source throws.
  bool readChunk();

  const char* begin() const;
  std::size_t size() const { return size_; }
  std::size_t lastChunkSize() const { return lastChunkSize_; }

  /// Takes the first `bytes` off the text. They stay in memory until the next readChunk().
  void consume(std::size_t bytes);

  /// All of the text as one line, without the carriage return of a line end that was cut in two.
  std::string_view lastLine() const;

 private:
  ListingSource& source_;
  std::size_t chunkSize_;
  std::vector<char> buffer_;
  std::size_t begin_;
  std::size_t size_ = 0;
  std::size_t lastChunkSize_ = 0;
};

}  // namespace quorvin
