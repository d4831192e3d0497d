// How the cells and column titles of the hit list are drawn.
#pragma once

#include "search/word_places.h"

#include <QBrush>
#include <QColor>
#include <QHeaderView>
#include <QStyledItemDelegate>

namespace quorvin {

/// `colour` as it is on a light `background`; on a dark one the same hue, lightened until it can be read
/// well there.
QColor readableOn(const QColor& colour, const QColor& background);

/// Draws cells in the colour of their kind of source, with the words that were found bold, and shows in a
/// tooltip what does not fit into a cell.
class HitListDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  /// The background of a selected row.
  static QBrush selectionBrush(const QStyleOptionViewItem& option);

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override;
  /// The tooltip of a cell: its text when that does not fit into `option.rect`, and the kind of source.
  QString tooltip(const QStyleOptionViewItem& option, const QModelIndex& index) const;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

 private:
  void paintMarked(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index,
                   const TextRanges& bold) const;
};

/// Keeps titles a little away from the edges of their columns, so that one that is at the right side of
/// its column does not touch the next.
class HitListHeader : public QHeaderView {
  Q_OBJECT

 public:
  explicit HitListHeader(QWidget* parent);

 protected:
  void initStyleOptionForIndex(QStyleOptionHeader* option, int logicalIndex) const override;
  QSize sectionSizeFromContents(int logicalIndex) const override;
};

}  // namespace quorvin
