// SPDX-License-Identifier: GPL-2.0-or-later
#include "state/source_table.h"

#include "faults/runtime_fault.h"
#include "state/program_state.h"
#include "support/fault_number.h"
#include "support/qt_printing.h"

#include <gtest/gtest.h>

namespace quorvin {
namespace {

int faultOfAccess(const SourceTable& table, int row, int column) {
  try {
    static_cast<void>(table.at(row, column));
  } catch (const RuntimeFault& fault) {
    return fault.number();
  }
  return 0;
}

TEST(SourceTable, IsEmptyAtFirst) {
  const SourceTable table;
  EXPECT_EQ(table.description(1), QString());
  EXPECT_EQ(table.path(2000), QString());
}

TEST(SourceTable, KeepsARecordInItsRow) {
  SourceTable table;
  table.set(3, QStringLiteral("My music"), QStringLiteral("D:\\Music\\"));
  EXPECT_EQ(table.description(3), QStringLiteral("My music"));
  EXPECT_EQ(table.path(3), QStringLiteral("D:\\Music\\"));
  EXPECT_EQ(table.at(3, 1), QStringLiteral("My music"));
  EXPECT_EQ(table.at(3, 2), QStringLiteral("D:\\Music\\"));
  EXPECT_EQ(table.at(3, 0), QString());
  EXPECT_EQ(table.description(2), QString());
}

TEST(SourceTable, HasRows0To2000AndColumns0To2) {
  const SourceTable table;
  EXPECT_EQ(faultOfAccess(table, 0, 0), 0);
  EXPECT_EQ(faultOfAccess(table, 2000, 2), 0);
  EXPECT_EQ(faultOfAccess(table, 2001, 1), 9);
  EXPECT_EQ(faultOfAccess(table, -1, 1), 9);
  EXPECT_EQ(faultOfAccess(table, 1, 3), 9);
  EXPECT_EQ(faultOfAccess(table, 1, -1), 9);
}

TEST(SourceTable, FaultsWhenRow2001IsSet) {
  SourceTable table;
  table.set(2000, QStringLiteral("last"), QStringLiteral("/last/"));
  EXPECT_FAULT(table.set(2001, QStringLiteral("one more"), QStringLiteral("/more/")), 9);
  EXPECT_EQ(table.description(2000), QStringLiteral("last"));
}

TEST(ProgramState, FileNamesOfARunWithoutCommandLine) {
  ProgramState state;
  state.RegKey = QStringLiteral("D:\\lists\\music.txt");
  state.LocFile = QStringLiteral("Locations.txt_music");
  state.resetFileNames();
  EXPECT_EQ(state.RegKey, QStringLiteral("Ketta Quorvin"));
  EXPECT_EQ(state.LocFile, QStringLiteral("Locations.txt"));
  EXPECT_EQ(state.OffLineFile, QStringLiteral("OfflineLocations.txt"));
  EXPECT_EQ(state.OnlineSourceCount, 0);
  EXPECT_EQ(state.OfflineSourceCount, 0);
}

}  // namespace
}  // namespace quorvin
