// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/segment/tail_batch.h"

#include "search/format/line_scan.h"

#include <gtest/gtest.h>

#include <deque>
#include <string>

namespace quorvin {
namespace {

/// Texts that go away as those of a listing do, and the batch that has copied their tails.
class TailBatchTest : public testing::Test {
 protected:
  /// The next entry's tail, in its own line.
  void add(const std::string& tail, std::int64_t line = 1) {
    texts_.push_back(tail + std::string(kLinePadding, '#'));
    last_ = std::string_view(texts_.back()).substr(0, tail.size());
    batch_.add(last_, true, line);
  }
  /// The next entry has none of its own.
  void share(std::int64_t line = 1) { batch_.add(last_, false, line); }

  const EntryValueArrays& read() {
    for (std::string& text : texts_) text.assign(text.size(), '?');
    batch_.read(reader_);
    return batch_.values();
  }

  static std::string tail(const std::string& size, const std::string& date = "15 Jan 2004 10:20:30") {
    return std::string(13 - size.size(), ' ') + size + " bytes " + date;
  }

  TailReader reader_{EntryValuesReader(QLocale::c())};
  TailBatch batch_;
  std::deque<std::string> texts_;
  std::string_view last_;
};

TEST_F(TailBatchTest, ReadsWhatItHasCopied) {
  add(tail("1,024"));
  add(tail("7"));
  const EntryValueArrays& values = read();
  ASSERT_EQ(values.count(), 2U);
  EXPECT_EQ(expand(values.compact()[0]).size, 1024);
  EXPECT_EQ(expand(values.compact()[1]).size, 7);
  EXPECT_TRUE(values.allOwn());
}

TEST_F(TailBatchTest, TailsLongerThanWhatIsCopiedAtOnceAreWhole) {
  const std::string date = std::string(100, ' ') + "15 Jan 2004 10:20:30";
  add(tail("5", date));
  add(tail("6"));
  const EntryValueArrays& values = read();
  EXPECT_EQ(expand(values.compact()[0]).date, expand(values.compact()[1]).date);
  EXPECT_EQ(expand(values.compact()[0]).size, 5);
}

TEST_F(TailBatchTest, SharedTailsAreCarried) {
  add(tail("9"));
  share();
  add(tail("n/a"), 3);
  share(4);
  const EntryValueArrays& values = read();
  EXPECT_EQ(expand(values.compact()[1]).size, 9);
  EXPECT_EQ(values.notOwn()[0], 0b1110U);
  ASSERT_EQ(values.unreadable().size(), 2U);
  EXPECT_EQ(values.unreadable()[0].line, 3);
  EXPECT_EQ(values.unreadable()[1].line, 4);
  EXPECT_EQ(values.unreadable()[1].entry, 3U);
}

TEST_F(TailBatchTest, ATailOfItsOwnIsReadAlsoWhereTheOneBeforeWas) {
  std::string text = tail("1") + std::string(kLinePadding, '#');
  batch_.add(std::string_view(text).substr(0, tail("1").size()), true, 1);
  // The next chunk of the listing is read into the same memory.
  text.replace(0, tail("2").size(), tail("2"));
  batch_.add(std::string_view(text).substr(0, tail("2").size()), true, 2);
  const EntryValueArrays& values = read();
  EXPECT_EQ(expand(values.compact()[0]).size, 1);
  EXPECT_EQ(expand(values.compact()[1]).size, 2);
}

TEST_F(TailBatchTest, WithoutAnyTailTheValuesAreAbsent) {
  share();
  share();
  add(tail("3"));
  const EntryValueArrays& values = read();
  EXPECT_EQ(values.compact()[0].second, CompactValues::kAbsent);
  EXPECT_EQ(values.compact()[1].second, CompactValues::kAbsent);
  EXPECT_EQ(values.notOwn()[0], 0b011U);
  EXPECT_EQ(expand(values.compact()[2]).size, 3);
}

TEST_F(TailBatchTest, IsUsedAgainWithoutARemainder) {
  add(tail("99999999999"));
  read();
  EXPECT_EQ(batch_.values().wide().size(), 1U);
  batch_.clear();
  texts_.clear();
  add(tail("2"));
  const EntryValueArrays& values = read();
  ASSERT_EQ(values.count(), 1U);
  EXPECT_EQ(expand(values.compact()[0]).size, 2);
  EXPECT_TRUE(values.wide().empty());
}

}  // namespace
}  // namespace quorvin
