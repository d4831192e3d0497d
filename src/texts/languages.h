// SPDX-License-Identifier: GPL-2.0-or-later

// The languages that the programs speak.
#pragma once

#include <QString>
#include <QStringList>
#include <QTranslator>

#include <functional>

namespace quorvin {

/// Those that there is a translation for, as codes in alphabetical order ("de"). English is none of them.
QStringList translatedLanguages();

/// The language of the user, as the system's variables say (`variable` gives their values): the first of
/// LANGUAGE that there is; without LANGUAGE that of LC_ALL, LC_MESSAGES or LANG. Empty for English, which is
/// also what "C" and all languages without a translation get. LC_TIME and LC_NUMERIC have no part in it: they
/// decide on how dates and numbers are written.
QString languageOf(const std::function<QString(const char* name)>& variable);

/// The same, of the variables that the program was started with.
QString usersLanguage();

/// Has Texts::tr() give the texts of a language as long as it lives; there has to be an application object.
/// The toolkit's own texts are those of that language too, where the system has them.
class SpokenLanguage {
 public:
  /// A code of translatedLanguages(), or empty for English.
  explicit SpokenLanguage(const QString& language);
  ~SpokenLanguage();
  SpokenLanguage(const SpokenLanguage&) = delete;
  SpokenLanguage& operator=(const SpokenLanguage&) = delete;

 private:
  QTranslator toolkit_;
  QTranslator own_;
};

}  // namespace quorvin
