// SPDX-License-Identifier: GPL-2.0-or-later

// How large a window can be on its screen.
#pragma once

#include <QScreen>
#include <QSize>

namespace quorvin {

/// The largest inside that a window can be opened with on `screen`, in logical pixels. What its frame takes
/// is known only when it is shown; the frames of the usual desktops are no larger than what is left for it
/// here.
inline QSize largestInside(const QScreen& screen) {
  constexpr QSize kFrame(12, 36);
  return screen.availableGeometry().size() - kFrame;
}

}  // namespace quorvin
