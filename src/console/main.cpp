// SPDX-License-Identifier: GPL-2.0-or-later
#include "console/command_texts.h"
#include "console/commands.h"
#include "console/error_lines.h"
#include "console/requests.h"
#include "console/text_pages.h"
#include "files/file_reader.h"
#include "texts/languages.h"
#include "texts/texts.h"

#include <CLI/CLI.hpp>
#include <QCalendar>
#include <QCoreApplication>

#include <algorithm>
#include <cstdio>
#include <map>
#include <new>
#include <optional>
#include <string>
#include <vector>

namespace {

using namespace quorvin;

std::string longName(const OptionText& option) {
  return std::string(option.names.substr(option.names.find("--")));
}

/// The command line: what can be asked for, and what was.
class CommandLine {
 public:
  CommandLine();

  /// Does what is asked for; the program's exit status.
  int run(int argc, char** argv);

 private:
  CLI::App& parserOf(std::string_view command);
  void addCommand(const CommandText& command);
  void addOptions(CLI::App& parser, const std::vector<OptionText>& options, Given& given);
  const CommandText* named() const;
  int runNamed(const CommandText& command);
  int runIndexCommand(const Given& given);
  int runImportCommand(const Given& given);
  int runHistoryCommand(const Given& given);
  int runSourcesCommand(SourcesRequest::Action action, const Given& given);
  QString whatIsMissing() const;
  QString leftOver() const;

