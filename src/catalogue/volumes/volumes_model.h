// SPDX-License-Identifier: GPL-2.0-or-later

// The volumes of a job as a table for views, in which notes can be edited.
#pragma once

#include "catalogue/volumes/volume_finder.h"
#include "state/volume_notes.h"

#include <QAbstractTableModel>
#include <QDate>
#include <QLocale>
#include <QString>
#include <QVariant>

#include <cstdint>
#include <functional>
#include <vector>

namespace quorvin {

/// A row for each volume, a column for each VolumeColumn, in their order. The note alone can be edited. Texts
/// are made when they are asked for; sorting is that of orderOfVolumes().
class VolumesModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  struct Parts {
    QLocale locale;
    /// The note of a volume as it is now.
    std::function<QString(const KnownVolume& volume)> noteOf;
    /// Keeps another note of a volume; false where it could not be kept.
    std::function<bool(const KnownVolume& volume, const QString& note)> keepNote;
  };

  explicit VolumesModel(Parts parts) : parts_(std::move(parts)) {}

  /// Shows these, as they are on that day.
  void show(std::vector<KnownVolume> volumes, const QDate& today);

  const KnownVolume& volumeAt(int row) const { return volumes_[order_[static_cast<std::size_t>(row)]]; }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
  QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
  void sort(int column, Qt::SortOrder order) override;

 private:
  QString tooltip(const KnownVolume& volume, VolumeColumn column) const;

  Parts parts_;
  std::vector<KnownVolume> volumes_;
  QDate today_;
  /// The number of the volume in each row.
  std::vector<std::uint32_t> order_;
};

}  // namespace quorvin
