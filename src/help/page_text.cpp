#include "help/page_text.h"

#include "help/page_address.h"
#include "platform/text_encoding.h"

#include <QRegularExpression>
#include <QStringDecoder>

#include <algorithm>

namespace quorvin {

namespace {

/// The text layout takes twice as long for each table around another: twenty take ten seconds.
constexpr int kDeepestTables = 8;
/// It takes stack for everything else in each other; a page could use it up.
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
