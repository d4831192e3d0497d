// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/volumes/space_map.h"

#include "catalogue/sum_texts.h"
#include "catalogue/volumes/treemap.h"
#include "platform/text_direction.h"
#include "platform/text_encoding.h"
#include "texts/texts.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStringList>
#include <QToolTip>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace quorvin {

namespace {

/// So many rectangles of a folder are drawn at most; the others would be dots.
constexpr std::size_t kMostCells = 1000;
/// What is smaller is not drawn.
constexpr double kLeastSide = 3;
constexpr double kFrame = 1;

/// They can be told apart by those who do not see all colours, too.
constexpr std::array<QRgb, kFileKinds> kKindColours = {0x56B4E9, 0xD55E00, 0x009E73, 0xF0E442,
                                                       0xCC79A7, 0x3F6FB5, 0x9A9A9A};
/// From old to new; the last one is for no date.
constexpr std::array<QRgb, kYearSpans> kYearColours = {0x440154, 0x46327E, 0x365C8D, 0x277F8E, 0x1FA187,
                                                       0x4AC16D, 0xA0DA39, 0xFDE725, 0x9A9A9A};

QColor textOn(const QColor& colour) {
  const double luminance = 0.299 * colour.redF() + 0.587 * colour.greenF() + 0.114 * colour.blueF();
  return luminance > 0.5 ? QColor(Qt::black) : QColor(Qt::white);
}

QString legendEntry(QRgb colour, const QString& title) {
  return QStringLiteral("<span style='color:%1'>\u25A0</span>&nbsp;").arg(QColor(colour).name()) +
         title.toHtmlEscaped().replace(u' ', QStringLiteral("&nbsp;"));
}

/// How far it is from one rectangle to another in a direction; nothing where that lies elsewhere.
double distance(const QPointF& from, const QPointF& to, int dx, int dy) {
  const double along = (to.x() - from.x()) * dx + (to.y() - from.y()) * dy;
  const double across = std::abs((to.x() - from.x()) * dy) + std::abs((to.y() - from.y()) * dx);
  // What lies straight on is nearer than what lies aslant.
  return along <= 0.5 ? std::numeric_limits<double>::infinity() : along + 2 * across;
}

}  // namespace

