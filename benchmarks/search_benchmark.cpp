// SPDX-License-Identifier: GPL-2.0-or-later

// Google Benchmark cases of the search itself: reading a listing that is in memory, and searching its
// segment. Each case first proves its number of hits against the plain reference.
#include "catalogue_writer.h"
#include "dropped_hits.h"
#include "generated_tree.h"
#include "search/listing_scan.h"
#include "search/match/segment_search.h"
#include "search/segment/segment_builder.h"
#include "support/reference_scan.h"
#include "support/scan_of.h"

#include <QFile>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

#include <cstdint>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace quorvin {
namespace {

constexpr std::int64_t kEntries = 200'000;
constexpr std::uint64_t kSeed = 1;
constexpr std::int16_t kDesiredMatch = 50;
constexpr std::int64_t kUnproved = -1;

struct Case {
  const char* name;
  const char16_t* words;
};

constexpr char16_t kNothing[] = u"nosuchword";
constexpr Case kSearches[] = {
    {"search/one_rare_word", u"kumquat"},
    {"search/one_common_word", u"live"},
    {"search/three_words", u"live report summer"},
    {"search/eight_words", u"live report summer copy letter track house night"},
    {"search/a_single_letter", u"e"},
};

SearchQuery queryOf(const char16_t* words) {
  return SearchQuery(QStringView(words), kDesiredMatch);
}

QByteArray generatedListing() {
  const QTemporaryDir folder;
  QFile file(folder.filePath(QStringLiteral("listing.txt")));
  CatalogueWriter writer(file.fileName().toStdString(), QLocale::c());
  GeneratedTree(kSeed, writer).write(kEntries);
  writer.finish();
  if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("the listing could not be read back");
  return file.readAll();
}

/// One segment of the whole listing, as it is kept for later searches. The listing's last line has an end.
/// `padded` has kLinePadding bytes before and behind the listing.
std::shared_ptr<const Segment> builtSegment(std::string_view padded) {
  SegmentBuilder builder(QLocale::c());
  builder.addLines(padded.data() + kLinePadding, padded.size() - 2 * kLinePadding);
  builder.readAllValues();
  builder.finishText();
  builder.segment()->complete();
  builder.segment()->publish();
  return builder.segment();
}

/// Hits of a search that reads the listing and keeps no segment.
std::int64_t hitsInPassing(const QByteArray& listing, const SearchQuery& query) {
  RunCounts counts;
  DroppedHits hits;
  ScanOutcome outcome;
  const auto neverStop = [](std::int64_t) { return false; };
  scanListing([&] { return test::MemoryListing(listing); }, {query, QLocale::c(), &hits, neverStop}, counts,
              outcome);
  return hits.count();
}

std::int64_t hitsIn(const Segment& segment, const SearchQuery& query) {
  std::vector<FoundEntry> hits;
  SegmentSearch(query).search(segment, 0, segment.entryCount(), hits);
  return static_cast<std::int64_t>(hits.size());
}

/// Ends the program unless the reference finds as many: the time of a wrong answer is worth nothing.
void prove(const Case& tried, const QByteArray& listing, std::int64_t found) {
  const test::ReferenceResult reference =
      test::referenceScan(listing, QString::fromUtf16(tried.words), kDesiredMatch, QLocale::c());
  const auto expected = static_cast<std::int64_t>(reference.hits.size());
  if (found == expected && reference.searched == kEntries) return;
  std::cerr << "search_benchmark: " << tried.name << ": " << found << " hits, the reference has " << expected
            << " in " << reference.searched << " entries\n";
  std::exit(1);
}

/// Times `work`, which goes through the whole listing once. The library calls a case several times; `answer`
/// is proved at the first of them.
template <typename Work, typename Answer>
void addCase(const std::string& name, const Case& tried, const QByteArray& listing, Work work,
             Answer answer) {
  const auto timed = [&tried, &listing, work, answer, found = kUnproved](benchmark::State& state) mutable {
    if (found == kUnproved) prove(tried, listing, found = answer());
    for (auto _ : state) work();
    const auto rounds = static_cast<std::int64_t>(state.iterations());
    state.SetBytesProcessed(rounds * listing.size());
    state.counters["entries_per_second"] =
        benchmark::Counter(static_cast<double>(rounds * kEntries), benchmark::Counter::kIsRate);
    state.counters["proved_hits"] = static_cast<double>(found);
  };
  benchmark::RegisterBenchmark(name.c_str(), timed)->Unit(benchmark::kMicrosecond);
}

/// Building is timed without hits, but a count of none would prove little.
void addBuildingCases(const QByteArray& listing, std::string_view padded) {
  constexpr const Case& proof = kSearches[1];
  addCase(
      "build/in_passing", proof, listing,
      [&listing, nothing = queryOf(kNothing)] { benchmark::DoNotOptimize(hitsInPassing(listing, nothing)); },
      [&listing] { return hitsInPassing(listing, queryOf(proof.words)); });
  addCase(
      "build/to_keep", proof, listing, [padded] { benchmark::DoNotOptimize(builtSegment(padded)); },
      [padded] { return hitsIn(*builtSegment(padded), queryOf(proof.words)); });
}

void addSearchCases(const QByteArray& listing, const Segment& segment) {
  for (const Case& tried : kSearches) {
    const auto found = [&segment, query = queryOf(tried.words)] { return hitsIn(segment, query); };
    addCase(
        tried.name, tried, listing, [found] { benchmark::DoNotOptimize(found()); }, found);
  }
}

}  // namespace
}  // namespace quorvin

int main(int argumentCount, char** arguments) {
  benchmark::Initialize(&argumentCount, arguments);
  if (benchmark::ReportUnrecognizedArguments(argumentCount, arguments)) return 2;
  try {
    const QByteArray listing = quorvin::generatedListing();
    const std::string padding(quorvin::kLinePadding, '\0');
    const std::string padded = padding + listing.toStdString() + padding;
    const std::shared_ptr<const quorvin::Segment> segment = quorvin::builtSegment(padded);
    quorvin::addBuildingCases(listing, padded);
    quorvin::addSearchCases(listing, *segment);
    benchmark::RunSpecifiedBenchmarks();
  } catch (const std::exception& failure) {
    std::cerr << "search_benchmark: " << failure.what() << '\n';
    return 2;
  }
  return 0;
}
