// Where hits go that nobody wants to see.
#pragma once

#include "search/match/hit_receiver.h"

#include <cstdint>

namespace quorvin {

/// Counts hits and keeps nothing of them.
class DroppedHits : public HitReceiver {
 public:
  std::int64_t count() const { return count_; }

  void beginListing(SourceKind) override {}
  void addHits(const std::shared_ptr<const Segment>&, std::span<const FoundEntry> hits) override {
    count_ += static_cast<std::int64_t>(hits.size());
  }
  void endSegment(const std::shared_ptr<const Segment>&, const std::shared_ptr<const Segment>&) override {}

 private:
  std::int64_t count_ = 0;
};

}  // namespace quorvin
