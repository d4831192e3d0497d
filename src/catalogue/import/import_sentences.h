// SPDX-License-Identifier: GPL-2.0-or-later

// What the user is told of an import, in the terminal and in the window.
#pragma once

#include "catalogue/import/list_import.h"

#include <QString>
#include <QStringList>

#include <cstdint>

namespace quorvin {

/// How the user says what the program could not find out, as the sentences name it: an option of the command
/// line, or the caption of a control.
struct ImportControls {
  QString format;
  QString dates;
  QString encoding;
  QString made;
};

/// Names of formats as one reads them: "ls, find-ls".
QString listFormatNames();

/// What the list was read as, where its listing is, and how much is in it. `report.format` is not null.
QString importSummary(const QString& list, const QString& place, const ImportReport& report);

/// What the list does not tell, a sentence for each that there is; empty where it tells all.
QStringList importRemarks(const ImportReport& report);

/// What is in the list but not, or not as it stands, in the listing, a sentence for each that there is.
QStringList importLosses(const ImportReport& report, const ImportControls& controls);

/// The first of the lines that were not understood, each with its number.
QStringList linesNotUnderstood(const ImportReport& report);

/// How far the reading of a list is.
QString importProgressText(const QString& list, std::int64_t lines);

}  // namespace quorvin
