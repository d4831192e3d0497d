// SPDX-License-Identifier: GPL-2.0-or-later

// Scans of listings in memory, with the result in the form that the reference gives.
#pragma once

#include "search/hit_table.h"
#include "search/listing_scan.h"
#include "support/qt_printing.h"
#include "support/reference_scan.h"

#include <QByteArray>

#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

namespace quorvin::test {

/// Reads a listing in memory.
class MemoryListing {
 public:
  explicit MemoryListing(const QByteArray& bytes) : bytes_(bytes) {}

  std::size_t operator()(std::span<char> buffer) {
    const auto left = static_cast<std::size_t>(bytes_.size() - position_);
    const std::size_t count = std::min(buffer.size(), left);
    std::copy_n(bytes_.constData() + position_, count, buffer.data());
    position_ += static_cast<qsizetype>(count);
    return count;
  }

 private:
  QByteArray bytes_;
  qsizetype position_ = 0;
};

/// Notes the counts at which the scan yielded; `onYield` decides whether it goes on (true stops it).
class YieldLog {
 public:
  bool operator()(std::int64_t searchedCount) {
    counts.push_back(searchedCount);
    return onYield && onYield(searchedCount);
  }

  std::vector<std::int64_t> counts;
  std::function<bool(std::int64_t)> onYield;
};

/// One scan into a table.
struct TestScan {
  explicit TestScan(const QString& lowerSearchText, int desiredMatch = 50,
                    const QLocale& listingLocale = QLocale::c())
      : query(lowerSearchText, static_cast<std::int16_t>(desiredMatch)), locale(listingLocale) {}

  ScanRequest request() { return {query, locale, &table, std::ref(yields)}; }

  void run(ListingReader read, const ScanLimits& limits = {}) {
    table.startListing(kind, {});
    scanListing([&read] { return read; }, request(), counts, outcome, limits);
  }

  void runFile(const QString& path, SegmentStore* store, const ScanLimits& limits = {}) {
    table.startListing(kind, path);
    scanListingFile(path, store, request(), counts, outcome, limits);
  }

  ReferenceResult result() const;

  SearchQuery query;
  QLocale locale;
  SourceKind kind = SourceKind::Online;
  HitTable table;
  YieldLog yields;
  RunCounts counts;
  ScanOutcome outcome;
};

inline std::vector<ReferenceHit> hitsOf(const HitTable& table) {
  std::vector<ReferenceHit> hits;
  for (std::int64_t i = 0; i < table.rowCount(); ++i) {
    const HitRow row = table.row(i);
    hits.push_back({row.match, row.volume, row.folder, row.name, row.size, row.date});
  }
  return hits;
}

inline ReferenceResult TestScan::result() const {
  ReferenceResult result;
  result.hits = hitsOf(table);
  result.searched = counts.searched;
  result.unreadable = outcome.unreadableHits;
  result.firstUnreadableLine = outcome.firstUnreadableLine;
  return result;
}

/// The program's own scan of `listing`.
inline ReferenceResult scanOf(const QByteArray& listing, const QString& lowerSearchText, int desiredMatch,
                              const ScanLimits& limits = {}, const QLocale& locale = QLocale::c()) {
  TestScan scan(lowerSearchText, desiredMatch, locale);
  scan.run(MemoryListing(listing), limits);
  return scan.result();
}

}  // namespace quorvin::test
