// SPDX-License-Identifier: GPL-2.0-or-later

// The help pages as they are in the source tree.
#pragma once

#include <QByteArray>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QString>
#include <QStringList>

#include <stdexcept>

namespace quorvin::test {

inline QString pagesFolder() {
  return QStringLiteral(QUORVIN_HELP_PAGES "/");
}

/// The pages, by their names from the help folder on ("manual/searching.htm"), sorted.
inline QStringList manualPages() {
  QStringList names;
  QDirIterator files(pagesFolder(), {QStringLiteral("*.htm")}, QDir::Files, QDirIterator::Subdirectories);
  while (files.hasNext()) names.append(files.next().mid(pagesFolder().size()));
  names.sort();
  return names;
}

inline QString manualText(const QString& page) {
  QFile file(pagesFolder() + page);
  if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("no page " + page.toStdString());
  return QString::fromUtf8(file.readAll());
}

/// Everything in `text` that fits `pattern`, of which the first group is taken.
inline QStringList allMatches(const QString& text, const QString& pattern) {
  QStringList found;
  const QRegularExpression expression(pattern, QRegularExpression::DotMatchesEverythingOption);
  for (auto match = expression.globalMatch(text); match.hasNext();) found.append(match.next().captured(1));
  return found;
}

}  // namespace quorvin::test
