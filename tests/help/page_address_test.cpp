#include "help/page_address.h"

#include "support/qt_printing.h"

#include <gtest/gtest.h>

namespace quorvin::test {
namespace {

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
