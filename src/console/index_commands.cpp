// SPDX-License-Identifier: GPL-2.0-or-later

// "index" and "refresh": the commands that write listings.
#include "catalogue/checksums/checksum_writing.h"
#include "catalogue/sum_texts.h"
#include "console/commands.h"
#include "console/error_lines.h"
#include "console/json_text.h"
#include "console/progress_line.h"
#include "faults/runtime_fault.h"
#include "files/file_aside.h"
#include "files/file_lookup.h"
#include "index/dir_io.h"
#include "index/local_list_refresh.h"
#include "platform/stop_signal.h"
#include "platform/text_encoding.h"
#include "state/settings.h"
#include "texts/texts.h"
#include "work/work_display.h"

#include <QDir>
#include <QFileInfo>
#include <QLocale>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <optional>
#include <unistd.h>
#include <utility>
#include <vector>

namespace quorvin {
namespace {

/// How far an indexing has come. A signal that asks the program to end stops the work as closing the window
/// would.
class ConsoleProgress : public WorkDisplay {
 public:
  explicit ConsoleProgress(bool isQuiet) : line_(!isQuiet) {}

  void begin() override {}
  void end() override { line_.clear(); }
  void leaveStanding() override { line_.clear(); }
  QString title() const override { return title_; }
  /// The part after the last "... ", which is what changes, leads the line.
  void setTitle(const QString& title) override { title_ = title; }
  void setStatus(const QString& text) override { status_ = text; }
  void setDetail(const QString& text) override { detail_ = text; }
  void setBarMaximum(std::int32_t) override {}
  void setBar(std::int32_t) override {}
  void setBusy() override {}
  void setBusyPointer(bool) override {}
  bool isDue() override {
    isLineDue_ = line_.isDue();
    return isLineDue_;
  }
  void processEvents() override;
  void waitForEvents() override {}
  bool isCancelled() const override { return false; }
  bool endRequested() const override { return stopSignalled(); }

 private:
  ProgressLine line_;
  bool isLineDue_ = false;
  QString title_;
  QString status_;
  QString detail_;
};

void ConsoleProgress::processEvents() {
  if (!std::exchange(isLineDue_, false)) return;
  const QString source = title_.section(QStringLiteral("... "), -1);
  const QString front = source.isEmpty() ? QString() : source + QStringLiteral(": ");
  line_.show(front + detail_ + QStringLiteral(". ") + status_);
}

QString labelOf(const IndexRequest& request, const QString& folder) {
  if (!request.label.isEmpty()) return request.label;
  const QString name = QFileInfo(folder).fileName();
  return name.isEmpty() ? folder : name;
}

/// The indexing of one folder.
class Indexing {
 public:
  explicit Indexing(const IndexRequest& request)
      : request_(request),
        folder_(pathFromTop(request.folder)),
        progress_(*job_, QLocale()),
        dirIO_(state_, *folders_, progress_, messages_, QLocale()) {}

  /// Throws RuntimeFault when the folder cannot be read or the listing cannot be written.
  void run() {
    checkFolder();
    if (isStandardOutput()) {
      FileWriter writer(STDOUT_FILENO, Texts::tr("standard output"));
      writeListing(writer);
      writer.flush();
    } else {
      writeFile();
    }
  }

  /// The same, but for where the listing goes.
  void runInto(FileWriter& writer) {
    checkFolder();
    writeListing(writer);
  }

  /// Takes the line of progress away and prints what there is to report of single names.
  void reportErrors() {
    job_->display().end();
    checksumLine_.clear();
    printErrorLog(state_.errorLog);
    for (const QString& fault : checksumFaults_) {
      printErrorLog(Texts::tr("No checksum: %1").arg(fault) + QStringLiteral("\r\n"));
    }
    for (const QString& path : doubtfulFiles_) {
      printErrorLog(
          Texts::tr("Changed or rotten: %1. The earlier listing was made after its checksums, so it "
                    "does not tell.")
              .arg(path) +
          QStringLiteral("\r\n"));
    }
  }
  bool interrupted() const { return job_->isAbortRequested() || areChecksumsStopped_; }
  /// Whether the listing has a line for every name, and every file its checksum.
  bool isComplete() const { return leftOut_ == 0 && checksumFaults_.isEmpty(); }

