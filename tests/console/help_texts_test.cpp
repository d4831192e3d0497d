// What the program says of itself: one description of each command, in the help, the manual page and the
// completions.
#include "console/console_program.h"
#include "console/text_pages.h"
#include "support/qt_printing.h"

#include <QFile>
#include <gmock/gmock.h>

namespace quorvin {
namespace {

QByteArray packaged(const QString& name) {
  QFile file(QStringLiteral(QUORVIN_PACKAGING "/") + name);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
  return file.readAll();
}

void expectFits(const std::string& help) {
  const QStringList lines = QString::fromStdString(help).split(u'\n', Qt::SkipEmptyParts);
  EXPECT_LE(std::count(help.begin(), help.end(), '\n'), 24) << help;
  for (const QString& line : lines) EXPECT_LE(line.size(), 80) << line.toStdString();
}

class HelpTexts : public test::ConsoleProgramTest {};

TEST_F(HelpTexts, EachHelpFitsAScreenAndHasExamples) {
  expectFits(helpOfProgram());
  for (const CommandText& command : commandTexts()) {
    expectFits(helpOf(command));
    EXPECT_FALSE(command.examples.empty()) << command.name;
    EXPECT_THAT(helpOfProgram(), testing::HasSubstr(std::string(command.summary)));
  }
}

TEST_F(HelpTexts, EachCommandShowsItsOwnHelp) {
  EXPECT_EQ(run({u"--help"_qs}).output.toStdString(), helpOfProgram());
  for (const CommandText& command : commandTexts()) {
    const QStringList words =
        QString::fromLatin1(command.name.data(), static_cast<qsizetype>(command.name.size())).split(u' ');
    const test::Ended ended = run(words + QStringList{u"--help"_qs});
    EXPECT_EQ(ended.output.toStdString(), helpOf(command));
    EXPECT_EQ(ended.status, 0);
  }
}

TEST_F(HelpTexts, TheInstalledPageAndCompletionsAreThoseThatTheProgramMakes) {
  // When this fails: quorvin-cli --man > packaging/man/quorvin-cli.1, and so on.
  EXPECT_EQ(packaged(u"man/quorvin-cli.1"_qs).toStdString(), manualPage(QUORVIN_VERSION));
  EXPECT_EQ(packaged(u"completions/quorvin-cli.bash"_qs).toStdString(), completionFor("bash"));
  EXPECT_EQ(packaged(u"completions/_quorvin-cli"_qs).toStdString(), completionFor("zsh"));
  EXPECT_EQ(packaged(u"completions/quorvin-cli.fish"_qs).toStdString(), completionFor("fish"));
  EXPECT_EQ(run({u"--man"_qs}).output.toStdString(), manualPage(QUORVIN_VERSION));
  EXPECT_EQ(run({u"--completion"_qs, u"zsh"_qs}).output.toStdString(), completionFor("zsh"));
}

TEST_F(HelpTexts, TheManualPageHasEveryOptionAndSection) {
  const std::string page = manualPage("1.2");
  for (const char* section : {"NAME", "SYNOPSIS", "DESCRIPTION", "OPTIONS", "COMMANDS", "FIELDS",
                              "EXIT STATUS", "FILES", "ENVIRONMENT", "EXAMPLES", "SEE ALSO"}) {
    EXPECT_THAT(page, testing::HasSubstr(std::string("\n.SH ") + section + '\n'));
  }
  EXPECT_THAT(page, testing::HasSubstr("\n.B \\-\\-fields LIST\n"));
  EXPECT_THAT(page, testing::HasSubstr("\n.B \\-0, \\-\\-null\n"));
  EXPECT_THAT(page, testing::HasSubstr("\n.B NO_COLOR\n"));
}

/// What bash offers for the last of `words`.
class BashCompletion : public HelpTexts {
 protected:
  QStringList offeredFor(const QStringList& words) {
    QString script = u"source "_qs + QStringLiteral(QUORVIN_PACKAGING "/completions/quorvin-cli.bash") +
                     u"\ncompopt() { :; }\nCOMP_WORDS=(quorvin-cli \"$@\")\nCOMP_CWORD=$#\n_quorvin_cli\n"
                     "printf '%s\\n' \"${COMPREPLY[@]}\"\n"_qs;
    process.setProgram(u"bash"_qs);
    const test::Ended ended = run(QStringList{u"--norc"_qs, u"-c"_qs, script, u"bash"_qs} + words);
    EXPECT_EQ(ended.errors, QString());
    return QString::fromUtf8(ended.output).split(u'\n', Qt::SkipEmptyParts);
  }
};

TEST_F(BashCompletion, OffersCommandsOptionsValuesAndFiles) {
  folder.writeFile(u"cd 7.txt"_qs, "x");
  EXPECT_EQ(offeredFor({u"his"_qs}), QStringList{u"history"_qs});
  EXPECT_EQ(offeredFor({u"sources"_qs, u""_qs}), (QStringList{u"add"_qs, u"remove"_qs, u"move"_qs}));
  EXPECT_EQ(offeredFor({u"find"_qs, u"--fo"_qs}), QStringList{u"--format"_qs});
  EXPECT_EQ(offeredFor({u"find"_qs, u"--format"_qs, u"j"_qs}), QStringList{u"json"_qs});
  EXPECT_EQ(offeredFor({u"find"_qs, u"--fields"_qs, u"name,pa"_qs}), QStringList{u"name,path"_qs});
  EXPECT_EQ(offeredFor({u"find"_qs, u"rock"_qs, u"cd"_qs}), QStringList{u"cd 7.txt"_qs});
  EXPECT_EQ(offeredFor({u"sources"_qs, u"add"_qs, u"--n"_qs}), QStringList{u"--name"_qs});
}

}  // namespace
}  // namespace quorvin
