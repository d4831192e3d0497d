// SPDX-License-Identifier: GPL-2.0-or-later

// All files of all listings that a run goes over, in little memory.
#pragma once

#include "catalogue/folder_tree.h"
#include "search/hit_sink.h"
#include "search/match/segment_search.h"
#include "search/segment/segment_store.h"
#include "search/segment/text_table.h"

#include <QString>

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

namespace quorvin {

/// Asked now and then by what takes long; true ends it at once.
using StopAsked = std::function<bool()>;

/// What is kept of a file to find others like it.
struct FileRecord {
  /// The hash of its name in lower case and its size.
  std::uint64_t hash() const { return std::uint64_t{high} << 32 | low; }

  std::uint32_t high;
  std::uint32_t low;
  /// Where it is listed.
  std::uint32_t place;
};

/// The name of a file out of the text of its entry: a size of a billion bytes or more begins in the last
/// column of that text, behind the name's own columns.
std::string_view fileNameIn(std::string_view entryText, std::int64_t size);

/// Throws RuntimeFault (Overflow) where `more` entries after those of `places` are more than can be numbered.
void checkPlaces(std::uint32_t places, std::uint32_t more);

/// The sink of a run over all listings that finds every entry: SearchRun with kEveryEntry for its text. The
/// entries are numbered from 0 in the order in which they come; such a number is a *place*. For each file
/// with a size of its own, a record of 12 bytes goes into one of 256 parts by its hash. Beside that, folders
/// and blocks are kept, and the segments, which are read again for the names: what of a segment can be had
/// again out of its file is given back as soon as nobody reads it.
class ListedFiles : public HitSink {
 public:
  /// A text and a match with which a search finds every entry.
  static constexpr char16_t kEveryEntry[] = u" ";

  struct Options {
    /// A file is wanted where this search finds it; null where all are. Must outlive the object.
    const SearchQuery* words = nullptr;
    /// So many bits of the hashes are used; tests take few, so that different files have the same.
    int hashBits = 64;
    /// Gives what is kept of a listing, nothing where that is not known. With it, what has to be read whole,
    /// such as small listings, is let go at the end of its listing and opened again when it is needed.
    std::function<SegmentStore::Segments(const QString& listing)> segmentsOf = {};
    /// Told of each listing when it starts.
    std::function<void(SourceKind kind, const QString& path)> listingStarts = {};
  };

  /// Entries under one folder, up to the next block's.
  struct Block {
    std::uint32_t folder;
    std::uint32_t firstPlace;
  };

  static constexpr std::size_t kParts = 256;

  explicit ListedFiles(Options options);

  void startListing(SourceKind kind, const QString& path) override;
  /// Throws fault 6 for more than 4,294,967,294 entries.
  bool addHits(const std::shared_ptr<const Segment>& segment, std::span<const FoundEntry> hits) override;
  void endSegment(const std::shared_ptr<const Segment>& segment,
                  const std::shared_ptr<const Segment>& kept) override;

  /// To be called when no more listings come.
  void endListing();

  /// How many entries have come.
  std::uint32_t placeCount() const { return places_; }
  /// The paths of the listings.
  const std::vector<QString>& listings() const { return listings_; }
  const FolderTree& folders() const { return folders_; }
  const std::vector<Block>& blocks() const { return blocks_; }
  std::uint32_t folderOf(std::uint32_t place) const;
  bool isWanted(std::uint32_t place) const {
    return options_.words == nullptr || (wanted_[place / 64] >> (place % 64) & 1U) != 0;
  }
  /// Wanted entries without a size of their own, which have no record.
  std::int64_t withoutSize() const { return withoutSize_; }

  /// The records of a part, by hash and, where that is the same, by place. They are no longer kept here.
  std::vector<FileRecord> takePart(std::size_t part);

  /// An entry that visitFiles() has come to.
  class Visited {
   public:
    std::uint32_t place = 0;
    std::uint32_t folder = 0;
    /// Bytes; nothing else than what the listing has.
    std::int64_t size = 0;
    /// The file's name as listed and in lower case, valid until the next visit. It costs something.
    ListedWalk::Text name();

   private:
    friend class ListedFiles;
    ListedWalk names_;
    std::uint32_t entry_ = 0;
  };

  /// Calls `visit` for each file that has a record, in the order of places. False where `stop` ended it.
  /// Throws RuntimeFault where a segment is damaged or a listing has changed.
  bool visitFiles(const std::function<void(Visited&)>& visit, const StopAsked& stop) const;

 private:
  struct Listed {
    /// Null where it is to be opened again.
    std::shared_ptr<const Segment> segment;
    std::size_t listing;
    /// The place of an entry is its number and this, by arithmetic without a sign.
    std::uint32_t base;
    /// The places of its entries that have come.
    std::uint32_t firstPlace;
    std::uint32_t endPlace;
  };
  /// What hits are made into before any of it counts: reading them may fail.
  struct Batch {
    std::vector<FileRecord> records;
    std::vector<Block> blocks;
    std::vector<std::uint64_t> wanted;
    std::int64_t withoutSize = 0;
  };
  /// The records of a part, in pieces of the same size, the last one not full.
  struct Part {
    std::vector<std::unique_ptr<FileRecord[]>> pieces;
    std::size_t count = 0;
  };

  void readBatch(const Segment& segment, std::uint32_t base, std::uint32_t first, std::uint32_t last);
  void markWanted(const Segment& segment, std::uint32_t first, std::uint32_t last);
  void takeBatch(std::uint32_t first, std::uint32_t last);
  bool isWantedInBatch(std::uint32_t entry, std::uint32_t first) const;
  std::span<const Listed> segmentsAt(std::size_t listing) const;
  bool areListed(const SegmentStore::Segments& segments, std::size_t listing) const;
  SegmentStore::Segments openedAgain(std::size_t listing) const;
  bool visitSegment(const Segment& segment, const Listed& listed, const std::function<void(Visited&)>& visit,
                    const StopAsked& stop) const;

  Options options_;
  std::uint64_t hashMask_;
  std::unique_ptr<SegmentSearch> search_;
  std::vector<QString> listings_;
  FolderTree folders_;
  std::vector<Block> blocks_;
  std::vector<Listed> segments_;
  /// The number of the first segment of each listing.
  std::vector<std::size_t> firstSegments_;
  std::uint32_t places_ = 0;
  std::vector<std::uint64_t> wanted_;
  std::int64_t withoutSize_ = 0;
  std::array<Part, kParts> parts_;
  Batch batch_;
  ListedWalk folderTexts_;
};

}  // namespace quorvin