 private:
  bool isStandardOutput() const {
    return request_.output.isEmpty() || request_.output == QStringLiteral("-");
  }

  void checkFolder() {
    const int error = folders_->enterTop(folder_);
    if (error != 0) throw faultOfSystemError(error, request_.folder);
    folders_->leave();
  }

  // A hidden file beside the place, so that it is no part of the listing of its own folder.
  void writeFile() {
    const QFileInfo place(request_.output);
    if (place.exists() && !place.isFile()) throw faultOfSystemError(EISDIR, request_.output);
    removeLeftovers(place.absolutePath());
    FileAside file(request_.output, {.followsLink = true});
    writeListing(file.writer());
    if (interrupted() || (request_.hasChecksums && !writeChecksums(file))) return;
    file.commit();
  }

  /// Before the listing is put in place: until then the one that is there tells which files are as they were.
  /// False after a signal.
  bool writeChecksums(FileAside& listing) {
    FileAside file(manifestOf(request_.output), {.followsLink = true});
    ChecksumWriting writing({folder_, request_.output, QLocale(), stopSignalled,
                             [this](const ChecksumWriting::Progress& progress) { showChecksums(progress); }});
    areChecksumsStopped_ = !writing.write(file.writer());
    if (areChecksumsStopped_) return false;
    listing.finish();
    file.write(listingRemark(listingIdentity(listing.path())));
    file.commit();
    checksumFaults_ = writing.unread();
    doubtfulFiles_ = writing.doubtful();
    return true;
  }

  void showChecksums(const ChecksumWriting::Progress& progress) {
    if (!checksumLine_.isDue()) return;
    const QLocale locale;
    checksumLine_.show(Texts::tr("checksums: %1 of %2 files, %3 of %4")
                           .arg(locale.toString(qlonglong{progress.files}),
                                locale.toString(qlonglong{progress.filesAll}),
                                sizeText(progress.bytes, locale), sizeText(progress.bytesAll, locale)));
  }

  void writeListing(FileWriter& writer) {
    QString folder = folder_;
    const int flags = kToOutput1 | (request_.foldersOnly ? kFoldersOnly : 0);
    const WalkResult walked =
        dirIO_.walk(folder, QStringLiteral("*.*"), {&writer, nullptr}, labelOf(request_, folder_), flags);
    leftOut_ = walked.leftOut;
    if (!walked.opened || !folders_->topIsStillAt(folder_)) throw faultOfSystemError(ENOENT, request_.folder);
  }

