// SPDX-License-Identifier: GPL-2.0-or-later

// How many entries a listing has.
#pragma once

#include <QLocale>
#include <QString>

#include <cstdint>
#include <optional>

namespace quorvin {

/// The largest listing, in bytes, that is read to count its entries: a moment on any disk.
inline constexpr std::int64_t kMostBytesCounted = std::int64_t{4} << 20;

/// How many entries the listing at `path` has: out of its kept segments in `cacheFolder` (with a separator at
/// its end), where they are those of the listing as it is, read under `locale`; else by reading it, unless it
/// is larger than kMostBytesCounted. Nothing where neither says so, or it cannot be read. May be called in
/// any thread. Never throws.
std::optional<std::int64_t> quickEntryCount(const QString& path, const QString& cacheFolder,
                                            const QLocale& locale);

}  // namespace quorvin
