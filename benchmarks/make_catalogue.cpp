// SPDX-License-Identifier: GPL-2.0-or-later

// Makes a catalogue of made-up files: any number of entries, the same ones for the same seed on every
// machine.
#include "catalogue_writer.h"
#include "generated_tree.h"
#include "locale_option.h"
#include "vocabulary.h"

#include <CLI/CLI.hpp>

#include <cstdint>
#include <cstdio>
#include <exception>
#include <iostream>
#include <string>

namespace quorvin {
namespace {

struct Options {
  std::string output = "-";
  std::string locale = "C";
  std::int64_t entries = 1'000'000;
  std::uint64_t seed = 1;
  bool words = false;
};

void printWord(const Vocabulary& vocabulary, std::size_t rank) {
  const double perTenMillion = vocabulary.share(rank) * NameMaker::kMeanWords * 1e7;
  const std::string_view word = vocabulary.word(rank);
  std::printf("%7zu  %-16.*s %10.0f\n", rank, static_cast<int>(word.size()), word.data(), perTenMillion);
}

// What a search finds may be more: a word may stand inside a longer one, and in the folder.
void printWords() {
  const Vocabulary vocabulary;
  std::printf("   rank  word             draws for 10 million file names (computed)\n");
  for (std::size_t rank = 0; rank < commonWords().size(); ++rank) printWord(vocabulary, rank);
  for (std::size_t rank = 200; rank < vocabulary.size(); rank *= 2) printWord(vocabulary, rank);
  for (std::size_t i = rareWords().size(); i > 0; --i) printWord(vocabulary, vocabulary.size() - i);
}

void makeCatalogue(const Options& options) {
  CatalogueWriter writer(options.output, localeNamed(options.locale));
  GeneratedTree(options.seed, writer).write(options.entries);
  writer.finish();
  std::cerr << writer.entries() << " entries in " << writer.folders() << " folders, " << writer.bytes()
            << " bytes\n";
}

}  // namespace
}  // namespace quorvin

int main(int argumentCount, char** arguments) {
  quorvin::Options options;
  CLI::App app("Makes a catalogue of made-up files.");
  app.add_option("--output", options.output, "File to write; - is standard output")->capture_default_str();
  app.add_option("--entries", options.entries, "Number of entries")
      ->check(CLI::Range(std::int64_t{1}, std::int64_t{100'000'000}))
      ->capture_default_str();
  app.add_option("--seed", options.seed, "Equal seeds give equal files")->capture_default_str();
  app.add_option("--locale", options.locale, "Locale of sizes and dates, such as C or en_US")
      ->capture_default_str();
  app.add_flag("--words", options.words, "Print common and rare words and how often they are drawn, and end");
  CLI11_PARSE(app, argumentCount, arguments);
  try {
    if (options.words) {
      quorvin::printWords();
    } else {
      quorvin::makeCatalogue(options);
    }
  } catch (const std::exception& failure) {
    std::cerr << "make_catalogue: " << failure.what() << '\n';
    return 2;
  }
  return 0;
}
