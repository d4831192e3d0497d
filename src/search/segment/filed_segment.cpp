// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/segment/filed_segment.h"

#include <utility>

namespace quorvin {

namespace {

/// Points arrays into the memory of a segment, one after another, each place checked against the segment's
/// size.
class ArrayPlacer {
 public:
  ArrayPlacer(std::span<const std::byte> bytes, const SegmentRecord& record, const ByteCheck& check)
      : bytes_(bytes), record_(record), check_(check) {}

  template <typename Element>
  void operator()(CheckedSpan<Element>& array) {
    const auto [offset, count] = record_.arrays[next_++];
    const std::size_t padding = kPaddingBehind<Element>;
    const bool inside = offset <= bytes_.size() && padding <= bytes_.size() - offset &&
                        count <= (bytes_.size() - offset - padding) / sizeof(Element);
    if (!inside || offset % alignof(Element) != 0) throw DamagedSegment();
    array = CheckedSpan<Element>(bytes_, offset, count, check_);
  }

 private:
  std::span<const std::byte> bytes_;
  const SegmentRecord& record_;
  const ByteCheck& check_;
  std::size_t next_ = 0;
};

}  // namespace

FiledSegment::FiledSegment(const SegmentRecord& record, std::span<const std::byte> bytes,
                           std::vector<std::uint64_t> sums, ByteCheck::Fetch fetch)
    : sums_(std::move(sums)), check_(bytes, sums_, std::move(fetch)) {
  visitArrays(arrays_, ArrayPlacer(bytes, record, check_));
  arrays_.entries.count = static_cast<std::uint32_t>(record.entryCount);
  arrays_.folders.count = static_cast<std::uint32_t>(record.blockCount);
  arrays_.allOwn = record.allOwn != 0;
}

KeptSegment::KeptSegment(std::shared_ptr<const RandomAccessFile> file, const SegmentRecord& record,
                         std::vector<std::uint64_t> sums)
    : SparseMemory(record.size),
      FiledSegment(record, SparseMemory::bytes(), std::move(sums),
                   [this](std::size_t offset, std::size_t size) { fetch(offset, size); }),
      file_(std::move(file)),
      offset_(static_cast<std::int64_t>(record.offset)) {}

void KeptSegment::searchInFile() {
  mapped_.emplace(file_, offset_, check().size(), FiledSegment::sums());
  arrays_.entries.mapped = arrays_.folders.mapped = &*mapped_;
}

void KeptSegment::release() const {
  // What has been read whole could not be read again.
  if (!file_) return;
  check().forget();
  SparseMemory::release();
  if (mapped_) mapped_->release();
}

bool KeptSegment::foundDamage() const {
  return FiledSegment::foundDamage() || (mapped_ && mapped_->foundDamage());
}

bool KeptSegment::wasChanged() const {
  return mapped_ && mapped_->wasChanged();
}

void KeptSegment::readWhole() {
  check().require(0, check().size());
  arrays_.entries.mapped = arrays_.folders.mapped = nullptr;
  mapped_.reset();
  file_.reset();
}

void KeptSegment::fetch(std::size_t offset, std::size_t size) {
  file_->read(offset_ + static_cast<std::int64_t>(offset), SparseMemory::bytes().subspan(offset, size));
}

PassingSegment::PassingSegment(const QString& path, const SegmentRecord& record,
                               std::vector<std::uint64_t> sums, std::shared_ptr<PassingBuffers> buffers)
    : MappedFile(path, static_cast<std::int64_t>(record.offset), record.size),
      FiledSegment(record, MappedFile::bytes(), std::move(sums)),
      buffers_(std::move(buffers)),
      entries_(path, static_cast<std::int64_t>(record.offset), check(), *buffers_),
      folders_(path, static_cast<std::int64_t>(record.offset), check(), *buffers_) {
  arrays_.entries.passing = &entries_;
  arrays_.folders.passing = &folders_;
}

void PassingSegment::searched() const {
  entries_.rest();
  folders_.rest();
}

}  // namespace quorvin
