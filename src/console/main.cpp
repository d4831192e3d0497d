#include "console/commands.h"

#include <CLI/CLI.hpp>
#include <QCoreApplication>
#include <QLocale>

#include <map>
#include <string>
#include <vector>

namespace {

const std::map<std::string, quorvin::HitFormat> kFormats = {
    {"tsv", quorvin::HitFormat::Tsv},
    {"csv", quorvin::HitFormat::Csv},
    {"json", quorvin::HitFormat::Json},
};

struct FindOptions {
  std::string searchText;
  std::string match = "50";
  quorvin::HitFormat format = quorvin::HitFormat::Tsv;
  bool countOnly = false;
  bool noCache = false;
  std::vector<std::string> listings;
};

CLI::App* addFind(CLI::App& app, FindOptions& options) {
  CLI::App* find = app.add_subcommand("find", "Find files in listings by words and a match percentage");
  find->add_option("--match", options.match, "Hits must match more than this percentage (1 to 100)")
      ->type_name("N")
      ->capture_default_str();
  find->add_option("--format", options.format, "How hits are written: tsv, csv or json")
      ->type_name("FORMAT")
      ->transform(CLI::CheckedTransformer(kFormats, CLI::ignore_case).description(""));
  find->add_flag("--count", options.countOnly, "Write only the number of hits");
  find->add_flag("--no-cache", options.noCache, "Neither read nor write the search cache");
  find->add_option("TEXT", options.searchText, "The words to find, in one argument")->required();
  find->add_option("LISTING", options.listings, "Listing files to search instead of the user's own sources");
  return find;
}

CLI::App* addCache(CLI::App& app, bool& clear) {
  CLI::App* cache =
      app.add_subcommand("cache", "List the files of the search cache with the listings they are for");
  cache->add_flag("--clear", clear, "Remove them all; they are made again when they are needed");
  return cache;
}

struct IndexOptions {
  std::string folder;
  std::string label;
  std::string output;
  bool foldersOnly = false;
};

CLI::App* addIndex(CLI::App& app, IndexOptions& options) {
  CLI::App* index = app.add_subcommand("index", "Write the listing of a folder");
  index->add_option("--label", options.label, "The volume's name in the listing; default: the folder's name")
      ->type_name("TEXT");
  index->add_flag("--folders-only", options.foldersOnly, "List folders only");
  index->add_option("--output", options.output, "The listing's file; default: standard output")
      ->type_name("FILE");
  index->add_option("FOLDER", options.folder, "The folder to list, with everything below it")->required();
  return index;
}

struct HistoryOptions {
  std::string listing;
  bool restores = false;
  int number = 0;
};

CLI::App* addHistory(CLI::App& app, HistoryOptions& options) {
  CLI::App* history = app.add_subcommand("history", "Show the earlier versions of listings, or restore one");
  CLI::Option* restore = history->add_flag("--restore", options.restores,
                                           "Put the newest complete version in the listing's place");
  history->add_option("--number", options.number, "Restore this version instead")
      ->type_name("N")
      ->check(CLI::Range(1, 99'999'999).description(""))
      ->needs(restore);
  history->add_option("LISTING", options.listing, "The description of a folder, or the name of a listing");
  return history;
}

quorvin::HistoryRequest requestOf(const HistoryOptions& options) {
  return {QString::fromLocal8Bit(options.listing.c_str()), options.restores, options.number};
}

quorvin::IndexRequest requestOf(const IndexOptions& options) {
  quorvin::IndexRequest request;
  request.folder = QString::fromLocal8Bit(options.folder.c_str());
  request.label = QString::fromLocal8Bit(options.label.c_str());
  request.output = QString::fromLocal8Bit(options.output.c_str());
  request.foldersOnly = options.foldersOnly;
  return request;
}

quorvin::FindRequest requestOf(const FindOptions& options) {
  quorvin::FindRequest request;
  request.searchText = QString::fromLocal8Bit(options.searchText.c_str());
  request.desiredMatch = QString::fromLocal8Bit(options.match.c_str());
  request.format = options.format;
  request.countOnly = options.countOnly;
  request.useCache = !options.noCache;
  for (const std::string& listing : options.listings) {
    request.listings.push_back(QString::fromLocal8Bit(listing.c_str()));
  }
  return request;
}

}  // namespace

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  CLI::App app("Quorvin Utility in the terminal: search and make catalogues of disks and folders.",
               "quorvin-cli");
  app.set_version_flag("--version", "quorvin-cli " QUORVIN_VERSION);
  app.require_subcommand(1);
  FindOptions findOptions;
  IndexOptions indexOptions;
  HistoryOptions historyOptions;
  bool clearCache = false;
  const CLI::App* find = addFind(app, findOptions);
  const CLI::App* index = addIndex(app, indexOptions);
  const CLI::App* refresh =
      app.add_subcommand("refresh", "Renew the listings of the user's own online sources");
  const CLI::App* history = addHistory(app, historyOptions);
  const CLI::App* cache = addCache(app, clearCache);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    if (error.get_exit_code() == 0) return app.exit(error);
    std::fprintf(stderr, "quorvin-cli: %s\nTry: quorvin-cli --help\n", error.what());
    return 2;
  }
  if (find->parsed()) return quorvin::runFind(requestOf(findOptions));
  if (index->parsed()) return quorvin::runIndex(requestOf(indexOptions));
  if (refresh->parsed()) return quorvin::runRefresh();
  if (history->parsed()) return quorvin::runHistory(requestOf(historyOptions));
  if (cache->parsed()) return clearCache ? quorvin::clearCache() : quorvin::listCache();
  return 2;
}
