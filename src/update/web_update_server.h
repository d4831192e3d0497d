// SPDX-License-Identifier: GPL-2.0-or-later

// Where the web server keeps the archive, and what its headers say of it.
#pragma once

#include "dates/general_date.h"

#include <QLocale>
#include <QString>
#include <QUrl>

#include <cstdint>

namespace quorvin {

/// The address of the document `archiveFile` on `webServer`: a host, a host with a port, or the start of an
/// http or https address, below which the document lies ("example.org", "example.org:8080",
/// "https://example.org/lists"). Throws fault 52 when that is not an address of the web.
QUrl webUpdateAddress(const QString& webServer, const QString& archiveFile);

/// The date in the value of a "Last-Modified" header, found by its position: the characters from the sixth
/// on, nine fewer than the value has ("Mon, 15 Nov 2004 10:20:30 GMT" without day name and zone). Throws
/// fault 5 for a value of fewer than nine characters, 13 when there is no date.
DateValue serverDateOf(const QString& lastModified, const QLocale& locale);

/// The size in the value of a "Content-Length" header. Throws fault 13 when it is no whole number, 6 when it
/// is above 2,147,483,647.
std::int32_t remoteSizeOf(const QString& contentLength);

/// How many minute boundaries lie between two moments; negative when `to` is the earlier one.
std::int64_t minutesBetween(DateValue from, DateValue to);

/// When the file at `path` was modified, in UTC: its local time stamp and the zone's bias at that moment,
/// with the daylight bias where the stamp is in daylight time.
DateValue modifiedInUtc(const QString& path);

}  // namespace quorvin
