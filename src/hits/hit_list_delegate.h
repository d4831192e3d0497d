// How the cells and column titles of the hit list are drawn.
#pragma once

#include "search/word_places.h"

#include <QBrush>
#include <QColor>
#include <QFont>
#include <QFontMetrics>
#include <QHeaderView>
#include <QPainter>
#include <QRect>
#include <QString>
#include <QStyledItemDelegate>
#include <QTextOption>

namespace quorvin {

/// The contrast that is usual for text.
inline constexpr double kUsualContrast = 4.5;

/// The shade of `colour` next to it that has at least the contrast `least` (1 to 21) to `other`: lighter
/// where that is dark, otherwise darker; white or black where no shade has.
QColor shadeAgainst(const QColor& colour, const QColor& other, double least = kUsualContrast);

/// `colour` as it is on the `background` of an ordinary light list. On others the same hue where it can be
/// read well: lightened on a dark background, darkened on one that is neither dark nor quite light.
QColor readableOn(const QColor& colour, const QColor& background);

/// A line of text with some of its characters bold.
struct MarkedText {
  QString text;
  /// From left to right, apart from each other.
  TextRanges bold;

  bool operator==(const MarkedText&) const = default;
};

/// The width of `line` in pixels.
qreal widthOf(const MarkedText& line, const QFont& font);

/// Where a line that is too long is cut.
enum class Cut { End, Middle };

/// The line as it is where it fits into `width` pixels, otherwise as many of its first characters as fit with
/// an ellipsis behind them; or, cut in the middle, of its first and last ones with the ellipsis between.
MarkedText cutToWidth(const MarkedText& line, const QFont& font, qreal width, Cut cut = Cut::End);

/// Draws the line in the painter's pen, cut to the width of `place` and in the middle of its height;
/// direction and alignment are those of `option`.
void drawLine(QPainter& painter, const MarkedText& line, const QFont& font, const QRect& place,
              const QTextOption& option, Cut cut = Cut::End);

/// Draws cells in the colour of their kind of source, with the words that were found bold, and shows in a
/// tooltip what does not fit into a cell. Each row starts with a mark in the shape of its kind of source: a
/// disc for a folder of one's own, a square for the main data file, a triangle for an offline listing.
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
  void paintMarked(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index,
                   const TextRanges& bold) const;
  void paintMark(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;
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
