#include "hits/hit_list_delegate.h"

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
constexpr double kReadableContrast = 6;
constexpr double kUsualContrast = 4.5;

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

/// The same hue, darkened until it can be read on a background that is neither dark nor quite light; or
/// black, where no shade can.
QColor darkerOn(const QColor& colour, const QColor& background) {
  QColor darker = colour;
  for (float lightness = colour.lightnessF(); lightness > 0.0F; lightness -= 0.01F) {
    darker = QColor::fromHslF(colour.hslHueF(), colour.hslSaturationF(), lightness);
    if (contrast(darker, background) >= kUsualContrast) return darker;
  }
  return Qt::black;
}

/// Narrow enough to follow the column division in a small window, wide enough to be taken hold of.
constexpr int kLeastColumnWidth = 4;

constexpr QChar kPadding = u' ';

}  // namespace

QColor readableOn(const QColor& colour, const QColor& background) {
  if (!isDark(background)) return colour;
  const float hue = colour.hslHueF();
  const float saturation = colour.hslSaturationF();
  for (float lightness = colour.lightnessF(); lightness < 1.0F; lightness += 0.01F) {
    const QColor lighter = QColor::fromHslF(hue, saturation, lightness);
    if (contrast(lighter, background) >= kReadableContrast) return lighter;
  }
  return Qt::white;
}

QBrush HitListDelegate::selectionBrush(const QStyleOptionViewItem& option) {
  return option.palette.brush(colourGroup(option), QPalette::Highlight);
}

void HitListDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const {
  const int padding = cellPadding(option);
  QStyleOptionViewItem padded = option;
  padded.rect.adjust(padding, 0, -padding, 0);
  const TextRanges bold = wordsIn(index);
  if (bold.empty()) return QStyledItemDelegate::paint(painter, padded, index);
  paintMarked(*painter, padded, index, bold);
}

/// As the style draws a cell, but for the text, which it can only draw in one font.
void HitListDelegate::paintMarked(QPainter& painter, const QStyleOptionViewItem& option,
                                  const QModelIndex& index, const TextRanges& bold) const {
  QStyleOptionViewItem cell = option;
  initStyleOption(&cell, index);
  const QStyle* style = cell.widget ? cell.widget->style() : QApplication::style();
  const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, &cell, cell.widget) + 1;
  const QRect place =
      style->subElementRect(QStyle::SE_ItemViewItemText, &cell, cell.widget).adjusted(margin, 0, -margin, 0);
  const MarkedText whole{std::exchange(cell.text, {}), bold};
  style->drawControl(QStyle::CE_ItemViewItem, &cell, &painter, cell.widget);

  QTextOption lines(QStyle::visualAlignment(cell.direction, cell.displayAlignment));
  lines.setTextDirection(cell.direction);
  const bool isSelected = cell.state.testFlag(QStyle::State_Selected);
  painter.save();
  painter.setClipRect(option.rect, Qt::IntersectClip);
  painter.setPen(
      cell.palette.color(colourGroup(cell), isSelected ? QPalette::HighlightedText : QPalette::Text));
  const Cut cut = cell.textElideMode == Qt::ElideMiddle ? Cut::Middle : Cut::End;
  drawLine(painter, cutToWidth(whole, cell.font, place.width(), cut), cell.font, place, lines);
  painter.restore();
}

QSize HitListDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const QSize plain = QStyledItemDelegate::sizeHint(option, index) + QSize(2 * cellPadding(option), 0);
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
  QColor shown = readableOn(text, behind);
  // Every second row of a dark palette may be light enough to count as light, and too dark for the colours.
  if (isDark(base) && contrast(shown, behind) < kUsualContrast) shown = darkerOn(text, behind);
  option->palette.setColor(QPalette::Text, shown);
  // What tells folders apart is mostly at their ends.
  const bool isFolder = index.column() == static_cast<int>(HitColumn::Folder);
  option->textElideMode = isFolder ? Qt::ElideMiddle : Qt::ElideRight;
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
