// Where a scan puts its hits.
#pragma once

#include "search/match/source_kind.h"
#include "search/segment/segment.h"

#include <cstdint>
#include <memory>
#include <span>

namespace quorvin {

/// One entry above the desired match.
struct FoundEntry {
  /// The entry's number in its segment.
  std::uint32_t entry;
  /// The match, 1 to 100.
  std::int16_t match;
};

/// Receives the hits of a run in the order in which they are found.
class HitReceiver {
 public:
  virtual ~HitReceiver() = default;

  /// A new listing begins; size and date carried from hit to hit start afresh.
  virtual void beginListing(SourceKind kind) = 0;

  /// Hits of `segment`, in entry order. `segment` may still be growing; what it says of these entries is
  /// final. It is shared because a hit stays showable after its listing has been replaced and every other
  /// user of the segment has let go of it. May throw DamagedSegment, and has then taken none of these hits.
  virtual void addHits(const std::shared_ptr<const Segment>& segment, std::span<const FoundEntry> hits) = 0;

  /// Whether hits are of no use to it but for their number: then they may come as addCount() in place of
  /// addHits().
  virtual bool countsOnly() const { return false; }

  /// So many hits more. Called only if countsOnly().
  virtual void addCount(std::int64_t hits) { static_cast<void>(hits); }

  /// No more hits of `segment` will come. `kept` is an equal segment that stays in any case and is to be used
  /// instead (it may be `segment` itself); null where only the hits keep the segment alive, so that a copy of
  /// their entries alone is the better thing to keep.
  virtual void endSegment(const std::shared_ptr<const Segment>& segment,
                          const std::shared_ptr<const Segment>& kept) = 0;
};

}  // namespace quorvin
