// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/command_line.h"

#include "files/file_lookup.h"
#include "state/program_state.h"
#include "texts/texts.h"

#include <QDir>

#include <optional>

namespace quorvin {

namespace {

constexpr QStringView kEndOfOptions = u"--";

struct ErrandOption {
  QStringView option;
  Errand::Kind kind;
  bool hasSubject;
};
constexpr ErrandOption kErrandOptions[] = {
    {u"--search", Errand::Kind::Search, true},
    {u"--folder", Errand::Kind::SearchFolder, true},
    {u"--rescan", Errand::Kind::Rescan, false},
    {u"--manual", Errand::Kind::ShowManual, false},
};

QString firstOption(const QStringList& arguments) {
  if (arguments.front().startsWith(u'-') && arguments.front().size() > 1) return arguments.front();
  for (const QString& argument : arguments) {
    if (argument.startsWith(kEndOfOptions) && argument.size() > kEndOfOptions.size()) return argument;
  }
  return {};
}

CommandLine readOption(const QString& option) {
  if (option == QStringLiteral("--version")) return {CommandLine::Wish::ShowVersion, {}, {}};
  if (option == QStringLiteral("--help") || option == QStringLiteral("-h")) {
    return {CommandLine::Wish::ShowHelp, {}, {}};
  }
  return {CommandLine::Wish::RefuseOption, option, {}};
}

/// The errand whose option is the first of `arguments`, if it is one.
std::optional<CommandLine> readErrand(const QStringList& arguments) {
  const QString& option = arguments.front();
  for (const ErrandOption& known : kErrandOptions) {
    if (known.option != option) continue;
    const QString rest = arguments.mid(1).join(u' ');
    if (known.hasSubject && rest.isEmpty()) return CommandLine{CommandLine::Wish::MissValue, option, {}};
    if (!known.hasSubject && !rest.isEmpty()) return std::nullopt;
    const bool isFolder = known.kind == Errand::Kind::SearchFolder;
    return CommandLine{CommandLine::Wish::OpenWindow, {}, {known.kind, isFolder ? pathFromTop(rest) : rest}};
  }
  return std::nullopt;
}

CommandLine openOn(const QString& path) {
  const bool isCompleted = QDir::isRelativePath(path) && ordinaryFileExists(path);
  return {CommandLine::Wish::OpenWindow, isCompleted ? pathFromTop(path) : path, {}};
}

}  // namespace

CommandLine readCommandLine(const QStringList& arguments) {
  if (arguments.isEmpty()) return {};
  const QString whole = arguments.join(u' ');
  if (ordinaryFileExists(whole)) return openOn(whole);
  if (arguments.front() == kEndOfOptions) return openOn(arguments.mid(1).join(u' '));
  if (const auto errand = readErrand(arguments)) return *errand;
  const QString option = firstOption(arguments);
  return option.isEmpty() ? openOn(whole) : readOption(option);
}

QString settingsSetOf(const QString& commandLine) {
  if (!commandLine.isEmpty() && ordinaryFileExists(commandLine)) return commandLine;
  ProgramState usual;
  usual.resetFileNames();
  return usual.RegKey;
}

QString textOf(const Errand& errand) {
  for (const ErrandOption& known : kErrandOptions) {
    if (known.kind == errand.kind) return known.option.toString() + u' ' + errand.subject;
  }
  return {};
}

Errand errandOf(const QString& text) {
  const qsizetype end = text.indexOf(u' ');
  for (const ErrandOption& known : kErrandOptions) {
    if (end >= 0 && known.option == QStringView(text).left(end)) return {known.kind, text.mid(end + 1)};
  }
  return {};
}

QString usageText() {
  return Texts::tr(
      "Usage: quorvin [LISTING]\n"
      "       quorvin --search TEXT | --folder FOLDER | --rescan | --manual\n"
      "Opens the window in which listings are searched. A LISTING has settings and folders of its own.\n"
      "\n"
      "  --search TEXT    search for TEXT\n"
      "  --folder FOLDER  search in FOLDER, which is catalogued first if you agree\n"
      "  --rescan         rescan the local search folders\n"
      "  --manual         open the manual\n"
      "  --help           show this and end\n"
      "  --version        show the version and end\n"
      "\n"
      "quorvin-cli does the same searches in the terminal.\n");
}

}  // namespace quorvin
