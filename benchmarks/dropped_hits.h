// Where hits go that nobody wants to see.
#pragma once

#include "search/hit_receiver.h"

#include <cstdint>

namespace quorvin {

/// Counts hits and keeps nothing of them.
class DroppedHits : public HitReceiver {
 public:
  std::int64_t count() const { return count_; }

  void beginListing(SourceKind) override {}
  void addHits(const std::shared_ptr<const SearchImage>&, std::span<const FoundEntry> hits) override {
    count_ += static_cast<std::int64_t>(hits.size());
  }
  void endImage(const std::shared_ptr<const SearchImage>&,
                const std::shared_ptr<const SearchImage>&) override {}

 private:
  std::int64_t count_ = 0;
};

}  // namespace quorvin
