// SPDX-License-Identifier: GPL-2.0-or-later
#include "texts/languages.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>

namespace quorvin {

namespace {

constexpr char16_t kFolder[] = u":/quorvin/translations/";

QString folder() {
  return QString::fromUtf16(kFolder);
}

/// "de" for "de_AT.UTF-8@euro".
QString codeOf(const QString& locale) {
  qsizetype end = 0;
  while (end < locale.size() && locale[end].isLetter()) ++end;
  return locale.left(end).toLower();
}

/// The system's own language, which has no translations.
bool isPlain(const QString& code) {
  return code.isEmpty() || code == QStringLiteral("c") || code == QStringLiteral("posix");
}

}  // namespace

QStringList translatedLanguages() {
  QStringList languages;
  for (const QString& file : QDir(folder()).entryList({}, QDir::Files, QDir::Name)) {
    languages += file.section(u'.', 0, 0);
  }
  return languages;
}

QString languageOf(const std::function<QString(const char* name)>& variable) {
  QString locale;
  for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    if (locale.isEmpty()) locale = variable(name);
  }
  // As other programs do: who asks for "C" is to get it, whatever languages the user reads.
  if (isPlain(codeOf(locale))) return {};
  const QStringList known = translatedLanguages();
  QStringList wanted = variable("LANGUAGE").split(u':', Qt::SkipEmptyParts);
  if (wanted.isEmpty()) wanted += locale;
  for (const QString& one : wanted) {
    const QString code = codeOf(one);
    if (isPlain(code) || code == QStringLiteral("en")) return {};
    if (known.contains(code)) return code;
  }
  return {};
}

QString usersLanguage() {
  return languageOf([](const char* name) { return qEnvironmentVariable(name); });
}

SpokenLanguage::SpokenLanguage(const QString& language) {
  if (language.isEmpty()) return;
  const QString toolkits = QStringLiteral("qtbase_") + language;
  // What is installed last is asked first.
  if (toolkit_.load(toolkits, QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QCoreApplication::installTranslator(&toolkit_);
  }
  if (own_.load(folder() + language + QStringLiteral(".qm"))) QCoreApplication::installTranslator(&own_);
}

SpokenLanguage::~SpokenLanguage() {
  QCoreApplication::removeTranslator(&own_);
  QCoreApplication::removeTranslator(&toolkit_);
}

}  // namespace quorvin
