#include "app/hit_list_header.h"

#include <QStyleOptionHeader>

namespace quorvin {

namespace {

/// Narrow enough to follow the column division in a small window, wide enough to be taken hold of.
constexpr int kLeastColumnWidth = 4;

constexpr QChar kPadding = u' ';

}  // namespace

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
