// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/fetch/plan_text.h"

#include "catalogue/fetch/volume_cover.h"
#include "catalogue/sum_texts.h"
#include "texts/texts.h"

#include <QFileInfo>

namespace quorvin {

namespace {

QString fileText(const QString& name, std::int64_t size, const QLocale& locale) {
  return size < 0 ? name : name + QStringLiteral(", ") + sizeText(size, locale);
}

}  // namespace

QStringList planSumLines(const FetchPlan& plan, const QLocale& locale) {
  const auto number = [&locale](std::size_t value) {
    return locale.toString(static_cast<qulonglong>(value));
  };
  QStringList lines{Texts::tr("Volumes to insert: %1. To copy: %2")
                        .arg(number(plan.volumes.size()), sumText(plan.sum, locale))};
  lines += plan.isFewest ? Texts::tr("There is no way with fewer volumes")
                         : Texts::tr(
                               "There may be a way with fewer volumes: more than %1 have files in common, "
                               "so each next one was chosen greedily, for having most of what was left")
                               .arg(number(kMostCombined));
  if (!plan.missing.empty()) lines += Texts::tr("Not found: %1").arg(number(plan.missing.size()));
  return lines;
}

QString missingFileText(const WantedFile& file, const QLocale& locale) {
  return fileText(QString::fromUtf8(file.name.data(), static_cast<qsizetype>(file.name.size())), file.size,
                  locale);
}

QString volumeTitle(const PlanPlaces& places, std::uint32_t volume) {
  const FolderTree::Volume& one = places.folders.volumes()[volume];
  return one.name.empty() ? QFileInfo(places.listings[one.listing]).fileName()
                          : QString::fromStdString(one.name);
}

QString withoutControls(QString text) {
  for (QChar& sign : text) {
    if (sign.category() == QChar::Other_Control) sign = u' ';
  }
  return text;
}

std::string PlanText::volume(std::size_t number) const {
  const PlanPlaces& places = finder_.places();
  const FetchPlan::Volume& volume = finder_.plan().volumes[number];
  const QString listing = places.listings[places.folders.volumes()[volume.volume].listing];
  std::string text = std::to_string(number + 1) + ". " +
                     shown_(volumeTitle(places, volume.volume).toStdString()) + ": " +
                     sumText(volume.sum, locale_).toStdString() + '\n';
  text += "  " + shown_(Texts::tr("Listing: %1").arg(listing).toStdString()) + '\n';
  std::uint32_t folder = FolderTree::kNone;
  for (const FetchPlan::File& file : volume.files) {
    if (file.copy.folder != folder) text += "  " + shown_(places.folders.path(file.copy.folder)) + '\n';
    folder = file.copy.folder;
    text += "    " + shown_(file.copy.name);
    const std::int64_t size = finder_.files()[file.file].size;
    if (size >= 0) text += ", " + sizeText(size, locale_).toStdString();
    text += '\n';
  }
  return text;
}

std::string PlanText::end() const {
  if (finder_.files().empty()) return {};
  const FetchPlan& plan = finder_.plan();
  std::string text;
  if (!plan.missing.empty()) text += Texts::tr("Not found:").toStdString() + '\n';
  for (const std::uint32_t file : plan.missing) {
    text += "  " + shown_(missingFileText(finder_.files()[file], locale_).toStdString()) + '\n';
  }
  for (const QString& line : planSumLines(plan, locale_)) text += line.toStdString() + '\n';
  return text;
}

}  // namespace quorvin
