// SPDX-License-Identifier: GPL-2.0-or-later

// Sizes and sums of files as people read them, in the console and in windows.
#pragma once

#include "catalogue/copies.h"
#include "texts/texts.h"

#include <QLocale>
#include <QString>

#include <cstdint>

namespace quorvin {

/// "1.50 MB", with powers of 1024.
inline QString sizeText(std::int64_t bytes, const QLocale& locale) {
  return locale.formattedDataSize(bytes, 2, QLocale::DataSizeTraditionalFormat);
}

/// "3 files, 1.50 MB".
inline QString sumText(const FileSum& sum, const QLocale& locale) {
  const QString files =
      sum.files == 1 ? Texts::tr("%1 file") : Texts::tr("%1 files", nullptr, Texts::plural(sum.files));
  return files.arg(locale.toString(qlonglong{sum.files})) + QStringLiteral(", ") +
         sizeText(sum.bytes, locale);
}

}  // namespace quorvin
