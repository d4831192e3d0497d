// Scans of listings in memory, with the result in the form that the reference gives.
#pragma once

#include "search/hit_table.h"
#include "search/listing_scan.h"
#include "support/qt_printing.h"
#include "support/reference_scan.h"

#include <QByteArray>

#include <algorithm>
#include <functional>

namespace quorvin::test {

/// A listing in memory.
class MemoryListing : public ListingSource {
 public:
  explicit MemoryListing(const QByteArray& bytes) : bytes_(bytes) {}

  std::size_t read(std::span<char> buffer) override {
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
class YieldLog : public ScanListener {
 public:
  bool reached(std::int64_t searchedCount) override {
    counts.push_back(searchedCount);
    return onYield && onYield(searchedCount);
  }

  std::vector<std::int64_t> counts;
  std::function<bool(std::int64_t)> onYield;
};

inline ReferenceResult resultOf(const HitTable& table, const ScanOutcome& outcome, std::int64_t searched) {
  ReferenceResult result;
  for (std::int64_t i = 0; i < table.rowCount(); ++i) {
    const HitRow row = table.row(i);
    result.hits.push_back({row.match, row.volume, row.folder, row.name, row.size, row.date});
  }
  result.searched = searched;
  result.unreadable = outcome.unreadableHits;
  result.firstUnreadableLine = outcome.firstUnreadableLine;
  return result;
}

/// The program's own scan of `listing`.
inline ReferenceResult scanOf(const QByteArray& listing, const QString& lowerSearchText, int desiredMatch,
                              const ScanLimits& limits = {}, const QLocale& locale = QLocale::c()) {
  MemoryListing source(listing);
  const SearchQuery query(lowerSearchText, static_cast<std::int16_t>(desiredMatch));
  HitTable table;
  YieldLog yields;
  ScanOutcome outcome;
  std::int64_t searched = 0;
  table.beginListing(SourceKind::Online);
  scanListing(source, query, locale, searched, table, yields, outcome, limits);
  return resultOf(table, outcome, searched);
}

}  // namespace quorvin::test
