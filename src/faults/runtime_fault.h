// SPDX-License-Identifier: GPL-2.0-or-later

// A fault of the running program: the exception that every layer throws when something that the user asked
// for cannot be done.
#pragma once

#include <QString>

#include <stdexcept>

namespace quorvin {

/// The fault numbers in use. Messages show the number, so the values are part of what the user sees.
enum class FaultNumber : int {
  InvalidProcedureCall = 5,
  Overflow = 6,
  SubscriptOutOfRange = 9,
  DivisionByZero = 11,
  TypeMismatch = 13,
  BadFileName = 52,
  FileNotFound = 53,
  DeviceError = 57,
  DiskFull = 61,
  InputPastEnd = 62,
  PermissionDenied = 70,
  PathFileAccess = 75,
  PathNotFound = 76,
};

/// The fault's own words, for example "File not found".
QString describe(FaultNumber number);

/// Thrown where an operation cannot be completed. `description` says what happened and to what; it is shown
/// to the user unchanged.
class RuntimeFault : public std::runtime_error {
 public:
  /// The description is describe(number).
  explicit RuntimeFault(FaultNumber number);
  /// The description is `description`, which should name the thing concerned (a file, a row).
  RuntimeFault(FaultNumber number, const QString& description);

  int number() const noexcept { return static_cast<int>(number_); }
  FaultNumber faultNumber() const noexcept { return number_; }
  const QString& description() const noexcept { return description_; }
  /// How messages name the fault: "Run-time error 'N': DESCRIPTION".
  QString text() const;

 private:
  FaultNumber number_;
  QString description_;
};

/// The fault for an operating-system error: `errorNumber` is an errno value, `path` the file or folder that
/// was being worked on. The description reads "DESCRIPTION: PATH".
RuntimeFault faultOfSystemError(int errorNumber, const QString& path);

}  // namespace quorvin
