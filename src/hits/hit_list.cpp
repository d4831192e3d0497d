// SPDX-License-Identifier: GPL-2.0-or-later
#include "hits/hit_list.h"

#include "hits/hit_list_delegate.h"
#include "hits/hit_list_model.h"

#include <QAccessible>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>
#include <cstdint>

namespace quorvin {
namespace {

/// Rows far off the screen are all drawn this far off, so that coordinates stay small whatever the row.
constexpr std::int64_t kFarAway = 1 << 20;

int pixelsPerColumnStep(const QFontMetrics& metrics) {
  return std::max(1, metrics.averageCharWidth() * 4);
}

}  // namespace

HitListView::HitListView(QWidget* parent)
    : QAbstractItemView(parent), header_(new HitListHeader(this)), columns_(new HitListColumns(header_)) {
  installHitListAccessible();
  setItemDelegate(new HitListDelegate(this));
  setSelectionBehavior(SelectRows);
  setSelectionMode(ExtendedSelection);
  setEditTriggers(NoEditTriggers);
  setAlternatingRowColors(true);
  setFrameShape(QFrame::NoFrame);
  setHorizontalScrollMode(ScrollPerPixel);
  setVerticalScrollMode(ScrollPerItem);
  // The menu of the rows is not one of the titles.
  header_->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(header_, &QWidget::customContextMenuRequested, this,
          [this](const QPoint& place) { Q_EMIT columnMenuRequested(header_->mapToGlobal(place)); });

  connect(header_, &QHeaderView::sectionResized, this, [this] {
    updateScrollBars();
    viewport()->update();
  });
  connect(header_, &QHeaderView::sectionMoved, viewport(), qOverload<>(&QWidget::update));
  connect(header_, &QHeaderView::sectionHandleDoubleClicked, this, &HitListView::fitColumn);
  connect(header_, &QHeaderView::geometriesChanged, this, &HitListView::updateGeometries);
  updateRowHeight();
}

HitListView::~HitListView() {
  // The header is deleted as a child, when this object is no HitListView any more.
  disconnect(header_, nullptr, this, nullptr);
}

int HitListView::firstVisibleRow() const {
  return verticalScrollBar()->value();
}

int HitListView::wholeVisibleRows() const {
  return std::max(1, viewport()->height() / rowHeight_);
}

int HitListView::visibleRowsEnd() const {
  const std::int64_t rowsOnScreen = (viewport()->height() + rowHeight_ - 1) / rowHeight_;
  return static_cast<int>(std::min<std::int64_t>(modelRows(), firstVisibleRow() + rowsOnScreen));
}

QRect HitListView::rowRect(int row) const {
  if (row < firstVisibleRow() || row >= visibleRowsEnd()) return {};
  return {0, (row - firstVisibleRow()) * rowHeight_, viewport()->width(), rowHeight_};
}

void HitListView::setEmptyText(const QString& text) {
  if (text == emptyText_) return;
  emptyText_ = text;
  setAccessibleDescription(text);
  viewport()->update();
}

void HitListView::setModel(QAbstractItemModel* model) {
  QAbstractItemView::setModel(model);
  header_->setModel(model);
}

QRect HitListView::visualRect(const QModelIndex& index) const {
  if (!index.isValid()) return {};
  const std::int64_t rowsAway = std::int64_t{index.row()} - firstVisibleRow();
  const auto top = static_cast<int>(std::clamp(rowsAway * rowHeight_, -kFarAway, kFarAway));
  return {header_->sectionViewportPosition(index.column()), top, header_->sectionSize(index.column()),
          rowHeight_};
}

void HitListView::scrollTo(const QModelIndex& index, ScrollHint hint) {
  if (!index.isValid()) return;
  const int first = firstVisibleRow();
  const int onScreen = wholeVisibleRows();
  const int row = index.row();
  if (hint == EnsureVisible) {
    if (row >= first && row - first < onScreen) return;
    hint = row < first ? PositionAtTop : PositionAtBottom;
  }
  const int rowsAbove = hint == PositionAtTop ? 0 : hint == PositionAtBottom ? onScreen - 1 : onScreen / 2;
  verticalScrollBar()->setValue(std::max(0, row - rowsAbove));
}

QModelIndex HitListView::indexAt(const QPoint& point) const {
  if (point.y() < 0) return {};
  const std::int64_t row = std::int64_t{firstVisibleRow()} + point.y() / rowHeight_;
  const int column = header_->logicalIndexAt(point.x());
  if (row >= modelRows() || column < 0) return {};
  return model()->index(static_cast<int>(row), column, rootIndex());
}

void HitListView::reset() {
  QAbstractItemView::reset();
  anchorRow_ = -1;
  previousRow_ = -1;
  verticalScrollBar()->setValue(0);
  // Otherwise it comes with the first rows, after they have been painted, and they are painted twice.
  executeDelayedItemsLayout();
}

void HitListView::rowsInserted(const QModelIndex& parent, int start, int end) {
  QAbstractItemView::rowsInserted(parent, start, end);
  updateScrollBars();
  // Rows below the screen change nothing on it.
  if (start < firstVisibleRow() + wholeVisibleRows() + 1) viewport()->update();
}

void HitListView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QAbstractItemView::currentChanged(current, previous);
  previousRow_ = previous.row();
  updateRow(previous.row());
  updateRow(current.row());
  if (current.isValid() && current.row() != previous.row()) tellCurrentRow(current.row());
}

