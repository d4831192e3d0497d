// SPDX-License-Identifier: GPL-2.0-or-later
#include "files/file_lookup.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

namespace quorvin {

namespace {

struct SplitPattern {
  QString folder;
  QString name;
};

SplitPattern splitPattern(const QString& pattern) {
  const QString native = QDir::fromNativeSeparators(pattern);
  const qsizetype slash = native.lastIndexOf(u'/');
  if (slash < 0) return {QStringLiteral("./"), native};
  // A leading colon would lead into the program's own resources.
  const QString start = native.startsWith(u':') ? QStringLiteral("./") : QString();
  return {start + native.left(slash + 1), native.mid(slash + 1)};
}

// How many units the character at `place` takes up.
qsizetype characterLength(QStringView text, qsizetype place) {
  const bool pair =
      text[place].isHighSurrogate() && place + 1 < text.size() && text[place + 1].isLowSurrogate();
  return pair ? 2 : 1;
}

bool isOrdinary(const QFileInfo& file) {
  return file.isFile() && !file.isHidden();
}

}  // namespace

bool fitsWildcards(QStringView name, QStringView pattern) {
  if (pattern == QStringLiteral("*.*")) return true;
  // Two cursors with one point to come back to: the last "*" and the first character it has not taken yet.
  qsizetype n = 0;
  qsizetype p = 0;
  qsizetype star = -1;
  qsizetype retry = 0;
  while (n < name.size()) {
    if (p < pattern.size() && pattern[p] == u'*') {
      star = p++;
      retry = n;
    } else if (p < pattern.size() && pattern[p] == u'?') {
      ++p;
      n += characterLength(name, n);
    } else if (p < pattern.size() && pattern[p] == name[n]) {
      ++p;
      ++n;
    } else if (star >= 0) {
      p = star + 1;
      retry += characterLength(name, retry);
      n = retry;
    } else {
      return false;
    }
  }
  while (p < pattern.size() && pattern[p] == u'*') ++p;
  return p == pattern.size();
}

QStringList namesThatFit(const QString& folder, QStringView pattern, QDir::Filters kinds) {
  QStringList names = QDir(folder).entryList(kinds, QDir::Name);
  names.removeIf([&](const QString& name) { return !fitsWildcards(name, pattern); });
  return names;
}

QString findOrdinaryFile(const QString& pattern) {
  if (pattern.isEmpty()) return {};
  const auto [folder, wanted] = splitPattern(pattern);
  if (wanted.isEmpty()) return {};
  const QFileInfo exact(folder + wanted);
  if (isOrdinary(exact)) return wanted;
  if (!wanted.contains(u'*') && !wanted.contains(u'?')) return {};
  QDirIterator names(folder, QDir::Files);
  while (names.hasNext()) {
    names.next();
    // The name first: asking the file system about every file of a large folder is slow.
    if (fitsWildcards(names.fileName(), wanted) && isOrdinary(names.fileInfo())) return names.fileName();
  }
  return {};
}

bool fileExists(const QString& path) {
  const auto [folder, name] = splitPattern(path);
  return !name.isEmpty() && QFileInfo(folder + name).isFile();
}

bool ordinaryFileExists(const QString& path) {
  return !findOrdinaryFile(path).isEmpty();
}

QString pathFromTop(const QString& path) {
  const QFileInfo info(path);
  const bool goesUp = QDir::fromNativeSeparators(path).split(u'/').contains(QStringLiteral(".."));
  const QString canonical = goesUp ? info.canonicalFilePath() : QString();
  return canonical.isEmpty() ? QDir::cleanPath(info.absoluteFilePath()) : canonical;
}

}  // namespace quorvin
