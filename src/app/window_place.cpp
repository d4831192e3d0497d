// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/window_place.h"

#include <algorithm>

namespace quorvin {

namespace {

// The toolkit does not know the frame before the window is shown. A title bar is hardly lower than this.
constexpr int kTitleHeight = 20;
constexpr int kGripWidth = 100;

bool canBeGripped(const QRect& title, const QRect& screen) {
  const QRect seen = title.intersected(screen);
  return seen.height() == title.height() && seen.width() >= std::min(kGripWidth, title.width());
}

qint64 commonArea(const QRect& one, const QRect& other) {
  const QRect common = one.intersected(other);
  return qint64{common.width()} * common.height();
}

QRect movedInside(QRect window, const QRect& screen) {
  window.moveLeft(std::clamp(window.left(), screen.left(), screen.left() + screen.width() - window.width()));
  window.moveTop(std::clamp(window.top(), screen.top(), screen.top() + screen.height() - window.height()));
  return window;
}

}  // namespace

QRect placeOnScreens(const QRect& outer, const QList<QRect>& screens) {
  if (screens.isEmpty()) return outer;
  const QRect& screen = *std::ranges::max_element(
      screens, {}, [&](const QRect& candidate) { return commonArea(outer, candidate); });
  const QRect bounded(outer.topLeft(), outer.size().boundedTo(screen.size()));
  const QRect title(bounded.topLeft(), QSize(bounded.width(), kTitleHeight));
  const bool stays = bounded == outer && std::ranges::any_of(screens, [&](const QRect& candidate) {
                       return canBeGripped(title, candidate);
                     });
  return stays ? outer : movedInside(bounded, screen);
}

}  // namespace quorvin
