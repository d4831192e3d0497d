// An segment whose arrays stand in a mapped file.
#pragma once

#include "files/mapped_file.h"
#include "search/segment/segment_file.h"

#include <memory>
#include <vector>

namespace quorvin {

/// What segments that are searched only once share: their texts pass through it.
struct PassingBuffers {
  PassingBuffer entries;
  PassingBuffer folders;
};

class MappedSegment : public Segment {
 public:
  /// `sums` are the checksums of the segment's bytes. Throws RuntimeFault when the file cannot be mapped, and
  /// DamagedSegment when the record does not fit the segment. `buffers` may be null; else it is shared, since
  /// nobody knows which of the segments of a file lives longest.
  MappedSegment(const QString& path, const SegmentRecord& record, std::vector<std::uint64_t> sums,
                std::shared_ptr<PassingBuffers> buffers = nullptr);

  void searched() const override;
  bool foundDamage() const override { return check_.foundDamage(); }

 private:
  struct Passing {
    PassingBytes entries;
    PassingBytes folders;
  };

  MappedFile file_;
  std::vector<std::uint64_t> sums_;
  ByteCheck check_;
  std::shared_ptr<PassingBuffers> buffers_;
  /// Only where there are buffers.
  std::unique_ptr<Passing> passing_;
};

/// Calls `visit(array)` for each array of `arrays`, in the order of the file; `array` is a std::span or a
/// std::string_view that can be assigned to.
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

}  // namespace quorvin
