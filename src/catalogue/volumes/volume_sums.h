// SPDX-License-Identifier: GPL-2.0-or-later

// How much is on each volume of listings.
#pragma once

#include "catalogue/copies.h"
#include "dates/general_date.h"
#include "search/hit_sink.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace quorvin {

/// What is listed of a volume.
struct VolumeSum {
  struct Newest {
    DateValue date;
    /// As listed, UTF-8.
    std::string folder;
    std::string name;

    bool operator==(const Newest&) const = default;
  };

  /// All entries, and the bytes of those that have a size.
  FileSum holds = {};
  /// Entries whose lines have no size of their own.
  std::int64_t withoutSize = 0;
  /// The file that was changed last, the first one of several; nothing where none has a date. A time alone,
  /// which is on the zero date, is none.
  std::optional<Newest> newest = {};

  void add(const VolumeSum& other);
  bool operator==(const VolumeSum&) const = default;
};

/// The sink of a search: sums its hits by volume, in memory for the volumes alone. A volume is what a listing
/// calls so; two listings never share one.
class VolumeSums : public HitSink {
 public:
  struct Listing {
    SourceKind kind;
    QString path;
  };
  struct Volume {
    /// The number of its listing.
    std::uint32_t listing;
    /// As listed, UTF-8.
    std::string name;
    VolumeSum sum;
  };

  using ListingStarts = std::function<void(SourceKind kind, const QString& path)>;
  /// `listingStarts` is told of each listing when it starts.
  explicit VolumeSums(ListingStarts listingStarts = [](SourceKind, const QString&) {})
      : listingStarts_(std::move(listingStarts)) {}

  void startListing(SourceKind kind, const QString& path) override;
  bool addHits(const std::shared_ptr<const Segment>& segment, std::span<const FoundEntry> hits) override;
  void endSegment(const std::shared_ptr<const Segment>& segment,
                  const std::shared_ptr<const Segment>& kept) override;

  const std::vector<Listing>& listings() const { return listings_; }
  /// In the order in which they are found.
  const std::vector<Volume>& volumes() const { return volumes_; }

 private:
  std::uint32_t numberOf(const std::string& name);

  ListingStarts listingStarts_;
  std::vector<Listing> listings_;
  std::vector<Volume> volumes_;
  /// The numbers of the volumes of the listing that is being read.
  std::map<std::string, std::uint32_t> numbers_;
};

}  // namespace quorvin
