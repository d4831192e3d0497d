// SPDX-License-Identifier: GPL-2.0-or-later

// "find": a search in the terminal.
#include "console/commands.h"
#include "console/error_lines.h"
#include "console/hit_writer.h"
#include "console/search_parts.h"
#include "dates/general_number.h"
#include "faults/runtime_fault.h"
#include "platform/stop_signal.h"
#include "platform/text_encoding.h"
#include "search/match/search_query.h"
#include "search/search_run.h"
#include "search/segment/segment_store.h"
#include "texts/texts.h"

#include <QFileInfo>
#include <QLocale>

#include <algorithm>
#include <cstdio>
#include <optional>
#include <unistd.h>

namespace quorvin {

namespace {

/// What is wrong with the request, as a sentence; empty when nothing is.
QString complaintAbout(const FindRequest& request) {
  if (request.searchText.isEmpty()) return Texts::tr("the search text is empty");
  return complaintAboutSearch(request.searchText, request.desiredMatch);
}

/// Whether the user wants colours where they can be seen.
bool isColourWelcome() {
  return qEnvironmentVariableIsEmpty("NO_COLOR") && qgetenv("TERM") != "dumb";
}

RowOptions rowOptions(const FindRequest& request) {
  RowOptions options;
  options.format = request.format;
  options.fields = request.fields;
  options.endsWithNul = request.endsWithNul;
  options.isForTerminal = ::isatty(STDOUT_FILENO) == 1;
  const bool isColoured = request.colours == ColourUse::Always ||
                          (request.colours == ColourUse::Auto && options.isForTerminal && isColourWelcome());
  options.isColoured = isColoured && request.format == RowFormat::Tsv;
  return options;
}

/// One search with all that it writes.
class Finding {
 public:
  explicit Finding(const FindRequest& request)
      : request_(request),
        progress_(!request.isQuiet, SearchProgress::Shows::FoundAndSearched),
        options_(rowOptions(request)),
        rows_(options_, locale_, SearchQuery(simpleLowerCase(request.searchText), 1), state_),
        writer_(stdout, rows_, writerOptions()) {
    if (request.useCache) segments_.emplace(SegmentStore::defaultOptions(SegmentUse::Once));
    run_.emplace(parts());
  }

  int run() {
    if (request_.hasHeader && !request_.countOnly) writer_.writeHead();
    try {
      if (request_.listings.empty() && !loadSourcesToSearch(state_, locale_, messages_)) return 2;
      watchStopSignal();
      search();
      if (request_.order.column) writeSorted();
    } catch (const RuntimeFault& fault) {
      hasFailed_ = true;
      printError(fault.description());
    }
    progress_.line().clear();
    if (request_.countOnly) std::printf("%lld\n", static_cast<long long>(shownHits()));
    finishOutput();
    report();
    return status();
  }

 private:
  WriterOptions writerOptions() {
    WriterOptions options;
    if (request_.limit) options.limit = *request_.limit;
    options.isWatched = options_.isForTerminal;
    options.beforeOutput = [this] { progress_.line().clear(); };
    return options;
  }

  RunParts parts() {
    RunParts parts{state_, messages_, locale_};
    if (!request_.countOnly) parts.hits = request_.order.column ? static_cast<HitSink*>(&table_) : &writer_;
    parts.segments = segments_ ? &*segments_ : nullptr;
    parts.display = progress_.line().isOnTerminal() ? &progress_ : nullptr;
    parts.endRequested = stopSignalled;
    parts.streamAt = listingStreamAt;
    return parts;
  }

  void search() {
    if (request_.limit == 0) return;
    if (request_.listings.empty()) {
      run_->Find_Click(request_.searchText, request_.desiredMatch);
    } else {
      run_->searchListings(request_.searchText, request_.desiredMatch, request_.listings);
    }
  }

  void writeSorted() {
    HitSort sort(table_, request_.order, locale_);
    while (!sort.goOn([] { return false; })) {
    }
    const std::int64_t damaged = writer_.writeRows(table_, sort.takeRows());
    if (damaged == 0) return;
    hasFailed_ = true;
    printError(Texts::tr("%1 hits could not be read from the search cache. Please try again", nullptr,
                         Texts::plural(damaged))
                   .arg(damaged));
  }

  void finishOutput() {
    writer_.flush();
    isWritten_ = writer_.good() && std::fflush(stdout) == 0;
    if (!isWritten_) printError(Texts::tr("the hits could not all be written to standard output"));
  }

  /// The number of hits, or of those that were wanted.
  std::int64_t shownHits() const {
    const std::int64_t hits = run_->hitCount();
    return request_.limit ? std::min(hits, *request_.limit) : hits;
  }

  void report() {
    if (writer_.leftOut() > 0) {
      printError(Texts::tr("%1 hits were left out, since they are from no folder of your own or their "
                           "files are not there",
                           nullptr, Texts::plural(writer_.leftOut()))
                     .arg(writer_.leftOut()));
    }
    const bool wantsMoreThanAll = leadingNumber(request_.desiredMatch) >= 100;
    if (wantsMoreThanAll) {
      printError(Texts::tr("nothing matches more than 100%; --match 99 finds what has all the words"));
    }
    explainMissing();
    if (request_.isQuiet) return;
    printErrorLog(Texts::tr("%1 found, %2 searched").arg(shownHits()).arg(run_->searchedCount()));
  }

  /// A word that was meant to be found counts as a listing when it comes as an argument of its own, and so
  /// does a folder.
  void explainMissing() const {
    if (run_->report().missing == 0) return;
    for (const QString& listing : request_.listings) {
      if (QFileInfo(listing).isDir()) {
        printError(Texts::tr("%1 is a folder, not a listing; quorvin-cli index makes a listing of a folder")
                       .arg(listing));
      }
      const bool isWord = !listing.contains(u'/') && !listing.contains(u'.') && !QFileInfo::exists(listing);
      if (!isWord || listing == QStringLiteral("-")) continue;
      printError(
          Texts::tr("words to find come in one argument: \"%1 %2\"").arg(request_.searchText, listing));
      return;
    }
  }

  int status() const {
    if (hasFailed_ || !isWritten_) return 2;
    if (stopSignalled()) return stopStatus();
    if (run_->failedListings() > 0) return 2;
    return run_->hitCount() > 0 ? 0 : 1;
  }

  const FindRequest& request_;
  QLocale locale_;
  ProgramState state_;
  ErrorLines messages_;
  SearchProgress progress_;
  RowOptions options_;
  HitRows rows_;
  HitWriter writer_;
  HitTable table_;
  std::optional<SegmentStore> segments_;
  std::optional<SearchRun> run_;
  bool hasFailed_ = false;
  bool isWritten_ = true;
};

}  // namespace

int runFind(const FindRequest& request) {
  const QString complaint = complaintAbout(request);
  if (complaint.isEmpty()) return Finding(request).run();
  printError(complaint);
  return 2;
}

}  // namespace quorvin
