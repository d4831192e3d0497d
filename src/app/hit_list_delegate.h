// How the cells of the hit list are drawn.
#pragma once

#include <QBrush>
#include <QColor>
#include <QStyledItemDelegate>

namespace quorvin {

/// `colour` as it stands on a light `background`; on a dark one the same hue, lightened until it can be read
/// well there.
QColor readableOn(const QColor& colour, const QColor& background);

/// Draws cells in the colour of their kind of source, and tells in a tooltip what does not fit into a cell.
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
};

}  // namespace quorvin
