// Filling a hit table as a run does, from a listing in memory.
#pragma once

#include "support/scan_of.h"

namespace quorvin::test {

/// Adds the hits of `lowerSearchText` in `listing`, with a desired match of 50, to `table`.
inline void scanInto(HitTable& table, SourceKind kind, const QByteArray& listing,
                     const QString& lowerSearchText) {
  MemoryListing source(listing);
  YieldLog yields;
  ScanOutcome outcome;
  std::int64_t searched = 0;
  table.beginListing(kind);
  scanListing(source, SearchQuery(lowerSearchText, 50), QLocale::c(), searched, table, yields, outcome);
}

}  // namespace quorvin::test
