// SPDX-License-Identifier: GPL-2.0-or-later
#include "files/path_style.h"

#include <QDir>

namespace quorvin {

PathStyle nativePathStyle() {
  return QDir::separator() == kWindowsPaths.separator ? kWindowsPaths : kUnixPaths;
}

QString withTrailingSeparator(const QString& folder, PathStyle style) {
  return folder.endsWith(style.separator) ? folder : folder + style.separator;
}

QString listedFolder(QStringView folder, PathStyle style) {
  QString listed = folder.mid(style.drivePrefixLength).toString();
  return listed.replace(style.separator, kWindowsPaths.separator);
}

bool isTakenAsItStands(QStringView fileName, PathStyle style) {
  if (fileName.contains(u':') || fileName.contains(QStringLiteral("\\\\"))) return true;
  return style.drivePrefixLength == 0 && fileName.startsWith(style.separator);
}

}  // namespace quorvin
