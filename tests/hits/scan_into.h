// SPDX-License-Identifier: GPL-2.0-or-later

// Filling a hit table as a run does, from a listing in memory.
#pragma once

#include "support/scan_of.h"

namespace quorvin::test {

/// Adds the hits of `lowerSearchText` in `listing`, with a desired match of 50, to `table`.
inline void scanInto(HitTable& table, SourceKind kind, const QByteArray& listing,
                     const QString& lowerSearchText) {
  const SearchQuery query(lowerSearchText, 50);
  RunCounts counts;
  ScanOutcome outcome;
  table.startListing(kind, {});
  scanListing([&] { return MemoryListing(listing); }, {query, QLocale::c(), &table, YieldLog()}, counts,
              outcome);
}

}  // namespace quorvin::test
