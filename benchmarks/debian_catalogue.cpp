// SPDX-License-Identifier: GPL-2.0-or-later

// Builds one listing out of the contents lists of the Debian archive: some millions of real paths, every one
// the same on every machine that has fetched the same lists. Sizes and dates, which those lists do not hold,
// follow from a hash of the path.
#include "catalogue_writer.h"
#include "contents_lists.h"
#include "folder_tree.h"
#include "locale_option.h"

#include <CLI/CLI.hpp>

#include <cstdint>
#include <exception>
#include <iostream>
#include <limits>
#include <stdexcept>
#include <string>

namespace quorvin {
namespace {

struct Options {
  std::string output = "-";
  std::string locale = "C";
  std::int64_t limit = std::numeric_limits<std::int64_t>::max();
};

void writeList(const ContentsList& list, CatalogueWriter& writer, std::int64_t limit) {
  FolderTree tree;
  readContentsList(list, [&tree](std::string_view path) { tree.add(path); });
  const std::int64_t before = writer.entries();
  tree.write(writer, list.volume, limit);
  std::cerr << list.volume << ": " << writer.entries() - before << " entries\n";
}

void makeCatalogue(const Options& options) {
  const std::vector<ContentsList> lists = fetchedContentsLists();
  if (lists.empty()) {
    throw std::runtime_error(
        "no contents lists here; install the package apt-file and run \"apt-file update\"");
  }
  CatalogueWriter writer(options.output, localeNamed(options.locale));
  for (const ContentsList& list : lists) {
    if (writer.entries() >= options.limit) break;
    writeList(list, writer, options.limit);
  }
  writer.finish();
  std::cerr << writer.entries() << " entries in " << writer.folders() << " folders, " << writer.bytes()
            << " bytes\n";
}

}  // namespace
}  // namespace quorvin

int main(int argumentCount, char** arguments) {
  quorvin::Options options;
  CLI::App app("Builds a listing out of the contents lists of the Debian archive.");
  app.add_option("--output", options.output, "File to write; - is standard output")->capture_default_str();
  app.add_option("--limit", options.limit, "Stop after so many entries")->check(CLI::PositiveNumber);
  app.add_option("--locale", options.locale, "Locale of sizes and dates, such as C or en_US")
      ->capture_default_str();
  CLI11_PARSE(app, argumentCount, arguments);
  try {
    quorvin::makeCatalogue(options);
  } catch (const std::exception& failure) {
    std::cerr << "debian_catalogue: " << failure.what() << '\n';
    return 2;
  }
  return 0;
}