SpaceMap::SpaceMap(const QLocale& locale, QWidget* parent) : QWidget(parent), locale_(locale) {
  installSpaceMapAccessible();
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void SpaceMap::show(std::shared_ptr<const SpaceJob> job, std::uint32_t folder) {
  job_ = std::move(job);
  folder_ = job_ ? tree().firstWithParts(folder) : SpaceTree::kTop;
  current_ = -1;
  layOut();
  Q_EMIT folderChanged();
}

void SpaceMap::setColourBy(ColourBy by) {
  by_ = by;
  update();
}

void SpaceMap::goTo(std::uint32_t folder) {
  if (!job_) return;
  folder_ = tree().firstWithParts(folder);
  current_ = -1;
  layOut();
  Q_EMIT folderChanged();
}

bool SpaceMap::mayGoUp() const {
  // All there is may be in one folder.
  return job_ && folder_ != SpaceTree::kTop && tree().firstWithParts(tree().above(folder_)) != folder_;
}

/// What was come from is the current one then.
void SpaceMap::goUp() {
  if (!mayGoUp()) return;
  const std::uint32_t from = folder_;
  const std::uint32_t above = tree().above(folder_);
  goTo(above);
  const auto isIt = [&](const Cell& cell) {
    return !cell.part.areFiles && tree().firstWithParts(cell.part.folder) == from;
  };
  const auto came = std::ranges::find_if(cells_, isIt);
  if (came != cells_.end()) setCurrent(static_cast<int>(came - cells_.begin()));
}

bool SpaceMap::mayGoInto(const SpaceTree::Part& part) const {
  if (part.areFiles) return false;
  const std::vector<SpaceTree::Part> parts = tree().partsOf(tree().firstWithParts(part.folder));
  return parts.size() > 1;
}

void SpaceMap::enter(int cell) {
  const SpaceTree::Part& part = cells_[static_cast<std::size_t>(cell)].part;
  if (mayGoInto(part)) {
    goTo(part.folder);
  } else {
    Q_EMIT searchRequested(part.folder);
  }
}

void SpaceMap::searchCurrent() {
  if (!job_) return;
  Q_EMIT searchRequested(current_ < 0 ? folder_ : cells_[static_cast<std::size_t>(current_)].part.folder);
}

void SpaceMap::setCurrent(int cell) {
  if (cell < 0 || cell >= count() || cell == current_) return;
  current_ = cell;
  update();
  tellCurrent();
}

void SpaceMap::tellCurrent() {
  Q_EMIT currentChanged();
  if (current_ < 0 || !hasFocus()) return;
  QAccessibleEvent focus(this, QAccessible::Focus);
  focus.setChild(current_);
  QAccessible::updateAccessibility(&focus);
}

int SpaceMap::cellAt(const QPoint& place) const {
  const auto found =
      std::ranges::find_if(cells_, [&](const Cell& cell) { return cell.rect.contains(place); });
  return found == cells_.end() ? -1 : static_cast<int>(found - cells_.begin());
}

std::vector<SpaceMap::Cell> SpaceMap::laidOut(std::uint32_t folder, const QRectF& area) const {
  std::vector<SpaceTree::Part> parts = tree().partsOf(folder);
  std::vector<double> sizes;
  for (const SpaceTree::Part& part : parts) sizes.push_back(static_cast<double>(part.bytes));
  const std::vector<QRectF> rects = squarified(sizes, area);
  std::vector<Cell> cells;
  for (std::size_t i = 0; i < rects.size() && i < kMostCells; ++i) {
    if (rects[i].width() < kLeastSide || rects[i].height() < kLeastSide) continue;
    cells.push_back({parts[i], rects[i]});
  }
  return cells;
}

void SpaceMap::layOut() {
  cells_ = job_ ? laidOut(folder_, QRectF(rect())) : std::vector<Cell>();
  current_ = cells_.empty() ? -1 : std::clamp(current_, 0, count() - 1);
  QAccessibleEvent changed(this, QAccessible::ObjectReorder);
  QAccessible::updateAccessibility(&changed);
  tellCurrent();
  update();
}

QString SpaceMap::titleOf(int cell) const {
  return titleOf(cells_[static_cast<std::size_t>(cell)].part);
}

/// A folder with those that are all that is in it.
QString SpaceMap::titleOf(const SpaceTree::Part& part) const {
  if (part.areFiles) return Texts::tr("Files right here");
  const FolderTree& folders = tree().folders();
  QStringList names;
  std::uint32_t folder = tree().firstWithParts(part.folder);
  for (; folder != part.folder; folder = folders.parent(folder))
    names.prepend(textOfUtf8(folders.name(folder)));
  names.prepend(textOfUtf8(folders.title(part.folder)));
  // The top folder of a volume has none.
  names.removeAll(QString());
  return names.join(u'\\');
}

QString SpaceMap::textOf(int cell) const {
  const SpaceTree::Part& part = cells_[static_cast<std::size_t>(cell)].part;
  const double all = static_cast<double>(tree().sumOf(folder_).bytes);
  const double share = all > 0 ? 100 * static_cast<double>(part.bytes) / all : 0;
  const QString text = Texts::tr("%1, %2, %3%. Mostly %4, %5")
                           .arg(titleOf(part), sizeText(part.bytes, locale_), locale_.toString(share, 'f', 1),
                                quorvin::titleOf(part.kind), titleOfYears(part.yearSpan));
  return englishWithin(QGuiApplication::layoutDirection(), text);
}

QString SpaceMap::legend() const {
  QStringList entries;
  if (by_ == ColourBy::Kind) {
    for (std::size_t i = 0; i < kFileKinds; ++i) {
      entries += legendEntry(kKindColours[i], quorvin::titleOf(static_cast<FileKind>(i)));
    }
  } else {
    for (std::size_t i = 0; i < kYearSpans; ++i) {
      entries += legendEntry(kYearColours[i], titleOfYears(static_cast<std::uint8_t>(i)));
    }
  }
  return entries.join(QStringLiteral(" &nbsp; "));
}

QColor SpaceMap::colourOf(const SpaceTree::Part& part) const {
  return by_ == ColourBy::Kind ? QColor(kKindColours[static_cast<std::size_t>(part.kind)])
                               : QColor(kYearColours[part.yearSpan]);
}

void SpaceMap::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().color(QPalette::Base));
  for (const Cell& cell : cells_) paintCell(painter, cell);
  if (current_ < 0) return;
  // Two lines, so that one of them is seen on any colour.
  const QRectF place = cells_[static_cast<std::size_t>(current_)].rect.adjusted(1, 1, -1, -1);
  const bool isActive = hasFocus();
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(isActive ? palette().color(QPalette::Highlight) : QColor(Qt::gray), 4));
  painter.drawRect(place.adjusted(1, 1, -1, -1));
  painter.setPen(QPen(Qt::white, 1));
  painter.drawRect(place.adjusted(3, 3, -3, -3));
}

