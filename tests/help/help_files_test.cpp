// SPDX-License-Identifier: GPL-2.0-or-later
#include "help/help_files.h"

#include "support/qt_printing.h"
#include "support/temporary_folder.h"
#include "texts/languages.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

namespace quorvin::test {
namespace {

class HelpFilesTest : public testing::Test {
 protected:
  HelpFilesTest() { folder_.writeFile(QStringLiteral("help/genhelp.htm"), "usage"); }

  HelpFile readPage(const QString& path) const {
    return files_.read(QUrl::fromLocalFile(path), HelpFileKind::Page);
  }
  HelpFile readPicture(const QString& path) const {
    return files_.read(QUrl::fromLocalFile(path), HelpFileKind::Picture);
  }
  QString inHelp(const char* name) const { return help_ + QString::fromLatin1(name); }
  void link(const QString& target, const QString& path) const {
    ASSERT_EQ(::symlink(QFile::encodeName(target).constData(), QFile::encodeName(path).constData()), 0);
  }

  TemporaryFolder folder_;
  const QString help_ = folder_.makeFolder(QStringLiteral("help"));
  const HelpFiles files_{help_};
};

TEST_F(HelpFilesTest, APageOfTheFolderIsRead) {
  const HelpFile file = readPage(inHelp("genhelp.htm"));
  EXPECT_EQ(file.state, HelpFileState::Read);
  EXPECT_EQ(file.bytes, "usage");
}

TEST_F(HelpFilesTest, APageInASubFolderIsRead) {
  folder_.writeFile(QStringLiteral("help/manual/a.htm"), "a");
  EXPECT_EQ(readPage(inHelp("manual/a.htm")).bytes, "a");
  EXPECT_EQ(readPage(inHelp("manual/../genhelp.htm")).bytes, "usage");
}

TEST_F(HelpFilesTest, APageIsThatOfTheLanguageWhereThereIsOne) {
  folder_.writeFile(QStringLiteral("help/de/manual/hits.htm"), "Treffer");
  EXPECT_EQ(files_.addressOf(QStringLiteral("manual/hits.htm#menu")), inHelp("manual/hits.htm#menu"));
  const SpokenLanguage german(QStringLiteral("de"));
  EXPECT_EQ(files_.addressOf(QStringLiteral("manual/hits.htm#menu")), inHelp("de/manual/hits.htm#menu"));
  EXPECT_EQ(files_.addressOf(QStringLiteral("genhelp.htm")), inHelp("genhelp.htm"));
}

TEST_F(HelpFilesTest, AMissingPageIsMissing) {
  EXPECT_EQ(readPage(inHelp("gone.htm")).state, HelpFileState::Missing);
}

TEST_F(HelpFilesTest, AFileOutsideTheFolderIsRefused) {
  folder_.writeFile(QStringLiteral("secret.htm"), "secret");
  folder_.writeFile(QStringLiteral("helpless/secret.htm"), "secret");
  for (const char* name : {"../secret.htm", "manual/../../secret.htm", "../helpless/secret.htm"}) {
    const HelpFile file = readPage(inHelp(name));
    EXPECT_EQ(file.state, HelpFileState::Refused) << name;
    EXPECT_EQ(file.bytes, "") << name;
  }
  EXPECT_EQ(readPage(folder_.pathOf(QStringLiteral("secret.htm"))).state, HelpFileState::Refused);
  EXPECT_EQ(readPage(QStringLiteral("/nowhere/at/all.htm")).state, HelpFileState::Refused);
}

TEST_F(HelpFilesTest, ALinkThatLeadsOutsideIsRefused) {
  const QString secret = folder_.writeFile(QStringLiteral("secret.htm"), "secret");
  link(secret, inHelp("inside.htm"));
  link(folder_.path(), inHelp("out"));
  EXPECT_EQ(readPage(inHelp("inside.htm")).state, HelpFileState::Refused);
  EXPECT_EQ(readPage(inHelp("out/secret.htm")).state, HelpFileState::Refused);
}

TEST_F(HelpFilesTest, ALinkToTheFolderItselfIsNoHindrance) {
  link(help_, folder_.pathOf(QStringLiteral("door")));
  const HelpFiles throughDoor(folder_.pathOf(QStringLiteral("door")));
  const QUrl page = QUrl::fromLocalFile(folder_.pathOf(QStringLiteral("door/genhelp.htm")));
  EXPECT_EQ(throughDoor.read(page, HelpFileKind::Page).bytes, "usage");
}

TEST_F(HelpFilesTest, DevicesAndPipesAreRefused) {
  EXPECT_EQ(readPage(QStringLiteral("/dev/zero")).state, HelpFileState::Refused);
  link(QStringLiteral("/dev/zero"), inHelp("zero.htm"));
  EXPECT_EQ(readPage(inHelp("zero.htm")).state, HelpFileState::Refused);
  ASSERT_EQ(::mkfifo(QFile::encodeName(inHelp("pipe.htm")).constData(), 0600), 0);
  EXPECT_EQ(readPage(inHelp("pipe.htm")).state, HelpFileState::Refused);
}

TEST_F(HelpFilesTest, FilesOfOtherKindsAreRefused) {
  folder_.writeFile(QStringLiteral("help/Locations.txt"), "private");
  folder_.writeFile(QStringLiteral("help/a.png"), "picture");
  folder_.makeFolder(QStringLiteral("help/folder.htm"));
  EXPECT_EQ(readPage(inHelp("Locations.txt")).state, HelpFileState::Refused);
  EXPECT_EQ(readPage(inHelp("a.png")).state, HelpFileState::Refused);
  EXPECT_EQ(readPage(inHelp("folder.htm")).state, HelpFileState::Refused);
  EXPECT_EQ(readPage(help_).state, HelpFileState::Refused);
  EXPECT_EQ(readPicture(inHelp("genhelp.htm")).state, HelpFileState::Refused);
  EXPECT_EQ(readPicture(inHelp("a.png")).bytes, "picture");
}

TEST_F(HelpFilesTest, OtherSchemesAndHostsAreRefused) {
  for (const char* text :
       {"qrc:/quorvin/help/stop.htm", "data:text/html,x.htm", "http://host/x.htm", "x.htm"}) {
    EXPECT_EQ(files_.read(QUrl(QString::fromLatin1(text)), HelpFileKind::Page).state, HelpFileState::Refused)
        << text;
  }
  QUrl onAHost = QUrl::fromLocalFile(inHelp("genhelp.htm"));
  onAHost.setHost(QStringLiteral("server"));
  EXPECT_EQ(files_.read(onAHost, HelpFileKind::Page).state, HelpFileState::Refused);
}

TEST_F(HelpFilesTest, ANulInAPathOpensNothing) {
  const QString path = inHelp("genhelp.htm") + QChar(u'\0') + QStringLiteral(".htm");
  EXPECT_EQ(readPage(path).state, HelpFileState::Refused);
}

TEST_F(HelpFilesTest, AFileOfAnUnlikelySizeIsRefused) {
  const QString path = folder_.writeFile(QStringLiteral("help/large.htm"), "x");
  ASSERT_EQ(::truncate(QFile::encodeName(path).constData(), HelpFiles::kLargestFile + 1), 0);
  EXPECT_EQ(readPage(path).state, HelpFileState::Refused);
}

TEST(HelpFolder, IsTheExecutablesWhereThePagesAreThere) {
  const TemporaryFolder folder;
  folder.writeFile(QStringLiteral("bin/genhelp.htm"), "");
  folder.writeFile(QStringLiteral("share/quorvin/help/genhelp.htm"), "");
  EXPECT_EQ(chooseHelpFolder(folder.pathOf(QStringLiteral("bin"))), folder.pathOf(QStringLiteral("bin/")));
}

TEST(HelpFolder, IsTheSharedOneOfAnInstalledProgram) {
  const TemporaryFolder folder;
  folder.makeFolder(QStringLiteral("bin"));
  folder.writeFile(QStringLiteral("share/quorvin/help/genhelp.htm"), "");
  EXPECT_EQ(chooseHelpFolder(folder.pathOf(QStringLiteral("bin"))),
            folder.pathOf(QStringLiteral("share/quorvin/help/")));
}

TEST(HelpFolder, IsTheExecutablesWhereThereAreNoPages) {
  const TemporaryFolder folder;
  EXPECT_EQ(chooseHelpFolder(folder.pathOf(QStringLiteral("bin"))), folder.pathOf(QStringLiteral("bin/")));
}

TEST(HelpFolder, OfTheBuiltProgramHoldsThePages) {
  EXPECT_TRUE(QFile::exists(helpPageAddress(QStringLiteral("genhelp.htm"))));
  EXPECT_TRUE(QFile::exists(helpPageAddress(QStringLiteral("relinfo.htm"))));
}

}  // namespace
}  // namespace quorvin::test
