// SPDX-License-Identifier: GPL-2.0-or-later

// A treemap's layout.
#pragma once

#include <QRectF>

#include <vector>

namespace quorvin {

/// Divides `area` among `sizes`, which are positive and come largest first: each gets a rectangle of its
/// share, in that order, as near to a square as the order allows. Rows are laid along the shorter side, and a
/// row takes one more as long as its worst rectangle does not get worse. Nothing overlaps, nothing is left.
std::vector<QRectF> squarified(const std::vector<double>& sizes, const QRectF& area);

}  // namespace quorvin
