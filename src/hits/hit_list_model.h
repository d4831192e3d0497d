// SPDX-License-Identifier: GPL-2.0-or-later

// The hit table as the hit list's model, and which of its rows are selected.
#pragma once

#include "hits/row_order.h"
#include "search/hit_table.h"
#include "search/word_places.h"
#include "state/volume_notes.h"

#include <QAbstractTableModel>
#include <QItemSelectionModel>
#include <QLocale>
#include <QString>

#include <cstdint>

namespace quorvin {

/// For folders and names: the TextRanges at which words of the search are in the text.
inline constexpr int kWordPlacesRole = Qt::UserRole;
/// The SourceKind of a row, as a number.
inline constexpr int kSourceKindRole = Qt::UserRole + 1;

/// What a row says about its kind of source in words, for those who do not see or know the colours.
QString sourceKindText(SourceKind kind);

/// Shows the rows of a HitTable under the columns "Match", "Volume", "Folder", "Name", "Size" and "Date".
/// Rows become visible only when they are announced, however many at a time, and nothing is kept for them: a
/// row is made into text when somebody asks for it. At most 2^31 - 1 rows are shown. Which rows these are,
/// and in what order, says its RowOrder.
class HitListModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  /// `table` must outlive the model; `locale` is the one in which sizes and dates are written.
  HitListModel(HitTable& table, const QLocale& locale, QObject* parent = nullptr);

  /// Announces the rows that the table has got since the last call; does nothing when there are none.
  void hitsArrived();
  /// Empties the table and the model; what comes now was found by `query`.
  void clear(const SearchQuery& query = {});
  /// While a run goes on, rows are still to come.
  void setGrowing(bool isGrowing) { order_.setGrowing(isGrowing); }

  const HitTable& table() const { return table_; }
  RowOrder& order() { return order_; }
  const RowOrder& order() const { return order_; }

  /// The words that the rows were found by.
  const WordPlaces& words() const { return words_; }
  /// Rows say what the user has noted on their volumes. `notes` must outlive the model.
  void setNotes(NotesAtHand& notes) { notes_ = &notes; }
  /// The note on the volume of a row of the table; empty for none.
  QString note(std::int64_t tableRow) const;
  /// The size of the file in `row`, in bytes, as its row shows it.
  std::int64_t size(int row) const { return table_.size(order_.tableRow(row)); }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  /// Besides the texts: the kind of source (kSourceKindRole), its exact colour (ForegroundRole), the
  /// alignment, where words of the search are (kWordPlacesRole), and in words the kind of source, which of
  /// the words the row holds, and the note on its volume (ToolTipRole and AccessibleDescriptionRole).
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

 private:
  const HitRow& hitRow(int shown) const;
  QVariant wordPlaces(const QModelIndex& index) const;
  QString explanation(int row, const QString& separator) const;

  HitTable& table_;
  QLocale locale_;
  WordPlaces words_;
  NotesAtHand* notes_ = nullptr;
  RowOrder order_;
  /// The row of the table that was read last: the six columns of a row are asked for one after another.
  mutable HitRow readRow_;
  mutable std::int64_t readRowNumber_ = -1;
};

/// How many rows are selected. Costs nothing for rows that were selected together.
std::int64_t selectedRowCount(const QItemSelectionModel& selection);

/// The row of the hit table that is shown at `index`; -1 for none. Of another model than HitListModel, the
/// row of the index.
int hitAt(const QModelIndex& index);

}  // namespace quorvin
