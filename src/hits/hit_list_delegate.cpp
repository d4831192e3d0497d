#include "hits/hit_list_delegate.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QStyleOptionHeader>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace quorvin {

namespace {

/// Above the 4.5 to 1 that is usual for text: saturated blue and red tire the eye on dark backgrounds.
constexpr double kReadableContrast = 6;

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

/// Narrow enough to follow the column division in a small window, wide enough to be taken hold of.
constexpr int kLeastColumnWidth = 4;

constexpr QChar kPadding = u' ';

}  // namespace

QColor readableOn(const QColor& colour, const QColor& background) {
  if (!isDark(background)) return colour;
  const float hue = colour.hslHueF();
  const float saturation = colour.hslSaturationF();
  QColor lighter = colour;
  for (float lightness = colour.lightnessF(); lightness < 1.0F; lightness += 0.01F) {
    lighter = QColor::fromHslF(hue, saturation, lightness);
    if (contrast(lighter, background) >= kReadableContrast) break;
  }
  return lighter;
}

QBrush HitListDelegate::selectionBrush(const QStyleOptionViewItem& option) {
  if (!option.state.testFlag(QStyle::State_Enabled)) {
    return option.palette.brush(QPalette::Disabled, QPalette::Highlight);
  }
  const bool isActive = option.state.testFlag(QStyle::State_Active);
  return option.palette.brush(isActive ? QPalette::Active : QPalette::Inactive, QPalette::Highlight);
}

void HitListDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const {
  const int padding = cellPadding(option);
  QStyleOptionViewItem padded = option;
  padded.rect.adjust(padding, 0, -padding, 0);
  QStyledItemDelegate::paint(painter, padded, index);
}

QSize HitListDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  return QStyledItemDelegate::sizeHint(option, index) + QSize(2 * cellPadding(option), 0);
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
  option->palette.setColor(QPalette::Text, readableOn(text, option->palette.color(QPalette::Base)));
}

HitListHeader::HitListHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {
  setMinimumSectionSize(kLeastColumnWidth);
  setHighlightSections(false);
  setSectionsClickable(false);
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
