// SPDX-License-Identifier: GPL-2.0-or-later

// Hits as lines of a CSV table (RFC 4180), with the texts of the hit list.
#pragma once

#include "search/hit_table.h"

#include <QLocale>
#include <QString>

namespace quorvin {

/// The six columns of a hit, quoted where needed, without the line end.
QString csvLine(const HitRow& row, const QLocale& locale);

/// Their titles, in order.
QString csvHeadLine();

}  // namespace quorvin
