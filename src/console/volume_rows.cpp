// SPDX-License-Identifier: GPL-2.0-or-later
#include "console/volume_rows.h"

#include "catalogue/volumes/volume_texts.h"
#include "console/table_row.h"
#include "console/volume_labels.h"

#include <QStringList>

#include <algorithm>

namespace quorvin {

namespace {

/// What comes before the volume, right-aligned.
constexpr VolumeColumn kNumbers[] = {VolumeColumn::Entries, VolumeColumn::Size, VolumeColumn::Newest,
                                     VolumeColumn::Listed, VolumeColumn::Free};

/// How wide each of them is among the rows.
std::vector<qsizetype> widthsOf(const std::vector<QStringList>& rows) {
  std::vector<qsizetype> widths(std::size(kNumbers), 0);
  for (const QStringList& row : rows) {
    for (std::size_t i = 0; i < widths.size(); ++i) {
      widths[i] = std::max(widths[i], row[static_cast<qsizetype>(i)].size());
    }
  }
  return widths;
}

void addNumbers(std::string& text, const QStringList& row, const std::vector<qsizetype>& widths) {
  for (std::size_t i = 0; i < widths.size(); ++i) {
    text += row[static_cast<qsizetype>(i)].rightJustified(widths[i]).toStdString() + "  ";
  }
}

std::string_view nameOf(SourceKind kind) {
  switch (kind) {
    case SourceKind::Online:
      return "folder";
    case SourceKind::MainDataFile:
      return "main";
    case SourceKind::Offline:
      return "offline";
  }
  return {};
}

}  // namespace

std::string volumeTable(const std::vector<KnownVolume>& volumes, const std::vector<std::uint32_t>& order,
                        bool isForTerminal, const QDate& today, const QLocale& locale) {
  if (order.empty()) return {};
  const CellForm cells(CellRule::Blanks, isForTerminal);
  std::vector<std::string> names;
  for (const KnownVolume& volume : volumes) names.push_back(volume.name.toStdString());
  VolumeLabels labels(cells);
  for (std::size_t i = 0; i < volumes.size(); ++i) labels.add(names[i], volumes[i].listing);

  std::vector<QStringList> rows(1);
  for (const VolumeColumn column : kNumbers) rows.front() += titleOf(column);
  for (const std::uint32_t volume : order) {
    QStringList& row = rows.emplace_back();
    for (const VolumeColumn column : kNumbers) row += volumeText(volumes[volume], column, today, locale);
  }
  const std::vector<qsizetype> widths = widthsOf(rows);
  std::string text;
  addNumbers(text, rows.front(), widths);
  text += titleOf(VolumeColumn::Volume).toStdString() + '\n';
  for (std::size_t i = 0; i < order.size(); ++i) {
    addNumbers(text, rows[i + 1], widths);
    text += labels.of(order[i]);
    const QString& note = volumes[order[i]].note;
    if (!note.isEmpty()) text += ": ";
    cells.add(text, note.toStdString());
    text += '\n';
  }
  return text;
}

void addVolumeJson(std::string& text, const KnownVolume& volume) {
  const CellForm cells(CellRule::AsItIs, false);
  TableRow row(TableFormat::Json, cells, text);
  row.add("volume", volume.name.toStdString()).add("listing", volume.listing.toStdString());
  row.add("kind", nameOf(volume.kind)).add("entries", volume.sum.holds.files);
  row.add("withoutSize", volume.sum.withoutSize).add("size", volume.sum.holds.bytes);
  if (volume.sum.newest) {
    row.startCell("newest");
    text += '"';
    addMoment(text, volume.sum.newest->date);
    text += '"';
    row.add("newestFolder", volume.sum.newest->folder).add("newestName", volume.sum.newest->name);
  }
  if (volume.listed.isValid()) {
    row.add("listed", volume.listed.toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss")).toStdString());
  }
  if (!volume.folder.isEmpty()) row.add("path", volume.folder.toStdString());
  if (volume.freeBytes) row.add("free", *volume.freeBytes);
  if (!volume.note.isEmpty()) row.add("note", volume.note.toStdString());
  row.end(false);
}

}  // namespace quorvin
