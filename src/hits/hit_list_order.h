// SPDX-License-Identifier: GPL-2.0-or-later

// The order of the hit list as the user chooses and sees it.
#pragma once

#include "hits/hit_list.h"
#include "hits/hit_list_model.h"

#include <QObject>

#include <cstdint>
#include <vector>

namespace quorvin {

/// What a click on the title of `column` makes of the order `now`: up at first, then down, then found order.
HitOrder orderAfterClick(const HitOrder& now, HitColumn column);

/// Has the rows sorted when a title is clicked, shows the order by an arrow there, which screen readers find
/// in the description of the list, and sees to it that the selection and the current row stay with their hits
/// when rows change their places, come or go.
class HitListOrder : public QObject {
  Q_OBJECT

 public:
  /// `rows` is the model of `list`. Both must outlive the object.
  HitListOrder(HitListView& list, HitListModel& rows);

  /// A selection of more stretches of rows than this is let go when the order changes: nobody has made it one
  /// by one, and the toolkit would take too long over it.
  static constexpr std::size_t kMostStretches = 100'000;

 Q_SIGNALS:
  /// So many hits are no longer selected, since they would be in too many stretches.
  void selectionLetGo(std::int64_t hits);

 private:
  void showArrow();
  void keepPlaces(bool isSameRows);
  void restorePlaces();
  void restoreSelection();
  void restoreCurrentRow();

  HitListView& list_;
  HitListModel& rows_;
  RowOrder& order_;
  /// While the rows change: a bit for each hit that is selected, or all of them are; the hit of the current
  /// row, or -1, and whether it was on the screen.
  std::vector<std::uint64_t> selected_;
  bool areAllSelected_ = false;
  std::int64_t currentHit_ = -1;
  bool wasOnScreen_ = false;
};

}  // namespace quorvin
