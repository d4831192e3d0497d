#include "console/commands.h"
#include "console/error_lines.h"
#include "files/file_reader.h"

#include <CLI/CLI.hpp>
#include <QCalendar>
#include <QCoreApplication>
#include <QLocale>

#include <cstdio>
#include <map>
#include <new>
#include <optional>
#include <string>
#include <vector>

namespace {

using namespace quorvin;

QString textOf(const std::string& argument) {
  return QString::fromLocal8Bit(argument.c_str());
}

struct FindOptions {
  std::string searchText;
  std::string match = "50";
  std::string format = "tsv";
  bool countOnly = false;
  bool noCache = false;
  std::vector<std::string> listings;
};

struct IndexOptions {
  std::string folder;
  std::string label;
  std::string output;
  bool foldersOnly = false;
};

struct HistoryOptions {
  std::string listing;
  std::string number;
  bool restores = false;
};

/// The command line: what can be asked for, and what was.
class CommandLine {
 public:
  CommandLine() {
    app_.set_version_flag("--version", "quorvin-cli " QUORVIN_VERSION);
    // What is left over is reported in our own words.
    app_.allow_extras();
    for (CLI::App* app : {&app_, find_, index_, refresh_, history_, cache_}) nameParts(*app);
    addFind();
    addIndex();
    refresh_->allow_extras();
    addHistory();
    addCache();
  }

  /// Does what is asked for; the program's exit status.
  int run(int argc, char** argv);

 private:
  static void nameParts(CLI::App& app);
  void addFind();
  void addIndex();
  void addHistory();
  void addCache();
  int runCommand();
  int runFindCommand();
  int runIndexCommand();
  int runHistoryCommand();
  int refuse(const QString& sentence) const;
  QString leftOver() const;

