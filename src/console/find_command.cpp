// "find" and "cache": a search in the terminal, and what searches have kept.
#include "console/commands.h"
#include "console/error_lines.h"
#include "faults/runtime_fault.h"
#include "files/file_aside.h"
#include "platform/standard_folders.h"
#include "platform/stop_signal.h"
#include "search/match/search_query.h"
#include "search/search_run.h"
#include "search/segment/segment_store.h"
#include "state/settings.h"

#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QRegularExpression>

#include <cstdio>
#include <optional>

namespace quorvin {

namespace {

bool isNumber(const QString& text) {
  static const QRegularExpression number(
      QRegularExpression::anchoredPattern(QStringLiteral("[+-]?([0-9]+\\.?[0-9]*|\\.[0-9]+)")));
  return number.match(text).hasMatch();
}

bool hasTooManyWords(const QString& searchText) {
  try {
    splitSearchText(searchText);
  } catch (const RuntimeFault&) {
    return true;
  }
  return false;
}

/// What is wrong with the request, as a sentence; empty when nothing is.
QString complaintAbout(const FindRequest& request) {
  if (request.searchText.isEmpty()) return QStringLiteral("the search text is empty");
  if (hasTooManyWords(request.searchText)) {
    return QStringLiteral("the search text has more than %1 words").arg(kMostWords);
  }
  if (!isNumber(request.desiredMatch)) {
    return QStringLiteral("the value of --match is a percentage from 1 to 100, not \"%1\"")
        .arg(request.desiredMatch);
  }
  return {};
}

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
  const QString complaint = complaintAbout(request);
  if (!complaint.isEmpty()) {
    printError(complaint);
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
    if (request.listings.empty()) {
      loadUserSources(state, locale, messages);
      if (!state.hasSources()) {
        printError(QStringLiteral(
            "there is nothing to search yet. Name listings after the words, or add folders or lists in the "
            "window"));
        return 2;
      }
    }
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
  if (failed || !writer.good()) return 2;
  if (stopSignalled()) return stopStatus();
  if (run.failedListings() > 0) return 2;
  return run.hitCount() > 0 ? 0 : 1;
}

int listCache() {
  const QString folder = userCacheFolder();
  for (const QString& path : segmentFiles(folder)) {
    const QByteArray listing = listingOfSegmentFile(path).toLocal8Bit();
    printCacheFile(path, listing.isEmpty() ? "(damaged)" : listing.constData());
  }
  for (const QString& path : filesAside(folder)) printCacheFile(path, "(unfinished)");
  for (const QString& path : earlierSegmentFiles(folder)) printCacheFile(path, "(of an earlier version)");
  if (std::fflush(stdout) == 0) return 0;
  printError(QStringLiteral("the list could not be written to standard output"));
  return 2;
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
