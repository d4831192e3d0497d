// SPDX-License-Identifier: GPL-2.0-or-later

// Names and texts of peers: as names of files, as addresses, and as messages show them.
#pragma once

#include <QString>
#include <QStringList>

namespace quorvin {

class RuntimeFault;

/// A text that came from a peer, as it may be shown: blanks for control characters and for characters that
/// turn the direction of writing, at most 80 characters.
QString shownPeerText(const QString& text);

/// `text` as a sentence of a message: it ends in one full stop, whatever it ended in before.
QString sentence(const QString& text);
/// "Run-time error 'NUMBER': DESCRIPTION." of a fault.
QString faultSentence(const RuntimeFault& fault);

/// Problems, each a sentence, on lines of their own: the first ten, and how many more there were.
QString shownProblems(const QStringList& problems);

/// `text` as the name of a file or folder that every system takes: no sign that means something in a path, no
/// control characters, no quotes, no dot or blank at either end, no device's name, not longer than 60
/// characters. Never empty. Different texts may give the same name.
QString safeFileName(const QString& text);

/// The first of `folder` + `name` + `ending`, `name` + " (2)" + `ending` and so on where there is nothing
/// yet. `folder` ends in a separator.
QString freePath(const QString& folder, const QString& name, const QString& ending);

/// A host with or without a port, as the user types it. `port` is that of the exchange when none is given.
struct HostAndPort {
  QString host;
  quint16 port = 0;

  /// Host and port as they are typed; the port only when it is not the usual one.
  QString text() const;
};

/// Reads "host", "host:port", an IPv6 address, or "[IPv6 address]:port", blanks around it. The host is empty
/// when it makes no sense.
HostAndPort readHostAndPort(const QString& text);

}  // namespace quorvin
