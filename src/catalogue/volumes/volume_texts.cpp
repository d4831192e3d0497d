// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/volumes/volume_texts.h"

#include "catalogue/sum_texts.h"
#include "texts/texts.h"

#include <QFileInfo>

#include <cmath>

namespace quorvin {

namespace {

constexpr qint64 kDaysInAMonth = 30;
constexpr qint64 kDaysInAYear = 365;
/// Up to here a smaller unit says more.
constexpr qint64 kMostDays = 2 * kDaysInAMonth;
constexpr qint64 kMostMonths = 2 * kDaysInAYear;

}  // namespace

QString titleOf(VolumeColumn column) {
  switch (column) {
    case VolumeColumn::Volume:
      return Texts::tr("Volume");
    case VolumeColumn::Entries:
      return Texts::tr("Files");
    case VolumeColumn::Size:
      return Texts::tr("Size");
    case VolumeColumn::Newest:
      return Texts::tr("Newest");
    case VolumeColumn::Listed:
      return Texts::tr("Listed");
    case VolumeColumn::Free:
      return Texts::tr("Free");
    case VolumeColumn::Listing:
      return Texts::tr("Listing");
    case VolumeColumn::Note:
      return Texts::tr("Note");
  }
  return {};
}

QString ageText(const QDate& day, const QDate& today) {
  if (!day.isValid()) return {};
  const qint64 days = day.daysTo(today);
  const auto number = [](qint64 value) { return Texts::plural(value); };
  if (days <= 0) return Texts::tr("today");
  if (days == 1) return Texts::tr("yesterday");
  if (days < kMostDays) return Texts::tr("%1 days ago", nullptr, number(days)).arg(days);
  if (days < kMostMonths) {
    const qint64 months = days / kDaysInAMonth;
    return Texts::tr("%1 months ago", nullptr, number(months)).arg(months);
  }
  const qint64 years = days / kDaysInAYear;
  return Texts::tr("%1 years ago", nullptr, number(years)).arg(years);
}

QString volumeText(const KnownVolume& volume, VolumeColumn column, const QDate& today,
                   const QLocale& locale) {
  switch (column) {
    case VolumeColumn::Volume:
      return volume.name;
    case VolumeColumn::Entries:
      return locale.toString(qlonglong{volume.sum.holds.files});
    case VolumeColumn::Size:
      return sizeText(volume.sum.holds.bytes, locale);
    case VolumeColumn::Newest:
      // The day alone.
      return volume.sum.newest ? generalDateText(std::floor(volume.sum.newest->date), locale) : QString();
    case VolumeColumn::Listed:
      return ageText(volume.listed.date(), today);
    case VolumeColumn::Free:
      return volume.freeBytes ? sizeText(*volume.freeBytes, locale) : QString();
    case VolumeColumn::Listing:
      return QFileInfo(volume.listing).fileName();
    case VolumeColumn::Note:
      return volume.note;
  }
  return {};
}

QString volumesSumText(std::int64_t volumes, const FileSum& sum, const QLocale& locale) {
  const QString count =
      volumes == 1 ? Texts::tr("%1 volume") : Texts::tr("%1 volumes", nullptr, Texts::plural(volumes));
  return count.arg(locale.toString(qlonglong{volumes})) + QStringLiteral(": ") + sumText(sum, locale);
}

}  // namespace quorvin
