#include "faults/runtime_fault.h"

#include <cerrno>

namespace quorvin {

QString describe(FaultNumber number) {
  switch (number) {
    case FaultNumber::InvalidProcedureCall:
      return QStringLiteral("Invalid procedure call or argument");
    case FaultNumber::Overflow:
      return QStringLiteral("Overflow");
    case FaultNumber::SubscriptOutOfRange:
      return QStringLiteral("Subscript out of range");
    case FaultNumber::DivisionByZero:
      return QStringLiteral("Division by zero");
    case FaultNumber::TypeMismatch:
      return QStringLiteral("Type mismatch");
    case FaultNumber::BadFileName:
      return QStringLiteral("Bad file name or number");
    case FaultNumber::FileNotFound:
      return QStringLiteral("File not found");
    case FaultNumber::DeviceError:
      return QStringLiteral("Device I/O error");
    case FaultNumber::DiskFull:
      return QStringLiteral("Disk full");
    case FaultNumber::InputPastEnd:
      return QStringLiteral("Input past end of file");
    case FaultNumber::PermissionDenied:
      return QStringLiteral("Permission denied");
    case FaultNumber::PathFileAccess:
      return QStringLiteral("Path/File access error");
    case FaultNumber::PathNotFound:
      return QStringLiteral("Path not found");
  }
  return QStringLiteral("Unknown fault");
}

RuntimeFault::RuntimeFault(FaultNumber number) : RuntimeFault(number, describe(number)) {}

RuntimeFault::RuntimeFault(FaultNumber number, const QString& description)
    : std::runtime_error(description.toStdString()), number_(number), description_(description) {}

QString RuntimeFault::text() const {
  return QStringLiteral("Run-time error '%1': ").arg(number()) + description_;
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