  CLI::App app_{"Quorvin Utility in the terminal: search and make catalogues of disks and folders.",
                "quorvin-cli"};
  CLI::App* find_ = app_.add_subcommand("find", "Find files in listings by words and a match percentage");
  CLI::App* index_ = app_.add_subcommand("index", "Write the listing of a folder");
  CLI::App* refresh_ = app_.add_subcommand("refresh", "Renew the listings of the user's own online sources");
  CLI::App* history_ =
      app_.add_subcommand("history", "Show the earlier versions of listings, or restore one");
  CLI::App* cache_ =
      app_.add_subcommand("cache", "List the files of the search cache with the listings they are for");
  FindOptions findOptions_;
  IndexOptions indexOptions_;
  HistoryOptions historyOptions_;
  bool clearCache_ = false;
};

/// An argument that has to be there; its help comes without the parser's remarks.
void addNeeded(CLI::App& command, const std::string& name, std::string& value, const std::string& help) {
  command.add_option(name, value, help)->required()->option_text(" ");
}

/// The headings and marks of the help.
void CommandLine::nameParts(CLI::App& app) {
  CLI::FormatterBase& help = *app.get_formatter();
  help.label("OPTIONS", "options");
  help.label("Positionals", "Arguments");
  help.label("SUBCOMMAND", "command");
}

void CommandLine::addFind() {
  find_->allow_extras();
  find_->add_option("--match", findOptions_.match, "Hits must match more than this percentage (1 to 100); 50")
      ->option_text("N");
  find_->add_option("--format", findOptions_.format, "How hits are written: tsv (default), csv or json")
      ->option_text("FORMAT");
  find_->add_flag("--count", findOptions_.countOnly, "Write only the number of hits");
  find_->add_flag("--no-cache", findOptions_.noCache, "Neither read nor write the search cache");
  addNeeded(*find_, "TEXT", findOptions_.searchText, "The words to find, in one argument");
  find_
      ->add_option("LISTING", findOptions_.listings,
                   "Listing files to search instead of the user's own sources")
      ->option_text(" ");
}

void CommandLine::addIndex() {
  index_->allow_extras();
  index_
      ->add_option("--label", indexOptions_.label,
                   "The volume's name in the listing; default: the folder's name")
      ->option_text("TEXT");
  index_->add_flag("--folders-only", indexOptions_.foldersOnly, "List folders only");
  index_->add_option("--output", indexOptions_.output, "The listing's file; default: standard output")
      ->option_text("FILE");
  addNeeded(*index_, "FOLDER", indexOptions_.folder, "The folder to list, with everything below it");
}

void CommandLine::addHistory() {
  history_->allow_extras();
  history_->add_flag("--restore", historyOptions_.restores,
                     "Put the newest complete version in the listing's place");
  history_->add_option("--number", historyOptions_.number, "Restore this version instead")->option_text("N");
  history_
      ->add_option("LISTING", historyOptions_.listing,
                   "The description of a folder, or the name of a listing")
      ->option_text(" ");
}

void CommandLine::addCache() {
  cache_->allow_extras();
  cache_->add_flag("--clear", clearCache_, "Remove them all; they are made again when they are needed");
}

/// The exit status: 2 when the text could not be written.
int print(std::string text) {
  if (text.empty() || text.back() != '\n') text += '\n';
  const bool written = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
  if (written && std::fflush(stdout) == 0) return 0;
  printError(QStringLiteral("the text could not be written to standard output"));
  return 2;
}

int CommandLine::run(int argc, char** argv) {
  try {
    app_.parse(argc, argv);
  } catch (const CLI::CallForHelp&) {
    return print(app_.help());
  } catch (const CLI::CallForVersion&) {
    return print(app_.version());
  } catch (const CLI::ArgumentMismatch& error) {
    // The parser's words start with the option's name.
    return refuse(textOf(error.what()).section(u':', 0, 0) + QStringLiteral(" needs a value"));
  } catch (const CLI::RequiredError&) {
    return refuse(index_->parsed() ? QStringLiteral("index needs the folder to list")
                                   : QStringLiteral("find needs the words to find, in one argument"));
  } catch (const CLI::ParseError&) {
    return refuse(QStringLiteral("the options could not be understood"));
  }
  const QString leftOverSentence = leftOver();
  return leftOverSentence.isEmpty() ? runCommand() : refuse(leftOverSentence);
}

int CommandLine::refuse(const QString& sentence) const {
  printError(sentence);
  std::fprintf(stderr, "Try: quorvin-cli --help\n");
  return 2;
}

/// A sentence about the first argument that has no meaning; empty when all have one.
QString CommandLine::leftOver() const {
  const std::vector<std::string> ofProgram = app_.remaining();
  const QString commands = QStringLiteral("the commands are find, index, refresh, history and cache");
  if (!ofProgram.empty()) {
    const QString first = textOf(ofProgram.front());
    if (first.startsWith(u'-')) return QStringLiteral("there is no option \"%1\"").arg(first);
    return QStringLiteral("there is no command \"%1\"; ").arg(first) + commands;
  }
  const std::vector<CLI::App*> named = app_.get_subcommands();
  if (named.empty()) return QStringLiteral("there is no command; ") + commands;
  const CLI::App& command = *named.front();
  const std::vector<std::string> ofCommand = command.remaining();
  if (ofCommand.empty()) return {};
  const QString name = textOf(command.get_name());
  const QString first = textOf(ofCommand.front());
  if (!first.startsWith(u'-')) {
    return QStringLiteral("%1 does not know what to do with \"%2\"").arg(name, first);
  }
  const QString hint =
      &command == find_ ? QStringLiteral("; words that start with a dash go behind --") : QString();
  return QStringLiteral("%1 has no option \"%2\"").arg(name, first) + hint;
}

int CommandLine::runCommand() {
  if (find_->parsed()) return runFindCommand();
  if (index_->parsed()) return runIndexCommand();
  if (refresh_->parsed()) return runRefresh();
  if (history_->parsed()) return runHistoryCommand();
  return clearCache_ ? clearCache() : listCache();
}

std::optional<HitFormat> formatOf(const QString& name) {
  static const std::map<QString, HitFormat> formats = {{QStringLiteral("tsv"), HitFormat::Tsv},
                                                       {QStringLiteral("csv"), HitFormat::Csv},
                                                       {QStringLiteral("json"), HitFormat::Json}};
  const auto found = formats.find(name.toLower());
  return found == formats.end() ? std::nullopt : std::optional(found->second);
}

int CommandLine::runFindCommand() {
  const std::optional<HitFormat> format = formatOf(textOf(findOptions_.format));
  if (!format) {
    return refuse(QStringLiteral("there is no format \"%1\"; the formats are tsv, csv and json")
                      .arg(textOf(findOptions_.format)));
  }
  FindRequest request;
  request.searchText = textOf(findOptions_.searchText);
  request.desiredMatch = textOf(findOptions_.match);
  request.format = *format;
  request.countOnly = findOptions_.countOnly;
  request.useCache = !findOptions_.noCache;
  for (const std::string& listing : findOptions_.listings) request.listings.push_back(textOf(listing));
  return runFind(request);
}

int CommandLine::runIndexCommand() {
  IndexRequest request;
  request.folder = textOf(indexOptions_.folder);
  request.label = textOf(indexOptions_.label);
  request.output = textOf(indexOptions_.output);
  request.foldersOnly = indexOptions_.foldersOnly;
  return runIndex(request);
}

int CommandLine::runHistoryCommand() {
  HistoryRequest request{textOf(historyOptions_.listing), historyOptions_.restores, 0};
  if (historyOptions_.number.empty()) return runHistory(request);
  if (!request.restores) return refuse(QStringLiteral("--number goes with --restore"));
  bool isNumber = false;
  request.number = textOf(historyOptions_.number).toInt(&isNumber);
  if (isNumber && request.number >= 1) return runHistory(request);
  return refuse(QStringLiteral("\"%1\" is no number of a version").arg(textOf(historyOptions_.number)));
}

}  // namespace

int main(int argc, char** argv) {
  explainCutMapping(
      "quorvin-cli: a file of the search cache was cut while it was searched. Please try again.\n");
  try {
    const QCoreApplication application(argc, argv);
    // The toolkit makes its calendar when it is first asked for a month, and crashes if there is no memory
    // for that: better here, where no file has been touched.
    static_cast<void>(QCalendar());
    return CommandLine().run(argc, argv);
  } catch (const std::bad_alloc&) {
    std::fputs("quorvin-cli: there is not enough memory\n", stderr);
    return 2;
  }
}
