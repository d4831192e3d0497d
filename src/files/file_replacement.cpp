#include "files/file_replacement.h"

#include "faults/runtime_fault.h"
#include "files/file_writer.h"

#include <QFileInfo>
#include <QSaveFile>

#include <string_view>

namespace quorvin {

namespace {

RuntimeFault faultOf(FaultNumber number, const QString& path) {
  return {number, describe(number) + QStringLiteral(": ") + path};
}

bool isThereButClosed(const QFileInfo& info) {
  return info.exists() && !info.isWritable();
}

/// QSaveFile calls a protected file a failed write, and a protected folder a failed opening; the user wants
/// to know that it is protected.
FaultNumber whyNotOpened(const QString& path) {
  const QFileInfo file(path);
  const bool isProtected = isThereButClosed(file) || isThereButClosed(QFileInfo(file.path()));
  return isProtected ? FaultNumber::PermissionDenied : FaultNumber::PathFileAccess;
}

}  // namespace

void replaceFile(const QString& path, QByteArrayView contents) {
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly)) throw faultOf(whyNotOpened(path), path);
  // Not through QSaveFile: it takes no notice of a medium that refuses what was written only when asked to
  // keep it, and would put a short file in place.
  FileWriter writer(file.handle(), path);
  writer.write(std::string_view(contents.data(), static_cast<std::size_t>(contents.size())));
  writer.flush();
  writer.sync();
  if (!file.commit()) throw faultOf(FaultNumber::PathFileAccess, path);
}

}  // namespace quorvin