void HitListView::tellCurrentRow(int row) {
  if (!QAccessible::isActive() || !hasFocus()) return;
  QAccessibleEvent event(this, QAccessible::Focus);
  event.setChild(row);
  QAccessible::updateAccessibility(&event);
}

void HitListView::updateGeometries() {
  const int height = std::max(header_->minimumHeight(), header_->sizeHint().height());
  setViewportMargins(0, height, 0, 0);
  const QRect inner = viewport()->geometry();
  header_->setGeometry(inner.left(), inner.top() - height, inner.width(), height);
  updateScrollBars();
  QAbstractItemView::updateGeometries();
}

void HitListView::updateScrollBars() {
  QScrollBar* rows = verticalScrollBar();
  rows->setRange(0, std::max(0, modelRows() - wholeVisibleRows()));
  rows->setPageStep(wholeVisibleRows());
  rows->setSingleStep(1);
  QScrollBar* columns = horizontalScrollBar();
  columns->setRange(0, std::max(0, header_->length() - viewport()->width()));
  columns->setPageStep(viewport()->width());
  columns->setSingleStep(pixelsPerColumnStep(fontMetrics()));
}

void HitListView::scrollContentsBy(int dx, int dy) {
  if (dx != 0) header_->setOffset(horizontalScrollBar()->value());
  // `dy` is in rows. A long way is painted again: shifting the picture would save nothing.
  const bool isShort = std::abs(dy) < wholeVisibleRows();
  if (isShort && dx == 0) {
    viewport()->scroll(0, dy * rowHeight_);
    return;
  }
  viewport()->update();
}

QModelIndex HitListView::moveCursor(CursorAction action, Qt::KeyboardModifiers) {
  const int rows = modelRows();
  if (rows == 0) return {};
  const QModelIndex current = currentIndex();
  if (!current.isValid()) return model()->index(0, 0, rootIndex());
  const auto at = [&](std::int64_t row) {
    const std::int64_t inside = std::clamp<std::int64_t>(row, 0, rows - 1);
    return model()->index(static_cast<int>(inside), current.column(), rootIndex());
  };
  const std::int64_t row = current.row();
  switch (action) {
    case MoveUp:
    case MovePrevious:
      return at(row - 1);
    case MoveDown:
    case MoveNext:
      return at(row + 1);
    case MovePageUp:
      return at(row - pageRows());
    case MovePageDown:
      return at(row + pageRows());
    case MoveHome:
      return at(0);
    case MoveEnd:
      return at(rows - 1);
    case MoveLeft:
      horizontalScrollBar()->triggerAction(QScrollBar::SliderSingleStepSub);
      return current;
    case MoveRight:
      horizontalScrollBar()->triggerAction(QScrollBar::SliderSingleStepAdd);
      return current;
  }
  return current;
}

