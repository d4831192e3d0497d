// SPDX-License-Identifier: GPL-2.0-or-later

// Names and texts of peers: as names of files, as addresses, and as messages show them.
#include "peers/messages/peer_names.h"

#include "faults/runtime_fault.h"
#include "peers/peer_program.h"

#include <gtest/gtest.h>

namespace quorvin::test {

namespace {

TEST(ShownPeerText, HasNoCharactersThatAct) {
  EXPECT_EQ(shownPeerText(QStringLiteral("a\r\nb\u001b[1m\u007f")), QStringLiteral("a  b [1m "));
  EXPECT_EQ(shownPeerText(QStringLiteral("a\u202eb\u2028c")), QStringLiteral("a b c"));
  EXPECT_EQ(shownPeerText(QStringLiteral("<b>bold</b>")), QStringLiteral("<b>bold</b>"));
}

TEST(ShownPeerText, IsShort) {
  EXPECT_EQ(shownPeerText(QString(100, u'x')), QString(80, u'x') + QStringLiteral("..."));
}

TEST(ProblemTexts, ASentenceEndsInOneFullStop) {
  EXPECT_EQ(sentence(QStringLiteral("Disk full")), QStringLiteral("Disk full."));
  EXPECT_EQ(sentence(QStringLiteral("Nothing was unpacked.")), QStringLiteral("Nothing was unpacked."));
  EXPECT_EQ(sentence(QStringLiteral("Nothing was unpacked.. ")), QStringLiteral("Nothing was unpacked."));
}

TEST(ProblemTexts, AFaultIsShownWithItsNumber) {
  EXPECT_EQ(faultSentence(RuntimeFault(FaultNumber::PathFileAccess, QStringLiteral("The folder is gone."))),
            QStringLiteral("Run-time error '75': The folder is gone."));
}

TEST(ProblemTexts, TenProblemsAreShownAndTheOthersCounted) {
  QStringList problems;
  for (int number = 1; number <= 10; ++number) problems += QStringLiteral("P%1.").arg(number);
  const QString ten = QStringLiteral("P1.\r\nP2.\r\nP3.\r\nP4.\r\nP5.\r\nP6.\r\nP7.\r\nP8.\r\nP9.\r\nP10.");
  EXPECT_EQ(shownProblems(problems), ten);
  problems += QStringLiteral("P11.");
  EXPECT_EQ(shownProblems(problems), ten + QStringLiteral("\r\nThere was 1 more problem."));
  problems += QStringLiteral("P12.");
  EXPECT_EQ(shownProblems(problems), ten + QStringLiteral("\r\nThere were 2 more problems."));
}

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

TEST(HostAndPort, ReadsHostsWithAndWithoutPort) {
  const std::vector<AddressCase> cases{
      {QStringLiteral("nas"), QStringLiteral("nas"), 6060},
      {QStringLiteral("  192.168.1.7  "), QStringLiteral("192.168.1.7"), 6060},
      {QStringLiteral("nas.example.org:7000"), QStringLiteral("nas.example.org"), 7000},
      {QStringLiteral("fe80::1"), QStringLiteral("fe80::1"), 6060},
      {QStringLiteral("[::1]"), QStringLiteral("::1"), 6060},
      {QStringLiteral("[::1]:7000"), QStringLiteral("::1"), 7000},
  };
  for (const AddressCase& one : cases) {
    const HostAndPort address = readHostAndPort(one.text);
    EXPECT_EQ(address.host, one.host) << one.text.toStdString();
    EXPECT_EQ(address.port, one.port) << one.text.toStdString();
  }
}

TEST(HostAndPort, RefusesWhatMakesNoSense) {
  for (const char16_t* text : {u"", u"  ", u":", u":6060", u"nas:", u"nas:0", u"nas:65536", u"nas:-1",
                               u"nas:x", u"a b", u"http://nas", u"[nas]", u"[::1", u"1:2:3"}) {
    EXPECT_EQ(readHostAndPort(QString::fromUtf16(text)).host, QString())
        << QString::fromUtf16(text).toStdString();
  }
}

TEST(HostAndPort, TheUsualPortIsNotShown) {
  EXPECT_EQ(readHostAndPort(QStringLiteral("nas:6060")).text(), QStringLiteral("nas"));
  EXPECT_EQ(readHostAndPort(QStringLiteral("nas:7000")).text(), QStringLiteral("nas:7000"));
  EXPECT_EQ(readHostAndPort(QStringLiteral("[::1]:7000")).text(), QStringLiteral("[::1]:7000"));
}

}  // namespace

}  // namespace quorvin::test
