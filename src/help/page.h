// SPDX-License-Identifier: GPL-2.0-or-later

// A page of the help browser: its address and its text.
#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

namespace quorvin {

/// What `text` from the address box means: a path or a "file:" address; a web address, with or without
/// "http://"; or the name of a page in `helpFolder` ("relinfo.htm", "manual/searching.htm"). A "#" in the
/// last part of a path starts the place within the page. Blanks around it are dropped; empty text gives an
/// empty address. Whether there is such a page, and whether it may be opened, is not looked at.
QUrl pageAddress(const QString& text, const QString& helpFolder);

/// The address as the address box shows it: a path as the system writes it, or a web address. pageAddress
/// turns it back.
QString addressText(const QUrl& address);

/// Whether `address` is one that is fetched over the net: http or https, with a host.
bool isWebAddress(const QUrl& address);

/// Whether both are the same page, whatever the place within it.
bool isSamePage(const QUrl& left, const QUrl& right);

enum class PageKind { Html, PlainText, Unknown };

/// What the window shows.
struct Page {
  /// Relative links and pictures are taken from here.
  QUrl address;
  PageKind kind = PageKind::Html;
  QString text;
};

/// What a "Content-Type" header announces.
PageKind pageKind(const QByteArray& contentType);

/// The page with its bytes decoded: by the character set of the header, else by what the page itself says,
/// else as UTF-8, and as Windows-1252 where it is not that. A page with tables or lists so deep in each other
/// that no person wrote it becomes plain text.
Page decodedPage(const QUrl& address, const QByteArray& bytes, const QByteArray& contentType);

/// A page that says why there is none: `title`, the address, and `sentences`, which are plain text.
Page messagePage(const QUrl& address, const QString& title, const QString& sentences);

}  // namespace quorvin
