// SPDX-License-Identifier: GPL-2.0-or-later

// Segments whose arrays come out of a segment file. Its layout: docs/formats/segment-cache.md.
#pragma once

#include "files/file_reader.h"
#include "platform/sparse_memory.h"
#include "search/segment/mapped_bytes.h"
#include "search/segment/passing_bytes.h"
#include "search/segment/segment.h"

#include <QString>

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace quorvin {

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

/// Calls `visit(array)` for each array of `arrays`, in the order of the file; it can be assigned to.
template <typename Visit>
void visitArrays(SegmentArrays& arrays, Visit&& visit) {
  for (TextTable* table : {&arrays.entries, &arrays.folders}) {
    visit(table->trigrams);
    visit(table->marks);
    visit(table->folded);
    visit(table->hasUpper);
    visit(table->upperBits);
    visit(table->exceptions);
    visit(table->exceptionTexts);
  }
  visit(arrays.blockStarts);
  visit(arrays.volumes);
  visit(arrays.volumeTexts);
  visit(arrays.values);
  visit(arrays.notOwn);
  visit(arrays.wideValues);
  visit(arrays.unreadable);
}

/// Texts are searched beyond their end, so readable bytes follow them.
template <typename Element>
constexpr std::size_t kPaddingBehind = std::same_as<Element, char> ? kScanPadding : 0;

/// A segment out of a file.
class FiledSegment : public Segment {
 public:
  bool foundDamage() const override { return check_.foundDamage(); }

 protected:
  /// `bytes` is where the segment is in memory, or will be once `fetch` has brought it there; `sums` are its
  /// checksums. Throws DamagedSegment when the record does not fit them.
  FiledSegment(const SegmentRecord& record, std::span<const std::byte> bytes, std::vector<std::uint64_t> sums,
               ByteCheck::Fetch fetch = {});

  ByteCheck& check() const { return check_; }
  std::span<const std::uint64_t> sums() const { return sums_; }

 private:
  std::vector<std::uint64_t> sums_;
  mutable ByteCheck check_;
};

/// For repeated searches: the arrays lie in memory of the program's own, into which they are read block by
/// block when they are asked for. Once there, they stay what they are. Only the texts are searched in the
/// file itself, which is mapped for that: they are most of it, and a search never relies on what they hold.
class KeptSegment : private SparseMemory, public FiledSegment {
 public:
  /// Throws std::bad_alloc, and DamagedSegment as FiledSegment does.
  KeptSegment(std::shared_ptr<const RandomAccessFile> file, const SegmentRecord& record,
              std::vector<std::uint64_t> sums);

  /// Without what is mapped: the system takes that back by itself.
  std::size_t memorySize() const override { return check().fetchedSize(); }
  void release() const override;
  bool foundDamage() const override;
  bool wasChanged() const override;

  /// Has its texts searched in the file from now on, to which nobody has anything left to write.
  void searchInFile();

  /// Reads all of it and lets go of the file. Throws DamagedSegment.
  void readWhole();

 private:
  void fetch(std::size_t offset, std::size_t size);

  /// Null once all of the segment is in memory.
  std::shared_ptr<const RandomAccessFile> file_;
  std::int64_t offset_;
  /// The segment as it is searched; nothing where it is searched in memory.
  mutable std::optional<MappedBytes> mapped_;
};

/// For a single search: the arrays lie in a mapped file, but the texts are read piece by piece.
class PassingSegment : private MappedFile, public FiledSegment {
 public:
  /// The texts pass through `buffers`, which are shared, since nobody knows which of the segments of a file
  /// lives longest. Throws
  /// RuntimeFault when the file cannot be mapped, and DamagedSegment as FiledSegment does.
  PassingSegment(const QString& path, const SegmentRecord& record, std::vector<std::uint64_t> sums,
                 std::shared_ptr<PassingBuffers> buffers);

  void searched() const override;
  /// The system takes what is mapped back by itself.
  std::size_t memorySize() const override { return 0; }

 private:
  std::shared_ptr<PassingBuffers> buffers_;
  mutable PassingBytes entries_;
  mutable PassingBytes folders_;
};

}  // namespace quorvin
