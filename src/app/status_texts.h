// SPDX-License-Identifier: GPL-2.0-or-later

// What the main window says about the hits, the last search and the last rescan.
#pragma once

#include "index/local_list_refresh.h"
#include "search/search_run.h"

#include <QLocale>
#include <QString>
#include <QStringList>
#include <Qt>

#include <cstdint>
#include <optional>

namespace quorvin {

/// "3,481 hits".
QString hitCountText(std::int64_t hits, const QLocale& locale);

/// The parts of the status line, of which some may be empty, as one line; `direction` is that of the window.
QString statusLine(QStringList parts, Qt::LayoutDirection direction);

/// "12 of 3,481 shown".
QString shownText(std::int64_t shown, std::int64_t hits, const QLocale& locale);

/// "12 selected, 4.56 MB"; the number alone while the bytes are still being added up. Empty for none.
QString selectionText(std::int64_t rows, std::optional<std::int64_t> bytes, const QLocale& locale);

/// What is unusual about a run, for the status line: that it was stopped, what it did not search. Empty after
/// a usual run.
QStringList runTexts(const RunReport& report, const QLocale& locale);

/// "3 listings, 81,204 entries, 412 new, 18 gone, 1 drive missing".
QString refreshText(const RefreshOutcome& outcome, const QLocale& locale);

/// "45,000 of 100,000 hits copied so far; Esc stops".
QString copyingText(std::int64_t done, std::int64_t all, const QLocale& locale);

/// "100,000 hits were copied."
QString copiedText(std::int64_t hits, const QLocale& locale);

/// "12 of 100,000 could not be found on a connected drive."
QString notFoundText(std::int64_t missing, std::int64_t all, const QLocale& locale);

/// What is said when the selected hits cannot stay selected, since in their new places there is no telling
/// them but one by one.
QString letGoText(std::int64_t hits, const QLocale& locale);

/// Why the hit list is empty after a run for `query`, and what to type instead: one sentence a line.
QString emptyResultText(const SearchQuery& query, const RunReport& report, const QLocale& locale);

}  // namespace quorvin
