// SPDX-License-Identifier: GPL-2.0-or-later

// Where a zip archive ends, and what its end says.
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <cstdint>
#include <optional>

namespace quorvin {

class RandomAccessFile;

/// Watches the bytes of an archive, from the first one on, for its end record: the one whose central
/// directory starts and ends where the record says, counted from the start of the archive. An archive stored
/// inside another starts elsewhere, so its end record is not mistaken for the end of the outer one.
class ArchiveEnd {
 public:
  /// Whether an archive can start with these bytes; nothing while there are too few to decide.
  static std::optional<bool> canStartWith(QByteArrayView bytes);

  /// Takes the next bytes. Returns how many of them still belong to the archive once its end has been seen
  /// (0 to their count), nothing while it goes on. Not to be called after the end.
  std::optional<qsizetype> feed(QByteArrayView bytes);

 private:
  std::optional<std::int64_t> endInWindow();
  bool isEndRecord(qsizetype at) const;
  bool isEndOfLargeArchive(qsizetype at) const;

  /// The bytes seen last, and the place of the first of them in the archive.
  QByteArray window_;
  std::int64_t windowStart_ = 0;
  /// How far the window has been searched.
  qsizetype searched_ = 0;
  /// The archive's length once its end record has been found; its comment may still be to come.
  std::optional<std::int64_t> length_;
};

/// What the end record of an archive says of its directory; none of it can be trusted.
struct EndRecord {
  std::uint64_t entries = 0;
  std::uint64_t directorySize = 0;
  /// Counted from the start of the archive, which is not that of the file when other bytes come before.
  std::uint64_t directoryOffset = 0;
  /// Where the record starts in the file. The directory ends there.
  std::int64_t place = 0;
  /// The archive goes on in other files.
  bool isOfSeveralFiles = false;
};

/// The last end record in the first `length` bytes of `file` that has a directory before it, or, when none
/// does, the last one at all; nothing when there is none. Throws RuntimeFault when the file cannot be read.
std::optional<EndRecord> endRecordOf(const RandomAccessFile& file, std::int64_t length);

}  // namespace quorvin