  CLI::App app_{"", "quorvin-cli"};
  std::map<std::string_view, CLI::App*> parsers_;
  std::map<std::string_view, Given> given_;
};

CommandLine::CommandLine() {
  // What is left over is reported in our own words.
  app_.allow_extras();
  app_.set_help_flag();
  addOptions(app_, programOptions(), given_[""]);
  for (const CommandText& command : commandTexts()) addCommand(command);
}

/// The parser that the command is added to.
CLI::App& CommandLine::parserOf(std::string_view command) {
  const std::size_t blank = command.find(' ');
  return blank == std::string_view::npos ? app_ : *parsers_.at(command.substr(0, blank));
}

void CommandLine::addCommand(const CommandText& command) {
  const std::string_view word = command.name.substr(command.name.rfind(' ') + 1);
  CLI::App& parser = *parserOf(command.name).add_subcommand(std::string(word));
  parsers_[command.name] = &parser;
  Given& given = given_[command.name];
  parser.allow_extras();
  parser.set_help_flag("-h,--help");
  addOptions(parser, command.options, given);
  // "TEXT [LISTING...]": what has to be there comes first, and alone.
  const std::string_view arguments = command.arguments;
  if (arguments.empty()) return;
  const bool isFirstNeeded = !arguments.starts_with('[');
  if (isFirstNeeded) parser.add_option("needed", given.needed)->required();
  const bool mayHaveMore = !isFirstNeeded || arguments.find_first_of(" .") != std::string_view::npos;
  if (mayHaveMore) parser.add_option("others", given.others);
}

void CommandLine::addOptions(CLI::App& parser, const std::vector<OptionText>& options, Given& given) {
  for (const OptionText& option : options) {
    const std::string names(option.names);
    if (option.value.empty()) {
      parser.add_flag(names, given.flag(longName(option)));
    } else {
      parser.add_option(names, given.value(longName(option)));
    }
  }
  given.askParser([&parser](const std::string& name) { return parser.count(name) > 0; });
}

/// The exit status: 2 when the text could not be written.
int print(std::string_view text) {
  const bool isWritten = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
  if (isWritten && std::fflush(stdout) == 0) return 0;
  printError(Texts::tr("the text could not be written to standard output"));
  return 2;
}

QByteArray lineOf(const QString& sentence) {
  return "quorvin-cli: " + sentence.toLocal8Bit() + '\n';
}

/// Says what is wrong with the command line, and where it is told how `command` is written; null where no
/// command is meant.
int refuse(const QString& sentence, const CommandText* command) {
  const QString of = command ? textOf(command->name) + u' ' : QString();
  printError(sentence);
  printErrorLog(Texts::tr("Try: %1").arg(QStringLiteral("quorvin-cli %1--help").arg(of)));
  return 2;
}

int CommandLine::run(int argc, char** argv) {
  try {
    app_.parse(argc, argv);
    const Given& own = given_.at("");
    if (own.has("--help")) return print(helpOfProgram());
    if (own.has("--version")) return print("quorvin-cli " QUORVIN_VERSION "\n");
    if (own.has("--man")) return print(manualPage(QUORVIN_VERSION));
    if (const auto shell = own.text("--completion")) {
      const std::string completion = completionFor(shell->toStdString());
      if (!completion.empty()) return print(completion);
      throw Mistake{
          Texts::tr("there is no completion for \"%1\"; the shells are bash, zsh and fish").arg(*shell)};
    }
    const QString extra = leftOver();
    if (!extra.isEmpty()) throw Mistake{extra};
    return runNamed(*named());
  } catch (const CLI::CallForHelp&) {
    return print(named() ? helpOf(*named()) : helpOfProgram());
  } catch (const CLI::ArgumentMismatch& error) {
    // The parser's words start with the option's name.
    return refuse(Texts::tr("%1 needs a value").arg(textOf(std::string(error.what())).section(u':', 0, 0)),
                  named());
  } catch (const CLI::RequiredError&) {
    return refuse(whatIsMissing(), named());
  } catch (const CLI::ParseError&) {
    return refuse(Texts::tr("the options could not be understood"), named());
  } catch (const Mistake& mistake) {
    return refuse(mistake.sentence, named());
  }
}

/// The command that was asked for, the inner one of two; null for none.
const CommandText* CommandLine::named() const {
  const CommandText* found = nullptr;
  for (const CommandText& command : commandTexts()) {
    if (parsers_.at(command.name)->parsed()) found = &command;
  }
  return found;
}

QString CommandLine::whatIsMissing() const {
  const std::string_view name = named()->name;
  if (name == "find") return Texts::tr("find needs the words to find, in one argument");
  if (name == "compare") return Texts::tr("compare needs a listing or a folder");
  if (name == "plan") return Texts::tr("plan needs the words to find, in one argument, or - for a list");
  if (name == "index") return Texts::tr("index needs the folder to list");
  if (name == "verify") return Texts::tr("verify needs a listing, or the description of an own folder");
  if (name == "import") return Texts::tr("import needs the lists to import");
  if (name == "sources add") return Texts::tr("sources add needs a folder or a listing");
  return Texts::tr("%1 needs the description or the path of a source").arg(textOf(name));
}

/// What the parser had no place for. The first "--" is among it, and has said all that it has to say.
std::vector<std::string> remainingOf(const CLI::App& parser) {
  std::vector<std::string> remaining = parser.remaining();
  const auto mark = std::ranges::find(remaining, "--");
  if (mark != remaining.end()) remaining.erase(mark);
  return remaining;
}

/// A sentence about the first argument that has no meaning; empty when all have one.
QString CommandLine::leftOver() const {
  const std::vector<std::string> ofProgram = remainingOf(app_);
  const QString commands = Texts::tr(
      "the commands are find, copies, compare, plan, volumes, index, verify, import, refresh, sources, "
      "history and cache");
  if (!ofProgram.empty()) {
    const QString first = textOf(ofProgram.front());
    if (first.startsWith(u'-')) return Texts::tr("there is no option \"%1\"").arg(first);
    return Texts::tr("there is no command \"%1\"").arg(first) + QStringLiteral("; ") + commands;
  }
  if (!named()) return Texts::tr("there is no command") + QStringLiteral("; ") + commands;
  for (const CommandText& command : commandTexts()) {
    const std::vector<std::string> ofCommand = remainingOf(*parsers_.at(command.name));
    if (ofCommand.empty()) continue;
    const QString name = textOf(command.name);
    const QString first = textOf(ofCommand.front());
    if (!first.startsWith(u'-')) {
      return Texts::tr("%1 does not know what to do with \"%2\"").arg(name, first);
    }
    const QString hint = command.name == "find"
                             ? QStringLiteral("; ") + Texts::tr("words that start with a dash go behind --")
                             : QString();
    return Texts::tr("%1 has no option \"%2\"").arg(name, first) + hint;
  }
  return {};
}

int CommandLine::runNamed(const CommandText& command) {
  using Action = SourcesRequest::Action;
  const Given& given = given_.at(command.name);
  const std::string_view name = command.name;
  if (name == "find") return runFind(findRequestOf(given));
  if (name == "copies") return runCopies(copiesRequestOf(given));
  if (name == "compare") return runCompare(compareRequestOf(given));
  if (name == "plan") return runPlan(planRequestOf(given));
  if (name == "volumes") return runVolumes(volumesRequestOf(given));
  if (name == "index") return runIndexCommand(given);
  if (name == "verify") return runVerify(verifyRequestOf(given));
  if (name == "import") return runImportCommand(given);
  if (name == "refresh") return runRefresh({given.texts(), given.has("--quiet"), given.has("--json")});
  if (name == "sources") return runSourcesCommand(Action::List, given);
  if (name == "sources add") return runSourcesCommand(Action::Add, given);
  if (name == "sources remove") return runSourcesCommand(Action::Remove, given);
  if (name == "sources move") return runSourcesCommand(Action::Move, given);
  if (name == "history") return runHistoryCommand(given);
  const CacheRequest request{given.has("--unused"), given.has("--json")};
  return given.has("--clear") ? clearCache(request) : listCache(request);
}

int CommandLine::runIndexCommand(const Given& given) {
  IndexRequest request;
  request.folder = textOf(given.needed);
  request.label = given.text("--label").value_or(QString());
  request.output = given.text("--output").value_or(QString());
  request.foldersOnly = given.has("--folders-only");
  request.hasChecksums = given.has("--checksums");
  request.isQuiet = given.has("--quiet");
  const bool isFile = !request.output.isEmpty() && request.output != QStringLiteral("-");
  if (request.hasChecksums && !isFile) {
    throw Mistake{Texts::tr("--checksums goes with --output: the checksums are put beside the listing")};
  }
  if (request.hasChecksums && request.foldersOnly) {
    throw Mistake{Texts::tr("--folders-only lists no files that --checksums could be of")};
  }
  return runIndex(request);
}

int CommandLine::runImportCommand(const Given& given) {
  const auto text = [&given](const char* option) { return given.text(option).value_or(QString()); };
  return runImport({QStringList{textOf(given.needed)} + given.texts(), text("--output"), text("--format"),
                    text("--label"), text("--folder"), text("--pattern"), text("--columns"), text("--dates"),
                    text("--made"), text("--encoding"), given.has("--bytes"), given.has("--replace"),
                    given.has("--quiet")});
}

int CommandLine::runHistoryCommand(const Given& given) {
  HistoryRequest request{given.texts().value(0), given.has("--restore"), 0, given.has("--json")};
  if (given.texts().size() > 1) {
    throw Mistake{Texts::tr("history does not know what to do with \"%1\"").arg(given.texts()[1])};
  }
  const std::optional<QString> number = given.text("--number");
  if (!number) return runHistory(request);
  if (!request.restores) throw Mistake{Texts::tr("--number goes with --restore")};
  bool isNumber = false;
  request.number = number->toInt(&isNumber);
  if (isNumber && request.number >= 1) return runHistory(request);
  throw Mistake{Texts::tr("\"%1\" is no number of a version").arg(*number)};
}

int CommandLine::runSourcesCommand(SourcesRequest::Action action, const Given& given) {
  SourcesRequest request;
  request.action = action;
  if (!given.needed.empty()) request.names += textOf(given.needed);
  request.names += given.texts();
  request.isQuiet = given.has("--quiet");
  request.isJson = given.has("--json");
  if (action == SourcesRequest::Action::Add) {
    request.description = given.text("--name").value_or(QString());
    const bool isForMany = !request.description.isEmpty() && request.names.size() > 1;
    if (isForMany) throw Mistake{Texts::tr("--name is for one source at a time")};
  }
  if (action == SourcesRequest::Action::Move) {
    if (request.names.size() != 2) throw Mistake{Texts::tr("sources move needs a source and its place")};
    bool isNumber = false;
    request.place = request.names.takeLast().toInt(&isNumber);
    if (!isNumber) throw Mistake{Texts::tr("the place of sources move is a number from 1")};
  }
  return runSources(request);
}

}  // namespace

int main(int argc, char** argv) {
  // Made before: where there is no memory, or a file is cut, no text can be looked up.
  QByteArray noMemory("quorvin-cli: there is not enough memory\n");
  try {
    const QCoreApplication application(argc, argv);
    const SpokenLanguage language(usersLanguage());
    noMemory = lineOf(Texts::tr("there is not enough memory"));
    const QByteArray cutMapping =
        lineOf(Texts::tr("a file of the search cache was cut while it was searched. Please try again."));
    explainCutMapping(cutMapping.constData());
    // The toolkit makes its calendar when it is first asked for a month, and crashes if there is no memory
    // for that: better here, where no file has been touched.
    static_cast<void>(QCalendar());
    return CommandLine().run(argc, argv);
  } catch (const std::bad_alloc&) {
    std::fputs(noMemory.constData(), stderr);
    return 2;
  }
}
