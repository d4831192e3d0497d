// SPDX-License-Identifier: GPL-2.0-or-later
#include "console/error_lines.h"

#include <QStringList>

#include <cstdio>

namespace quorvin {
namespace {

QByteArray harmless(const QString& line) {
  QString text = line;
  for (QChar& sign : text) {
    if (sign.category() == QChar::Other_Control && sign != u'\t') sign = u'?';
  }
  return text.toLocal8Bit();
}

}  // namespace

void printError(const QString& text) {
  const QString line = QString(text).replace(QStringLiteral("\r\n"), QStringLiteral(" "));
  std::fprintf(stderr, "quorvin-cli: %s\n", harmless(line).constData());
}

void printErrorLog(const QString& log) {
  for (const QString& line : log.split(QStringLiteral("\r\n"), Qt::SkipEmptyParts)) {
    std::fprintf(stderr, "%s\n", harmless(line).constData());
  }
}

}  // namespace quorvin
