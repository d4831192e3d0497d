// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/volumes/volumes_model.h"

#include "catalogue/volumes/volume_texts.h"
#include "platform/text_direction.h"

#include <QGuiApplication>

#include <algorithm>
#include <numeric>
#include <utility>

namespace quorvin {

namespace {

constexpr int kVolumeColumns = static_cast<int>(VolumeColumn::Note) + 1;

VolumeColumn volumeColumnAt(int section) {
  return static_cast<VolumeColumn>(section);
}

bool isNumberOfVolume(VolumeColumn column) {
  return column == VolumeColumn::Entries || column == VolumeColumn::Size || column == VolumeColumn::Free;
}

}  // namespace

void VolumesModel::show(std::vector<KnownVolume> volumes, const QDate& today) {
  beginResetModel();
  volumes_ = std::move(volumes);
  today_ = today;
  order_.resize(volumes_.size());
  std::iota(order_.begin(), order_.end(), 0U);
  endResetModel();
}

int VolumesModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(volumes_.size());
}

int VolumesModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : kVolumeColumns;
}

Qt::ItemFlags VolumesModel::flags(const QModelIndex& index) const {
  const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
  if (!index.isValid()) return flags;
  const bool isNote = volumeColumnAt(index.column()) == VolumeColumn::Note;
  return flags | Qt::ItemNeverHasChildren | (isNote ? Qt::ItemIsEditable : Qt::NoItemFlags);
}

QVariant VolumesModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const VolumeColumn column = volumeColumnAt(index.column());
  const KnownVolume& volume = volumeAt(index.row());
  switch (role) {
    case Qt::DisplayRole:
      return englishWithin(QGuiApplication::layoutDirection(),
                           volumeText(volume, column, today_, parts_.locale));
    case Qt::EditRole:
      return column == VolumeColumn::Note ? parts_.noteOf(volume) : QVariant();
    case Qt::TextAlignmentRole:
      return isNumberOfVolume(column) ? QVariant(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
    case Qt::ToolTipRole:
      // Names may look like markup.
      return tooltip(volume, column).toHtmlEscaped();
    default:
      return {};
  }
}

/// What the column leaves out.
QString VolumesModel::tooltip(const KnownVolume& volume, VolumeColumn column) const {
  switch (column) {
    case VolumeColumn::Newest:
      return volume.sum.newest ? QString::fromStdString(volume.sum.newest->folder + volume.sum.newest->name)
                               : QString();
    case VolumeColumn::Listed:
      return parts_.locale.toString(volume.listed, QLocale::ShortFormat);
    case VolumeColumn::Free:
      return volume.folder;
    case VolumeColumn::Listing:
      return volume.listing;
    default:
      return volume.note;
  }
}

bool VolumesModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (role != Qt::EditRole || !flags(index).testFlag(Qt::ItemIsEditable)) return false;
  KnownVolume& volume = volumes_[order_[static_cast<std::size_t>(index.row())]];
  const QString note = VolumeNotes::cleanNote(value.toString());
  const bool isKept = note == parts_.noteOf(volume) || parts_.keepNote(volume, note);
  if (!isKept) return false;
  volume.note = note;
  Q_EMIT dataChanged(index.siblingAtColumn(0), index.siblingAtColumn(kVolumeColumns - 1));
  return true;
}

QVariant VolumesModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= kVolumeColumns) return {};
  const VolumeColumn column = volumeColumnAt(section);
  if (role == Qt::TextAlignmentRole && isNumberOfVolume(column)) {
    return QVariant(Qt::AlignRight | Qt::AlignVCenter);
  }
  return role == Qt::DisplayRole ? titleOf(column) : QVariant();
}

void VolumesModel::sort(int column, Qt::SortOrder order) {
  Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
  const std::vector<std::uint32_t> before = order_;
  if (column >= 0 && column < kVolumeColumns) {
    order_ = orderOfVolumes(volumes_, volumeColumnAt(column), order == Qt::DescendingOrder);
  } else {
    std::ranges::sort(order_);
  }
  std::vector<int> rowOf(order_.size());
  for (std::size_t row = 0; row < order_.size(); ++row) rowOf[order_[row]] = static_cast<int>(row);
  QModelIndexList from = persistentIndexList();
  QModelIndexList to;
  for (const QModelIndex& index : from) {
    to += createIndex(rowOf[before[static_cast<std::size_t>(index.row())]], index.column());
  }
  changePersistentIndexList(from, to);
  Q_EMIT layoutChanged({}, VerticalSortHint);
}

}  // namespace quorvin
