// The text of a page, from the bytes that came.
#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

namespace quorvin {

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

/// A page that tells why there is none: `title`, the address, and `sentences`, which are plain text.
Page messagePage(const QUrl& address, const QString& title, const QString& sentences);

}  // namespace quorvin
