// SPDX-License-Identifier: GPL-2.0-or-later

// Making the archive in which a listing is offered to peers.
#pragma once

#include "archive/archive_reader.h"

#include <QString>

namespace quorvin {

enum class PackingOutcome { Packed, Stopped };

/// Makes the zip archive `archivePath`, which holds the listing at `listingPath` and nothing else. It is made
/// aside and put in place when it is whole; an earlier archive stays until then, and for good when `pause`
/// stops the work. Throws RuntimeFault when the listing cannot be read or the archive cannot be written.
PackingOutcome packListing(const QString& listingPath, const QString& archivePath, const ArchivePause& pause);

/// Whether the file at `path` may be replaced by packListing(): it is an archive made by packListing(), an
/// empty file, or there is none. Everything else is the user's.
bool mayBeReplacedByPacking(const QString& path);

/// Whether the file at `path` is an archive made by packListing().
bool isMadeByPacking(const QString& path);

}  // namespace quorvin
