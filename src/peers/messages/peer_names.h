// Names that a peer tells, made into names of files.
#pragma once

#include <QString>

namespace quorvin {

/// `text` as the name of a file or folder that every system takes: no sign that means something in a path, no
/// control characters, no quotes, no dot or blank at either end, no device's name, not longer than 60
/// characters. Never empty. Different texts may give the same name.
QString safeFileName(const QString& text);

/// The first of `folder` + `name` + `ending`, `name` + " (2)" + `ending` and so on at which nothing stands.
/// `folder` ends in a separator.
QString freePath(const QString& folder, const QString& name, const QString& ending);

/// A host with or without a port, as the user types it. `port` is that of the exchange when none is given.
struct PeerAddressText {
  QString host;
  quint16 port = 0;

  /// Host and port as they are typed; the port only when it is not the usual one.
  QString text() const;
};

/// Reads "host", "host:port", an IPv6 address, or "[IPv6 address]:port", blanks around it. The host is empty
/// when it makes no sense.
PeerAddressText readPeerAddress(const QString& text);

}  // namespace quorvin
