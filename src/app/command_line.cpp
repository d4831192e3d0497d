#include "app/command_line.h"

#include "files/file_lookup.h"
#include "state/program_state.h"

#include <QDir>

namespace quorvin {

namespace {

constexpr QStringView kEndOfOptions = u"--";

QString firstOption(const QStringList& arguments) {
  if (arguments.front().startsWith(u'-') && arguments.front().size() > 1) return arguments.front();
  for (const QString& argument : arguments) {
    if (argument.startsWith(kEndOfOptions) && argument.size() > kEndOfOptions.size()) return argument;
  }
  return {};
}

CommandLine readOption(const QString& option) {
  if (option == QStringLiteral("--version")) return {CommandLine::Wish::ShowVersion, {}};
  if (option == QStringLiteral("--help") || option == QStringLiteral("-h")) {
    return {CommandLine::Wish::ShowHelp, {}};
  }
  return {CommandLine::Wish::RefuseOption, option};
}

CommandLine openOn(const QString& path) {
  const bool isCompleted = QDir::isRelativePath(path) && ordinaryFileExists(path);
  return {CommandLine::Wish::OpenWindow, isCompleted ? pathFromTop(path) : path};
}

}  // namespace

CommandLine readCommandLine(const QStringList& arguments) {
  if (arguments.isEmpty()) return {};
  const QString whole = arguments.join(u' ');
  if (ordinaryFileExists(whole)) return openOn(whole);
  if (arguments.front() == kEndOfOptions) return openOn(arguments.mid(1).join(u' '));
  const QString option = firstOption(arguments);
  return option.isEmpty() ? openOn(whole) : readOption(option);
}

QString settingsSetOf(const QString& commandLine) {
  if (!commandLine.isEmpty() && ordinaryFileExists(commandLine)) return commandLine;
  ProgramState usual;
  usual.resetFileNames();
  return usual.RegKey;
}

QString usageText() {
  return QStringLiteral(
      "Usage: quorvin [LISTING]\n"
      "Opens the window in which listings are searched. A LISTING has settings and folders of its own.\n"
      "\n"
      "  --help     show this and end\n"
      "  --version  show the version and end\n"
      "\n"
      "quorvin-cli does the same searches in the terminal.\n");
}

}  // namespace quorvin
