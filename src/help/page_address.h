// Addresses as people write them, and as the program keeps them.
#pragma once

#include <QString>
#include <QUrl>

namespace quorvin {

/// What `text` from the address box means: a path or a "file:" address; a web address, with or without
/// "http://"; or the name of a page in `helpFolder` ("relinfo.htm", "manual/searching.htm"). A "#" in the
/// last part of a path begins the place within the page. Blanks around are dropped; empty text gives an empty
/// address. Whether there is such a page, and whether it may be opened, is not looked at.
QUrl pageAddress(const QString& text, const QString& helpFolder);

/// The address as the address box shows it: a path as the system writes it, or a web address. pageAddress
/// turns it back.
QString addressText(const QUrl& address);

/// Whether `address` is one that is fetched over the net: http or https, with a host.
bool isWebAddress(const QUrl& address);

/// Whether both are the same page, whatever the place within it.
bool isSamePage(const QUrl& left, const QUrl& right);

}  // namespace quorvin
