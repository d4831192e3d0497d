// SPDX-License-Identifier: GPL-2.0-or-later

// A stretch of a listing in the form that searches run over.
#pragma once

#include "search/segment/entry_value_arrays.h"
#include "search/segment/text_table.h"

#include <QString>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quorvin {

/// The arrays of a segment; somebody else owns them.
struct SegmentArrays {
  /// The volume of the blocks from `firstBlock` on, up to the next run.
  struct VolumeRun {
    std::uint32_t firstBlock;
    /// Where the volume's text starts in `volumeTexts`; it ends where the next run's starts.
    std::uint32_t textStart;
  };

  TextTable entries;
  /// One text for each directory block.
  TextTable folders;
  /// The first entry of each block.
  CheckedSpan<std::uint32_t> blockStarts;
  /// Ascending; the last one, of no block, marks where volumeTexts ends.
  CheckedSpan<VolumeRun> volumes;
  CheckedSpan<char> volumeTexts;
  CheckedSpan<CompactValues> values;
  /// The line of every entry has values. This is nearly always so, and saves looking at each.
  bool allOwn = false;
  /// A bit for each entry: its line has none, or they could not be read.
  CheckedSpan<std::uint64_t> notOwn;
  /// Both ascending by entry.
  CheckedSpan<WideValues> wideValues;
  CheckedSpan<UnreadableEntry> unreadable;
};

/// The block of `entry`, where `starts` are the first entries of the blocks.
inline std::uint32_t blockAt(std::span<const std::uint32_t> starts, std::uint32_t entry) {
  return static_cast<std::uint32_t>(std::upper_bound(starts.begin(), starts.end(), entry) - starts.begin()) -
         1;
}

/// The lower-cased entry texts of a stretch of a listing, one after another, and beside them all that is
/// needed to show a hit. Entries are numbered from 0 in file order; those under one volume and folder form a
/// block. What a segment says about an entry never changes, but a segment that is still being built grows.
/// Whatever reads one out of a kept file may throw DamagedSegment.
class Segment {
 public:
  virtual ~Segment() = default;
  Segment(const Segment&) = delete;
  Segment& operator=(const Segment&) = delete;

  /// Called after a search of the whole segment: files that were open for it can be closed.
  virtual void searched() const {}

  /// Bytes of memory that it takes up. It may grow while what is kept in a file is looked at.
  virtual std::size_t memorySize() const = 0;

  /// Gives back memory whose content can be had again out of a file.
  virtual void release() const {}

  /// Whether some of it has turned out to be damaged, so that it is not to be searched again.
  virtual bool foundDamage() const { return false; }

  /// Whether its file has been written to since it was first searched: what is searched may have changed
  /// after it was checked. That is damage, too.
  virtual bool wasChanged() const { return false; }

  std::uint32_t entryCount() const { return arrays_.entries.count; }
  const SegmentArrays& arrays() const { return arrays_; }

  /// The block that `entry` belongs to.
  std::uint32_t blockOf(std::uint32_t entry) const { return blockAt(arrays_.blockStarts.all(), entry); }

  /// What is shown of an entry, `entry` < entryCount(): as listed.
  QString volume(std::uint32_t entry) const;
  QString folder(std::uint32_t entry) const;
  QString name(std::uint32_t entry) const;
  ValueState valueState(std::uint32_t entry) const;
  /// Whether the state of all entries from `first` to `last`, that one too, is Own. Far quicker than asking
  /// for each.
  bool allOwn(std::uint32_t first, std::uint32_t last) const;
  /// Meaningful where hasValues() the state.
  EntryValues values(std::uint32_t entry) const;
  /// The line in the listing, from 1, of an entry whose state is Unreadable.
  std::int64_t unreadableLine(std::uint32_t entry) const;

  /// The texts of a block as listed, UTF-8.
  std::string_view volumeOfBlock(std::uint32_t block) const;
  std::string folderOfBlock(std::uint32_t block) const { return arrays_.folders.listedText(block); }

 protected:
  Segment() = default;
  SegmentArrays arrays_;
};

/// A segment in memory that is being built: owns the arrays that it grows. What has been added is seen
/// through Segment after publish().
class GrowingSegment : public Segment {
 public:
  /// Volume and folder, as listed and UTF-8, of the entries that follow. Not twice without an entry between.
  void beginBlock(std::string_view volume, std::string_view folder, bool folderIsAscii);

  /// One entry: its text as listed, UTF-8. Its values are to be set before anyone asks for them.
  void addEntry(std::string_view name, bool ascii);
  /// The same for the first columns of an ASCII line; see TextTableBuilder::addColumns.
  void addEntryColumns(const char* line, std::size_t columns, bool trimmed);

  /// Sizes and dates of its entries.
  EntryValueArrays& valueArrays() { return values_; }

  /// Makes all that has been added so far visible.
  void publish();

  /// To be called when no more entries come: makes what lets later searches skip parts of the segment. Not
  /// while others read it. A second call does nothing more.
  void complete();

  /// Forgets everything and keeps the memory for the next entries.
  void clear();

  std::size_t memorySize() const override;

 private:
  TextTableBuilder entries_;
  TextTableBuilder folders_;
  std::vector<std::uint32_t> blockStarts_;
  std::vector<SegmentArrays::VolumeRun> volumes_;
  std::string volumeTexts_;
  EntryValueArrays values_;
};

/// A segment of the entries `chosen` of `segment` alone, in that order, which must be ascending.
std::shared_ptr<const Segment> copyOfEntries(const Segment& segment, std::span<const std::uint32_t> chosen);

}  // namespace quorvin
