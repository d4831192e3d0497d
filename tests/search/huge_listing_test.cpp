// SPDX-License-Identifier: GPL-2.0-or-later

// A listing beyond what 32 bits can count.
#include "support/listing_lines.h"
#include "support/scan_of.h"
#include "support/sweep.h"

#include <gtest/gtest.h>

namespace quorvin {
namespace {

/// 4.1 GB of entries (41 MB in a slice) and one last line, made as they are read.
class HugeListing {
 public:
  HugeListing() {
    while (block_.size() < (1 << 20)) block_ += test::entryLine("Evening on the pier.mp3", "4,194,304");
    left_ = size_ / block_.size();
  }

  std::int64_t blocks() const { return size_ / block_.size(); }
  std::int64_t entriesInBlock() const { return block_.count('\n'); }

  std::size_t operator()(std::span<char> buffer) {
    std::size_t filled = 0;
    while (filled < buffer.size()) {
      const QByteArray& from = left_ > 0 ? block_ : last_;
      const auto count = std::min(buffer.size() - filled, static_cast<std::size_t>(from.size() - position_));
      std::copy_n(from.constData() + position_, count, buffer.data() + filled);
      filled += count;
      position_ += static_cast<qsizetype>(count);
      if (position_ < from.size()) break;
      if (left_ == 0) break;
      --left_;
      position_ = 0;
    }
    return filled;
  }

 private:
  QByteArray block_;
  QByteArray last_ = test::entryLine("Harbour at night.jpg", "1,048,576");
  std::int64_t left_ = 0;
  qsizetype position_ = 0;
  std::int64_t size_ = test::sweep<std::int64_t>(4'100'000'000, 41'000'000);
};

TEST(HugeListing, OnlyHitInTheLastLineIsFound) {
  HugeListing source;
  const std::int64_t entries = source.blocks() * source.entriesInBlock() + 1;
  test::TestScan scan(u"harbour"_qs);
  scan.run(std::ref(source));
  EXPECT_EQ(scan.counts.searched, entries);
  const HitTable& table = scan.table;
  ASSERT_EQ(table.rowCount(), 1);
  EXPECT_EQ(table.row(0).name, u"Harbour at night.jpg"_qs);
  EXPECT_EQ(table.row(0).size, 1048576);
}

}  // namespace
}  // namespace quorvin
