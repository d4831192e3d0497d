// SPDX-License-Identifier: GPL-2.0-or-later

// "plan": which volumes to fetch for files that are wanted.
#include "console/commands.h"
#include "console/error_lines.h"
#include "console/plan_rows.h"
#include "console/plan_script.h"
#include "console/search_parts.h"
#include "console/wanted_list.h"
#include "faults/runtime_fault.h"
#include "files/file_writer.h"
#include "files/stream_reader.h"
#include "platform/stop_signal.h"
#include "texts/texts.h"

#include <QDir>
#include <QLocale>

#include <optional>
#include <unistd.h>

namespace quorvin {

namespace {

/// What is wrong with the request, as a sentence; empty when nothing is.
QString complaintAbout(const PlanRequest& request) {
  if (request.searchText.isEmpty()) return Texts::tr("the search text is empty");
  for (const QString& listing : request.listings) {
    if (request.isList() && listing == QStringLiteral("-")) {
      return Texts::tr("standard input can be the list or a listing, not both");
    }
    if (!request.isList() && listingStreamAt(listing)) {
      return Texts::tr("%1 can be read once only, and a plan for words needs to read it twice").arg(listing);
    }
  }
  return request.isList() ? QString() : complaintAboutSearch(request.searchText, request.desiredMatch);
}

class Planner {
 public:
  explicit Planner(const PlanRequest& request)
      : request_(request), progress_(!request.isQuiet, SearchProgress::Shows::Searched), finder_(parts()) {}

  int run() {
    try {
      if (request_.listings.empty() && !loadSourcesToSearch(state_, locale_, messages_)) return 2;
      watchStopSignal();
      if (find()) write();
    } catch (const RuntimeFault& fault) {
      hasFailed_ = true;
      printError(fault.description());
    }
    progress_.line().clear();
    if (!hasFailed_ && !stopSignalled()) report();
    return status();
  }

 private:
  FetchFinder::Parts parts() {
    FetchFinder::Parts parts{state_, messages_, locale_};
    parts.display = progress_.line().isOnTerminal() ? &progress_ : nullptr;
    parts.endRequested = stopSignalled;
    parts.streamAt = listingStreamAt;
    parts.useCache = request_.useCache;
    return parts;
  }

  bool find() {
    if (!request_.isList()) {
      return finder_.find(FetchFinder::Words{request_.searchText, request_.desiredMatch}, request_.listings);
    }
    StreamReader input = StreamReader::standardInput(stopSignalled);
    readWantedList([&input](std::span<char> buffer) { return input.read(buffer); }, finder_.wanted());
    return !stopSignalled() && finder_.find(std::nullopt, request_.listings);
  }

  void write() {
    progress_.line().clear();
    hasPlan_ = !finder_.plan().volumes.empty();
    FileWriter output(STDOUT_FILENO, Texts::tr("standard output"));
    const PlanRows::Write writePiece = [&output](const std::string& piece) {
      output.write(piece);
      return !stopSignalled();
    };
    if (!request_.scriptFolder) {
      PlanRows(finder_, {request_.format, ::isatty(STDOUT_FILENO) == 1}, locale_).write(writePiece);
    } else if (hasPlan_) {
      writePlanScript(finder_, QDir::current().absoluteFilePath(*request_.scriptFolder), locale_, writePiece);
    }
    output.flush();
  }

  void report() const {
    if (request_.scriptFolder && !hasPlan_) printError(Texts::tr("there is nothing to copy, so no script"));
    // Text says it all itself, where there is anything to say.
    const bool isSaid = !request_.scriptFolder && request_.format == TableFormat::Text;
    if (request_.isQuiet || (isSaid && !finder_.files().empty())) return;
    if (!isSaid) reportMissing();
    for (const QString& line : planSumLines(finder_.plan(), locale_)) printErrorLog(line);
  }

  void reportMissing() const {
    for (const std::uint32_t file : finder_.plan().missing) {
      printErrorLog(Texts::tr("Not found: %1").arg(missingFileText(finder_.files()[file], locale_)));
    }
  }

  int status() const {
    if (hasFailed_) return 2;
    if (stopSignalled()) return stopStatus();
    if (finder_.failedListings() > 0) return 2;
    return hasPlan_ ? 0 : 1;
  }

  const PlanRequest& request_;
  QLocale locale_;
  ProgramState state_;
  ErrorLines messages_;
  SearchProgress progress_;
  FetchFinder finder_;
  bool hasPlan_ = false;
  bool hasFailed_ = false;
};

}  // namespace

int runPlan(const PlanRequest& request) {
  const QString complaint = complaintAbout(request);
  if (complaint.isEmpty()) return Planner(request).run();
  printError(complaint);
  return 2;
}

}  // namespace quorvin
