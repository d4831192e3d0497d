#include "help/page_text.h"

#include "help/page_address.h"
#include "platform/text_encoding.h"

#include <QRegularExpression>
#include <QStringDecoder>

#include <algorithm>

namespace quorvin {

namespace {

/// Laying out frames in frames takes stack for each; a page could use it up.
constexpr int kDeepestNesting = 60;

QByteArray mediaType(const QByteArray& contentType) {
  return contentType.left(contentType.indexOf(';')).trimmed().toLower();
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

bool isTooDeep(const QString& html) {
  static const QRegularExpression tag(QStringLiteral("<(/?)(table|ul|ol|dl|div|blockquote)\\b"),
                                      QRegularExpression::CaseInsensitiveOption);
  int depth = 0;
  for (auto match = tag.globalMatch(html); match.hasNext();) {
    depth += match.next().capturedLength(1) == 0 ? 1 : -1;
    depth = std::max(depth, 0);
    if (depth > kDeepestNesting) return true;
  }
  return false;
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
