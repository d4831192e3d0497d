// SPDX-License-Identifier: GPL-2.0-or-later

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
  EXPECT_LE(std::count(help.begin(), help.end(), '\n'), 23) << help;
  for (const QString& line : lines) EXPECT_LE(line.size(), 80) << line.toStdString();
}

class HelpTexts : public test::ConsoleProgramTest {};

TEST_F(HelpTexts, EachHelpFitsAScreenAndHasExamples) {
  expectFits(helpOfProgram());
  for (const CommandText& command : commandTexts()) {
    expectFits(helpOf(command));
    EXPECT_FALSE(command.examples.empty()) << command.name;
    // Inner commands are in the help of the outer one.
    const bool isInner = command.name.starts_with("sources ");
    EXPECT_THAT(isInner ? helpOf(commandText("sources")) : helpOfProgram(),
                testing::HasSubstr(std::string(command.summary)));
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

/// The same in the other languages.
class TranslatedHelpTexts : public HelpTexts, public testing::WithParamInterface<const char*> {
 protected:
  TranslatedHelpTexts() {
    QProcessEnvironment environment = process.processEnvironment();
    environment.remove(u"LC_ALL"_qs);
    environment.insert(u"LC_CTYPE"_qs, u"C.UTF-8"_qs);
    environment.insert(u"LC_MESSAGES"_qs, language_);
    environment.insert(u"LANGUAGE"_qs, language_);
    process.setProcessEnvironment(environment);
  }
  const QString language_ = QString::fromLatin1(GetParam());
};

TEST_P(TranslatedHelpTexts, EachHelpFitsAScreen) {
  const std::string help = run({u"--help"_qs}).output.toStdString();
  expectFits(help);
  EXPECT_NE(help, helpOfProgram());
  for (const CommandText& command : commandTexts()) {
    const QStringList words =
        QString::fromLatin1(command.name.data(), static_cast<qsizetype>(command.name.size())).split(u' ');
    expectFits(run(words + QStringList{u"--help"_qs}).output.toStdString());
  }
}

TEST_P(TranslatedHelpTexts, TheInstalledPageIsTheOneThatTheProgramMakes) {
  // When this fails: LC_MESSAGES=de LANGUAGE=de quorvin-cli --man > packaging/man/de/quorvin-cli.1, and so
  // on.
  const std::string made = run({u"--man"_qs}).output.toStdString();
  EXPECT_EQ(packaged(u"man/"_qs + language_ + u"/quorvin-cli.1"_qs).toStdString(), made);
  EXPECT_THAT(made, testing::HasSubstr("\n.B \\-\\-fields LIST\n"));
}

TEST_P(TranslatedHelpTexts, MistakesAreExplained) {
  const test::Ended ended = run({u"fnd"_qs});
  EXPECT_EQ(ended.status, 2);
  EXPECT_TRUE(ended.errors.startsWith(u"quorvin-cli: "_qs)) << ended.errors.toStdString();
  EXPECT_FALSE(ended.errors.contains(u"there is no command"_qs)) << ended.errors.toStdString();
  EXPECT_TRUE(ended.errors.contains(u"fnd"_qs)) << ended.errors.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Languages, TranslatedHelpTexts, testing::Values("de", "es", "fr"));

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
