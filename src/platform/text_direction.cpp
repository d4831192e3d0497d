// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/text_direction.h"

#include <QStringList>

namespace quorvin {

namespace {

constexpr QChar kLeftToRightIsolate = u'\u2066';
constexpr QChar kEndOfIsolate = u'\u2069';

}  // namespace

QString englishWithin(Qt::LayoutDirection around, const QString& text) {
  if (around != Qt::RightToLeft) return text;
  // An isolate ends with its line.
  QStringList lines = text.split(u'\n');
  for (QString& line : lines) {
    if (!line.isEmpty()) line = kLeftToRightIsolate + line + kEndOfIsolate;
  }
  return lines.join(u'\n');
}

}  // namespace quorvin
