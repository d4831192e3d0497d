// Making the archive in which a listing is offered to peers.
#pragma once

#include <QString>

#include <functional>

namespace quorvin {

enum class PackingOutcome { Packed, Stopped };

/// Called all the time while an archive is made, at least every few milliseconds: lets window events run.
/// True ends the work.
using PackingPause = std::function<bool()>;

/// Makes the zip archive `archivePath`, which holds the listing at `listingPath` and nothing else. It is made
/// aside and put in place when it is whole; an archive that is there stays until then, and for good when the
/// work is stopped. Throws RuntimeFault when the listing cannot be read or the archive not be written.
PackingOutcome packListing(const QString& listingPath, const QString& archivePath, const PackingPause& pause);

/// Whether the file at `path` may be replaced by packListing(): it is an archive made by packListing(), an
/// empty file, or there is none. Everything else is the user's.
bool mayBeReplacedByPacking(const QString& path);

}  // namespace quorvin
