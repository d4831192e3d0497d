// SPDX-License-Identifier: GPL-2.0-or-later
#include "locale_option.h"

#include <QString>

#include <stdexcept>

namespace quorvin {

QLocale localeNamed(const std::string& name) {
  if (name == "C") return QLocale::c();
  const QLocale locale(QString::fromStdString(name));
  // An unknown name silently gives the C locale.
  if (locale.language() == QLocale::C) throw std::invalid_argument("no locale is named \"" + name + "\"");
  return locale;
}

}  // namespace quorvin
