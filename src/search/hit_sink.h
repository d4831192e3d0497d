// SPDX-License-Identifier: GPL-2.0-or-later

// Where a search puts its hits.
#pragma once

#include "search/match/segment_search.h"

#include <QString>

#include <cstdint>
#include <memory>
#include <span>

namespace quorvin {

/// The three kinds of source that a listing comes from.
enum class SourceKind : std::uint8_t { Online, MainDataFile, Offline };

/// The colour of a hit's row by its kind of source, as 0xRRGGBB: blue, red, orange.
constexpr std::uint32_t rowColour(SourceKind kind) {
  switch (kind) {
    case SourceKind::Online:
      return 0x0000FF;
    case SourceKind::MainDataFile:
      return 0xFF0000;
    case SourceKind::Offline:
      return 0xFF7F00;
  }
  return 0;
}

/// Takes the hits of a run in the order in which they are found: the window's table, the console's writer. A
/// search whose hits are only counted has none.
class HitSink {
 public:
  virtual ~HitSink() = default;

  /// A new listing starts, the file at `path`. Size and date, which are carried from hit to hit, start
  /// afresh.
  virtual void startListing(SourceKind kind, const QString& path) = 0;

  /// Hits of `segment`, in entry order, at least one. `segment` may still be growing, but what it says about
  /// these entries is final. It is shared because a hit can be shown even after its listing has been replaced
  /// and everybody else has let go of the segment. False ends the whole search: no more hits are wanted. May
  /// throw DamagedSegment, and has then taken none of these hits.
  virtual bool addHits(const std::shared_ptr<const Segment>& segment, std::span<const FoundEntry> hits) = 0;

  /// No more hits of `segment` will come; those of the next one may have begun to. `kept` is an equal segment
  /// that stays in any case and is to be used instead (it may be `segment` itself). It is null where only the
  /// hits keep the segment alive; a copy of their entries alone is then the better thing to keep.
  virtual void endSegment(const std::shared_ptr<const Segment>& segment,
                          const std::shared_ptr<const Segment>& kept) = 0;
};

}  // namespace quorvin
