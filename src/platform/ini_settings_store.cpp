// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/ini_settings_store.h"

#include "faults/runtime_fault.h"
#include "files/file_aside.h"
#include "files/file_lock.h"
#include "files/file_reader.h"
#include "platform/text_encoding.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QUrl>

#include <algorithm>
#include <iterator>
#include <optional>

namespace quorvin {

namespace {

// Without the blanks and tabs at both ends.
QByteArray trimmed(QByteArray text) {
  const auto isBlank = [](char sign) { return sign == ' ' || sign == '\t'; };
  while (!text.isEmpty() && isBlank(text.back())) text.chop(1);
  while (!text.isEmpty() && isBlank(text.front())) text.remove(0, 1);
  return text;
}

bool isHeading(const QByteArray& line) {
  return trimmed(line).startsWith('[');
}

QByteArray headingLine(const QString& section) {
  return '[' + section.toUtf8() + ']';
}

struct Escape {
  char16_t sign;
  char16_t letter;
};

// A blank is written so at the ends of a value only.
constexpr Escape kEscapes[] = {{u'\\', u'\\'}, {u'\n', u'n'}, {u'\r', u'r'},
                               {u'\t', u't'},  {u'\0', u'0'}, {u' ', u's'}};

QString escaped(const QString& value) {
  QString text;
  for (qsizetype i = 0; i < value.size(); ++i) {
    const bool atEnd = i == 0 || i + 1 == value.size();
    const auto* const escape =
        std::ranges::find_if(kEscapes, [&](const Escape& known) { return value[i] == known.sign; });
    const bool needed = escape != std::end(kEscapes) && (atEnd || escape->sign != u' ');
    if (needed) text += u'\\';
    text += needed ? QChar(escape->letter) : value[i];
  }
  return text;
}

std::optional<QChar> meaningOfEscape(QChar letter) {
  const auto* const escape =
      std::ranges::find_if(kEscapes, [letter](const Escape& known) { return letter == known.letter; });
  if (escape == std::end(kEscapes)) return std::nullopt;
  return QChar(escape->sign);
}

QString unescaped(const QString& text) {
  QString value;
  for (qsizetype i = 0; i < text.size(); ++i) {
    const bool escape = text[i] == u'\\' && i + 1 < text.size();
    const std::optional<QChar> meaning = escape ? meaningOfEscape(text[i + 1]) : std::nullopt;
    value += meaning.value_or(text[i]);
    if (meaning) ++i;
  }
  return value;
}

}  // namespace

IniText::IniText(const QByteArray& text) {
  qsizetype start = 0;
  // All of them: a second one would be taken for the first when the file is read again.
  while (const qsizetype mark = byteOrderMarkLength(QByteArrayView(text).sliced(start))) start += mark;
  if (text.size() == start) return;
  lines_ = text.mid(start).split('\n');
  for (QByteArray& line : lines_) {
    // All of them: what is left of several would be a part of the line, until the file is written again.
    while (line.endsWith('\r')) line.chop(1);
  }
  if (lines_.last().isEmpty()) lines_.removeLast();
}

QByteArray IniText::text() const {
  QByteArray text;
  for (const QByteArray& line : lines_) text += line + '\n';
  return text;
}

qsizetype IniText::headingOf(const QString& section) const {
  const QByteArray wanted = headingLine(section);
  for (qsizetype i = 0; i < lines_.size(); ++i) {
    if (trimmed(lines_[i]) == wanted) return i;
  }
  return -1;
}

qsizetype IniText::lineOf(qsizetype heading, const QString& key) const {
  const QByteArray wanted = key.toUtf8();
  for (qsizetype i = heading + 1; i < lines_.size() && !isHeading(lines_[i]); ++i) {
    const qsizetype equals = lines_[i].indexOf('=');
    if (equals >= 0 && trimmed(lines_[i].left(equals)) == wanted) return i;
  }
  return -1;
}

qsizetype IniText::endOf(qsizetype heading) const {
  qsizetype end = heading + 1;
  for (qsizetype i = end; i < lines_.size() && !isHeading(lines_[i]); ++i) {
    if (!trimmed(lines_[i]).isEmpty()) end = i + 1;
  }
  return end;
}

std::optional<QString> IniText::value(const QString& section, const QString& key) const {
  const qsizetype heading = headingOf(section);
  if (heading < 0) return std::nullopt;
  const qsizetype line = lineOf(heading, key);
  if (line < 0) return std::nullopt;
  const QByteArray written = trimmed(lines_[line].mid(lines_[line].indexOf('=') + 1));
  // Text that is empty and yet there must not be taken for none.
  return QStringLiteral("") + unescaped(textOfUtf8(written.toStdString()));
}

void IniText::setValue(const QString& section, const QString& key, const QString& value) {
  const QByteArray written = key.toUtf8() + '=' + escaped(value).toUtf8();
  qsizetype heading = headingOf(section);
  if (heading < 0) {
    if (!lines_.isEmpty()) lines_.append(QByteArray());
    lines_.append(headingLine(section));
    heading = lines_.size() - 1;
  }
  const qsizetype line = lineOf(heading, key);
  if (line >= 0) {
    lines_[line] = written;
  } else {
    lines_.insert(endOf(heading), written);
  }
}

namespace {

// Long enough for any other program to finish its own write.
constexpr int kLockWaitMilliseconds = 5000;

QString encoded(const QString& name) {
  return QString::fromLatin1(QUrl::toPercentEncoding(name));
}

// The application's name may be a path; encoded, its slashes are not the one before the section.
QString groupOf(const QString& application, const QString& section) {
  return encoded(application) + u'/' + encoded(section);
}

RuntimeFault accessFault(const QString& path) {
  return {FaultNumber::PathFileAccess, describe(FaultNumber::PathFileAccess) + QStringLiteral(": ") + path};
}

/// A file that is not there counts as empty; one that is there and cannot be read is a fault.
IniText load(const QString& path) {
  try {
    return IniText(contentOfFile(path));
  } catch (const RuntimeFault& fault) {
    const bool isMissing =
        fault.faultNumber() == FaultNumber::FileNotFound || fault.faultNumber() == FaultNumber::PathNotFound;
    if (isMissing) return {};
    throw;
  }
}

}  // namespace

IniSettingsStore::IniSettingsStore(const QString& path) : path_(path) {}

QString IniSettingsStore::read(const QString& application, const QString& section, const QString& key,
                               const QString& fallback) const {
  return load(path_).value(groupOf(application, section), encoded(key)).value_or(fallback);
}

void IniSettingsStore::write(const QString& application, const QString& section, const QString& key,
                             const QString& value) {
  if (!QDir().mkpath(QFileInfo(path_).path())) throw accessFault(path_);
  const FileLock lock(path_, kLockWaitMilliseconds);
  // Throws for a file that cannot be read, which is not replaced: it may hold all that the user has set.
  IniText ini = load(path_);
  removeLeftovers(QFileInfo(path_).path());
  ini.setValue(groupOf(application, section), encoded(key), value);
  replaceFile(path_, ini.text());
}

QString userSettingsPath() {
  const QString chosen = qEnvironmentVariable("QUORVIN_SETTINGS");
  if (!chosen.isEmpty()) return chosen;
  return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
         QStringLiteral("/quorvin/settings.ini");
}

}  // namespace quorvin
