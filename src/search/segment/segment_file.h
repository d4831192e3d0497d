// SPDX-License-Identifier: GPL-2.0-or-later

// Segments of a listing in one file of the program's own. Layout: docs/formats/segment-cache.md.
#pragma once

#include "files/file_aside.h"
#include "files/file_identity.h"
#include "search/segment/filed_segment.h"

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace quorvin {

/// How often segments out of a file are going to be searched. For a single time they are mapped and their
/// texts read piece by piece, by a program that has called explainCutMapping(). For more, what has been
/// looked at stays in memory of the program's own, whatever becomes of the file, so that a later search need
/// not read it again; the texts are searched in the file, through a guarded map.
enum class SegmentUse { Once, Repeated };

/// What a segment file belongs to: a listing as it was, and the rules by which it was read.
struct SegmentKey {
  QString listing;
  FileIdentity identity;
  /// Name of the locale and its date forms, the year of dates without one, the text encoding.
  QString readingRules;

  bool operator==(const SegmentKey&) const = default;
};

/// Writes a segment file beside its place, segment by segment. Without finish() nothing of it is left.
class SegmentFileWriter {
 public:
  /// Throws RuntimeFault when the file cannot be made.
  explicit SegmentFileWriter(const QString& path);

  /// Writes a segment to which no more entries come. What lets searches skip parts of it is made here where
  /// the segment does not have it yet; the segment itself is only read. Throws RuntimeFault when the disk is
  /// full or the like; the writer is then of no more use.
  void append(const Segment& segment);

  /// The segment that was appended last as it is in the file, for repeated use. Null where it is better kept
  /// in memory: it is small, or too many files are open. Its texts are searched in the file after finish().
  std::shared_ptr<const Segment> last();

  /// Writes the key and puts the file in place. Throws as append does.
  void finish(const SegmentKey& key);

 private:
  void write(const void* data, std::size_t size);

  FileAside file_;
  /// The same, once it has been opened for reading.
  std::shared_ptr<const RandomAccessFile> readable_;
  std::uint64_t position_ = 0;
  std::vector<SegmentRecord> segments_;
  std::vector<std::vector<std::uint64_t>> sums_;
  /// What last() has returned.
  std::vector<std::shared_ptr<KeptSegment>> kept_;
};

/// The segments of the file at `path` if it is whole and belongs to `key`; else none. Of a large file only
/// the directory is read now; each block of the segments is read and checked when it is first used
/// (DamagedSegment). They stay as they are when the file is replaced or removed. When it is cut or written
/// to, blocks that have not been read yet are damaged, for SegmentUse::Repeated. Their texts pass through
/// `buffers`, for SegmentUse::Once; where it is null, through some of their own. Never throws.
std::vector<std::shared_ptr<const Segment>> openSegmentFile(
    const QString& path, const SegmentKey& key, SegmentUse use,
    std::shared_ptr<PassingBuffers> buffers = nullptr);

/// How many entries the segments of the file at `path` have, if it is whole and belongs to `key`. Reads its
/// directory alone. Never throws.
std::optional<std::int64_t> entriesInSegmentFile(const QString& path, const SegmentKey& key);

/// The listing that the segment file at `path` belongs to; empty text if it is none.
QString listingOfSegmentFile(const QString& path);

}  // namespace quorvin