void HitListView::keyPressEvent(QKeyEvent* event) {
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (isEnter && (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier) {
    selectCurrentIfNone();
    Q_EMIT openRequested();
    return;
  }
  if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier) {
    requestMenuAtCurrentRow();
    return;
  }
  QAbstractItemView::keyPressEvent(event);
}

void HitListView::mouseDoubleClickEvent(QMouseEvent* event) {
  QAbstractItemView::mouseDoubleClickEvent(event);
  if (event->button() == Qt::LeftButton && indexAt(event->pos()).isValid()) Q_EMIT openRequested();
}

void HitListView::contextMenuEvent(QContextMenuEvent* event) {
  if (event->reason() == QContextMenuEvent::Keyboard) return requestMenuAtCurrentRow();
  Q_EMIT menuRequested(event->globalPos());
}

/// A list that has just got the focus has a current row that is not selected; keys mean that row.
void HitListView::selectCurrentIfNone() {
  if (!currentIndex().isValid() || selectionModel()->hasSelection()) return;
  selectionModel()->select(currentIndex(), QItemSelectionModel::Select | QItemSelectionModel::Rows);
}

void HitListView::requestMenuAtCurrentRow() {
  if (!currentIndex().isValid()) return;
  selectCurrentIfNone();
  scrollTo(currentIndex());
  const QRect row = rowRect(currentIndex().row());
  Q_EMIT menuRequested(viewport()->mapToGlobal(row.bottomLeft() + QPoint(rowHeight_, 1)));
}

int HitListView::horizontalOffset() const {
  return header_->offset();
}

int HitListView::verticalOffset() const {
  // In rows, as the scroll bar counts: in pixels it would not fit for the last of very many rows.
  return firstVisibleRow();
}

bool HitListView::isIndexHidden(const QModelIndex& index) const {
  return header_->isSectionHidden(index.column());
}

/// Only the end of `rect` is looked at, which is always near the screen; the row where it starts may be
/// millions of rows away, which no coordinate can express.
void HitListView::setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command) {
  if (command == QItemSelectionModel::NoUpdate || modelRows() == 0) return;
  const int row = rowNear(rect.bottomRight().y());
  const bool extends = command.testFlag(QItemSelectionModel::Current);
  if (!extends) anchorRow_ = row;
  const bool hasAnchor = anchorRow_ >= 0 && selectionModel()->isRowSelected(anchorRow_, rootIndex());
  if (!hasAnchor) anchorRow_ = extends && previousRow_ >= 0 ? previousRow_ : row;

  const auto [first, last] = std::minmax(anchorRow_, row);
  const QItemSelection rows(model()->index(first, 0, rootIndex()),
                            model()->index(last, header_->count() - 1, rootIndex()));
  selectionModel()->select(rows, command);
}

QRegion HitListView::visualRegionForSelection(const QItemSelection& selection) const {
  QRegion region;
  for (const QItemSelectionRange& range : selection) {
    const int first = std::max(range.top(), firstVisibleRow());
    const int last = std::min(range.bottom(), visibleRowsEnd() - 1);
    if (first <= last) region += rowRect(first) | rowRect(last);
  }
  return region;
}

int HitListView::sizeHintForColumn(int column) const {
  if (!model()) return -1;
  ensurePolished();
  QStyleOptionViewItem option;
  initViewItemOption(&option);
  int width = 0;
  for (int row = firstVisibleRow(); row < visibleRowsEnd(); ++row) {
    const QModelIndex index = model()->index(row, column, rootIndex());
    width = std::max(width, itemDelegate()->sizeHint(option, index).width());
  }
  return width;
}

