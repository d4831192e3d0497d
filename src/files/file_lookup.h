// SPDX-License-Identifier: GPL-2.0-or-later

// Directory look-ups: which files fit a path whose last part may hold wildcards.
#pragma once

#include <QDir>
#include <QString>
#include <QStringList>

namespace quorvin {

/// The name (without its folder) of the first ordinary file that fits `pattern`, or empty text when there is
/// none. `pattern` is a path, relative to the current folder when it is relative; only "*" and "?" in its
/// last part are wildcards, and "*.*" fits every name. Ordinary files are regular files, and links to such,
/// that are not hidden (off Windows: no leading dot). Where several names fit, one that equals the pattern's
/// last part exactly wins, then the first that the file system returns. A folder that is missing or
/// unreadable counts as holding nothing. Never throws.
QString findOrdinaryFile(const QString& pattern);

/// Whether findOrdinaryFile(`path`) finds anything.
bool ordinaryFileExists(const QString& path);

/// `path` as the user wrote it, but from the top of the file system; a relative one starts in the current
/// folder.
/// ".." is resolved by the system, since behind a link it leads elsewhere than the text says. Never throws.
QString pathFromTop(const QString& path);

/// Whether a regular file, or a link to one, is at `path`, hidden or not; nothing in `path` is a wildcard.
/// Never throws.
bool fileExists(const QString& path);

/// Whether `name` fits `pattern`, in which "*" stands for any characters and "?" for any one; every other
/// character stands for itself.
bool fitsWildcards(QStringView name, QStringView pattern);

/// The names of the files in `folder`, without it, that fit `pattern`, in the order of QDir::Name. `kinds`
/// are the kinds of files that count. A folder that is missing or unreadable holds nothing. The toolkit's own
/// name filters are not used for this: they end the program where there is no memory for them. Throws
/// std::bad_alloc alone.
QStringList namesThatFit(const QString& folder, QStringView pattern, QDir::Filters kinds = QDir::Files);

}  // namespace quorvin
