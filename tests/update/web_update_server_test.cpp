// SPDX-License-Identifier: GPL-2.0-or-later
#include "update/web_update_server.h"

#include "support/qt_printing.h"

#include <gtest/gtest.h>

namespace quorvin {
namespace {

QString addressOf(const QString& server, const QString& archive) {
  return webUpdateAddress(server, archive).toString(QUrl::FullyEncoded);
}

TEST(WebUpdateAddress, IsBelowAHost) {
  EXPECT_EQ(addressOf(u"example.org"_qs, u"main.zip"_qs), u"http://example.org/main.zip"_qs);
  EXPECT_EQ(addressOf(u" example.org "_qs, u"main.zip"_qs), u"http://example.org/main.zip"_qs);
  EXPECT_EQ(addressOf(u"example.org:8080"_qs, u"main.zip"_qs), u"http://example.org:8080/main.zip"_qs);
  EXPECT_EQ(addressOf(u"[::1]:8080"_qs, u"main.zip"_qs), u"http://[::1]:8080/main.zip"_qs);
}

TEST(WebUpdateAddress, IsBelowAnAddress) {
  EXPECT_EQ(addressOf(u"https://example.org"_qs, u"main.zip"_qs), u"https://example.org/main.zip"_qs);
  EXPECT_EQ(addressOf(u"https://example.org/lists"_qs, u"main.zip"_qs),
            u"https://example.org/lists/main.zip"_qs);
  EXPECT_EQ(addressOf(u"http://example.org/lists/"_qs, u"main.zip"_qs),
            u"http://example.org/lists/main.zip"_qs);
  EXPECT_EQ(addressOf(u"example.org/my%20lists"_qs, u"main.zip"_qs),
            u"http://example.org/my%20lists/main.zip"_qs);
  EXPECT_EQ(addressOf(u"example.org/a?b=c#d"_qs, u"main.zip"_qs), u"http://example.org/a/main.zip"_qs);
}

TEST(WebUpdateAddress, TakesTheNameAsAName) {
  EXPECT_EQ(addressOf(u"example.org"_qs, u"my lists?.zip#1"_qs),
            u"http://example.org/my%20lists%3F.zip%231"_qs);
  EXPECT_EQ(addressOf(u"example.org"_qs, u"50%.zip"_qs), u"http://example.org/50%25.zip"_qs);
  EXPECT_EQ(addressOf(u"example.org"_qs, u"\u00C4.zip"_qs), u"http://example.org/%C3%84.zip"_qs);
  EXPECT_EQ(addressOf(u"example.org"_qs, QString()), u"http://example.org/"_qs);
  EXPECT_EQ(addressOf(u"example.org"_qs, u"http://other.org/x"_qs),
            u"http://example.org/http%3A//other.org/x"_qs);
}

}  // namespace
}  // namespace quorvin