void HitListView::paintEvent(QPaintEvent* event) {
  QPainter painter(viewport());
  if (modelRows() == 0) {
    paintEmptyText(painter);
    return;
  }
  QStyleOptionViewItem common;
  initViewItemOption(&common);
  const QRect dirty = event->rect();
  const int first = firstVisibleRow() + std::max(0, dirty.top()) / rowHeight_;
  for (int row = first; row < visibleRowsEnd() && rowRect(row).top() <= dirty.bottom(); ++row) {
    paintRow(painter, common, row);
  }
}

void HitListView::paintRow(QPainter& painter, const QStyleOptionViewItem& common, int row) const {
  QStyleOptionViewItem option = common;
  const QModelIndex firstCell = model()->index(row, 0, rootIndex());
  const bool isSelected = selectionModel()->isSelected(firstCell);
  const bool isCurrent = currentIndex().row() == row && hasFocus();
  option.state.setFlag(QStyle::State_Selected, isSelected);
  option.features.setFlag(QStyleOptionViewItem::Alternate, alternatingRowColors() && row % 2 == 1);

  option.rect = rowRect(row);
  style()->drawPrimitive(QStyle::PE_PanelItemViewRow, &option, &painter, this);
  if (isSelected) painter.fillRect(option.rect, HitListDelegate::selectionBrush(option));

  for (int column = 0; column < header_->count(); ++column) {
    const QModelIndex index = firstCell.siblingAtColumn(column);
    option.rect = {header_->sectionViewportPosition(column), rowRect(row).top(), header_->sectionSize(column),
                   rowHeight_};
    if (option.rect.intersects(viewport()->rect())) itemDelegate()->paint(&painter, option, index);
  }
  if (!isCurrent || isSelected) return;
  QStyleOptionFocusRect focus;
  focus.initFrom(this);
  focus.rect = rowRect(row);
  focus.backgroundColor = palette().color(QPalette::Base);
  style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
}

void HitListView::paintEmptyText(QPainter& painter) const {
  if (emptyText_.isEmpty()) return;
  const int margin = fontMetrics().height() * 2;
  painter.setPen(palette().color(QPalette::PlaceholderText));
  // Whatever the direction of the desktop: the full stops of its sentences would go astray.
  painter.setLayoutDirection(Qt::LeftToRight);
  painter.drawText(viewport()->rect().adjusted(margin, margin, -margin, -margin),
                   Qt::AlignCenter | Qt::TextWordWrap, emptyText_);
}

void HitListView::changeEvent(QEvent* event) {
  QAbstractItemView::changeEvent(event);
  if (event->type() != QEvent::FontChange && event->type() != QEvent::StyleChange) return;
  updateRowHeight();
  updateGeometries();
  viewport()->update();
}

int HitListView::modelRows() const {
  return model() ? model()->rowCount(rootIndex()) : 0;
}

int HitListView::rowNear(int y) const {
  const std::int64_t rowsBelowFirst = y < 0 ? -1 - (-1 - std::int64_t{y}) / rowHeight_ : y / rowHeight_;
  return static_cast<int>(std::clamp<std::int64_t>(firstVisibleRow() + rowsBelowFirst, 0, modelRows() - 1));
}

int HitListView::currentSelectedRow() const {
  const QModelIndex current = currentIndex();
  return current.isValid() && selectionModel()->isSelected(current) ? hitAt(current) : -1;
}

/// A page leaves one row of the page before on the screen.
int HitListView::pageRows() const {
  return std::max(1, wholeVisibleRows() - 1);
}

void HitListView::updateRowHeight() {
  ensurePolished();
  const int textHeight = fontMetrics().height();
  rowHeight_ = textHeight + std::max(4, textHeight / 3);
}

void HitListView::updateRow(int row) {
  if (row >= 0) viewport()->update(rowRect(row));
}

/// Only the rows on the screen are looked at.
void HitListView::fitColumn(int column) {
  header_->resizeSection(column, std::max(sizeHintForColumn(column), header_->sectionSizeHint(column)));
}

}  // namespace quorvin
