#include "search/format/listing_text.h"

#include "search/format/line_marks.h"

#include <algorithm>
#include <utility>

namespace quorvin {

ListingText::ListingText(ListingReader read, std::size_t chunkSize)
    : read_(std::move(read)), chunkSize_(chunkSize), begin_(kLinePadding) {}

const char* ListingText::begin() const {
  return buffer_.data() + begin_;
}

bool ListingText::readChunk() {
  const std::size_t needed = kLinePadding + size_ + chunkSize_ + kLinePadding;
  if (buffer_.size() < needed) buffer_.resize(needed);
  std::copy_n(buffer_.begin() + static_cast<std::ptrdiff_t>(begin_), size_, buffer_.begin() + kLinePadding);
  begin_ = kLinePadding;
  lastChunkSize_ = read_(std::span(buffer_).subspan(begin_ + size_, chunkSize_));
  size_ += lastChunkSize_;
  return lastChunkSize_ > 0;
}

void ListingText::consume(std::size_t bytes) {
  begin_ += bytes;
  size_ -= bytes;
}

std::string_view ListingText::lastLine() const {
  std::string_view line(begin(), size_);
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

}  // namespace quorvin
