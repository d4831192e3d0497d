#include "platform/file_replacement.h"

#include "platform/runtime_fault.h"

#include <QSaveFile>

namespace quorvin {

namespace {

FaultNumber faultNumberOf(QFileDevice::FileError error) {
  switch (error) {
    case QFileDevice::PermissionsError:
      return FaultNumber::PermissionDenied;
    // A disk that fills up takes a part of what it is given before it refuses the rest.
    case QFileDevice::WriteError:
    case QFileDevice::ResourceError:
      return FaultNumber::DiskFull;
    default:
      return FaultNumber::PathFileAccess;
  }
}

}  // namespace

void replaceFile(const QString& path, QByteArrayView contents) {
  QSaveFile file(path);
  const auto fail = [&path](FaultNumber number) {
    throw RuntimeFault(number, describe(number) + QStringLiteral(": ") + path);
  };
  if (!file.open(QIODevice::WriteOnly)) fail(faultNumberOf(file.error()));
  // commit() would put a short file in place: only the counts tell that a write was cut.
  const bool whole = file.write(contents.data(), contents.size()) == contents.size() && file.flush();
  if (!whole) {
    file.cancelWriting();
    fail(file.error() == QFileDevice::PermissionsError ? FaultNumber::PermissionDenied
                                                       : FaultNumber::DiskFull);
  }
  if (!file.commit()) fail(faultNumberOf(file.error()));
}

}  // namespace quorvin
