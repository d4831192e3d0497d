// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/version.h"

#include "texts/texts.h"

#include <QFileInfo>

namespace quorvin {

ProgramVersion programVersion() {
  return {QUORVIN_VERSION_MAJOR, QUORVIN_VERSION_MINOR, QUORVIN_VERSION_REVISION};
}

QString versionCaption() {
  const ProgramVersion version = programVersion();
  return QStringLiteral("Ver:%1.%2(%3)")
      .arg(version.majorNumber)
      .arg(version.minorNumber)
      .arg(version.revision);
}

QString versionText() {
  const ProgramVersion version = programVersion();
  return Texts::tr("Version %1.%2.%3")
      .arg(version.majorNumber)
      .arg(version.minorNumber)
      .arg(version.revision);
}

QString applicationTitle() {
  return QStringLiteral("Quorvin Utility");
}

QString windowTitle(const QString& path) {
  return QFileInfo(path).fileName() + QStringLiteral(" - ") + applicationTitle();
}

QString applicationDescription() {
  return Texts::tr("Text file / folder list searching utility");
}

}  // namespace quorvin
