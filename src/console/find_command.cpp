// "find" and "cache": a search in the terminal, and what searches have kept.
#include "console/commands.h"
#include "console/error_lines.h"
#include "faults/runtime_fault.h"
#include "files/file_aside.h"
#include "platform/standard_folders.h"
#include "platform/stop_signal.h"
#include "search/search_run.h"
#include "search/segment/segment_store.h"
#include "state/settings.h"

#include <QFile>
#include <QFileInfo>
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

void printCacheFile(const QString& path, const char* listing) {
  std::printf("%lld\t%s\n", static_cast<long long>(QFileInfo(path).size()), listing);
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
    if (request.listings.empty()) loadUserSources(state, locale, messages);
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

int listCache() {
  const QString folder = userCacheFolder();
  for (const QString& path : segmentFiles(folder)) {
    const QByteArray listing = listingOfSegmentFile(path).toLocal8Bit();
    printCacheFile(path, listing.isEmpty() ? "(damaged)" : listing.constData());
  }
  for (const QString& path : filesAside(folder)) printCacheFile(path, "(unfinished)");
  return 0;
}

int clearCache() {
  int status = 0;
  const QString folder = userCacheFolder();
  for (const QString& path : segmentFiles(folder) + earlierSegmentFiles(folder) + filesAside(folder)) {
    if (QFile::remove(path)) continue;
    std::fprintf(stderr, "quorvin-cli: %s could not be removed\n", path.toLocal8Bit().constData());
    status = 2;
  }
  return status;
}

}  // namespace quorvin
