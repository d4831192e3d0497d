// SPDX-License-Identifier: GPL-2.0-or-later
#include "hits/hit_lines.h"

namespace quorvin {

namespace {

QString csvField(const QString& text) {
  const bool plain =
      !text.contains(u',') && !text.contains(u'"') && !text.contains(u'\n') && !text.contains(u'\r');
  if (plain) return text;
  return u'"' + QString(text).replace(u'"', QStringLiteral("\"\"")) + u'"';
}

}  // namespace

QString csvLine(const HitRow& row, const QLocale& locale) {
  QString line;
  for (int column = 0; column < kHitColumnCount; ++column) {
    if (column > 0) line += u',';
    line += csvField(hitText(row, static_cast<HitColumn>(column), locale));
  }
  return line;
}

QString csvHeadLine() {
  return QStringLiteral("Match,Volume,Folder,Name,Size,Date");
}

}  // namespace quorvin
