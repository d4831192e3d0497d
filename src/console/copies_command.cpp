// "copies": files that are there more than once, or once only.
#include "catalogue/copy_sums.h"
#include "console/commands.h"
#include "console/copy_rows.h"
#include "console/error_lines.h"
#include "console/search_parts.h"
#include "faults/runtime_fault.h"
#include "platform/stop_signal.h"
#include "platform/text_encoding.h"
#include "search/search_run.h"
#include "search/segment/segment_store.h"
#include "texts/texts.h"

#include <QLocale>

#include <algorithm>
#include <cstdio>
#include <limits>
#include <optional>
#include <unistd.h>

namespace quorvin {

namespace {

constexpr std::size_t kBufferSize = std::size_t{1} << 16;

using SumBy = CopiesRequest::SumBy;

/// Hands rows to standard output.
class RowOutput {
 public:
  std::string& text() { return text_; }

  /// To be called after each row. False where no more of them can be written.
  bool goesOn() {
    if (text_.size() >= kBufferSize) flush();
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
        which_{request.withEmpty} {
    if (!request.searchText.isEmpty()) {
      words_.emplace(simpleLowerCase(request.searchText), correctedMatch(request.desiredMatch));
    }
    ListedFiles::Options options{words_ ? &*words_ : nullptr};
    if (request_.useCache) {
      segments_.emplace(storeOptions());
      options.segmentsOf = [this](const QString& listing) { return segmentsOf(listing); };
    }
    files_.emplace(std::move(options));
    copies_.emplace(*files_);
    folders_.emplace(*copies_);
    run_.emplace(parts());
  }

  int run() {
    try {
      if (request_.listings.empty() && !loadSourcesToSearch(state_, locale_, messages_)) return 2;
      watchStopSignal();
      readListings();
      if (!stopSignalled() && find()) write();
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
  RunParts parts() {
    RunParts parts{state_, messages_, locale_};
    parts.hits = &*files_;
    parts.segments = segments_ ? &*segments_ : nullptr;
    parts.display = progress_.line().isOnTerminal() ? &progress_ : nullptr;
    parts.endRequested = stopSignalled;
    // They are counted by ourselves.
    parts.tellsUnreadable = false;
    parts.streamAt = listingStreamAt;
    return parts;
  }

  /// Names are read again after the search. Until then nothing has to stay in memory.
  static SegmentStore::Options storeOptions() {
    SegmentStore::Options options = SegmentStore::defaultOptions(SegmentUse::Repeated);
    options.memoryBudget = 0;
    return options;
  }

  SegmentStore::Segments segmentsOf(const QString& listing) {
    const std::optional<SegmentKey> key = segmentKeyOf(listing, locale_);
    return key ? segments_->find(*key) : SegmentStore::Segments();
  }

  void readListings() {
    const QString everything = QString::fromUtf16(ListedFiles::kEveryEntry);
    const QString anyMatch = QStringLiteral("1");
    if (request_.listings.empty()) {
      run_->Find_Click(everything, anyMatch);
    } else {
      run_->searchListings(everything, anyMatch, request_.listings);
    }
  }

  /// Asked now and then by what takes long.
  bool isStopped() {
    if (progress_.line().isDue()) progress_.line().show(Texts::tr("comparing names and sizes"));
    return stopSignalled();
  }
  StopAsked stop() {
    return [this] { return isStopped(); };
  }

  bool find() {
    if (!copies_->find(stop())) return false;
    // Only the list of copies says which folders are equal.
    const bool needsFolders = !request_.singleOnly && request_.sumBy == SumBy::Nothing;
    return !needsFolders || folders_->find(stop());
  }

  void write() {
    CopyRows::Options options;
    options.format = request_.format;
    options.endsWithNul = request_.endsWithNul;
    options.isForTerminal = ::isatty(STDOUT_FILENO) == 1;
    CopyRows rows(*copies_, *folders_, options, locale_);
    std::vector<FileSum> inFolders;
    if (request_.singleOnly) {
      inFolders = singleFilesInFolders(*copies_, which_, stop());
      if (stopSignalled()) return;
      single_ = sumOf(inFolders);
    } else if (request_.sumBy != SumBy::Nothing) {
      inFolders = copiesInFolders(*copies_, which_);
    }
    progress_.line().clear();
    if (request_.sumBy == SumBy::Volume) {
      writeVolumes(rows, inFolders);
    } else if (request_.sumBy == SumBy::Folder) {
      writeFolders(rows, inFolders);
    } else if (request_.singleOnly) {
      writeSingleFiles(rows, inFolders);
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
    for (const CopyLine& line : copyLines(*copies_, *folders_, which_)) {
      if (!takesRow()) return;
      rows.addLine(output_.text(), line, written_);
    }
  }

  void writeSingleFiles(CopyRows& rows, const std::vector<FileSum>& inFolders) {
    if (request_.hasHeader) rows.addHead(output_.text(), CopyTable::SingleFiles);
    const std::vector<FileSum> inVolumes = sumsOfVolumes(files_->folders(), inFolders);
    bool isEnough = false;
    visitSingleFiles(
        *copies_, which_,
        [&](ListedFiles::Visited& file) {
          isEnough = isEnough || !takesRow();
          if (!isEnough) rows.addSingleFile(output_.text(), file, inVolumes, inFolders);
        },
        [&] { return isEnough || stopSignalled(); });
  }

  void writeVolumes(CopyRows& rows, const std::vector<FileSum>& inFolders) {
    if (request_.hasHeader) rows.addHead(output_.text(), CopyTable::Volumes);
    const std::vector<FileSum> sums = sumsOfVolumes(files_->folders(), inFolders);
    for (const std::uint32_t volume : largestFirst(sums)) {
      if (!takesRow()) return;
      rows.addVolumeSum(output_.text(), volume, sums[volume]);
    }
  }

  void writeFolders(CopyRows& rows, const std::vector<FileSum>& inFolders) {
    if (request_.hasHeader) rows.addHead(output_.text(), CopyTable::Folders);
    for (const std::uint32_t folder : largestFirst(inFolders)) {
      if (!takesRow()) return;
      rows.addFolderSum(output_.text(), folder, inFolders[folder]);
    }
  }

  QString number(std::int64_t value) const { return locale_.toString(qlonglong{value}); }
  QString sizeText(std::int64_t bytes) const {
    return locale_.formattedDataSize(bytes, 2, QLocale::DataSizeTraditionalFormat);
  }

  void report() const {
    if (request_.isQuiet) return;
    if (request_.singleOnly) {
      printErrorLog(Texts::tr("Files on one volume only: %1, of %2 altogether")
                        .arg(number(single_.files), sizeText(single_.bytes)));
    } else {
      const CopyTotals totals = copyTotals(*copies_, which_);
      printErrorLog(Texts::tr("Files with copies: %1. Copies beyond the first: %2, of %3 altogether")
                        .arg(number(totals.files), number(totals.beyondFirst.files),
                             sizeText(totals.beyondFirst.bytes)));
    }
    if (files_->withoutSize() == 0) return;
    printErrorLog(
        Texts::tr("Left out, since their exact size is not known: %1").arg(number(files_->withoutSize())));
  }

  int status() const {
    if (hasFailed_) return 2;
    if (stopSignalled()) return stopStatus();
    if (run_->failedListings() > 0) return 2;
    return written_ > 0 ? 0 : 1;
  }

  const CopiesRequest& request_;
  QLocale locale_;
  ProgramState state_;
  ErrorLines messages_;
  SearchProgress progress_;
  WhichFiles which_;
  RowOutput output_;
  std::optional<SearchQuery> words_;
  std::optional<SegmentStore> segments_;
  std::optional<ListedFiles> files_;
  std::optional<Copies> copies_;
  std::optional<EqualFolders> folders_;
  std::optional<SearchRun> run_;
  FileSum single_;
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
