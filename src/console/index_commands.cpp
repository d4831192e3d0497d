// "index" and "refresh": the commands that write listings.
#include "console/commands.h"
#include "console/error_lines.h"
#include "faults/runtime_fault.h"
#include "files/file_aside.h"
#include "files/file_lookup.h"
#include "index/dir_io.h"
#include "index/local_list_refresh.h"
#include "platform/stop_signal.h"
#include "state/settings.h"
#include "work/work_display.h"

#include <QDir>
#include <QFileInfo>
#include <QLocale>

#include <chrono>
#include <cstdio>
#include <optional>
#include <unistd.h>

namespace quorvin {
namespace {

constexpr std::chrono::milliseconds kBetweenLines{100};
// A line that the terminal breaks at its edge could not be written over.
constexpr qsizetype kLineWidth = 79;

/// How far an indexing has come: one line on standard error that is written over again and again, if that is
/// a terminal. A signal that asks the program to end stops the work as closing the window would.
class ConsoleProgress : public WorkDisplay {
 public:
  ConsoleProgress();
  /// Clears the line.
  ~ConsoleProgress() override;
  ConsoleProgress(const ConsoleProgress&) = delete;
  ConsoleProgress& operator=(const ConsoleProgress&) = delete;

  void begin() override {}
  void end() override { clearLine(); }
  void leaveStanding() override { clearLine(); }
  QString title() const override { return title_; }
  /// The part after the last "... ", which is what changes, leads the line.
  void setTitle(const QString& title) override;
  void setStatus(const QString& text) override { status_ = text; }
  void setDetail(const QString& text) override { detail_ = text; }
  void setBarMaximum(std::int32_t) override {}
  void setBar(std::int32_t) override {}
  void setBusy() override {}
  void setBusyPointer(bool) override {}
  bool isDue() override;
  void processEvents() override;
  void waitForEvents() override {}
  bool isCancelled() const override { return false; }
  bool endRequested() const override;

 private:
  using Clock = std::chrono::steady_clock;

  void showLine();
  void clearLine();

  bool onTerminal_;
  Clock::time_point nextLine_;
  bool lineShown_ = false;
  bool isLineDue_ = false;
  QString title_;
  QString status_;
  QString detail_;
};

ConsoleProgress::ConsoleProgress()
    : onTerminal_(::isatty(STDERR_FILENO) == 1), nextLine_(Clock::now() + kBetweenLines) {}

ConsoleProgress::~ConsoleProgress() {
  clearLine();
}

void ConsoleProgress::setTitle(const QString& title) {
  title_ = title;
}

bool ConsoleProgress::isDue() {
  isLineDue_ = onTerminal_ && Clock::now() >= nextLine_;
  return isLineDue_;
}

void ConsoleProgress::processEvents() {
  if (isLineDue_) showLine();
  isLineDue_ = false;
}

bool ConsoleProgress::endRequested() const {
  return stopSignalled();
}

void ConsoleProgress::showLine() {
  const QString source = title_.section(QStringLiteral("... "), -1);
  QString line = source.isEmpty() ? QString() : source + QStringLiteral(": ");
  line += detail_ + QStringLiteral(". ") + status_;
  for (QChar& sign : line) {
    if (!sign.isPrint()) sign = u'?';
  }
  std::fprintf(stderr, "\r\033[K%s", line.left(kLineWidth).toLocal8Bit().constData());
  std::fflush(stderr);
  lineShown_ = true;
  nextLine_ = Clock::now() + kBetweenLines;
}

void ConsoleProgress::clearLine() {
  if (!lineShown_) return;
  std::fprintf(stderr, "\r\033[K");
  std::fflush(stderr);
  lineShown_ = false;
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
    if (request_.output.isEmpty()) {
      FileWriter writer(STDOUT_FILENO, QStringLiteral("standard output"));
      writeListing(writer);
      writer.flush();
    } else {
      writeFile();
    }
  }

  /// Takes the line of progress away and prints what there is to report of single names.
  void reportErrors() {
    job_->display().end();
    printErrorLog(state_.errorLog);
  }
  bool interrupted() const { return job_->isAbortRequested(); }
  /// Whether the listing has a line for every name.
  bool isComplete() const { return leftOut_ == 0; }

 private:
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
    if (!interrupted()) file.commit();
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
  ConsoleProgress display_;
  Work work_{state_, display_};
  std::optional<Job> job_ = work_.start(JobKind::Refresh);
  IndexProgress progress_;
  DirIO dirIO_;
  std::int64_t leftOut_ = 0;
};

}  // namespace

int runIndex(const IndexRequest& request) {
  watchStopSignal();
  Indexing indexing(request);
  bool failed = false;
  QString failure;
  try {
    indexing.run();
  } catch (const RuntimeFault& fault) {
    failed = true;
    failure = fault.description();
  }
  indexing.reportErrors();
  if (failed) {
    printError(failure);
    return 2;
  }
  if (indexing.interrupted()) return stopStatus();
  return indexing.isComplete() ? 0 : 2;
}

int runRefresh() {
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
  ConsoleProgress progress;
  Work work(state, progress);
  RefreshOutcome outcome;
  work.run(JobKind::Refresh,
           [&](Job& job) { outcome = refreshLocalLists(state, job, messages, locale, {}); });
  printErrorLog(outcome.errorLog);
  if (!outcome.fault.isEmpty()) {
    printError(outcome.fault);
    return 2;
  }
  if (outcome.isStopped) return stopStatus();
  return outcome.leftOut == 0 ? 0 : 2;
}

}  // namespace quorvin
