// SPDX-License-Identifier: GPL-2.0-or-later
#include "console/progress_line.h"

#include <cstdio>
#include <unistd.h>

namespace quorvin {

namespace {

constexpr std::chrono::milliseconds kBetweenLines{100};
/// Work that ends sooner shows nothing.
constexpr std::chrono::milliseconds kBeforeFirst{300};
// A line that the terminal breaks at its edge could not be written over.
constexpr qsizetype kLineWidth = 79;

}  // namespace

ProgressLine::ProgressLine(bool isWanted)
    : isOnTerminal_(isWanted && ::isatty(STDERR_FILENO) == 1), next_(Clock::now() + kBeforeFirst) {}

ProgressLine::~ProgressLine() {
  clear();
}

void ProgressLine::show(const QString& text) {
  QString line = text;
  for (QChar& sign : line) {
    if (!sign.isPrint()) sign = u'?';
  }
  std::fprintf(stderr, "\r\033[K%s", line.left(kLineWidth).toLocal8Bit().constData());
  std::fflush(stderr);
  isShown_ = true;
  next_ = Clock::now() + kBetweenLines;
}

void ProgressLine::clear() {
  if (!isShown_) return;
  std::fprintf(stderr, "\r\033[K");
  std::fflush(stderr);
  isShown_ = false;
}

}  // namespace quorvin
