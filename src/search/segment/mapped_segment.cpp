#include "search/segment/mapped_segment.h"

#include "search/segment/byte_pair_scan.h"

#include <span>
#include <string_view>

namespace quorvin {

namespace {

/// Points arrays into a segment, one after another, each place checked against the segment's size.
class ArrayPlacer {
 public:
  ArrayPlacer(std::span<const std::byte> bytes, const SegmentRecord& record)
      : bytes_(bytes), record_(record) {}

  template <typename Element>
  void operator()(std::span<const Element>& array) {
    array = {reinterpret_cast<const Element*>(place(sizeof(Element), alignof(Element), 0)), count_};
  }
  void operator()(std::string_view& text) {
    text = {reinterpret_cast<const char*>(place(1, 1, kScanPadding)), count_};
  }

 private:
  const std::byte* place(std::size_t elementSize, std::size_t alignment, std::size_t padding) {
    const SegmentRecord::ArrayPlace& place = record_.arrays[next_++];
    const bool inside = place.offset <= bytes_.size() && padding <= bytes_.size() - place.offset &&
                        place.count <= (bytes_.size() - place.offset - padding) / elementSize;
    if (!inside || place.offset % alignment != 0) throw DamagedSegment();
    count_ = static_cast<std::size_t>(place.count);
    return bytes_.data() + place.offset;
  }

  std::span<const std::byte> bytes_;
  const SegmentRecord& record_;
  std::size_t next_ = 0;
  std::size_t count_ = 0;
};

}  // namespace

MappedSegment::MappedSegment(const QString& path, const SegmentRecord& record,
                             std::vector<std::uint64_t> sums, std::shared_ptr<PassingBuffers> buffers)
    : file_(path, static_cast<std::int64_t>(record.offset), static_cast<std::size_t>(record.size)),
      sums_(std::move(sums)),
      check_(file_.bytes(), sums_),
      buffers_(std::move(buffers)) {
  ArrayPlacer placer(file_.bytes(), record);
  visitArrays(arrays_, placer);
  arrays_.entries.count = static_cast<std::uint32_t>(record.entryCount);
  arrays_.folders.count = static_cast<std::uint32_t>(record.blockCount);
  arrays_.allOwn = record.allOwn != 0;
  arrays_.entries.check = &check_;
  arrays_.folders.check = &check_;
  if (!buffers_) return;
  const auto offset = static_cast<std::int64_t>(record.offset);
  passing_.reset(
      new Passing{{path, offset, check_, buffers_->entries}, {path, offset, check_, buffers_->folders}});
  arrays_.entries.passing = &passing_->entries;
  arrays_.folders.passing = &passing_->folders;
}

void MappedSegment::searched() const {
  if (!passing_) return;
  passing_->entries.rest();
  passing_->folders.rest();
}

}  // namespace quorvin
