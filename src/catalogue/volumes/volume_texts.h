// SPDX-License-Identifier: GPL-2.0-or-later

// What is said of volumes, in the console and in windows.
#pragma once

#include "catalogue/volumes/volume_finder.h"

#include <QDate>
#include <QLocale>
#include <QString>

namespace quorvin {

/// What the column is called: "Size".
QString titleOf(VolumeColumn column);

/// How long ago a day was, as people say it: "today", "12 days ago", "3 years ago". Empty for no day; one
/// that is still to come is "today".
QString ageText(const QDate& day, const QDate& today);

/// What a column has to say of a volume, as it is shown; empty for what is not known.
QString volumeText(const KnownVolume& volume, VolumeColumn column, const QDate& today, const QLocale& locale);

/// "3 volumes: 1,204 files, 3.20 GB", the last line about all of them.
QString volumesSumText(std::int64_t volumes, const FileSum& sum, const QLocale& locale);

}  // namespace quorvin
