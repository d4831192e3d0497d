#include "console/console_progress.h"

#include "platform/stop_signal.h"

#include <cstdio>
#include <unistd.h>

namespace quorvin {
namespace {

constexpr std::chrono::milliseconds kBetweenLines{100};
// A line that the terminal breaks at its edge could not be written over.
constexpr qsizetype kLineWidth = 79;

}  // namespace

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

}  // namespace quorvin
