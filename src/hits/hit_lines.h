// Hits as lines of text.
#pragma once

#include "search/hit_table.h"

#include <QLocale>
#include <QString>

#include <cstdint>

namespace quorvin {

enum class HitFormat : std::uint8_t { Tsv, Csv, Json };

/// One line for one hit, without the line end. Tsv: the six columns with tabs between, control characters in
/// them turned into blanks. Csv: RFC 4180, fields quoted where needed. Json: one object with the keys match,
/// volume, folder, name, size and date.
QString hitLine(const HitRow& row, HitFormat format, const QLocale& locale);

/// The titles of the six columns, in order, as a line of the same format; nothing for Json.
QString hitHeadLine(HitFormat format);

}  // namespace quorvin
