// SPDX-License-Identifier: GPL-2.0-or-later
#include "faults/runtime_fault.h"
#include "files/file_aside.h"
#include "index/dir_io.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace quorvin {
namespace {

struct Written {
  QByteArray output1;
  QByteArray output2;
};

Written written(int flags) {
  const TemporaryFolder folder;
  FileAside first(folder.pathOf(QStringLiteral("1")));
  FileAside second(folder.pathOf(QStringLiteral("2")));
  writeLine("a line", {&first.writer(), &second.writer()}, flags);
  writeLine("", {&first.writer(), &second.writer()}, flags);
  first.commit();
  second.commit();
  return {folder.readFile(QStringLiteral("1")), folder.readFile(QStringLiteral("2"))};
}

constexpr char kBothLines[] = "a line\r\n\r\n";

TEST(LineOutput, Flag8WritesToOutput1WhateverElseIsSet) {
  for (const int flags : {8, 8 | 2, 8 | 16, 8 | 32, 8 | 16 | 32}) {
    EXPECT_EQ(written(flags).output1, kBothLines) << flags;
    EXPECT_EQ(written(flags).output2, "") << flags;
  }
}

TEST(LineOutput, Flag16WritesToOutput2) {
  for (const int flags : {16, 16 | 2, 16 | 32}) {
    EXPECT_EQ(written(flags).output1, "") << flags;
    EXPECT_EQ(written(flags).output2, kBothLines) << flags;
  }
}

TEST(LineOutput, Flag32AloneWritesToBoth) {
  EXPECT_EQ(written(32).output1, kBothLines);
  EXPECT_EQ(written(32).output2, kBothLines);
}

TEST(LineOutput, WithoutAFlagNothingIsWritten) {
  for (const int flags : {0, 2, 1 | 4 | 64}) {
    EXPECT_EQ(written(flags).output1, "") << flags;
    EXPECT_EQ(written(flags).output2, "") << flags;
  }
}

TEST(LineOutput, AFileThatIsNotThereIsABadFileNumber) {
  try {
    writeLine("a line", {nullptr, nullptr}, kToOutput1);
    FAIL() << "nothing was thrown";
  } catch (const RuntimeFault& fault) {
    EXPECT_EQ(fault.number(), 52);
  }
  EXPECT_NO_THROW(writeLine("a line", {nullptr, nullptr}, 0));
}

}  // namespace
}  // namespace quorvin