void SpaceMap::paintCell(QPainter& painter, const Cell& cell) const {
  const QRectF inner = cell.rect.adjusted(kFrame, kFrame, -kFrame, -kFrame);
  const int line = fontMetrics().height();
  const bool hasRoom = inner.height() > 3 * line && inner.width() > 6 * fontMetrics().averageCharWidth();
  if (!hasRoom || !mayGoInto(cell.part)) {
    const QColor colour = colourOf(cell.part);
    painter.fillRect(inner, colour);
    paintTitle(painter, inner, cell.part, colour);
    return;
  }
  const QColor behind = palette().color(QPalette::Button);
  painter.fillRect(inner, behind);
  paintTitle(painter, inner, cell.part, behind);
  const QRectF area = inner.adjusted(2, line + 2, -2, -2);
  for (const Cell& below : laidOut(tree().firstWithParts(cell.part.folder), area)) {
    const QRectF place = below.rect.adjusted(0, 0, -kFrame, -kFrame);
    const QColor colour = colourOf(below.part);
    painter.fillRect(place, colour);
    paintTitle(painter, place, below.part, colour);
  }
}

void SpaceMap::paintTitle(QPainter& painter, const QRectF& place, const SpaceTree::Part& part,
                          const QColor& behind) const {
  const int line = fontMetrics().height();
  const QRectF room = place.adjusted(4, 2, -4, -1);
  if (room.height() < line || room.width() < 3 * fontMetrics().averageCharWidth()) return;
  painter.setPen(textOn(behind));
  const QString title =
      fontMetrics().elidedText(titleOf(part), Qt::ElideMiddle, static_cast<int>(room.width()));
  painter.drawText(room, Qt::AlignLeading | Qt::AlignTop | Qt::TextSingleLine, title);
  if (behind == palette().color(QPalette::Button) || room.height() < 2 * line) return;
  const QString size = sizeText(part.bytes, locale_);
  if (fontMetrics().horizontalAdvance(size) > room.width()) return;
  painter.drawText(room.adjusted(0, line, 0, 0), Qt::AlignLeading | Qt::AlignTop | Qt::TextSingleLine, size);
}

bool SpaceMap::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QWidget::event(event);
  const auto& help = static_cast<const QHelpEvent&>(*event);
  const int cell = cellAt(help.pos());
  // Names may look like markup.
  QToolTip::showText(help.globalPos(), cell < 0 ? QString() : textOf(cell).toHtmlEscaped(), this);
  return true;
}

void SpaceMap::resizeEvent(QResizeEvent*) {
  layOut();
}

void SpaceMap::focusInEvent(QFocusEvent*) {
  update();
  tellCurrent();
}

void SpaceMap::focusOutEvent(QFocusEvent*) {
  update();
}

void SpaceMap::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Left:
      return moveCurrent(-1, 0);
    case Qt::Key_Right:
      return moveCurrent(1, 0);
    case Qt::Key_Up:
      return moveCurrent(0, -1);
    case Qt::Key_Down:
      return moveCurrent(0, 1);
    case Qt::Key_Home:
      return setCurrent(0);
    case Qt::Key_End:
      return setCurrent(count() - 1);
    case Qt::Key_Backspace:
      return goUp();
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (current_ < 0) return;
      if (event->modifiers().testFlag(Qt::ControlModifier)) return searchCurrent();
      return enter(current_);
    default:
      QWidget::keyPressEvent(event);
  }
}

void SpaceMap::moveCurrent(int dx, int dy) {
  if (current_ < 0) return;
  const QPointF from = cells_[static_cast<std::size_t>(current_)].rect.center();
  const auto distanceTo = [&](const Cell& cell) { return distance(from, cell.rect.center(), dx, dy); };
  const auto nearest = std::ranges::min_element(cells_, {}, distanceTo);
  if (std::isfinite(distanceTo(*nearest))) setCurrent(static_cast<int>(nearest - cells_.begin()));
}

void SpaceMap::mousePressEvent(QMouseEvent* event) {
  pressed_ = cellAt(event->pos());
  setCurrent(pressed_);
}

void SpaceMap::mouseReleaseEvent(QMouseEvent* event) {
  const int cell = cellAt(event->pos());
  if (event->button() != Qt::LeftButton || cell < 0 || cell != pressed_) return;
  const SpaceTree::Part& part = cells_[static_cast<std::size_t>(cell)].part;
  if (mayGoInto(part)) goTo(part.folder);
}

}  // namespace quorvin
