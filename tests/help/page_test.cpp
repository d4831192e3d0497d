// SPDX-License-Identifier: GPL-2.0-or-later
#include "help/page.h"

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

QString meant(const QString& text) {
  return pageAddress(text, QStringLiteral("/opt/quorvin/")).toString();
}

TEST(PageAddress, APathIsALocalFile) {
  EXPECT_EQ(meant(QStringLiteral("/opt/quorvin/genhelp.htm")),
            QStringLiteral("file:///opt/quorvin/genhelp.htm"));
}

TEST(PageAddress, AFileAddressIsTakenAsItStands) {
  EXPECT_EQ(meant(QStringLiteral("file:///opt/quorvin/genhelp.htm#match")),
            QStringLiteral("file:///opt/quorvin/genhelp.htm#match"));
}

TEST(PageAddress, ANameIsAPageOfTheHelp) {
  EXPECT_EQ(meant(QStringLiteral("relinfo.htm")), QStringLiteral("file:///opt/quorvin/relinfo.htm"));
  EXPECT_EQ(meant(QStringLiteral("manual/searching.htm#match")),
            QStringLiteral("file:///opt/quorvin/manual/searching.htm#match"));
}

TEST(PageAddress, OnlyTheLastPartOfAPathMayHaveAPlaceInThePage) {
  const QUrl address = pageAddress(QStringLiteral("/home/ann/c#/genhelp.htm#top"), QString());
  EXPECT_EQ(address.toLocalFile(), QStringLiteral("/home/ann/c#/genhelp.htm"));
  EXPECT_EQ(address.fragment(), QStringLiteral("top"));
}

TEST(PageAddress, WebAddressesNeedNoScheme) {
  EXPECT_EQ(meant(QStringLiteral("https://example.org/a?b=c")), QStringLiteral("https://example.org/a?b=c"));
  EXPECT_EQ(meant(QStringLiteral("example.org/page.htm")), QStringLiteral("http://example.org/page.htm"));
  EXPECT_EQ(meant(QStringLiteral("localhost/page")), QStringLiteral("http://localhost/page"));
  EXPECT_EQ(meant(QStringLiteral("server:8080/page")), QStringLiteral("http://server:8080/page"));
}

TEST(PageAddress, BlanksAroundAreDroppedAndEmptyTextMeansNothing) {
  EXPECT_EQ(meant(QStringLiteral("  relinfo.htm ")), QStringLiteral("file:///opt/quorvin/relinfo.htm"));
  EXPECT_TRUE(pageAddress(QStringLiteral("   "), QStringLiteral("/opt/quorvin/")).isEmpty());
}

TEST(PageAddress, TextOfALocalPageIsAPathAndComesBackAsIs) {
  for (const char* text : {"/opt/quorvin/genhelp.htm", "/opt/quorvin/genhelp.htm#match", "/a b/c%20d.htm",
                           "http://example.org/a?b=c#d"}) {
    const QString address = QString::fromLatin1(text);
    EXPECT_EQ(addressText(pageAddress(address, QString())), address);
  }
}

TEST(PageAddress, OnlyHttpAndHttpsWithAHostAreWebAddresses) {
  EXPECT_TRUE(isWebAddress(QUrl(QStringLiteral("http://example.org"))));
  EXPECT_TRUE(isWebAddress(QUrl(QStringLiteral("https://example.org"))));
  for (const char* other : {"ftp://example.org/a", "file:///etc/passwd", "http:", "javascript:alert(1)",
                            "data:text/html,hello", "qrc:/quorvin/help/stop.svg"}) {
    EXPECT_FALSE(isWebAddress(QUrl(QString::fromLatin1(other)))) << other;
  }
}

}  // namespace
}  // namespace quorvin::test
