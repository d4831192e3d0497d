// SPDX-License-Identifier: GPL-2.0-or-later

// "copies": files that are there more than once, or once only.
#include "catalogue/sum_texts.h"
#include "console/commands.h"
#include "console/copy_rows.h"
#include "console/error_lines.h"
#include "console/search_parts.h"
#include "faults/runtime_fault.h"
#include "files/file_writer.h"
#include "platform/stop_signal.h"
#include "texts/texts.h"

#include <QLocale>

#include <limits>
#include <optional>
#include <string>
#include <unistd.h>

namespace quorvin {

namespace {

using SumBy = CopiesRequest::SumBy;

class LookingForCopies {
 public:
  explicit LookingForCopies(const CopiesRequest& request)
      : request_(request),
        progress_(!request.isQuiet, SearchProgress::Shows::Searched),
        finder_(request, parts()) {}

  int run() {
    try {
      if (request_.listings.empty() && !loadSourcesToSearch(state_, locale_, messages_)) return 2;
      watchStopSignal();
      if (finder_.find(request_.listings)) write();
    } catch (const RuntimeFault& fault) {
      hasFailed_ = true;
      printError(fault.description());
    }
    progress_.line().clear();
    if (!hasFailed_ && !stopSignalled()) report();
    return status();
  }

 private:
  CopyFinder::Parts parts() {
    CopyFinder::Parts parts{state_, messages_, locale_};
    parts.display = progress_.line().isOnTerminal() ? &progress_ : nullptr;
    parts.endRequested = stopSignalled;
    parts.streamAt = listingStreamAt;
    parts.comparing = [this] { showComparing(); };
    parts.reading = [this](std::int64_t done, std::int64_t all) { showReading(done, all); };
    return parts;
  }

  void showComparing() {
    if (progress_.line().isDue()) progress_.line().show(Texts::tr("comparing names and sizes"));
  }

  void showReading(std::int64_t done, std::int64_t all) {
    if (!progress_.line().isDue()) return;
    progress_.line().show(
        Texts::tr("looking into files: %1 of %2").arg(sizeText(done, locale_), sizeText(all, locale_)));
  }

  void write() {
    CopyRows::Options options;
    options.format = request_.format;
    options.endsWithNul = request_.endsWithNul;
    options.isForTerminal = ::isatty(STDOUT_FILENO) == 1;
    CopyRows rows(finder_.copies(), finder_.equalFolders(), options, locale_);
    progress_.line().clear();
    if (request_.sumBy == SumBy::Volume) {
      writeVolumes(rows);
    } else if (request_.sumBy == SumBy::Folder) {
      writeFolders(rows);
    } else if (request_.singleOnly) {
      writeSingleFiles(rows);
    } else {
      writeCopies(rows);
    }
    writeRow();
    output_.flush();
  }

  void writeRow() {
    output_.write(row_);
    row_.clear();
  }

  /// Whether one more row may be written, which is counted. The row before it goes on its way.
  bool takesRow() {
    writeRow();
    if (written_ >= request_.limit.value_or(std::numeric_limits<std::int64_t>::max())) return false;
    ++written_;
    return !stopSignalled();
  }

  void writeCopies(CopyRows& rows) {
    if (request_.hasHeader) rows.addHead(row_, CopyTable::Copies);
    for (const CopyLine& line : finder_.lines()) {
      if (!takesRow()) return;
      rows.addLine(row_, line, written_);
    }
  }

  void writeSingleFiles(CopyRows& rows) {
    if (request_.hasHeader) rows.addHead(row_, CopyTable::SingleFiles);
    const std::vector<FileSum> inVolumes = sumsOfVolumes(finder_.folders(), finder_.inFolders());
    bool isEnough = false;
    finder_.visitSingle(
        [&](ListedFiles::Visited& file) {
          isEnough = isEnough || !takesRow();
          if (!isEnough) rows.addSingleFile(row_, file, inVolumes, finder_.inFolders());
        },
        [&] { return isEnough || stopSignalled(); });
  }

  void writeVolumes(CopyRows& rows) {
    if (request_.hasHeader) rows.addHead(row_, CopyTable::Volumes);
    const std::vector<FileSum> sums = sumsOfVolumes(finder_.folders(), finder_.inFolders());
    for (const std::uint32_t volume : largestFirst(sums)) {
      if (!takesRow()) return;
      rows.addVolumeSum(row_, volume, sums[volume]);
    }
  }

  void writeFolders(CopyRows& rows) {
    if (request_.hasHeader) rows.addHead(row_, CopyTable::Folders);
    for (const std::uint32_t folder : largestFirst(finder_.inFolders())) {
      if (!takesRow()) return;
      rows.addFolderSum(row_, folder, finder_.inFolders()[folder]);
    }
  }

  void report() const {
    if (request_.isQuiet) return;
    for (const QString& line : finder_.sumLines()) printErrorLog(line);
  }

  int status() const {
    if (hasFailed_) return 2;
    if (stopSignalled()) return stopStatus();
    if (finder_.failedListings() > 0) return 2;
    return written_ > 0 ? 0 : 1;
  }

  const CopiesRequest& request_;
  QLocale locale_;
  ProgramState state_;
  ErrorLines messages_;
  SearchProgress progress_;
  FileWriter output_{STDOUT_FILENO, Texts::tr("standard output")};
  std::string row_;
  CopyFinder finder_;
  /// Rows, or lines with what belongs to them.
  std::int64_t written_ = 0;
  bool hasFailed_ = false;
};

}  // namespace

int runCopies(const CopiesRequest& request) {
  const QString complaint = complaintAboutSearch(request.searchText, request.desiredMatch);
  if (complaint.isEmpty()) return LookingForCopies(request).run();
  printError(complaint);
  return 2;
}

}  // namespace quorvin
