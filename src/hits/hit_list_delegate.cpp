// SPDX-License-Identifier: GPL-2.0-or-later
#include "hits/hit_list_delegate.h"

#include "hits/hit_list.h"
#include "hits/hit_list_model.h"
#include "hits/marked_text.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QStyleOptionHeader>
#include <QToolTip>

#include <algorithm>
#include <cmath>
#include <utility>

namespace quorvin {

namespace {

/// Above the 4.5 to 1 that is usual for text: saturated blue and red tire the eye on dark backgrounds.
constexpr double kContrastOnDark = 6;

double linearLight(double channel) {
  return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& colour) {
  return 0.2126 * linearLight(colour.redF()) + 0.7152 * linearLight(colour.greenF()) +
         0.0722 * linearLight(colour.blueF());
}

double contrast(const QColor& one, const QColor& other) {
  const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
  return (lighter + 0.05) / (darker + 0.05);
}

/// Cells keep as far from the edges of their columns as the titles do.
int cellPadding(const QStyleOptionViewItem& option) {
  return option.fontMetrics.horizontalAdvance(u' ');
}

bool isDark(const QColor& background) {
  // Where black and white text are equally far away.
  return luminance(background) < 0.179;
}

QPalette::ColorGroup colourGroup(const QStyleOptionViewItem& option) {
  if (!option.state.testFlag(QStyle::State_Enabled)) return QPalette::Disabled;
  return option.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
}

TextRanges wordsIn(const QModelIndex& index) {
  return index.data(kWordPlacesRole).value<TextRanges>();
}

/// Rows start with their mark, whichever column is the first one.
bool startsRow(const QStyleOptionViewItem& option, const QModelIndex& index) {
  const auto* list = qobject_cast<const HitListView*>(option.widget);
  return list && list->firstColumn() == index.column();
}

qreal markSide(const QFontMetrics& metrics) {
  return metrics.ascent() * 0.66;
}

/// The shapes differ for those who see the colours alike.
void drawMark(QPainter& painter, SourceKind kind, const QRectF& place) {
  const qreal edge = place.width() / 16;
  switch (kind) {
    case SourceKind::Online:
      return painter.drawEllipse(place);
    case SourceKind::MainDataFile:
      return painter.drawRect(place.adjusted(edge, edge, -edge, -edge));
    case SourceKind::Offline:
      return painter.drawPolygon(
          QPolygonF{place.bottomLeft(), {place.center().x(), place.top()}, place.bottomRight()});
  }
}

/// Of a cell whose style has been set.
QColor textColour(const QStyleOptionViewItem& cell) {
  const bool isSelected = cell.state.testFlag(QStyle::State_Selected);
  return cell.palette.color(colourGroup(cell), isSelected ? QPalette::HighlightedText : QPalette::Text);
}

/// Narrow enough to follow the column division in a small window, wide enough to be taken hold of.
constexpr int kLeastColumnWidth = 4;

constexpr QChar kPadding = u' ';

}  // namespace

QColor shadeAgainst(const QColor& colour, const QColor& other, double least) {
  if (contrast(colour, other) >= least) return colour;
  const float step = isDark(other) ? 0.01F : -0.01F;
  for (float lightness = colour.lightnessF(); lightness > 0.0F && lightness < 1.0F; lightness += step) {
    const QColor shade = QColor::fromHslF(colour.hslHueF(), colour.hslSaturationF(), lightness);
    if (contrast(shade, other) >= least) return shade;
  }
  return isDark(other) ? Qt::white : Qt::black;
}

QColor readableOn(const QColor& colour, const QColor& background) {
  return shadeAgainst(colour, background, isDark(background) ? kContrastOnDark : kUsualContrast);
}

QBrush HitListDelegate::selectionBrush(const QStyleOptionViewItem& option) {
  const QPalette::ColorGroup group = colourGroup(option);
  QBrush brush = option.palette.brush(group, QPalette::Highlight);
  const QColor text = option.palette.color(group, QPalette::HighlightedText);
  if (brush.style() == Qt::SolidPattern) brush.setColor(shadeAgainst(brush.color(), text));
  return brush;
}

int HitListDelegate::markWidth(const QFontMetrics& metrics) {
  return static_cast<int>(std::ceil(markSide(metrics))) + metrics.horizontalAdvance(u' ');
}

void HitListDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const {
  const int padding = cellPadding(option);
  const int mark = startsRow(option, index) ? markWidth(option.fontMetrics) : 0;
  if (mark > 0) paintMark(*painter, option, index);
  QStyleOptionViewItem padded = option;
  padded.rect =
      QStyle::visualRect(option.direction, option.rect, option.rect.adjusted(padding + mark, 0, -padding, 0));
  paintText(*painter, padded, index);
}

void HitListDelegate::paintMark(QPainter& painter, const QStyleOptionViewItem& option,
                                const QModelIndex& index) const {
  const QVariant kind = index.data(kSourceKindRole);
  if (!kind.isValid()) return;
  QStyleOptionViewItem cell = option;
  initStyleOption(&cell, index);
  const qreal side = markSide(option.fontMetrics);
  const QRect area = QStyle::visualRect(option.direction, option.rect,
                                        QRect(option.rect.left() + cellPadding(option), option.rect.top(),
                                              static_cast<int>(std::ceil(side)), option.rect.height()));
  QRectF place(0, 0, side, side);
  place.moveCenter(QRectF(area).center());
  painter.save();
  painter.setClipRect(option.rect, Qt::IntersectClip);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(textColour(cell));
  drawMark(painter, static_cast<SourceKind>(kind.toInt()), place);
  painter.restore();
}

/// As the style draws a cell, but for the text, which it can only draw in one font and in the cell's
/// direction, where it would turn "03 - Song" around. It also lays each text out three times.
void HitListDelegate::paintText(QPainter& painter, const QStyleOptionViewItem& option,
                                const QModelIndex& index) const {
  QStyleOptionViewItem cell = option;
  initStyleOption(&cell, index);
  const MarkedText whole{std::exchange(cell.text, {}), wordsIn(index)};
  const QStyle* style = cell.widget ? cell.widget->style() : QApplication::style();
  style->drawControl(QStyle::CE_ItemViewItem, &cell, &painter, cell.widget);
  if (whole.text.isEmpty()) return;

  const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, &cell, cell.widget) + 1;
  QTextOption lines(QStyle::visualAlignment(cell.direction, cell.displayAlignment));
  lines.setTextDirection(whole.text.isRightToLeft() ? cell.direction : Qt::LeftToRight);
  painter.save();
  painter.setClipRect(option.rect, Qt::IntersectClip);
  painter.setPen(textColour(cell));
  const Cut cut = cell.textElideMode == Qt::ElideMiddle ? Cut::Middle : Cut::End;
  drawLine(painter, whole, cell.font, cell.rect.adjusted(margin, 0, -margin, 0), lines, cut);
  painter.restore();
}

