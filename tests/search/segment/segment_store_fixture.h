// SPDX-License-Identifier: GPL-2.0-or-later

// A listing, and a store that keeps segments of it.
#pragma once

#include "search/listing_scan.h"
#include "search/segment/segment_store.h"
#include "support/listing_lines.h"
#include "support/scan_of.h"
#include "support/temporary_folder.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

#include <functional>

namespace quorvin::test {

/// A listing and a store in a temporary folder, with segments so small that there are several.
class SegmentStoreTest : public ::testing::Test {
 protected:
  SegmentStoreTest() {
    limits_.chunkSize = 5000;
    limits_.keptSegment = 40000;
    for (int i = 0; i < 3000; ++i) {
      if (i % 20 == 0) {
        bytes_ += blockHead("V" + QByteArray::number(i / 1000), "\\Music\\F" + QByteArray::number(i) + "\\");
      }
      bytes_ += entryLine((i % 3 == 0 ? "Song " : "other \xC3\x84 ") + QByteArray::number(i),
                          i % 100 == 0 ? "n/a" : QByteArray::number(i * 1000));
    }
    listing_ = folder_.writeFile(u"cd.lst"_qs, bytes_);
    cache_ = folder_.pathOf(u"cache/"_qs);
  }

  ReferenceResult reference(const QString& words) { return referenceScan(bytes_, words, 50, QLocale::c()); }

  /// A scan of the listing; `reads` then tells whether the listing itself was read.
  ReferenceResult scan(SegmentStore& store, const QString& words) {
    TestScan scan(words);
    scan.yields.onYield = [this](std::int64_t count) { return onYield_ && onYield_(count); };
    scan.runFile(listing_, &store, limits_);
    const ReferenceResult result = scan.result();
    table_ = std::move(scan.table);
    outcome_ = scan.outcome;
    return result;
  }

  void expectRight(SegmentStore& store) {
    for (const QString& words : {u"song"_qs, u"other music 7"_qs, u"\u00E4"_qs, u"f120 song"_qs}) {
      const ReferenceResult scanned = scan(store, words);
      const ReferenceResult expected = reference(words);
      EXPECT_EQ(scanned.searched, expected.searched);
      EXPECT_EQ(scanned.hits, expected.hits) << words.toStdString();
      EXPECT_EQ(scanned.unreadable, expected.unreadable);
      EXPECT_EQ(scanned.firstUnreadableLine, expected.firstUnreadableLine);
    }
  }

  QString cacheFile() const { return segmentFiles(cache_).value(0); }

  TemporaryFolder folder_;
  QByteArray bytes_;
  QString listing_;
  QString cache_;
  ScanLimits limits_;
  HitTable table_;
  ScanOutcome outcome_;
  std::function<bool(std::int64_t)> onYield_;
};

constexpr std::size_t kPlenty = std::size_t{1} << 30;

}  // namespace quorvin::test
