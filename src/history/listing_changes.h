// SPDX-License-Identifier: GPL-2.0-or-later

// What a new listing has that the earlier one lacks, and the other way round.
#pragma once

#include <QString>

#include <cstdint>
#include <functional>
#include <optional>

namespace quorvin {

/// An entry is known by its folder and its name as listed. Another size or date makes it no other entry, and
/// one that was moved or renamed is gone in one place and new in the other. Of names that a listing cuts to
/// the same text, each counts.
struct ListingChanges {
  std::int64_t added = 0;
  std::int64_t gone = 0;

  bool operator==(const ListingChanges&) const = default;
};

/// Compares the listings at two paths. `goOn` is called every megabyte or so and may let events run; where it
/// is false there is no result. 8 bytes of memory are used for each entry of both. Throws RuntimeFault when
/// one of them cannot be read.
std::optional<ListingChanges> changesBetween(const QString& earlier, const QString& later,
                                             const std::function<bool()>& goOn);

}  // namespace quorvin
