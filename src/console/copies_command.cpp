// "copies": files that are there more than once, or once only.
#include "console/commands.h"
#include "console/copy_rows.h"
#include "console/error_lines.h"
#include "console/search_parts.h"
#include "faults/runtime_fault.h"
#include "platform/stop_signal.h"
#include "texts/texts.h"

#include <QLocale>

#include <cstdio>
#include <limits>
#include <optional>
#include <unistd.h>

namespace quorvin {

namespace {

constexpr std::size_t kRowsBufferSize = std::size_t{1} << 16;

using SumBy = CopiesRequest::SumBy;

/// Hands rows to standard output.
class RowOutput {
 public:
  std::string& text() { return text_; }

  /// To be called after each row. False where no more of them can be written.
  bool goesOn() {
    if (text_.size() >= kRowsBufferSize) flush();
    return isGood_;
  }
  bool flush() {
    if (std::fwrite(text_.data(), 1, text_.size(), stdout) != text_.size()) isGood_ = false;
    text_.clear();
    if (std::fflush(stdout) != 0) isGood_ = false;
    return isGood_;
  }

 private:
  std::string text_;
  bool isGood_ = true;
};

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
      printError(fault.text());
    }
    progress_.line().clear();
    if (!output_.flush()) {
      hasFailed_ = true;
      printError(Texts::tr("the rows could not all be written to standard output"));
    }
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
    return parts;
  }

  void showComparing() {
    if (progress_.line().isDue()) progress_.line().show(Texts::tr("comparing names and sizes"));
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
  }

  /// Whether one more row may be written, which is counted.
  bool takesRow() {
    if (written_ >= request_.limit.value_or(std::numeric_limits<std::int64_t>::max())) return false;
    ++written_;
    return output_.goesOn() && !stopSignalled();
  }

  void writeCopies(CopyRows& rows) {
    if (request_.hasHeader) rows.addHead(output_.text(), CopyTable::Copies);
    for (const CopyLine& line : finder_.lines()) {
      if (!takesRow()) return;
      rows.addLine(output_.text(), line, written_);
    }
  }

  void writeSingleFiles(CopyRows& rows) {
    if (request_.hasHeader) rows.addHead(output_.text(), CopyTable::SingleFiles);
    const std::vector<FileSum> inVolumes = sumsOfVolumes(finder_.folders(), finder_.inFolders());
    bool isEnough = false;
    finder_.visitSingle(
        [&](ListedFiles::Visited& file) {
          isEnough = isEnough || !takesRow();
          if (!isEnough) rows.addSingleFile(output_.text(), file, inVolumes, finder_.inFolders());
        },
        [&] { return isEnough || stopSignalled(); });
  }

  void writeVolumes(CopyRows& rows) {
    if (request_.hasHeader) rows.addHead(output_.text(), CopyTable::Volumes);
    const std::vector<FileSum> sums = sumsOfVolumes(finder_.folders(), finder_.inFolders());
    for (const std::uint32_t volume : largestFirst(sums)) {
      if (!takesRow()) return;
      rows.addVolumeSum(output_.text(), volume, sums[volume]);
    }
  }

  void writeFolders(CopyRows& rows) {
    if (request_.hasHeader) rows.addHead(output_.text(), CopyTable::Folders);
    for (const std::uint32_t folder : largestFirst(finder_.inFolders())) {
      if (!takesRow()) return;
      rows.addFolderSum(output_.text(), folder, finder_.inFolders()[folder]);
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
  RowOutput output_;
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
