// SPDX-License-Identifier: GPL-2.0-or-later

// The view of the hit list.
#pragma once

#include "hits/hit_list_columns.h"

#include <QAbstractItemView>
#include <QHeaderView>
#include <QString>

namespace quorvin {

/// A list with columns for any number of rows, up to 2^31 - 1: all rows have the same height and nothing is
/// kept or computed for a row that is not on the screen. (The toolkit's own tables and trees keep a record
/// for every row.) Any rows can be selected; the current one, when it is among them, is the one that actions
/// are for. The vertical scroll bar counts in rows.
class HitListView : public QAbstractItemView {
  Q_OBJECT

 public:
  explicit HitListView(QWidget* parent = nullptr);
  ~HitListView() override;
  HitListView(const HitListView&) = delete;
  HitListView& operator=(const HitListView&) = delete;

  QHeaderView* header() const { return header_; }
  HitListColumns& columns() { return *columns_; }
  int rowHeight() const { return rowHeight_; }
  /// The column in which rows start.
  int firstColumn() const { return columns_->first(); }
  /// The first row on the screen.
  int firstVisibleRow() const;
  /// How many rows fit on the screen as a whole, at least 1.
  int wholeVisibleRows() const;
  /// Where `row` is drawn, in the viewport; empty when it is not on the screen.
  QRect rowRect(int row) const;

  /// Is shown in the middle, wrapped and in a quiet colour, as long as there are no rows; may be empty.
  void setEmptyText(const QString& text);
  const QString& emptyText() const { return emptyText_; }

  /// The hit of the current row (see hitAt()) when that is selected, else -1.
  int currentSelectedRow() const;

  void setModel(QAbstractItemModel* model) override;
  QRect visualRect(const QModelIndex& index) const override;
  void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;
  QModelIndex indexAt(const QPoint& point) const override;
  void reset() override;
  /// Does nothing: looking for a row that begins with a letter would make text of millions of rows.
  void keyboardSearch(const QString&) override {}

 Q_SIGNALS:
  /// The user wants to open the current row: by a double-click of the left button or by Enter.
  void openRequested();
  /// The user wants the pop-up menu at this place of the screen: by the right button, the Menu key or
  /// Shift+F10. The keys ask for it below the current row, which is on the screen then.
  void menuRequested(const QPoint& place);
  /// The user wants the menu of the columns at this place of the screen: by the right button on a title.
  void columnMenuRequested(const QPoint& place);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void rowsInserted(const QModelIndex& parent, int start, int end) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void updateGeometries() override;
  void scrollContentsBy(int dx, int dy) override;
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
  int horizontalOffset() const override;
  int verticalOffset() const override;
  bool isIndexHidden(const QModelIndex& index) const override;
  void setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command) override;
  QRegion visualRegionForSelection(const QItemSelection& selection) const override;
  int sizeHintForColumn(int column) const override;
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  int modelRows() const;
  int pageRows() const;
  /// The row after the last one that is at least partly on the screen.
  int visibleRowsEnd() const;
  /// The row at the height `y` of the viewport, or the nearest one.
  int rowNear(int y) const;
  void selectCurrentIfNone();
  void requestMenuAtCurrentRow();
  void updateRowHeight();
  void updateScrollBars();
  void updateRow(int row);
  void paintRow(QPainter& painter, const QStyleOptionViewItem& common, int row) const;
  void paintEmptyText(QPainter& painter) const;
  void fitColumn(int column);
  void tellCurrentRow(int row);

  QHeaderView* header_;
  HitListColumns* columns_;
  int rowHeight_ = 1;
  QString emptyText_;
  /// Where a selection of several rows began.
  int anchorRow_ = -1;
  /// The current row before the present one.
  int previousRow_ = -1;
};

/// So many rows of a list are kept ready for assistive technology: those that were asked for last, those on
/// the screen and the current one.
inline constexpr int kMostAccessibleRows = 1000;

/// Makes every HitListView from now on known to assistive technology as a list whose items are the rows: an
/// item's name is the row's visible columns with their titles, in their order on the screen, its description
/// the kind of source. The description of the list says why it is empty, or how its rows are sorted. May be
/// called any number of times.
void installHitListAccessible();

}  // namespace quorvin
