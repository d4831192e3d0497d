// SPDX-License-Identifier: GPL-2.0-or-later
#include "faults/runtime_fault.h"

#include "support/qt_printing.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <string>

namespace quorvin {

TEST(RuntimeFault, CarriesItsNumberAndItsOwnWords) {
  const RuntimeFault fault(FaultNumber::FileNotFound);
  EXPECT_EQ(fault.number(), 53);
  EXPECT_EQ(fault.faultNumber(), FaultNumber::FileNotFound);
  EXPECT_EQ(fault.description(), u"File not found");
  EXPECT_EQ(std::string(fault.what()), "File not found");
}

TEST(RuntimeFault, CarriesADescriptionOfTheThingConcerned) {
  const RuntimeFault fault(FaultNumber::SubscriptOutOfRange, QStringLiteral("Row 2001 – Zürich"));
  EXPECT_EQ(fault.number(), 9);
  EXPECT_EQ(fault.description(), QStringLiteral("Row 2001 – Zürich"));
  EXPECT_EQ(std::string(fault.what()), "Row 2001 – Zürich");
}

TEST(RuntimeFault, MessagesNameItByNumberAndDescription) {
  EXPECT_EQ(RuntimeFault(FaultNumber::DiskFull, QStringLiteral("Disk full: /a/%1.txt")).text(),
            u"Run-time error '61': Disk full: /a/%1.txt");
}

TEST(RuntimeFault, EveryNumberHasItsWords) {
  struct Row {
    int number;
    const char16_t* words;
  };
  const Row rows[] = {
      {5, u"Invalid procedure call or argument"},
      {6, u"Overflow"},
      {9, u"Subscript out of range"},
      {11, u"Division by zero"},
      {13, u"Type mismatch"},
      {52, u"Bad file name or number"},
      {53, u"File not found"},
      {57, u"Device I/O error"},
      {61, u"Disk full"},
      {62, u"Input past end of file"},
      {70, u"Permission denied"},
      {75, u"Path/File access error"},
      {76, u"Path not found"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(describe(static_cast<FaultNumber>(row.number)), QStringView(row.words)) << row.number;
  }
}

TEST(RuntimeFault, SystemErrorsMapToNumbers) {
  struct Row {
    int error;
    int number;
  };
  const Row rows[] = {{ENOENT, 53}, {ENOTDIR, 76}, {EACCES, 70}, {EPERM, 70},  {EROFS, 70},
                      {ENOSPC, 61}, {EDQUOT, 61},  {EFBIG, 61},  {EINVAL, 52}, {ENAMETOOLONG, 52},
                      {EIO, 57},    {ENODEV, 57},  {EISDIR, 75}, {EMFILE, 75}, {0, 75}};
  for (const Row& row : rows) {
    EXPECT_EQ(faultOfSystemError(row.error, QStringLiteral("/a")).number(), row.number) << row.error;
  }
}

TEST(RuntimeFault, ASystemErrorNamesTheFile) {
  EXPECT_EQ(faultOfSystemError(ENOENT, QStringLiteral("/a/b.txt")).description(),
            u"File not found: /a/b.txt");
}

}  // namespace quorvin
