// SPDX-License-Identifier: GPL-2.0-or-later

// A space tree as rectangles.
#pragma once

#include "catalogue/volumes/space_job.h"

#include <QColor>
#include <QLocale>
#include <QPainter>
#include <QRectF>
#include <QString>
#include <QWidget>

#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

namespace quorvin {

/// Draws the parts of a folder as rectangles of their sizes, with their own parts in them. A click on a
/// folder goes into it. By keys: the arrows, Home and End choose a rectangle, Enter goes into it and searches
/// where there is nothing to go into, Ctrl+Enter searches, Backspace goes up. Assistive technology finds it
/// as a list, whose items are the rectangles with their names, sizes and shares.
class SpaceMap : public QWidget {
  Q_OBJECT

 public:
  enum class ColourBy : std::uint8_t { Kind, Years };

  explicit SpaceMap(const QLocale& locale, QWidget* parent = nullptr);

  /// Shows a job that is complete, from `folder` on; null for nothing.
  void show(std::shared_ptr<const SpaceJob> job, std::uint32_t folder = SpaceTree::kTop);
  void setColourBy(ColourBy by);

  /// The folder that is shown.
  std::uint32_t folder() const { return folder_; }
  void goTo(std::uint32_t folder);
  /// Whether there is anything above that shows more.
  bool mayGoUp() const;
  void goUp();
  void searchCurrent();

  int count() const { return static_cast<int>(cells_.size()); }
  int current() const { return current_; }
  void setCurrent(int cell);
  /// Where a rectangle is, in the widget.
  QRect placeOf(int cell) const { return cells_[static_cast<std::size_t>(cell)].rect.toAlignedRect(); }
  /// The rectangle there; -1 for none.
  int cellAt(const QPoint& place) const;
  /// "Films, 1.50 GB, 35%. Mostly Video, 2000–2004".
  QString textOf(int cell) const;
  QString titleOf(int cell) const;

  /// What stands for what, as rich text.
  QString legend() const;

  QSize sizeHint() const override { return {640, 400}; }
  QSize minimumSizeHint() const override { return {160, 100}; }

 Q_SIGNALS:
  /// Another folder is shown.
  void folderChanged();
  /// Another rectangle is the current one, or another folder has one.
  void currentChanged();
  /// The user wants to search in this folder.
  void searchRequested(std::uint32_t folder);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  struct Cell {
    SpaceTree::Part part;
    QRectF rect;
  };

  const SpaceTree& tree() const { return job_->tree(); }
  std::vector<Cell> laidOut(std::uint32_t folder, const QRectF& area) const;
  void layOut();
  bool mayGoInto(const SpaceTree::Part& part) const;
  void enter(int cell);
  void moveCurrent(int dx, int dy);
  QColor colourOf(const SpaceTree::Part& part) const;
  QString titleOf(const SpaceTree::Part& part) const;
  void paintCell(QPainter& painter, const Cell& cell) const;
  void paintTitle(QPainter& painter, const QRectF& place, const SpaceTree::Part& part,
                  const QColor& behind) const;
  void tellCurrent();

  QLocale locale_;
  std::shared_ptr<const SpaceJob> job_;
  std::uint32_t folder_ = SpaceTree::kTop;
  ColourBy by_ = ColourBy::Kind;
  std::vector<Cell> cells_;
  int current_ = -1;
  /// Where the button went down.
  int pressed_ = -1;
};

/// Makes every SpaceMap from now on known to assistive technology. May be called any number of times.
void installSpaceMapAccessible();

}  // namespace quorvin
