// An image whose arrays stand in a mapped file.
#pragma once

#include "platform/mapped_file.h"
#include "search/image_file.h"

#include <vector>

namespace quorvin {

class MappedImage : public SearchImage {
 public:
  /// `sums` are the checksums of the segment's bytes. Throws RuntimeFault when the file cannot be mapped, and
  /// DamagedImage when the record does not fit the segment.
  MappedImage(const QString& path, const SegmentRecord& record, std::vector<std::uint64_t> sums);

 private:
  MappedFile file_;
  std::vector<std::uint64_t> sums_;
  ByteCheck check_;
};

/// Calls `visit(array)` for each array of `arrays`, in the order of the file; `array` is a std::span or a
/// std::string_view that can be assigned to.
template <typename Visit>
void visitArrays(ImageArrays& arrays, Visit&& visit) {
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
  visit(arrays.wideValues);
  visit(arrays.unreadable);
}

}  // namespace quorvin
