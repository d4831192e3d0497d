// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/run_watch.h"

#include "texts/texts.h"

#include <QFileInfo>
#include <QMutexLocker>

namespace quorvin {

namespace {

/// What is said of more listings than that is not kept.
constexpr qsizetype kMostMessages = 100;

}  // namespace

ProgramState sourcesOf(const ProgramState& state) {
  ProgramState sources;
  sources.LocalFolder = state.LocalFolder;
  sources.TextFile = state.TextFile;
  sources.OnlineSources = state.OnlineSources;
  sources.OnlineSourceCount = state.OnlineSourceCount;
  sources.OfflineSources = state.OfflineSources;
  sources.OfflineSourceCount = state.OfflineSourceCount;
  return sources;
}

QString RunWatch::progressText(const QLocale& locale) const {
  const QString searched = Texts::tr("%1 searched").arg(locale.toString(qlonglong{searched_}));
  const QMutexLocker lock(&mutex_);
  const QString listing = QFileInfo(listing_).fileName();
  return listing.isEmpty() ? searched : listing + QStringLiteral(": ") + searched;
}

void RunWatch::startListing(const QString& path) {
  const QMutexLocker lock(&mutex_);
  listing_ = path;
}

QStringList RunWatch::messageLines() const {
  if (messages_.isEmpty()) return {};
  QStringList lines{messages_.first()};
  const qsizetype more = messages_.size() - 1;
  if (more > 0) {
    lines += more == 1 ? Texts::tr("and one more message")
                       : Texts::tr("and %1 more messages", nullptr, Texts::plural(more)).arg(more);
  }
  return lines;
}

void RunWatch::inform(const QString& text) {
  if (messages_.size() < kMostMessages) messages_ += text;
}

}  // namespace quorvin