QSize HitListDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const int mark = startsRow(option, index) ? markWidth(option.fontMetrics) : 0;
  const QSize plain = QStyledItemDelegate::sizeHint(option, index) + QSize(2 * cellPadding(option) + mark, 0);
  const TextRanges bold = wordsIn(index);
  if (bold.empty()) return plain;
  const QString text = index.data().toString();
  const qreal wider = widthOf({text, bold}, option.font) - widthOf({text, {}}, option.font);
  return plain + QSize(std::max(0, static_cast<int>(std::ceil(wider))), 0);
}

bool HitListDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                                const QStyleOptionViewItem& option, const QModelIndex& index) {
  if (event->type() != QEvent::ToolTip || !index.isValid()) {
    return QStyledItemDelegate::helpEvent(event, view, option, index);
  }
  QToolTip::showText(event->globalPos(), tooltip(option, index), view->viewport(), option.rect);
  return true;
}

QString HitListDelegate::tooltip(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const QString kind = index.data(Qt::ToolTipRole).toString();
  // The full size is asked for a cell without bounds: the text is what counts.
  QStyleOptionViewItem unbounded = option;
  unbounded.rect = {};
  const bool fits = sizeHint(unbounded, index).width() <= option.rect.width();
  const QString whole = fits ? kind : index.data().toString() + QStringLiteral("\n") + kind;
  // Names may look like markup; they are shown as they are, on as many lines as they have.
  return QStringLiteral("<p style='white-space:pre-wrap'>") + whole.toHtmlEscaped() + QStringLiteral("</p>");
}

void HitListDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  const QColor text = option->palette.color(QPalette::Text);
  const QColor base = option->palette.color(QPalette::Base);
  const bool isAlternate = option->features.testFlag(QStyleOptionViewItem::Alternate);
  const QColor behind = isAlternate ? option->palette.color(QPalette::AlternateBase) : base;
  option->palette.setColor(QPalette::Text, shadeOf(text, behind));
  if (option->state.testFlag(QStyle::State_Selected)) {
    option->palette.setBrush(QPalette::Highlight, selectionBrush(*option));
  }
  // What tells folders apart is mostly at their ends.
  const bool isFolder = index.column() == static_cast<int>(HitColumn::Folder);
  option->textElideMode = isFolder ? Qt::ElideMiddle : Qt::ElideRight;
}

QColor HitListDelegate::shadeOf(const QColor& colour, const QColor& background) const {
  QColor& shade = shades_[{colour.rgba(), background.rgba()}];
  if (!shade.isValid()) shade = readableOn(colour, background);
  return shade;
}

HitListHeader::HitListHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {
  setMinimumSectionSize(kLeastColumnWidth);
  setHighlightSections(false);
  setSectionsClickable(true);
  setSectionsMovable(true);
  // The room for the arrow is always there, so that titles keep their places.
  setSortIndicatorShown(true);
  setSortIndicator(-1, Qt::AscendingOrder);
  setStretchLastSection(false);
  setFocusPolicy(Qt::NoFocus);
}

void HitListHeader::initStyleOptionForIndex(QStyleOptionHeader* option, int logicalIndex) const {
  QHeaderView::initStyleOptionForIndex(option, logicalIndex);
  option->text = kPadding + option->text + kPadding;
}

QSize HitListHeader::sectionSizeFromContents(int logicalIndex) const {
  const int padding = 2 * fontMetrics().horizontalAdvance(kPadding);
  return QHeaderView::sectionSizeFromContents(logicalIndex) + QSize(padding, 0);
}

}  // namespace quorvin
