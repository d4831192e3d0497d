// SPDX-License-Identifier: GPL-2.0-or-later

// The segments of listings that have been read before: in memory and in the user's cache folder.
#pragma once

#include "search/segment/segment.h"
#include "search/segment/segment_file.h"

#include <QLocale>
#include <QString>
#include <QStringList>

#include <cstddef>
#include <future>
#include <list>
#include <memory>
#include <optional>
#include <vector>

namespace quorvin {

/// The key under which the segments of `listing` are kept now; nothing if the file cannot be looked at. The
/// path is made absolute.
std::optional<SegmentKey> segmentKeyOf(const QString& listing, const QLocale& locale);

/// Keeps segments. All calls come from one thread, which may be any. A store that fails to keep something is
/// no fault: the listing is read again the next time.
class SegmentStore {
 public:
  using Segments = std::vector<std::shared_ptr<const Segment>>;

  struct Options {
    /// Where segment files are kept, with a trailing separator; empty for none.
    QString cacheFolder;
    /// Bytes that segments may take up in memory. Those used last stay even where they are more.
    std::size_t memoryBudget = 0;
    /// Once where the program ends after one search.
    SegmentUse use = SegmentUse::Repeated;
    /// A segment that takes up so many bytes is written by a thread of its own, while the listing is read on.
    std::size_t writtenBeside = std::size_t{1} << 20;
  };

  /// The user's cache folder and a quarter of the machine's memory.
  static Options defaultOptions(SegmentUse use = SegmentUse::Repeated);

  explicit SegmentStore(Options options);

  /// The segments of a listing, in file order, if they are known and the listing is as it was; else none.
  Segments find(const SegmentKey& key);

  /// Lets go of a listing's segments, in memory and on disk.
  void forget(const QString& listing);

  /// Lets go, in memory, of the listings that nobody has found or recorded since the last call. To be called
  /// when all listings have been searched: the others are in no list any more.
  void releaseUnused();

  /// Takes the segments of one listing while they are built. Unless finish() is called nothing is kept.
  class Recorder {
   public:
    /// The first of a store also removes leftovers and what earlier versions kept in the cache folder.
    Recorder(SegmentStore& store, const SegmentKey& key);
    Recorder(const Recorder&) = delete;
    Recorder& operator=(const Recorder&) = delete;

    /// Takes a segment to which no more entries come. It may be read by another thread until settle(), so it
    /// is not to be changed. The one before has been settled.
    void add(const std::shared_ptr<GrowingSegment>& segment);

    /// Waits until the segment that was added last is written, if any was, and returns the one to be used
    /// from now on instead: an equal one in a file, or itself, which may have been completed. Null where the
    /// store does not hold it: there is no room for the listing in memory, or the store is for a single
    /// search. The listing may go to the cache folder all the same.
    std::shared_ptr<const Segment> settle();

    /// The listing has been read to its end and has not changed; all segments have been settled.
    void finish();

   private:
    void startWriting();
    void write();
    void stopHolding();

    SegmentStore& store_;
    SegmentKey key_;
    std::unique_ptr<SegmentFileWriter> writer_;
    Segments segments_;
    std::size_t memory_ = 0;
    /// Whether the segments will be held in memory, by the store.
    bool isHolding_;
    /// The segment that is being added, and the same in the file where that is the better one to hold.
    std::shared_ptr<GrowingSegment> added_;
    std::shared_ptr<const Segment> inFile_;
    /// While it is valid, all that is above is the writing thread's. The last member: its end waits.
    std::future<void> writing_;
  };

 private:
  struct Kept {
    SegmentKey key;
    Segments segments;
    /// Bytes that the segments took up when they were last looked at.
    std::size_t memory = 0;
    bool isUsed = true;
  };

  void keep(Kept kept);
  void remove(std::list<Kept>::iterator kept);
  void makeRoom();

  Options options_;
  /// For the segments of all listings: most of what a search of many small ones took was new memory for each.
  std::shared_ptr<PassingBuffers> buffers_ = std::make_shared<PassingBuffers>();
  bool hasTidied_ = false;
  /// The one used last comes first.
  std::list<Kept> kept_;
  /// Their memory altogether.
  std::size_t memory_ = 0;
};

/// The file for a listing's segments in `cacheFolder`.
QString segmentFilePath(const QString& cacheFolder, const QString& listing);

/// All segment files in `cacheFolder`, by name.
QStringList segmentFiles(const QString& cacheFolder);
/// What earlier versions kept in `cacheFolder`, finished or not. Nothing reads it any more.
QStringList earlierSegmentFiles(const QString& cacheFolder);

}  // namespace quorvin
