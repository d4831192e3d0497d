#include "console/index_command.h"

#include "console/console_progress.h"
#include "console/error_lines.h"
#include "faults/runtime_fault.h"
#include "files/file_aside.h"
#include "index/dir_io.h"
#include "platform/stop_signal.h"

#include <QDir>
#include <QFileInfo>

#include <optional>
#include <unistd.h>

namespace quorvin {
namespace {

// As the user wrote it, but from the top; ".." is resolved by the system, since behind a link it leads
// elsewhere than the text says.
QString fullPath(const QString& folder) {
  const QFileInfo info(folder);
  const bool goesUp = QDir::fromNativeSeparators(folder).split(u'/').contains(QStringLiteral(".."));
  const QString canonical = goesUp ? info.canonicalFilePath() : QString();
  return canonical.isEmpty() ? QDir::cleanPath(info.absoluteFilePath()) : canonical;
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
        folder_(fullPath(request.folder)),
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
    const bool opened =
        dirIO_.walk(folder, QStringLiteral("*.*"), {&writer, nullptr}, labelOf(request_, folder_), flags);
    if (!opened || !folders_->topIsStillAt(folder_)) throw faultOfSystemError(ENOENT, request_.folder);
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
  return indexing.interrupted() ? kInterrupted : 0;
}

}  // namespace quorvin
