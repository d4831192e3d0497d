// SPDX-License-Identifier: GPL-2.0-or-later

// "compare": what differs between two listings.
#include "catalogue/compare_job.h"
#include "console/commands.h"
#include "console/compare_rows.h"
#include "console/compared_sources.h"
#include "console/error_lines.h"
#include "console/progress_line.h"
#include "faults/runtime_fault.h"
#include "files/file_writer.h"
#include "platform/stop_signal.h"
#include "state/settings.h"
#include "texts/texts.h"

#include <QLocale>

#include <limits>
#include <unistd.h>

namespace quorvin {

namespace {

class Comparing {
 public:
  explicit Comparing(const CompareRequest& request) : request_(request), line_(!request.isQuiet) {}

  /// The exit status. Throws RuntimeFault.
  int run() {
    loadUserSources(state_, locale_, messages_);
    watchStopSignal();
    ComparedSources sources(request_, state_);
    const bool areListed = sources.find();
    if (stopSignalled()) return stopStatus();
    if (!areListed) return 2;
    ComparedListing before(sources.before(), locale_);
    ComparedListing after(sources.after(), locale_);
    ListingComparison comparison(before, after);
    const bool isDone = comparison.run([this] { return isStopped(); });
    line_.clear();
    if (!isDone) return stopStatus();
    if (before.isNoText() || after.isNoText()) {
      throw RuntimeFault(FaultNumber::InvalidProcedureCall,
                         Texts::tr("one of the two is no listing, since it is not plain text"));
    }
    const CompareRows rows(comparison, {request_.format, request_.endsWithNul, ::isatty(STDOUT_FILENO) == 1},
                           locale_);
    write(rows, comparison);
    if (stopSignalled()) return stopStatus();
    report(comparison);
    if (sources.status() != 0) return sources.status();
    return comparison.changes().empty() ? 0 : 1;
  }

 private:
  bool isStopped() {
    if (line_.isDue()) line_.show(Texts::tr("comparing"));
    return stopSignalled();
  }

  void write(const CompareRows& rows, const ListingComparison& comparison) {
    FileWriter output(STDOUT_FILENO, Texts::tr("standard output"));
    std::string text;
    std::int64_t left = request_.limit.value_or(std::numeric_limits<std::int64_t>::max());
    const auto goesOn = [&] { return left-- > 0 && !stopSignalled(); };
    const auto writeRow = [&] {
      output.write(text);
      text.clear();
    };
    if (request_.hasHeader) rows.addHead(text, request_.byFolder);
    writeRow();
    if (request_.byFolder) {
      for (const FolderChanges& folder : changesOfFolders(comparison)) {
        if (!goesOn()) break;
        rows.addFolder(text, folder);
        writeRow();
      }
    } else {
      for (const FileChange& change : comparison.changes()) {
        if (!goesOn()) break;
        rows.addChange(text, change);
        writeRow();
      }
    }
    output.flush();
  }

  void report(const ListingComparison& comparison) const {
    if (request_.isQuiet) return;
    const QString tops = topFoldersText(comparison);
    if (!tops.isEmpty()) printErrorLog(tops);
    printErrorLog(changeSumsText(comparison, locale_));
  }

  const CompareRequest& request_;
  QLocale locale_;
  ProgramState state_;
  ErrorLines messages_;
  ProgressLine line_;
};

}  // namespace

int runCompare(const CompareRequest& request) {
  try {
    return Comparing(request).run();
  } catch (const RuntimeFault& fault) {
    printError(fault.description());
    return 2;
  }
}

}  // namespace quorvin
