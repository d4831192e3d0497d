// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/hit_path.h"

#include "faults/runtime_fault.h"
#include "search/format/listing_line.h"

#include <algorithm>

namespace quorvin {

namespace {

/// How many units the first `characters` characters of `text` take up; its size when it has fewer.
qsizetype unitsOfCharacters(QStringView text, qsizetype characters) {
  qsizetype units = 0;
  for (; characters > 0 && units < text.size(); --characters) {
    const bool isPair =
        text[units].isHighSurrogate() && units + 1 < text.size() && text[units + 1].isLowSurrogate();
    units += isPair ? 2 : 1;
  }
  return units;
}

/// The entry text as far as it is the name; unchanged when it does not go beyond it.
QString withoutSizeDigits(const QString& entryText) {
  const qsizetype nameUnits = unitsOfCharacters(entryText, kNameColumns);
  if (nameUnits == entryText.size()) return entryText;
  qsizetype end = nameUnits;
  while (end > 0 && entryText[end - 1] == u' ') --end;
  return entryText.left(end);
}

bool hasDrives(PathStyle style) {
  return style.drivePrefixLength > 0;
}

/// "*" and "?" are not among them: they are the wildcards of a look-up.
bool isInNoName(QChar character, PathStyle style) {
  if (character == u'\0') return true;
  return hasDrives(style) && QStringView(u"<>:\"|").contains(character);
}

bool isSeparator(QChar character, PathStyle style) {
  return character == style.separator || (hasDrives(style) && character == u'/');
}

/// The whole name before a longer one: of "song.mp3" and "song.mp3.txt" the entry "song.mp3" means the first.
QString fileThatBeginsWith(const QString& folder, const QString& text, const FileLookUp& lookUp) {
  if (text.isEmpty()) return {};
  const QString whole = lookUp(folder + text);
  // Nearly every entry has its whole name; looking it up once is enough then.
  if (whole == text) return whole;
  const QString found = whole.isEmpty() ? lookUp(folder + text + u'*') : whole;
  if (found.isEmpty()) return {};
  // A name whose bytes are no text comes back changed and leads nowhere.
  return lookUp(folder + found) == found ? found : QString();
}

/// Its row in the table of online sources.
std::optional<int> sourceOfHit(const ProgramState& state, const HitRow& hit) {
  // A listing from elsewhere may carry the same volume; it must not lead to files of this machine.
  if (hit.kind != SourceKind::Online) return std::nullopt;
  for (int row = 1; row <= state.OnlineSourceCount; ++row) {
    if (state.OnlineSources.description(row) == hit.volume) return row;
  }
  return std::nullopt;
}

}  // namespace

QString fullFolderPath(const QString& sourceFolder, const QString& listedFolder, PathStyle style) {
  const qsizetype sourceLength = sourceFolder.size() - style.drivePrefixLength;
  if (sourceLength < 0) throw RuntimeFault(FaultNumber::InvalidProcedureCall);
  QString below = listedFolder.mid(sourceLength);
  return sourceFolder + below.replace(kWindowsPaths.separator, style.separator);
}

QString sourceFolderOf(const ProgramState& state, const HitRow& hit) {
  const std::optional<int> row = sourceOfHit(state, hit);
  return row ? state.OnlineSources.path(*row) : QString();
}

std::optional<QString> folderOfHit(const ProgramState& state, const HitRow& hit, PathStyle style) {
  const std::optional<int> row = sourceOfHit(state, hit);
  if (!row) return std::nullopt;
  return fullFolderPath(state.OnlineSources.path(*row), hit.folder, style);
}

QString fileOfEntry(const QString& folder, const QString& entryText, PathStyle style,
                    const FileLookUp& lookUp) {
  const auto any = [&](auto isSuch) {
    return std::ranges::any_of(entryText, [&](QChar character) { return isSuch(character, style); });
  };
  if (any(isInNoName)) throw RuntimeFault(FaultNumber::BadFileName);
  // The look-up would take part of such a text for the folder, and what it finds is not in this one.
  if (any(isSeparator) || !folder.endsWith(style.separator)) return {};

  QString found = fileThatBeginsWith(folder, entryText, lookUp);
  const QString name = withoutSizeDigits(entryText);
  if (found.isEmpty() && name != entryText) found = fileThatBeginsWith(folder, name, lookUp);
  return found;
}

}  // namespace quorvin
