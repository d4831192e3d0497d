// SPDX-License-Identifier: GPL-2.0-or-later

// Where on the screens a window may be.
#pragma once

#include <QList>
#include <QRect>

namespace quorvin {

/// The place for a window that wants to be at `outer`, which includes its frame, in logical pixels. A window
/// is no larger than its screen, and so much of its title bar is on a screen that it can be taken hold of:
/// the whole height, and 100 pixels of its width. A window for which that holds stays where it is, also where
/// it goes past an edge; any other is moved as a whole onto the screen that it shares most with, or, where it
/// is on none, onto the first. `screens` are their usable areas; without any, `outer` is the answer.
QRect placeOnScreens(const QRect& outer, const QList<QRect>& screens);

}  // namespace quorvin
