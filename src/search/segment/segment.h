// A stretch of a listing in the form that searches run over.
#pragma once

#include "search/segment/entry_values.h"
#include "search/segment/text_table.h"

#include <QString>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

namespace quorvin {

/// The arrays of an segment; somebody else owns them.
struct SegmentArrays {
  /// From this block on (until the next run) the volume is `volume`.
  struct VolumeRun {
    std::uint32_t firstBlock;
    /// Where the volume's text begins in `volumeTexts`; it ends where the next run's begins.
    std::uint32_t textStart;
  };
  /// Values that CompactValues cannot hold.
  struct WideValues {
    std::uint32_t entry;
    std::uint32_t reserved;
    std::int64_t size;
    DateValue date;
  };
  struct UnreadableEntry {
    std::int64_t line;
    std::uint32_t entry;
    std::uint32_t reserved;
  };

  TextTable entries;
  /// One text for each directory block.
  TextTable folders;
  /// The first entry of each block.
  std::span<const std::uint32_t> blockStarts;
  /// Ascending; the last one, of no block, tells where volumeTexts ends.
  std::span<const VolumeRun> volumes;
  std::string_view volumeTexts;
  std::span<const CompactValues> values;
  /// Every entry has values of its own, as nearly always: then nobody need look at each.
  bool allOwn = false;
  /// A bit for each entry: it has none of its own, or they could not be read.
  std::span<const std::uint64_t> notOwn;
  /// Both ascending by entry.
  std::span<const WideValues> wideValues;
  std::span<const UnreadableEntry> unreadable;
};

/// The lower-cased entry texts of a stretch of a listing, one after another, and beside them all that is
/// needed to show a hit. Entries are numbered from 0 in file order; those under one volume and folder form a
/// block. What an segment says of an entry never changes, but an segment that is still being built grows.
class Segment {
 public:
  virtual ~Segment() = default;
  Segment(const Segment&) = delete;
  Segment& operator=(const Segment&) = delete;

  /// Comes after a search of the whole segment: what was held open for that can go.
  virtual void searched() const {}

  /// Whether some of it has turned out to be damaged, so that it is not to be searched again.
  virtual bool foundDamage() const { return false; }

  std::uint32_t entryCount() const { return arrays_.entries.count; }
  const SegmentArrays& arrays() const { return arrays_; }

  /// The block that `entry` stands in.
  std::uint32_t blockOf(std::uint32_t entry) const;

  /// What is shown of an entry, `entry` < entryCount(): as listed.
  QString volume(std::uint32_t entry) const;
  QString folder(std::uint32_t entry) const;
  QString name(std::uint32_t entry) const;
  ValueState valueState(std::uint32_t entry) const;
  /// Whether the state of all entries from `first` to `last`, that one too, is Own. Far quicker than asking
  /// for each.
  bool allOwn(std::uint32_t first, std::uint32_t last) const;
  /// Meaningful where the state is Own.
  EntryValues values(std::uint32_t entry) const;
  /// The line in the listing, from 1, of an entry whose state is Unreadable.
  std::int64_t unreadableLine(std::uint32_t entry) const;

  /// The texts of a block as listed, UTF-8.
  std::string_view volumeOfBlock(std::uint32_t block) const;
  std::string folderOfBlock(std::uint32_t block) const { return arrays_.folders.listedText(block); }

 protected:
  Segment() = default;
  void require(const void* data, std::size_t size) const { arrays_.entries.require(data, size); }
  SegmentArrays arrays_;
};

}  // namespace quorvin
