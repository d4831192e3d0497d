// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/format/listing_text.h"

#include "platform/text_encoding.h"
#include "search/format/line_scan.h"

#include <QByteArray>

#include <algorithm>
#include <cstring>
#include <string>
#include <utility>

namespace quorvin {

ListingText::ListingText(ListingReader read, std::size_t chunkSize)
    : read_(std::move(read)), chunkSize_(chunkSize), begin_(kLinePadding) {}

const char* ListingText::begin() const {
  return buffer_.data() + begin_;
}

bool ListingText::readChunk() {
  if (!addChunk()) return false;
  if (!hasStarted_) takeMark();
  if (unseen_ > 0 && !utf16_) lookForZeros();
  return true;
}

bool ListingText::addChunk() {
  if (begin_ != kLinePadding) {
    std::copy_n(buffer_.begin() + static_cast<std::ptrdiff_t>(begin_), size_, buffer_.begin() + kLinePadding);
  }
  begin_ = kLinePadding;
  if (utf16_) {
    addDecoded();
  } else {
    addRaw();
  }
  return lastChunkSize_ > 0;
}

void ListingText::makeRoom(std::size_t bytes) {
  const std::size_t needed = kLinePadding + size_ + bytes + kLinePadding;
  if (buffer_.size() < needed) buffer_.resize(needed);
}

void ListingText::addRaw() {
  makeRoom(chunkSize_);
  lastChunkSize_ = read_(std::span(buffer_).subspan(begin_ + size_, chunkSize_));
  size_ += lastChunkSize_;
}

void ListingText::addDecoded() {
  utf16_->raw.resize(chunkSize_);
  lastChunkSize_ = read_(utf16_->raw);
  addText({utf16_->raw.data(), lastChunkSize_});
}

/// Adds UTF-16 text, which may start and end inside a character.
void ListingText::addText(std::string_view raw) {
  const QByteArrayView bytes(raw.data(), static_cast<qsizetype>(raw.size()));
  const QByteArray text = utf16_->encoder.encode(utf16_->decoder.decode(bytes));
  makeRoom(static_cast<std::size_t>(text.size()));
  std::copy(text.begin(), text.end(), buffer_.begin() + static_cast<std::ptrdiff_t>(begin_ + size_));
  size_ += static_cast<std::size_t>(text.size());
}

void ListingText::takeMark() {
  hasStarted_ = true;
  constexpr std::size_t kLongestMark = 3;
  std::size_t chunks = lastChunkSize_;
  // Chunks may be as small as a byte.
  while (size_ < kLongestMark && addChunk()) chunks += lastChunkSize_;
  lastChunkSize_ = chunks;
  const std::string_view text(begin(), size_);
  if (text.starts_with("\xFF\xFE")) return startUtf16(QStringConverter::Utf16LE);
  if (text.starts_with("\xFE\xFF")) return startUtf16(QStringConverter::Utf16BE);
  consume(static_cast<std::size_t>(byteOrderMarkLength({text.data(), static_cast<qsizetype>(text.size())})));
}

/// What has been read so far is decoded too.
void ListingText::startUtf16(QStringConverter::Encoding encoding) {
  constexpr std::size_t kMarkSize = 2;
  // Marks behind the first are characters.
  utf16_.emplace(Utf16{QStringDecoder(encoding, QStringConverter::Flag::ConvertInitialBom),
                       QStringEncoder(QStringConverter::Utf8),
                       {}});
  const std::string start(begin() + kMarkSize, size_ - kMarkSize);
  size_ = 0;
  addText(start);
}

void ListingText::lookForZeros() {
  const std::size_t count = std::min(unseen_, lastChunkSize_);
  const char* chunk = begin() + size_ - lastChunkSize_;
  holdsZeros_ = holdsZeros_ || std::memchr(chunk, '\0', count) != nullptr;
  unseen_ -= count;
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
