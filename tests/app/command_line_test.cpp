// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/command_line.h"

#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace quorvin {
namespace {

using Wish = CommandLine::Wish;

class CommandLineTest : public testing::Test {
 protected:
  void expect(const QStringList& arguments, Wish wish, const QString& text) const {
    const CommandLine line = readCommandLine(arguments);
    EXPECT_EQ(line.wish, wish) << arguments.join(u' ').toStdString();
    EXPECT_EQ(line.text, text) << arguments.join(u' ').toStdString();
  }

  TemporaryFolder folder_;
  CurrentFolder inFolder_{folder_.path()};
};

TEST_F(CommandLineTest, NothingOpensTheWindow) {
  expect({}, Wish::OpenWindow, {});
}

TEST_F(CommandLineTest, ARelativeListingIsInTheCurrentFolder) {
  folder_.writeFile(u"lists/my best disk.txt"_qs, "x");
  const QString whole = QDir::currentPath() + u"/lists/my best disk.txt"_qs;
  expect({u"lists/my best disk.txt"_qs}, Wish::OpenWindow, whole);
  expect({u"lists/my"_qs, u"best"_qs, u"disk.txt"_qs}, Wish::OpenWindow, whole);
}

TEST_F(CommandLineTest, AWholePathStaysAsItIsGiven) {
  const QString listing = folder_.writeFile(u"disk.txt"_qs, "x");
  expect({listing}, Wish::OpenWindow, listing);
  expect({folder_.path() + u"./disk.txt"_qs}, Wish::OpenWindow, folder_.path() + u"./disk.txt"_qs);
}

TEST_F(CommandLineTest, AListingThatIsNotThereStaysAsItIsGiven) {
  expect({u"none.txt"_qs}, Wish::OpenWindow, u"none.txt"_qs);
  expect({u"\"/no such/none.txt\""_qs}, Wish::OpenWindow, u"\"/no such/none.txt\""_qs);
  expect({u"my - list.txt"_qs}, Wish::OpenWindow, u"my - list.txt"_qs);
  expect({u"-"_qs}, Wish::OpenWindow, u"-"_qs);
}

TEST_F(CommandLineTest, OptionsAreOptions) {
  expect({u"--version"_qs}, Wish::ShowVersion, {});
  expect({u"--help"_qs}, Wish::ShowHelp, {});
  expect({u"-h"_qs}, Wish::ShowHelp, {});
  expect({u"--verison"_qs}, Wish::RefuseOption, u"--verison"_qs);
  expect({u"-v"_qs}, Wish::RefuseOption, u"-v"_qs);
  expect({u"none.txt"_qs, u"--full"_qs}, Wish::RefuseOption, u"--full"_qs);
}

TEST_F(CommandLineTest, AFileMayBeNamedLikeAnOption) {
  folder_.writeFile(u"--version"_qs, "x");
  expect({u"--version"_qs}, Wish::OpenWindow, QDir::currentPath() + u"/--version"_qs);
}

TEST_F(CommandLineTest, AfterTwoHyphensThereAreNoOptions) {
  folder_.writeFile(u"-disk.txt"_qs, "x");
  expect({u"--"_qs, u"-disk.txt"_qs}, Wish::OpenWindow, QDir::currentPath() + u"/-disk.txt"_qs);
  expect({u"--"_qs, u"--help"_qs}, Wish::OpenWindow, u"--help"_qs);
  expect({u"--"_qs}, Wish::OpenWindow, {});
}

TEST_F(CommandLineTest, AnErrandTakesAllThatFollowsAsItsSubject) {
  using Kind = Errand::Kind;
  const auto errand = [](const QStringList& arguments) { return readCommandLine(arguments).errand; };
  EXPECT_EQ(errand({u"--search"_qs, u"northern harbour"_qs}), (Errand{Kind::Search, u"northern harbour"_qs}));
  EXPECT_EQ(errand({u"--search"_qs, u"two"_qs, u"--words"_qs}), (Errand{Kind::Search, u"two --words"_qs}));
  EXPECT_EQ(errand({u"--folder"_qs, u"/a 'b'\n\"c\""_qs}), (Errand{Kind::SearchFolder, u"/a 'b'\n\"c\""_qs}));
  EXPECT_EQ(errand({u"--folder"_qs, u"music"_qs}),
            (Errand{Kind::SearchFolder, QDir::currentPath() + u"/music"_qs}));
  EXPECT_EQ(errand({u"--rescan"_qs}), (Errand{Kind::Rescan, {}}));
  EXPECT_EQ(errand({u"--manual"_qs}), (Errand{Kind::ShowManual, {}}));
  EXPECT_EQ(errand({}), Errand());
  expect({u"--search"_qs, u"northern harbour"_qs}, Wish::OpenWindow, {});
}

TEST_F(CommandLineTest, AnErrandWithoutItsSubjectOrWithOneTooManyIsRefused) {
  expect({u"--search"_qs}, Wish::MissValue, u"--search"_qs);
  expect({u"--folder"_qs, {}}, Wish::MissValue, u"--folder"_qs);
  expect({u"--rescan"_qs, u"all"_qs}, Wish::RefuseOption, u"--rescan"_qs);
}

TEST_F(CommandLineTest, AnErrandIsHandedOverAsText) {
  using Kind = Errand::Kind;
  for (const Errand& errand :
       {Errand{Kind::Search, u" two  blanks "_qs}, Errand{Kind::SearchFolder, u"/a\nb"_qs},
        Errand{Kind::Rescan, {}}, Errand{Kind::ShowManual, {}}, Errand()}) {
    EXPECT_EQ(errandOf(textOf(errand)), errand) << textOf(errand).toStdString();
  }
  EXPECT_EQ(textOf(Errand()), QString());
  EXPECT_EQ(errandOf(u"--format /home"_qs), Errand());
}

TEST_F(CommandLineTest, EachListingThatIsThereHasItsOwnSettings) {
  const QString listing = folder_.writeFile(u"disk.txt"_qs, "x");
  EXPECT_EQ(settingsSetOf(listing), listing);
  EXPECT_EQ(settingsSetOf(folder_.pathOf(u"none.txt"_qs)), u"Ketta Quorvin"_qs);
  EXPECT_EQ(settingsSetOf({}), u"Ketta Quorvin"_qs);
}

TEST_F(CommandLineTest, TheUsageNamesEveryOption) {
  for (const char* option :
       {"--help", "--version", "--search TEXT", "--folder FOLDER", "--rescan", "--manual", "[LISTING]"}) {
    EXPECT_TRUE(usageText().contains(QString::fromLatin1(option))) << option;
  }
}

}  // namespace
}  // namespace quorvin
