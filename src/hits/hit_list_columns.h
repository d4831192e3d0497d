// SPDX-License-Identifier: GPL-2.0-or-later

// What the user has made of the hit list's columns.
#pragma once

#include "search/hit_table.h"

#include <QHeaderView>
#include <QObject>
#include <QString>

#include <array>
#include <optional>

namespace quorvin {

/// Widths, order and visibility of the columns. A column has the width that the window gives it until the
/// user sets another; one column at least is visible.
class HitListColumns : public QObject {
  Q_OBJECT

 public:
  /// For the sections of `header`, which must have as many of them as there are columns when another function
  /// is called; it owns the object.
  explicit HitListColumns(QHeaderView* header);

  /// The width that the window gives `column`; stays without effect on one whose width the user has set.
  void setUsualWidth(HitColumn column, int pixels);
  bool hasUsualWidth(HitColumn column) const { return !userWidths_[indexOf(column)]; }
  /// 0 of a hidden column.
  int width(HitColumn column) const { return header_->sectionSize(static_cast<int>(column)); }

  bool isVisible(HitColumn column) const { return !header_->isSectionHidden(static_cast<int>(column)); }
  /// The last visible column stays.
  void setVisible(HitColumn column, bool isVisible);
  int visibleCount() const;
  /// The section of the visible column that comes first in reading direction.
  int first() const;

  /// All that the user has set, as text: the columns from left to right, with a minus before the hidden ones
  /// and the width, in logical pixels, behind those that the user has given one, such as
  /// "Name 300,Match,-Volume,Folder,Size,Date". Empty where nothing has been set.
  QString text() const;
  /// Sets all to what text() gave. What is no such text is taken as empty text.
  void take(const QString& text);
  void reset() { take({}); }

 Q_SIGNALS:
  /// The user has changed something.
  void changed();
  /// Columns have come, gone or got back the window's width, so that the widths should be divided again.
  void divisionNeeded();

 private:
  static std::size_t indexOf(HitColumn column) { return static_cast<std::size_t>(column); }
  void noteWidth(int section, int width);
  void noteMove();

  QHeaderView* header_;
  std::array<std::optional<int>, kHitColumnCount> userWidths_;
  /// The window is changing something, not the user.
  bool isSetting_ = false;
};

}  // namespace quorvin
