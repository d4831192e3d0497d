#include "help/page_address.h"

#include <QDir>
#include <QRegularExpression>

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

}  // namespace quorvin
