#include "archive/archive_name.h"

#include "archive/archive_error.h"

#include <QFile>

#include <algorithm>

namespace quorvin {
namespace {

bool isControl(QChar character) {
  switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
      return true;
    default:
      return false;
  }
}

bool hasDrive(QStringView name) {
  return name.size() >= 2 && name[1] == u':' && name[0].unicode() < 128 && name[0].isLetter();
}

[[noreturn]] void refuse(const QString& name, const QString& why) {
  throw ArchiveError(ArchiveErrorCode::BadName,
                     QStringLiteral("The archive has an entry whose name %1: \"%2\". Nothing was unpacked.")
                         .arg(why, shownEntryName(name)));
}

void checkWhole(const QString& name, QStringView separated) {
  if (name.isEmpty()) refuse(name, QStringLiteral("is empty"));
  if (std::any_of(name.begin(), name.end(), isControl)) {
    refuse(name, QStringLiteral("holds control characters"));
  }
  if (separated.startsWith(u'/')) refuse(name, QStringLiteral("is an absolute path"));
}

void checkPart(const QString& name, const QString& part) {
  if (part == QStringLiteral("..")) refuse(name, QStringLiteral("leads out of the folder"));
  if (hasDrive(part)) refuse(name, QStringLiteral("has a drive"));
  if (QFile::encodeName(part).size() > kMostNameBytes) refuse(name, QStringLiteral("is too long"));
}

}  // namespace

ArchivePlace archivePlaceOf(const QString& name) {
  QString separated = name;
  separated.replace(u'\\', u'/');
  checkWhole(name, separated);
  ArchivePlace place;
  place.isFolder = separated.endsWith(u'/') || separated.endsWith(QStringLiteral("/.")) ||
                   separated == QStringLiteral(".");
  for (const QString& part : separated.split(u'/', Qt::SkipEmptyParts)) {
    if (part == QStringLiteral(".")) continue;
    checkPart(name, part);
    place.path += part;
  }
  if (place.path.size() > kMostArchiveFolders + 1) {
    throw ArchiveError(
        ArchiveErrorCode::TooDeep,
        QStringLiteral("The archive has an entry that lies more than %1 folders deep: \"%2\". Nothing was "
                       "unpacked.")
            .arg(kMostArchiveFolders)
            .arg(shownEntryName(name)));
  }
  return place;
}

}  // namespace quorvin
