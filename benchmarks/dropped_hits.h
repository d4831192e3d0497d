// SPDX-License-Identifier: GPL-2.0-or-later

// Where hits go that nobody wants to see.
#pragma once

#include "search/hit_sink.h"

#include <cstdint>

namespace quorvin {

/// Counts hits and keeps nothing of them.
class DroppedHits : public HitSink {
 public:
  std::int64_t count() const { return count_; }

  void startListing(SourceKind, const QString&) override {}
  bool addHits(const std::shared_ptr<const Segment>&, std::span<const FoundEntry> hits) override {
    count_ += static_cast<std::int64_t>(hits.size());
    return true;
  }
  void endSegment(const std::shared_ptr<const Segment>&, const std::shared_ptr<const Segment>&) override {}

 private:
  std::int64_t count_ = 0;
};

}  // namespace quorvin
