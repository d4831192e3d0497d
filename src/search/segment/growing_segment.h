// An segment in memory that is being built.
#pragma once

#include "search/segment/segment.h"

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quorvin {

/// Owns the arrays that it grows. What has been added is seen through Segment after publish().
class GrowingSegment : public Segment {
 public:
  /// Volume and folder, as listed and UTF-8, of the entries that follow. Not twice without an entry between.
  void beginBlock(std::string_view volume, std::string_view folder, bool folderIsAscii);

  /// One entry: its text as listed, UTF-8. Its values are to be set before anyone asks for them.
  void addEntry(std::string_view name, bool ascii);
  /// The same for the first columns of an ASCII line; see TextTableBuilder::addColumns.
  void addEntryColumns(const char* line, std::size_t columns, bool trimmed);

  /// What is known of size and date of `entry`, and the line it stands on. Entries may be left out, but come
  /// in ascending order.
  void setValues(std::uint32_t entry, ValueState state, const EntryValues& values, std::int64_t line);

  /// Makes all that has been added so far visible.
  void publish();

  /// To be called once no more entries come: makes what lets later searches skip parts of the segment.
  void complete();

  /// Forgets everything and keeps the memory for the next entries.
  void clear();

  /// Bytes of memory that the arrays take up.
  std::size_t memorySize() const;

 private:
  void makeRoomForValues();

  TextTableBuilder entries_;
  TextTableBuilder folders_;
  std::vector<std::uint32_t> blockStarts_;
  std::vector<SegmentArrays::VolumeRun> volumes_;
  std::string volumeTexts_;
  std::vector<CompactValues> values_;
  /// No value that was set so far is missing or unreadable.
  bool allOwn_ = true;
  std::vector<std::uint64_t> notOwn_;
  std::vector<SegmentArrays::WideValues> wideValues_;
  std::vector<SegmentArrays::UnreadableEntry> unreadable_;
};

/// An segment of the entries `chosen` of `segment` alone, in that order, which must be ascending.
std::shared_ptr<const Segment> copyOfEntries(const Segment& segment, std::span<const std::uint32_t> chosen);

}  // namespace quorvin
