// SPDX-License-Identifier: GPL-2.0-or-later

// How the cells and column titles of the hit list are drawn.
#pragma once

#include <QBrush>
#include <QColor>
#include <QFontMetrics>
#include <QHash>
#include <QHeaderView>
#include <QPainter>
#include <QString>
#include <QStyledItemDelegate>

#include <utility>

namespace quorvin {

/// The contrast that is usual for text.
inline constexpr double kUsualContrast = 4.5;

/// The shade of `colour` next to it that has at least the contrast `least` (1 to 21) to `other`: lighter
/// where that is dark, otherwise darker; white or black where no shade has.
QColor shadeAgainst(const QColor& colour, const QColor& other, double least = kUsualContrast);

/// `colour` where text in it can be read on `background`, otherwise the nearest shade of its hue that can:
/// darkened on a light background, lightened on a dark one.
QColor readableOn(const QColor& colour, const QColor& background);

/// Draws cells in the colour of their kind of source, in a shade that can be read on the row, with the words
/// that were found bold, and shows in a tooltip what does not fit into a cell. Each row starts with a mark in
/// the shape of its kind of source: a disc for a folder of one's own, a square for the main data file, a
/// triangle for an offline listing.
class HitListDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  /// The background of a selected row: the palette's, in a shade on which its text can be read.
  static QBrush selectionBrush(const QStyleOptionViewItem& option);
  /// The width of a mark with its distance to the text, in pixels.
  static int markWidth(const QFontMetrics& metrics);

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override;
  /// The tooltip of a cell: its text when that does not fit into `option.rect`, and the kind of source.
  QString tooltip(const QStyleOptionViewItem& option, const QModelIndex& index) const;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

 private:
  void paintText(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;
  void paintMark(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;
  QColor shadeOf(const QColor& colour, const QColor& background) const;

  /// What readableOn() gave for the few colours and backgrounds there are: every cell that is drawn asks.
  mutable QHash<std::pair<QRgb, QRgb>, QColor> shades_;
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
