// SPDX-License-Identifier: GPL-2.0-or-later

// Volumes as rows on a stream.
#pragma once

#include "catalogue/volumes/volume_finder.h"
#include "console/row_cells.h"

#include <QDate>
#include <QLocale>

#include <string>
#include <vector>

namespace quorvin {

/// A table for people, UTF-8: a line of titles, and one for each volume, in columns of equal width; the
/// volume comes last, with its note behind it. Empty without volumes.
std::string volumeTable(const std::vector<KnownVolume>& volumes, const std::vector<std::uint32_t>& order,
                        bool isForTerminal, const QDate& today, const QLocale& locale);

/// Appends an object for a volume, and a line end. What is not known has no key.
void addVolumeJson(std::string& text, const KnownVolume& volume);

}  // namespace quorvin
