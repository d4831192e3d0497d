// Where the archive of an update lies.
#pragma once

#include <QString>
#include <QUrl>

namespace quorvin {

/// The address of the document `archiveFile` on `webServer`: a host, a host with a port, or the start of an
/// http or https address, below which the document lies ("example.org", "example.org:8080",
/// "https://example.org/lists"). Throws fault 52 when that is no address of the web.
QUrl webUpdateAddress(const QString& webServer, const QString& archiveFile);

}  // namespace quorvin
