// SPDX-License-Identifier: GPL-2.0-or-later

// One text of many hits, made while events run.
#include "hits/hit_copy.h"

#include "faults/runtime_fault.h"
#include "support/eventually.h"
#include "support/fault_number.h"
#include "support/qt_printing.h"

#include <QElapsedTimer>
#include <gtest/gtest.h>

#include <numeric>

namespace quorvin::test {

namespace {

using std::chrono_literals::operator""ms;
using std::chrono_literals::operator""h;

QString number(int row) {
  return QString::number(row);
}

/// Takes a millisecond.
QString slowNumber(int row) {
  QElapsedTimer clock;
  clock.start();
  while (clock.nsecsElapsed() < 1'000'000) {
  }
  return number(row);
}

std::vector<int> rowsTo(int count) {
  std::vector<int> rows(static_cast<std::size_t>(count));
  std::iota(rows.begin(), rows.end(), 0);
  return rows;
}

class HitCopies : public testing::Test {
 protected:
  HitCopies() {
    QObject::connect(&copy_, &HitCopy::ended, &copy_, [this](CopyEnd end, const QString& text) {
      ends_.push_back(end);
      text_ = text;
    });
    QObject::connect(&copy_, &HitCopy::goesOn, &copy_, [this] { ++words_; });
  }

  HitTable table_;
  HitCopy copy_{table_};
  std::vector<CopyEnd> ends_;
  QString text_;
  int words_ = 0;
};

TEST_F(HitCopies, FewLinesAreThereAtOnceInTheOrderOfTheRows) {
  copy_.start({3, 1, 2}, number);
  EXPECT_EQ(ends_, std::vector{CopyEnd::Whole});
  EXPECT_EQ(text_, QStringLiteral("3\n1\n2"));
  EXPECT_FALSE(copy_.isRunning());
}

TEST_F(HitCopies, UpToThirtyTwoLinesAreThereAtOnceHoweverLongTheyTake) {
  copy_.start(rowsTo(32), slowNumber);
  EXPECT_EQ(ends_, std::vector{CopyEnd::Whole});
}

TEST_F(HitCopies, ManyLinesAreMadeWhileEventsRun) {
  constexpr int kMany = 150;
  copy_.start(rowsTo(kMany), slowNumber);
  EXPECT_TRUE(copy_.isRunning());
  EXPECT_LT(copy_.done(), kMany);
  EXPECT_EQ(copy_.all(), kMany);
  std::int64_t before = copy_.done();
  std::int64_t mostAtOnce = 0;
  while (ends_.empty()) {
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    mostAtOnce = std::max(mostAtOnce, copy_.done() - before);
    before = copy_.done();
  }
  // Eight milliseconds and the line with which they are over; the event loop may come to the timer twice.
  EXPECT_LE(mostAtOnce, 18);
  EXPECT_EQ(ends_, std::vector{CopyEnd::Whole});
  const QStringList lines = text_.split(u'\n');
  ASSERT_EQ(lines.size(), kMany);
  EXPECT_EQ(lines.first(), QStringLiteral("0"));
  EXPECT_EQ(lines.last(), QStringLiteral("149"));
}

TEST_F(HitCopies, ThatAreStoppedGiveNoText) {
  copy_.start(rowsTo(1000), slowNumber);
  copy_.stop();
  EXPECT_EQ(ends_, std::vector{CopyEnd::Stopped});
  EXPECT_EQ(text_, QString());
  EXPECT_FALSE(copy_.isRunning());
  copy_.stop();
  QCoreApplication::processEvents();
  EXPECT_EQ(ends_.size(), 1U);
}

TEST_F(HitCopies, EndWhenTheTableIsCleared) {
  copy_.start(rowsTo(1000), slowNumber);
  const std::int64_t done = copy_.done();
  table_.clear();
  EXPECT_EVENTUALLY(!copy_.isRunning());
  EXPECT_EQ(ends_, std::vector{CopyEnd::HitsGone});
  EXPECT_EQ(text_, QString());
  EXPECT_EQ(copy_.done(), done) << "no row is read any more";
}

TEST_F(HitCopies, TheNextOneTakesThePlaceOfThePresentOne) {
  copy_.start(rowsTo(1000), slowNumber);
  copy_.start({7, 8}, number);
  QCoreApplication::processEvents();
  EXPECT_EQ(ends_, std::vector{CopyEnd::Whole});
  EXPECT_EQ(text_, QStringLiteral("7\n8"));
}

TEST_F(HitCopies, ThatAreDroppedEndWithoutAWord) {
  copy_.start(rowsTo(1000), slowNumber);
  copy_.drop();
  QCoreApplication::processEvents();
  EXPECT_TRUE(ends_.empty());
  EXPECT_FALSE(copy_.isRunning());
}

TEST_F(HitCopies, EndWithAFaultOfALineAndDoNotTryAgain) {
  const auto broken = [](int row) {
    if (row == 2) throw RuntimeFault(FaultNumber::DeviceError);
    return number(row);
  };
  EXPECT_FAULT(copy_.start(rowsTo(5), broken), 57);
  EXPECT_FALSE(copy_.isRunning());
  QCoreApplication::processEvents();
  EXPECT_TRUE(ends_.empty());
}

TEST_F(HitCopies, SayThatTheyGoOnOnlyWhenTheyTakeLong) {
  copy_.setUnseen(1h);
  copy_.start(rowsTo(100), slowNumber);
  EXPECT_EVENTUALLY(!copy_.isRunning());
  EXPECT_EQ(words_, 0);
  copy_.setUnseen(0ms);
  copy_.start(rowsTo(100), slowNumber);
  EXPECT_GE(words_, 1);
  EXPECT_EVENTUALLY(!copy_.isRunning());
}

}  // namespace

}  // namespace quorvin::test
