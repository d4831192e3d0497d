#include "console/console_progress.h"

#include "console/error_lines.h"
#include "platform/stop_signal.h"

#include <cstdio>
#include <unistd.h>

namespace quorvin {
namespace {

constexpr std::chrono::milliseconds kBetweenLines{100};
// A line that is broken by the terminal's edge could not be written over.
constexpr qsizetype kLineWidth = 79;

}  // namespace

ConsoleProgress::ConsoleProgress(ProgramState& state)
    : state_(state), onTerminal_(::isatty(STDERR_FILENO) == 1), nextLine_(Clock::now() + kBetweenLines) {}

ConsoleProgress::~ConsoleProgress() {
  clearLine();
}

void ConsoleProgress::processEvents() {
  if (stopSignalled()) {
    state_.AbortRequested = true;
    state_.RescanAbort = state_.RescanRunning;
  }
  if (onTerminal_ && Clock::now() >= nextLine_) showLine();
}

void ConsoleProgress::showSource(int row, int count) {
  source_ = QStringLiteral("%1 of %2: ").arg(row).arg(count);
}

void ConsoleProgress::showErrorLog(const QString& log) {
  clearLine();
  printErrorLog(log);
}

void ConsoleProgress::showLine() {
  QString line =
      source_ + QStringLiteral("%1 files in %2 folders. ").arg(counts_.files).arg(counts_.folders) + status_;
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

}  // namespace quorvin
