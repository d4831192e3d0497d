// SPDX-License-Identifier: GPL-2.0-or-later
#include "help/page.h"

#include "platform/text_encoding.h"

#include <QDir>
#include <QRegularExpression>
#include <QStringDecoder>

#include <algorithm>

namespace quorvin {

namespace {

QUrl pathAddress(const QString& text) {
  const QString path = QDir::fromNativeSeparators(text);
  // Only in the last part: a folder may have a "#" in its name.
  const qsizetype mark = path.indexOf(u'#', path.lastIndexOf(u'/') + 1);
  QUrl address = QUrl::fromLocalFile(QDir::cleanPath(mark < 0 ? path : path.left(mark)));
  if (mark >= 0) address.setFragment(path.mid(mark + 1));
  return address;
}

bool isNamedLikeAPage(const QString& text) {
  return text.endsWith(QStringLiteral(".htm"), Qt::CaseInsensitive) ||
         text.endsWith(QStringLiteral(".html"), Qt::CaseInsensitive);
}

/// "example.org/page", "localhost", "server:8080": an address of the web without its beginning.
bool beginsWithAHost(const QString& text) {
  static const QRegularExpression firstPart(QStringLiteral("^[^/#?]*"));
  static const QRegularExpression port(QStringLiteral(":[0-9]+$"));
  const QString first = firstPart.match(text).captured();
  if (isNamedLikeAPage(first)) return false;
  return first.contains(port) || first.contains(u'.') || first == QStringLiteral("localhost");
}

bool beginsWithAScheme(const QString& text) {
  static const QRegularExpression scheme(QStringLiteral("^[A-Za-z][A-Za-z0-9+.-]+:(?![0-9])"));
  return text.contains(scheme);
}

/// Each table around another doubles the time of the text layout: twenty take ten seconds.
constexpr int kDeepestTables = 8;
/// Other nested elements take stack; a page could use it up.
constexpr int kDeepestNesting = 60;

QByteArray mediaType(const QByteArray& contentType) {
  return contentType.split(';').first().trimmed().toLower();
}

QByteArray headerCharset(const QByteArray& contentType) {
  static const QRegularExpression charset(QStringLiteral("charset\\s*=\\s*\"?([^\\s\";]+)"),
                                          QRegularExpression::CaseInsensitiveOption);
  return charset.match(QString::fromLatin1(contentType)).captured(1).toLatin1();
}

QByteArray pageCharset(const QByteArray& bytes) {
  static const QRegularExpression meta(QStringLiteral("<meta[^>]*charset\\s*=\\s*[\"']?([^\\s\"'/>;]+)"),
                                       QRegularExpression::CaseInsensitiveOption);
  constexpr qsizetype kHeadSize = 4096;
  return meta.match(QString::fromLatin1(bytes.left(kHeadSize))).captured(1).toLatin1();
}

QString decoded(const QByteArray& bytes, const QByteArray& charset) {
  QStringDecoder named(charset.constData());
  if (!charset.isEmpty() && named.isValid()) return named.decode(bytes);
  return decodeSystemText(bytes);
}

bool isDeeper(const QString& html, const QString& tags, int limit) {
  const QRegularExpression tag(QStringLiteral("<(/?)(%1)\\b").arg(tags),
                               QRegularExpression::CaseInsensitiveOption);
  int depth = 0;
  for (auto match = tag.globalMatch(html); match.hasNext();) {
    depth += match.next().capturedLength(1) == 0 ? 1 : -1;
    depth = std::max(depth, 0);
    if (depth > limit) return true;
  }
  return false;
}

bool isTooDeep(const QString& html) {
  return isDeeper(html, QStringLiteral("table"), kDeepestTables) ||
         isDeeper(html, QStringLiteral("table|ul|ol|dl|div|blockquote"), kDeepestNesting);
}

}  // namespace

QUrl pageAddress(const QString& text, const QString& helpFolder) {
  const QString wanted = text.trimmed();
  if (wanted.isEmpty()) return {};
  if (QDir::isAbsolutePath(QDir::fromNativeSeparators(wanted))) return pathAddress(wanted);
  if (beginsWithAScheme(wanted)) return QUrl(wanted);
  if (beginsWithAHost(wanted)) return QUrl(QStringLiteral("http://") + wanted);
  return pathAddress(helpFolder + wanted);
}

QString addressText(const QUrl& address) {
  if (!address.isLocalFile()) return address.toString();
  const QString path = QDir::toNativeSeparators(address.toLocalFile());
  return address.hasFragment() ? path + u'#' + address.fragment() : path;
}

bool isWebAddress(const QUrl& address) {
  const bool schemeFits =
      address.scheme() == QStringLiteral("http") || address.scheme() == QStringLiteral("https");
  return schemeFits && address.isValid() && !address.host().isEmpty();
}

bool isSamePage(const QUrl& left, const QUrl& right) {
  return left.adjusted(QUrl::RemoveFragment) == right.adjusted(QUrl::RemoveFragment);
}

PageKind pageKind(const QByteArray& contentType) {
  const QByteArray type = mediaType(contentType);
  if (type == "text/html" || type == "application/xhtml+xml") return PageKind::Html;
  return type == "text/plain" ? PageKind::PlainText : PageKind::Unknown;
}

Page decodedPage(const QUrl& address, const QByteArray& bytes, const QByteArray& contentType) {
  const PageKind kind = pageKind(contentType);
  QByteArray charset = headerCharset(contentType);
  if (charset.isEmpty() && kind == PageKind::Html) charset = pageCharset(bytes);
  const QString text = decoded(bytes, charset);
  const bool asHtml = kind == PageKind::Html && !isTooDeep(text);
  return {address, asHtml ? PageKind::Html : PageKind::PlainText, text};
}

Page messagePage(const QUrl& address, const QString& title, const QString& sentences) {
  return {address, PageKind::Html,
          QStringLiteral("<h1>%1</h1><p><code>%2</code></p><p>%3</p>")
              .arg(title.toHtmlEscaped(), addressText(address).toHtmlEscaped(), sentences.toHtmlEscaped())};
}

}  // namespace quorvin
