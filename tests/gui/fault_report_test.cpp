// SPDX-License-Identifier: GPL-2.0-or-later

// Telling faults that nothing else has dealt with.
#include "app/fault_report.h"

#include "support/qt_printing.h"
#include "support/recording_message_boxes.h"

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>

namespace quorvin::test {

namespace {

TEST(FaultReport, TellsNumberDescriptionAndWhatWasBeingDone) {
  RecordingMessageBoxes messages;
  reportFaults(messages, QStringLiteral("reading a list"),
               [] { throw RuntimeFault(FaultNumber::DiskFull, QStringLiteral("Disk full: /data")); });
  ASSERT_EQ(messages.informed.size(), 1U);
  EXPECT_EQ(
      messages.informed[0],
      QStringLiteral("Run-time error '61': Disk full: /data\r\n\r\nThis happened while reading a list."));
}

TEST(FaultReport, TellsAnExceptionWithoutANumberByItsText) {
  EXPECT_EQ(faultReport(std::logic_error("odd"), QStringLiteral("counting")),
            QStringLiteral("Run-time error: odd\r\n\r\nThis happened while counting."));
}

TEST(FaultReport, TellsThatMemoryHasRunOut) {
  EXPECT_EQ(faultReport(std::bad_alloc(), QStringLiteral("counting")),
            QStringLiteral("Run-time error: Out of memory\r\n\r\nThis happened while counting."));
}

/// A box for which there is no memory.
class NoRoomForBoxes : public RecordingMessageBoxes {
 public:
  void inform(const QString&) override { throw std::bad_alloc(); }
};

TEST(FaultReport, GoesToStandardErrorWhereThereIsNoMemoryForABox) {
  NoRoomForBoxes messages;
  testing::internal::CaptureStderr();
  reportFaults(messages, QStringLiteral("counting"),
               [] { throw RuntimeFault(FaultNumber::DiskFull, QStringLiteral("Disk full: /data")); });
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "quorvin: Disk full: /data\n");
}

TEST(FaultReport, TellsNothingWhenNothingHappens) {
  RecordingMessageBoxes messages;
  bool done = false;
  reportFaults(messages, QStringLiteral("counting"), [&] { done = true; });
  EXPECT_TRUE(done);
  EXPECT_TRUE(messages.informed.empty());
}

}  // namespace

}  // namespace quorvin::test
