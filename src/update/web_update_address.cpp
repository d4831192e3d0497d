#include "update/web_update_address.h"

#include "faults/runtime_fault.h"

namespace quorvin {

QUrl webUpdateAddress(const QString& webServer, const QString& archiveFile) {
  const QString server = webServer.trimmed();
  const bool hasScheme = server.contains(QStringLiteral("://"));
  QUrl address(hasScheme ? server : QStringLiteral("http://") + server, QUrl::StrictMode);
  const bool isWeb =
      address.scheme() == QStringLiteral("http") || address.scheme() == QStringLiteral("https");
  if (!address.isValid() || !isWeb || address.host().isEmpty()) {
    throw RuntimeFault(FaultNumber::BadFileName,
                       describe(FaultNumber::BadFileName) + QStringLiteral(": ") + webServer);
  }
  address.setQuery(QString());
  address.setFragment(QString());
  QString path = address.path(QUrl::FullyEncoded);
  if (!path.endsWith(u'/')) path += u'/';
  // A name is a name, whatever signs of an address it holds.
  path += QString::fromLatin1(QUrl::toPercentEncoding(archiveFile, "/"));
  address.setPath(path, QUrl::StrictMode);
  return address;
}

}  // namespace quorvin
