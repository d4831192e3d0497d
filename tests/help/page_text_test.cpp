#include "help/page_text.h"

#include "support/qt_printing.h"

#include <gtest/gtest.h>

namespace quorvin::test {
namespace {

const QUrl kAddress(QStringLiteral("http://host/page"));

QString textOf(const QByteArray& bytes, const QByteArray& contentType) {
  return decodedPage(kAddress, bytes, contentType).text;
}

TEST(PageText, KindIsWhatTheHeaderAnnounces) {
  EXPECT_EQ(pageKind("text/html"), PageKind::Html);
  EXPECT_EQ(pageKind("Text/HTML; charset=utf-8"), PageKind::Html);
  EXPECT_EQ(pageKind("application/xhtml+xml"), PageKind::Html);
  EXPECT_EQ(pageKind("text/plain"), PageKind::PlainText);
  EXPECT_EQ(pageKind("application/zip"), PageKind::Unknown);
  EXPECT_EQ(pageKind(""), PageKind::Unknown);
}

TEST(PageText, TheHeadersCharacterSetWins) {
  EXPECT_EQ(textOf("<meta charset=utf-8>\xE4", "text/html; charset=ISO-8859-1"),
            QStringLiteral("<meta charset=utf-8>\u00E4"));
}

TEST(PageText, ThePagesOwnCharacterSetIsTakenWhereTheHeaderHasNone) {
  EXPECT_EQ(textOf("<meta charset='iso-8859-1'>\xE4", "text/html"),
            QStringLiteral("<meta charset='iso-8859-1'>\u00E4"));
}

TEST(PageText, WithoutACharacterSetItIsUtf8AndElseWindows1252) {
  EXPECT_EQ(textOf("\xC3\xA4", "text/html"), QStringLiteral("\u00E4"));
  EXPECT_EQ(textOf("\x80", "text/html"), QStringLiteral("\u20AC"));
}

TEST(PageText, PlainTextIsNoMarkup) {
  EXPECT_EQ(decodedPage(kAddress, "<b>x</b>", "text/plain").kind, PageKind::PlainText);
}

PageKind kindOf(const QByteArray& html) {
  return decodedPage(kAddress, html, "text/html").kind;
}

TEST(PageText, TablesAsDeepAsNobodyWritesThemBecomePlainText) {
  EXPECT_EQ(kindOf(QByteArray("<table><tr><td>").repeated(8)), PageKind::Html);
  EXPECT_EQ(kindOf(QByteArray("<table><tr><td>").repeated(9)), PageKind::PlainText);
  EXPECT_EQ(kindOf(QByteArray("<TABLE >").repeated(9)), PageKind::PlainText);
  EXPECT_EQ(kindOf(QByteArray("<table><tr><td>x</table>").repeated(500)), PageKind::Html);
}

TEST(PageText, ListsAsDeepAsNobodyWritesThemBecomePlainText) {
  EXPECT_EQ(kindOf(QByteArray("<ul><li>").repeated(60)), PageKind::Html);
  EXPECT_EQ(kindOf(QByteArray("<ul><li>").repeated(61)), PageKind::PlainText);
  EXPECT_EQ(kindOf(QByteArray("<ul><li>a<li>b</ul>").repeated(500)), PageKind::Html);
}

TEST(PageText, AMessageShowsMarkupInAnAddressAsText) {
  const Page page = messagePage(QUrl(QStringLiteral("http://host/<b>")), QStringLiteral("No & no"),
                                QStringLiteral("a < b"));
  EXPECT_FALSE(page.text.contains(QStringLiteral("<b>")));
  EXPECT_TRUE(page.text.contains(QStringLiteral("No &amp; no")));
  EXPECT_TRUE(page.text.contains(QStringLiteral("a &lt; b")));
}

}  // namespace
}  // namespace quorvin::test
