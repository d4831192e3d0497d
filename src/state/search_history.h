// SPDX-License-Identifier: GPL-2.0-or-later

// The texts that were searched for, kept from run to run: ViewSettings::searches.
#pragma once

#include <QString>
#include <QStringList>

namespace quorvin {

/// So many texts are kept.
inline constexpr int kMostSearches = 50;

/// Puts `text` at the front of `searches`, newest first, and takes away what is the same but for upper and
/// lower case, which mean the same to a search. The oldest goes when there are too many. Blanks alone, and
/// texts of more than 1,000 characters, are not kept.
void addSearch(QStringList& searches, const QString& text);

/// The newest of `searches` that begins with `typed`, whatever the case, and goes on behind it; empty for
/// none and while nothing is typed.
QString completionOf(const QStringList& searches, const QString& typed);

/// The texts as one, and back. Reading leaves out what addSearch() would not keep.
QString joinedSearches(const QStringList& searches);
QStringList splitSearches(const QString& joined);

}  // namespace quorvin
