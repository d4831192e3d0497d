#include "console/find_command.h"

#include "console/error_lines.h"
#include "console/own_sources.h"
#include "faults/runtime_fault.h"
#include "platform/ini_settings_store.h"
#include "platform/stop_signal.h"
#include "search/search_run.h"

#include <QLocale>

#include <cstdio>
#include <optional>

namespace quorvin {

namespace {

void search(const FindRequest& request, SearchRun& run) {
  if (request.listings.empty()) {
    run.Find_Click(request.searchText, request.desiredMatch);
  } else {
    run.searchListings(request.searchText, request.desiredMatch, request.listings);
  }
}

}  // namespace

int runFind(const FindRequest& request) {
  if (request.searchText.isEmpty()) {
    printError(QStringLiteral("the search text is empty"));
    return 2;
  }
  const QLocale locale;
  ProgramState state;
  ErrorLines messages;
  HitWriter writer(stdout, request.format, locale);
  std::optional<SegmentStore> segments;
  if (request.useCache) segments.emplace(SegmentStore::defaultOptions(SegmentUse::Once));
  RunParts parts{state, messages, locale};
  parts.hits = request.countOnly ? nullptr : &writer;
  parts.segments = segments ? &*segments : nullptr;
  parts.endRequested = stopSignalled;
  SearchRun run(std::move(parts));
  bool failed = false;
  try {
    if (request.listings.empty()) loadOwnSources(state, locale);
    watchStopSignal();
    search(request, run);
  } catch (const RuntimeFault& fault) {
    failed = true;
    printError(fault.text());
  }
  if (request.countOnly) std::printf("%lld\n", static_cast<long long>(run.hitCount()));
  writer.flush();
  if (!writer.good()) printError(QStringLiteral("the hits could not all be written to standard output"));
  std::fprintf(stderr, "%lld found, %lld searched\n", static_cast<long long>(run.hitCount()),
               static_cast<long long>(run.searchedCount()));
  if (failed || run.failedListings() > 0 || !writer.good()) return 2;
  return run.hitCount() > 0 ? 0 : 1;
}

}  // namespace quorvin
