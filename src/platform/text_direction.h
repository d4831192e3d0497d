// SPDX-License-Identifier: GPL-2.0-or-later

// The program's texts on desktops that are read from right to left.
#pragma once

#include <QString>
#include <Qt>

namespace quorvin {

/// `text`, which is English or in another language that is read from left to right, as it is to be put among
/// what is read in the direction `around`. Where that is from right to left, each of its lines is isolated
/// from that: otherwise a number at its start and a full stop at its end would change sides ("3 hits" would
/// read "hits 3"). Elsewhere it is `text` itself.
QString englishWithin(Qt::LayoutDirection around, const QString& text);

}  // namespace quorvin
