// SPDX-License-Identifier: GPL-2.0-or-later
#include "faults/runtime_fault.h"

#include "texts/texts.h"

#include <cerrno>

namespace quorvin {

QString describe(FaultNumber number) {
  switch (number) {
    case FaultNumber::InvalidProcedureCall:
      return Texts::tr("Invalid procedure call or argument");
    case FaultNumber::Overflow:
      return Texts::tr("Overflow");
    case FaultNumber::SubscriptOutOfRange:
      return Texts::tr("Subscript out of range");
    case FaultNumber::DivisionByZero:
      return Texts::tr("Division by zero");
    case FaultNumber::TypeMismatch:
      return Texts::tr("Type mismatch");
    case FaultNumber::BadFileName:
      return Texts::tr("Bad file name or number");
    case FaultNumber::FileNotFound:
      return Texts::tr("File not found");
    case FaultNumber::DeviceError:
      return Texts::tr("Device I/O error");
    case FaultNumber::DiskFull:
      return Texts::tr("Disk full");
    case FaultNumber::InputPastEnd:
      return Texts::tr("Input past end of file");
    case FaultNumber::PermissionDenied:
      return Texts::tr("Permission denied");
    case FaultNumber::PathFileAccess:
      return Texts::tr("Path/File access error");
    case FaultNumber::PathNotFound:
      return Texts::tr("Path not found");
  }
  return Texts::tr("Unknown fault");
}

RuntimeFault::RuntimeFault(FaultNumber number) : RuntimeFault(number, describe(number)) {}

RuntimeFault::RuntimeFault(FaultNumber number, const QString& description)
    : std::runtime_error(description.toStdString()), number_(number), description_(description) {}

QString RuntimeFault::text() const {
  return Texts::tr("Run-time error '%1': %2").arg(QString::number(number()), description_);
}

namespace {

FaultNumber numberOfSystemError(int errorNumber) {
  switch (errorNumber) {
    case ENOENT:
      return FaultNumber::FileNotFound;
    case ENOTDIR:
      return FaultNumber::PathNotFound;
    case EACCES:
    case EPERM:
    case EROFS:
      return FaultNumber::PermissionDenied;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return FaultNumber::DiskFull;
    case EINVAL:
    case EBADF:
    case ENAMETOOLONG:
      return FaultNumber::BadFileName;
    case EIO:
    case ENXIO:
    case ENODEV:
      return FaultNumber::DeviceError;
    default:
      return FaultNumber::PathFileAccess;
  }
}

}  // namespace

RuntimeFault faultOfSystemError(int errorNumber, const QString& path) {
  const FaultNumber number = numberOfSystemError(errorNumber);
  return {number, describe(number) + QStringLiteral(": ") + path};
}

}  // namespace quorvin
