// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/search_run.h"

#include "faults/runtime_fault.h"
#include "files/file_lookup.h"
#include "files/path_style.h"
#include "platform/text_encoding.h"
#include "texts/texts.h"

#include <QScopeGuard>

#include <algorithm>
#include <span>
#include <utility>

namespace quorvin {

namespace {

constexpr char16_t kListingEnding[] = u".txt";

/// Messages name at most this many listings; the rest is given as a number.
constexpr std::size_t kMostListingsNamed = 10;

QString text(const char16_t* literal) {
  return QString::fromUtf16(literal);
}

/// A hidden file is a listing like others: a description may begin with a dot.
bool isListing(const QString& path) {
  return ordinaryFileExists(path) || fileExists(path);
}

QString namesOf(const QStringList& listings) {
  const auto named = std::min(listings.size(), static_cast<qsizetype>(kMostListingsNamed));
  QString names = listings.first(named).join(QStringLiteral("\r\n"));
  if (listings.size() > named) {
    names += QStringLiteral("\r\n") +
             Texts::tr("and %1 more listings", nullptr, Texts::plural(listings.size() - named))
                 .arg(listings.size() - named);
  }
  return names;
}

}  // namespace

void SearchRun::Find_Click(const QString& searchText, const QString& desMatch) {
  if (isRunning_) {
    parts_.state.AbortRequested = true;
    return;
  }
  run(searchText, desMatch, [this] { searchSources(); });
}

void SearchRun::searchQuietly(const QString& searchText, const QString& desMatch) {
  isQuiet_ = true;
  const auto afterwards = qScopeGuard([this] { isQuiet_ = false; });
  run(searchText, desMatch, [this] { searchSources(); });
}

void SearchRun::searchListings(const QString& searchText, const QString& desMatch,
                               const std::vector<QString>& paths) {
  run(searchText, desMatch, [&] {
    report_.listings = static_cast<int>(paths.size());
    for (const QString& path : paths) {
      if (!isEnding() && !scanStream(path)) searchIfFound(path, SourceKind::Offline);
    }
    showSearched();
  });
}

void SearchRun::run(const QString& searchText, const QString& desMatch,
                    const std::function<void()>& searchListings) {
  counts_.hits = 0;
  const std::int16_t desiredMatch = correctedMatch(desMatch);
  if (parts_.display != nullptr && !isQuiet_) parts_.display->setDesMatch(QString::number(desiredMatch));
  const QString lowered = simpleLowerCase(searchText);
  if (lowered.isEmpty()) return;
  query_ = SearchQuery(lowered, desiredMatch);
  {
    const auto ending = qScopeGuard([this] { end(); });
    start(searchText, desiredMatch);
    searchListings();
  }
  reportUnreadable();
  reportChanged();
  reportNoText();
}

void SearchRun::start(const QString& searchText, std::int16_t desiredMatch) {
  counts_ = {};
  report_ = {};
  report_.searchText = searchText;
  report_.desiredMatch = desiredMatch;
  tellsMissing_ = !isQuiet_;
  shownHits_ = 0;
  enough_ = false;
  failedListings_ = 0;
  unreadable_.clear();
  changed_.clear();
  noText_.clear();
  isRunning_ = true;
  if (parts_.display == nullptr) return;
  parts_.display->showFound(0);
  parts_.display->runStarted(query_);
  parts_.display->clearHits();
}

void SearchRun::end() {
  isRunning_ = false;
  if (parts_.display != nullptr) parts_.display->runEnded();
}

int SearchRun::sourceCount() const {
  const ProgramState& state = parts_.state;
  return state.OnlineSourceCount + (state.TextFile.isEmpty() ? 0 : 1) + state.OfflineSourceCount;
}

void SearchRun::searchSources() {
  report_.listings = sourceCount();
  searchOnlineSources();
  if (!searchMainDataFile()) return;
  searchOfflineSources();
  showSearched();
  if (parts_.segments != nullptr && !isEnding()) parts_.segments->releaseUnused();
}

void SearchRun::searchOnlineSources() {
  for (int row = 1; row <= parts_.state.OnlineSourceCount && !isEnding(); ++row) {
    // A copy, since the user may edit the table while events run.
    const QString description = parts_.state.OnlineSources.description(row);
    const QString path = parts_.state.LocalFolder + description + text(kListingEnding);
    // The refresh leaves out blanks at the ends.
    const QString made = parts_.state.onlineListingPath(description);
    searchIfFound(!isListing(path) && isListing(made) ? made : path, SourceKind::Online);
  }
}

/// False when it is missing, which ends the run.
bool SearchRun::searchMainDataFile() {
  const QString& file = parts_.state.TextFile;
  if (file.isEmpty() || isEnding()) return true;
  const QString path = isTakenAsItStands(file, nativePathStyle()) ? file : parts_.state.LocalFolder + file;
  report_.isMainDataFileMissing = !searchIfFound(path, SourceKind::MainDataFile);
  return !report_.isMainDataFileMissing;
}

void SearchRun::searchOfflineSources() {
  for (int row = 1; row <= parts_.state.OfflineSourceCount && !isEnding(); ++row) {
    searchIfFound(parts_.state.OfflineSources.path(row), SourceKind::Offline);
  }
}

bool SearchRun::searchIfFound(const QString& path, SourceKind kind) {
  if (isListing(path)) {
    scanFile(path, kind);
    return true;
  }
  reportMissing(path);
  return false;
}

void SearchRun::reportMissing(const QString& path) {
  ++failedListings_;
  ++report_.missing;
  if (!tellsMissing_) return;
  tellsMissing_ = parts_.messages.informOneOfMany(Texts::tr("Listing file not found: %1").arg(path));
}

ScanRequest SearchRun::request() {
  return {query_, parts_.locale, parts_.hits, [this](std::int64_t) { return yield(); }};
}

void SearchRun::scanFile(const QString& path, SourceKind kind) {
  scan(path, kind,
       [&](ScanOutcome& outcome) { scanListingFile(path, parts_.segments, request(), counts_, outcome); });
}

/// False where the listing is no stream.
bool SearchRun::scanStream(const QString& path) {
  ListingReader stream = parts_.streamAt ? parts_.streamAt(path) : ListingReader();
  if (!stream) return false;
  const auto atItsEnd = [](std::span<char>) { return std::size_t{0}; };
  const ListingOpener openOnce = [&] { return std::exchange(stream, atItsEnd); };
  scan(path, SourceKind::Offline,
       [&](ScanOutcome& outcome) { scanListing(openOnce, request(), counts_, outcome); });
  return true;
}

void SearchRun::scan(const QString& path, SourceKind kind, const std::function<void(ScanOutcome&)>& read) {
  ScanOutcome outcome;
  if (parts_.hits != nullptr) parts_.hits->startListing(kind, path);
  try {
    read(outcome);
    if (!outcome.stopped) ++report_.searchedToTheEnd;
  } catch (const RuntimeFault& fault) {
    ++failedListings_;
    inform(Texts::tr("The listing %1 could not be searched to its end.\r\nRun-time error '%2': "
                     "%3\r\nThe hits found in it so far are kept.")
               .arg(path)
               .arg(fault.number())
               .arg(fault.description()));
  }
  enough_ = outcome.enough;
  if (outcome.stopped && !outcome.enough) report_.isStopped = true;
  showHits();
  showSearched();
  if (outcome.unreadableHits > 0) unreadable_.push_back({path, outcome});
  if (outcome.changedMeanwhile) changed_ += path;
  if (!outcome.isNoText) return;
  ++failedListings_;
  noText_ += path;
}

/// Shows counts and rows and lets events run; true stops the scan.
bool SearchRun::yield() {
  showHits();
  showSearched();
  if (parts_.display != nullptr) parts_.display->processEvents();
  // A stop request that comes with the closing of the program is for others too.
  const bool isStopped = parts_.state.AbortRequested && !parts_.state.QuitPending;
  if (!isStopped) return parts_.endRequested();
  showSearched();
  parts_.state.AbortRequested = false;
  return true;
}

void SearchRun::showHits() {
  if (parts_.display == nullptr || counts_.hits == shownHits_) return;
  shownHits_ = counts_.hits;
  parts_.display->showFound(counts_.hits);
  parts_.display->hitsArrived();
}

void SearchRun::showSearched() {
  if (parts_.display != nullptr) parts_.display->showSearched(counts_.searched);
}

void SearchRun::inform(const QString& text) {
  if (!isQuiet_) parts_.messages.inform(text);
}

void SearchRun::reportUnreadable() {
  if (unreadable_.empty() || isEnding() || !parts_.tellsUnreadable) return;
  QString message = Texts::tr(
      "The size or date of some hits could not be read. They are shown with the size and date of the hit "
      "before them.");
  const std::size_t named = std::min(unreadable_.size(), kMostListingsNamed);
  for (std::size_t i = 0; i < named; ++i) {
    const auto& [path, outcome] = unreadable_[i];
    message += QStringLiteral("\r\n") + Texts::tr("%1: %2 line(s), the first is line %3", nullptr,
                                                  Texts::plural(outcome.unreadableHits))
                                            .arg(path)
                                            .arg(outcome.unreadableHits)
                                            .arg(outcome.firstUnreadableLine);
  }
  if (unreadable_.size() > named) {
    message += QStringLiteral("\r\n") +
               Texts::tr("and in %1 more listings", nullptr,
                         Texts::plural(static_cast<std::int64_t>(unreadable_.size() - named)))
                   .arg(unreadable_.size() - named);
  }
  inform(message);
}

void SearchRun::reportChanged() {
  if (changed_.isEmpty() || isEnding()) return;
  inform(Texts::tr("These listings were written to while they were searched. Hits in them may come from "
                   "the old or the new content; press Find again for the new one.") +
         QStringLiteral("\r\n") + namesOf(changed_));
}

void SearchRun::reportNoText() {
  if (noText_.isEmpty() || isEnding()) return;
  inform(Texts::tr("These listings are not plain text, so little or nothing is found in them. If one was "
                   "saved as UTF-16 (\"Unicode\") without a byte order mark, save it as UTF-8.") +
         QStringLiteral("\r\n") + namesOf(noText_));
}

}  // namespace quorvin
