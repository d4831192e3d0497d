// SPDX-License-Identifier: GPL-2.0-or-later

// Paths that lead far beyond the sheet.
#pragma once

#include <QPainterPath>

namespace quorvin {

/// A sheet lies within this distance from its corner, many times over; in pixels. The toolkit takes seconds
/// for lines that end far beyond.
inline constexpr double kNear = 15'000;

/// What of `line` is near, with curves made of short lines; `line` itself when all of it is.
QPainterPath nearLine(const QPainterPath& line);

/// An area that is near, and the same as `area` on the sheet; `area` itself when all of it is near. The edges
/// at which it is cut run outside of every sheet.
QPainterPath nearArea(const QPainterPath& area);

}  // namespace quorvin
