// SPDX-License-Identifier: GPL-2.0-or-later

// The stretch of a listing that is in memory at a time.
#pragma once

#include <QStringDecoder>
#include <QStringEncoder>

#include <cstddef>
#include <functional>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace quorvin {

/// Reads the bytes of a listing, front to back: fills `buffer` as far as there are bytes left and gives the
/// number filled, 0 at the end. May throw RuntimeFault.
using ListingReader = std::function<std::size_t(std::span<char> buffer)>;

/// Opens a listing: each call gives a reader at its start. Of one that can be read only once, such as a pipe,
/// later readers find nothing. May throw RuntimeFault.
using ListingOpener = std::function<ListingReader()>;

/// Reads a listing chunk by chunk; what is not consumed is put in front of the next chunk. There are always
/// kLinePadding bytes to read on both sides of the text. A byte order mark at the start of the listing is
/// left out; behind one of UTF-16 the text is turned into UTF-8.
class ListingText {
 public:
  /// `chunkSize` is at least 1.
  ListingText(ListingReader read, std::size_t chunkSize);

  /// Adds the next chunk behind what is left of the text; false at the end of the listing. Pointers into the
  /// text are invalid afterwards. Throws what the reader throws.
  bool readChunk();

  const char* begin() const;
  std::size_t size() const { return size_; }
  /// In bytes of the listing.
  std::size_t lastChunkSize() const { return lastChunkSize_; }

  /// Whether there are zero bytes near the start of the listing. No text has any, but UTF-16 is full of them,
  /// and so are most files that are no text.
  bool holdsZeros() const { return holdsZeros_; }

  /// Takes the first `bytes` off the text. They stay in memory until the next readChunk().
  void consume(std::size_t bytes);

  /// All of the text as one line, without the carriage return of a line end that was cut in two.
  std::string_view lastLine() const;

 private:
  /// Turns UTF-16 into UTF-8 piece by piece.
  struct Utf16 {
    QStringDecoder decoder;
    QStringEncoder encoder;
    std::vector<char> raw;
  };

  bool addChunk();
  void addRaw();
  void addDecoded();
  void addText(std::string_view raw);
  void makeRoom(std::size_t bytes);
  void takeMark();
  void startUtf16(QStringConverter::Encoding encoding);
  void lookForZeros();

  ListingReader read_;
  std::size_t chunkSize_;
  std::vector<char> buffer_;
  std::size_t begin_;
  std::size_t size_ = 0;
  std::size_t lastChunkSize_ = 0;
  bool hasStarted_ = false;
  std::optional<Utf16> utf16_;
  /// Bytes at the start in which zeros are still to be looked for.
  std::size_t unseen_ = 4096;
  bool holdsZeros_ = false;
};

}  // namespace quorvin