  const IndexRequest& request_;
  const QString folder_;
  ProgramState state_;
  ErrorLines messages_;
  std::unique_ptr<FolderReader> folders_ = makeFolderReader();
  ConsoleProgress display_{request_.isQuiet};
  Work work_{state_, display_};
  std::optional<Job> job_ = work_.start(JobKind::Refresh);
  IndexProgress progress_;
  DirIO dirIO_;
  std::int64_t leftOut_ = 0;
  ProgressLine checksumLine_{!request_.isQuiet};
  bool areChecksumsStopped_ = false;
  QStringList checksumFaults_;
  QStringList doubtfulFiles_;
};

}  // namespace

namespace {

IndexOutcome runIndexing(const IndexRequest& request, const std::function<void(Indexing&)>& run) {
  watchStopSignal();
  Indexing indexing(request);
  bool failed = false;
  QString failure;
  try {
    run(indexing);
  } catch (const RuntimeFault& fault) {
    failed = true;
    failure = fault.description();
  }
  indexing.reportErrors();
  if (failed) {
    printError(failure);
    return {2, true};
  }
  if (indexing.interrupted()) return {stopStatus(), false};
  return {indexing.isComplete() ? 0 : 2, false};
}

}  // namespace

int runIndex(const IndexRequest& request) {
  return runIndexing(request, [](Indexing& indexing) { indexing.run(); }).status;
}

IndexOutcome indexInto(FileWriter& writer, const IndexRequest& request) {
  return runIndexing(request, [&](Indexing& indexing) { indexing.runInto(writer); });
}

namespace {

/// The row of the online source that the user calls `name`; 0 for none.
int rowNamed(const ProgramState& state, const QString& name) {
  for (const Qt::CaseSensitivity cases : {Qt::CaseSensitive, Qt::CaseInsensitive}) {
    for (int row = 1; row <= state.OnlineSourceCount; ++row) {
      const QStringView description = trimBlanks(state.OnlineSources.description(row));
      if (description.compare(trimBlanks(name), cases) == 0) return row;
    }
  }
  return 0;
}

/// Leaves only the online sources that are named in the table, in its order; false, with a sentence about the
/// first of them that is not there, where it stays as it is.
bool keepNamed(ProgramState& state, const QStringList& names) {
  std::vector<int> rows;
  for (const QString& name : names) {
    rows.push_back(rowNamed(state, name));
    if (rows.back() != 0) continue;
    printError(Texts::tr("there is no folder of your own with the description \"%1\"; quorvin-cli sources "
                         "shows them")
                   .arg(name));
    return false;
  }
  std::ranges::sort(rows);
  rows.erase(std::ranges::unique(rows).begin(), rows.end());
  int count = 0;
  for (const int row : rows) {
    const QString description = state.OnlineSources.description(row);
    state.OnlineSources.set(++count, description, QString(state.OnlineSources.path(row)));
  }
  state.OnlineSourceCount = count;
  return true;
}

/// False where it could not be written.
bool printOutcome(const RefreshOutcome& outcome) {
  JsonLine line;
  line.add("made", std::int64_t{outcome.made}).add("kept", std::int64_t{outcome.kept});
  line.add("missing", std::int64_t{outcome.missing}).add("entries", outcome.entries);
  if (outcome.areChangesKnown) line.add("added", outcome.changes.added).add("gone", outcome.changes.gone);
  line.add("leftOut", outcome.leftOut).add("stopped", outcome.isStopped);
  if (std::fputs(line.text().c_str(), stdout) >= 0 && std::fflush(stdout) == 0) return true;
  printError(Texts::tr("the outcome could not be written to standard output"));
  return false;
}

}  // namespace

int runRefresh(const RefreshRequest& request) {
  const QLocale locale;
  ProgramState state;
  ErrorLines messages;
  watchStopSignal();
  try {
    loadUserSources(state, locale, messages);
  } catch (const RuntimeFault& fault) {
    printError(fault.description());
    return 2;
  }
  if (!request.names.isEmpty() && !keepNamed(state, request.names)) return 2;
  if (state.OnlineSourceCount == 0 && !request.isQuiet) {
    printErrorLog(Texts::tr("there are no folders of your own yet; quorvin-cli sources add FOLDER adds one"));
  }
  ConsoleProgress progress(request.isQuiet);
  Work work(state, progress);
  RefreshOutcome outcome;
  work.run(JobKind::Refresh,
           [&](Job& job) { outcome = refreshLocalLists(state, job, messages, locale, {}); });
  printErrorLog(outcome.errorLog);
  if (!outcome.fault.isEmpty()) {
    printError(outcome.fault);
    return 2;
  }
  if (request.isJson && !printOutcome(outcome)) return 2;
  if (outcome.isStopped) return stopStatus();
  return outcome.leftOut == 0 ? 0 : 2;
}

}  // namespace quorvin
