// Segments of a listing in one file of the program's own. Layout: docs/formats/segment-cache.md.
#pragma once

#include "files/file_aside.h"
#include "files/file_identity.h"
#include "search/segment/segment.h"

#include <QByteArray>
#include <QString>

#include <memory>
#include <vector>

namespace quorvin {

/// How often segments out of a file are going to be searched. For a single time their texts are read piece by
/// piece; for more they are mapped, so that a later search need not read them again.
enum class SegmentUse { Once, Repeated };

/// What a segment file belongs to: a listing as it was, and the rules by which it was read.
struct SegmentKey {
  QString listing;
  FileIdentity identity;
  /// Name of the locale and its date forms, the year of dates without one, the text encoding.
  QString readingRules;

  bool operator==(const SegmentKey&) const = default;
};

/// One segment of a segment file: where its bytes are, and where each array is in them.
struct SegmentRecord {
  static constexpr std::size_t kArrayCount = 21;
  struct ArrayPlace {
    /// Bytes from the segment's start; number of elements.
    std::uint64_t offset;
    std::uint64_t count;
  };
  std::uint64_t offset;
  std::uint64_t size;
  std::uint64_t entryCount;
  std::uint64_t blockCount;
  /// SegmentArrays::allOwn: 1 or 0.
  std::uint64_t allOwn;
  ArrayPlace arrays[kArrayCount];
};

/// Writes a segment file beside its place, segment by segment. Without finish() nothing of it stays.
class SegmentFileWriter {
 public:
  /// Throws RuntimeFault when the file cannot be made.
  explicit SegmentFileWriter(const QString& path);

  /// Writes a complete segment and returns it as it is in the file. Throws RuntimeFault when the disk is
  /// full or the like; the writer is then of no more use.
  std::shared_ptr<const Segment> append(const Segment& segment);

  /// Writes the key and puts the file in place. Throws as append does.
  void finish(const SegmentKey& key);

 private:
  void write(const void* data, std::size_t size);
  void pad();

  FileAside file_;
  std::uint64_t position_ = 0;
  std::vector<SegmentRecord> segments_;
  std::vector<std::vector<std::uint64_t>> sums_;
};

/// The segments of the file at `path` if it is whole and belongs to `key`; else none. Only its directory is
/// read now; each stretch of the segments is checked when it is first used (DamagedSegment). Never throws.
std::vector<std::shared_ptr<const Segment>> openSegmentFile(const QString& path, const SegmentKey& key,
                                                            SegmentUse use);

/// The listing that the segment file at `path` belongs to; empty text if it is none.
QString listingOfSegmentFile(const QString& path);

}  // namespace quorvin
