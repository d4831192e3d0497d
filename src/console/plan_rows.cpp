// SPDX-License-Identifier: GPL-2.0-or-later
#include "console/plan_rows.h"

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

PlanRows::PlanRows(const FetchFinder& finder, Options options, const QLocale& locale)
    : plan_(finder.plan()),
      finder_(finder),
      options_(options),
      locale_(locale),
      cells_(cellRuleOf(options.format), options.isForTerminal) {}

void PlanRows::write(const Write& write) const {
  const bool isText = options_.format == TableFormat::Text;
  for (std::size_t number = 0; number < plan_.volumes.size(); ++number) {
    if (!write(isText ? volumeText(number) : volumeRows(number))) return;
  }
  write(isText ? endText() : endRows());
}

std::string PlanRows::volumeText(std::size_t number) const {
  const PlanPlaces& places = finder_.places();
  const FetchPlan::Volume& volume = plan_.volumes[number];
  const QString listing = places.listings[places.folders.volumes()[volume.volume].listing];
  std::string text = std::to_string(number + 1) + ". " + shown(volumeTitle(places, volume.volume)) + ": " +
                     sumText(volume.sum, locale_).toStdString() + '\n';
  text += "  " + shown(Texts::tr("Listing: %1").arg(listing)) + '\n';
  std::uint32_t folder = FolderTree::kNone;
  for (const FetchPlan::File& file : volume.files) {
    if (file.copy.folder != folder) text += "  " + shown(places.folders.path(file.copy.folder)) + '\n';
    folder = file.copy.folder;
    text += "    " + shown(file.copy.name);
    const std::int64_t size = finder_.files()[file.file].size;
    if (size >= 0) text += ", " + sizeText(size, locale_).toStdString();
    text += '\n';
  }
  return text;
}

std::string PlanRows::volumeRows(std::size_t number) const {
  const PlanPlaces& places = finder_.places();
  const FetchPlan::Volume& volume = plan_.volumes[number];
  const FolderTree::Volume& place = places.folders.volumes()[volume.volume];
  const std::string listing = places.listings[place.listing].toStdString();
  const auto order = static_cast<std::int64_t>(number) + 1;
  std::string text;
  TableRow row(options_.format, cells_, text);
  row.add("kind", "volume").add("order", order).add("volume", place.name).add("listing", listing);
  row.add("top", places.tops[volume.volume]).add("files", volume.sum.files).add("size", volume.sum.bytes);
  row.end(false);
  for (const FetchPlan::File& file : volume.files) {
    TableRow line(options_.format, cells_, text);
    line.add("kind", "file").add("order", order).add("volume", place.name);
    line.add("folder", places.folders.path(file.copy.folder)).add("name", file.copy.name);
    const std::int64_t size = finder_.files()[file.file].size;
    if (size >= 0) line.add("size", size);
    line.add("listing", listing).end(false);
  }
  return text;
}

std::string PlanRows::endText() const {
  if (finder_.files().empty()) return {};
  std::string text;
  if (!plan_.missing.empty()) text += Texts::tr("Not found:").toStdString() + '\n';
  for (const std::uint32_t file : plan_.missing) {
    text += "  " + shown(missingFileText(finder_.files()[file], locale_)) + '\n';
  }
  for (const QString& line : planSumLines(plan_, locale_)) text += line.toStdString() + '\n';
  return text;
}

std::string PlanRows::endRows() const {
  std::string text;
  for (const std::uint32_t number : plan_.missing) {
    const WantedFile& file = finder_.files()[number];
    TableRow row(options_.format, cells_, text);
    row.add("kind", "missing").add("name", file.name);
    if (file.size >= 0) row.add("size", file.size);
    row.end(false);
  }
  TableRow row(options_.format, cells_, text);
  row.add("kind", "sum").add("volumes", static_cast<std::int64_t>(plan_.volumes.size()));
  row.add("files", plan_.sum.files).add("size", plan_.sum.bytes);
  row.add("missing", static_cast<std::int64_t>(plan_.missing.size())).startCell("fewest");
  text += plan_.isFewest ? "true" : "false";
  row.end(false);
  return text;
}

std::string PlanRows::shown(const QString& text) const {
  return shown(text.toStdString());
}

std::string PlanRows::shown(std::string_view text) const {
  std::string result;
  cells_.add(result, text);
  return result;
}

}  // namespace quorvin
