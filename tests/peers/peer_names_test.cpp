// Names of files made from what a peer tells, and addresses as users type them.
#include "peers/messages/peer_names.h"

#include "peers/peer_program.h"

#include <gtest/gtest.h>

namespace quorvin::test {

namespace {

TEST(SafeFileName, AUsualNameStays) {
  EXPECT_EQ(safeFileName(QStringLiteral("My Music (2004)")), QStringLiteral("My Music (2004)"));
  EXPECT_EQ(safeFileName(QStringLiteral("B\u00fccher")), QStringLiteral("B\u00fccher"));
}

TEST(SafeFileName, NoNameLeadsOutOfTheFolder) {
  EXPECT_EQ(safeFileName(QStringLiteral("../../etc/passwd")), QStringLiteral("_.._etc_passwd"));
  EXPECT_EQ(safeFileName(QStringLiteral("..\\..\\x")), QStringLiteral("_.._x"));
  EXPECT_EQ(safeFileName(QStringLiteral("C:\\x")), QStringLiteral("C__x"));
  EXPECT_EQ(safeFileName(QStringLiteral("..")), QStringLiteral("list"));
  EXPECT_EQ(safeFileName(QStringLiteral("/")), QStringLiteral("_"));
}

TEST(SafeFileName, NoNameIsHiddenOrEmpty) {
  EXPECT_EQ(safeFileName(QStringLiteral(".bashrc")), QStringLiteral("bashrc"));
  EXPECT_EQ(safeFileName(QString()), QStringLiteral("list"));
  EXPECT_EQ(safeFileName(QStringLiteral("  . ")), QStringLiteral("list"));
}

TEST(SafeFileName, SignsThatActAreReplaced) {
  EXPECT_EQ(safeFileName(QStringLiteral("a\"b*c?d<e>f|g\nh\u202ei")), QStringLiteral("a_b_c_d_e_f_g_h_i"));
  EXPECT_EQ(safeFileName(QStringLiteral("a") + QChar(u'\0') + QStringLiteral("b")), QStringLiteral("a_b"));
}

TEST(SafeFileName, NoNameOpensADevice) {
  EXPECT_EQ(safeFileName(QStringLiteral("NUL")), QStringLiteral("_NUL"));
  EXPECT_EQ(safeFileName(QStringLiteral("com1.x")), QStringLiteral("_com1.x"));
  EXPECT_EQ(safeFileName(QStringLiteral("console")), QStringLiteral("console"));
}

TEST(SafeFileName, LongNamesAreCutBetweenCharacters) {
  EXPECT_EQ(safeFileName(QString(300, u'x')), QString(60, u'x'));
  const QString pair = QStringLiteral("\U0001F3B5");
  EXPECT_EQ(safeFileName(QString(59, u'x') + pair), QString(59, u'x'));
}

TEST(FreePath, GivesANumberWhereTheNameIsTaken) {
  const TemporaryFolder folder;
  EXPECT_EQ(freePath(folder.path(), QStringLiteral("a"), QStringLiteral(".zip")),
            folder.pathOf(QStringLiteral("a.zip")));
  folder.writeFile(QStringLiteral("a.zip"), "");
  folder.writeFile(QStringLiteral("a (2).zip"), "");
  EXPECT_EQ(freePath(folder.path(), QStringLiteral("a"), QStringLiteral(".zip")),
            folder.pathOf(QStringLiteral("a (3).zip")));
}

TEST(FreePath, ABrokenLinkTakesAName) {
  const TemporaryFolder folder;
  ASSERT_TRUE(QFile::link(QStringLiteral("/nowhere/at/all"), folder.pathOf(QStringLiteral("a"))));
  EXPECT_EQ(freePath(folder.path(), QStringLiteral("a"), {}), folder.pathOf(QStringLiteral("a (2)")));
}

struct AddressCase {
  QString text;
  QString host;
  quint16 port;
};

TEST(PeerAddressText, ReadsHostsWithAndWithoutPort) {
  const std::vector<AddressCase> cases{
      {QStringLiteral("nas"), QStringLiteral("nas"), 6060},
      {QStringLiteral("  192.168.1.7  "), QStringLiteral("192.168.1.7"), 6060},
      {QStringLiteral("nas.example.org:7000"), QStringLiteral("nas.example.org"), 7000},
      {QStringLiteral("fe80::1"), QStringLiteral("fe80::1"), 6060},
      {QStringLiteral("[::1]"), QStringLiteral("::1"), 6060},
      {QStringLiteral("[::1]:7000"), QStringLiteral("::1"), 7000},
  };
  for (const AddressCase& one : cases) {
    const PeerAddressText address = readPeerAddress(one.text);
    EXPECT_EQ(address.host, one.host) << one.text.toStdString();
    EXPECT_EQ(address.port, one.port) << one.text.toStdString();
  }
}

TEST(PeerAddressText, RefusesWhatMakesNoSense) {
  for (const char16_t* text : {u"", u"  ", u":", u":6060", u"nas:", u"nas:0", u"nas:65536", u"nas:-1",
                               u"nas:x", u"a b", u"http://nas", u"[nas]", u"[::1", u"1:2:3"}) {
    EXPECT_EQ(readPeerAddress(QString::fromUtf16(text)).host, QString())
        << QString::fromUtf16(text).toStdString();
  }
}

TEST(PeerAddressText, TheUsualPortIsNotShown) {
  EXPECT_EQ(readPeerAddress(QStringLiteral("nas:6060")).text(), QStringLiteral("nas"));
  EXPECT_EQ(readPeerAddress(QStringLiteral("nas:7000")).text(), QStringLiteral("nas:7000"));
  EXPECT_EQ(readPeerAddress(QStringLiteral("[::1]:7000")).text(), QStringLiteral("[::1]:7000"));
}

}  // namespace

}  // namespace quorvin::test
