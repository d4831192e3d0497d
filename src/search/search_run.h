// SPDX-License-Identifier: GPL-2.0-or-later

// The search run: what the Find button starts.
#pragma once

#include "platform/message_box.h"
#include "search/listing_scan.h"
#include "state/program_state.h"

#include <QLocale>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <functional>
#include <vector>

namespace quorvin {

/// Shows a run while it goes on. Each call comes at the moment at which its value changes; how often the
/// screen follows is the display's business.
class RunDisplay {
 public:
  virtual ~RunDisplay() = default;

  /// Writes the corrected desired match back to `DesMatch`.
  virtual void setDesMatch(const QString& text) = 0;
  /// The run has started: `Find` is "Stop" from now on. `query` is what it searches for, as long as the run's
  /// object lives or until the next run starts.
  virtual void runStarted(const SearchQuery& query) = 0;
  /// The run has ended, however it did: `Find` is "Find" again.
  virtual void runEnded() = 0;
  /// `lblFound` and `lblSearched`.
  virtual void showFound(std::int64_t count) = 0;
  virtual void showSearched(std::int64_t count) = 0;
  /// All rows are to be removed from the hit list and from what is behind it.
  virtual void clearHits() = 0;
  /// The sink has taken hits since the last call; comes before events are processed.
  virtual void hitsArrived() = 0;
  /// Lets pending window events run; the user may press Find (Stop) meanwhile.
  virtual void processEvents() = 0;
};

/// What a run works with. All of it must outlive the run.
struct RunParts {
  ProgramState& state;
  MessageBoxes& messages;
  /// The locale in which the listings' sizes and dates are read.
  QLocale locale;
  /// Where hits go; null where they are only counted.
  HitSink* hits = nullptr;
  /// Keeps what was read for later runs, as long as the listing is among the sources; null to read every
  /// listing again.
  SegmentStore* segments = nullptr;
  /// Null where nobody watches.
  RunDisplay* display = nullptr;
  /// Whether the run is of no use any more, since the program is closing or another search is wanted: it then
  /// ends at its next yield, without further sources or messages.
  std::function<bool()> endRequested = [] { return false; };
  /// Whether a message says which hits have a size or date that could not be read.
  bool tellsUnreadable = true;
  /// Gives the way to read a listing that was named and is no file, such as a pipe; nothing for files and for
  /// what is not there. Without it all listings are files.
  std::function<ListingReader(const QString& path)> streamAt = {};
};

/// How a run went over its listings.
struct RunReport {
  /// What was asked for, as it was typed.
  QString searchText;
  /// The match that entries must exceed, after its correction.
  std::int16_t desiredMatch = 0;
  /// The listings that it was to search, and those of them that it has searched to their end.
  int listings = 0;
  int searchedToTheEnd = 0;
  /// Those that are not there.
  int missing = 0;
  /// One of them is the main data file, so that the offline lists were not searched.
  bool isMainDataFileMissing = false;
  /// A stop request has cut a listing short: one of this run, or one that was left over from before.
  bool isStopped = false;
};

/// Runs a search over all sources. User-interface thread only.
class SearchRun {
 public:
  explicit SearchRun(RunParts parts) : parts_(std::move(parts)) {}

  /// The click handler of `Find`. While a run goes on it only sets `AbortRequested`. Otherwise: corrects the
  /// desired match, lower-cases the search text (an empty one ends the run before anything changes), clears
  /// the hits and scans the online listings, the main data file and the offline listings, in this order. A
  /// listing that is missing or cannot be read is reported in a message; only a missing main data file ends
  /// the run. When the user wants no more messages about missing listings, further ones are only counted.
  /// Throws fault 9 for more than 101 words, before anything is cleared.
  void Find_Click(const QString& searchText, const QString& desMatch);

  /// The same without any message, and without writing the desired match back: what a search does while its
  /// words are still being typed.
  void searchQuietly(const QString& searchText, const QString& desMatch);

  /// Scans the listings at `paths`, in order, instead of the sources of the state; the console's way of
  /// searching listings that are named. Missing ones are reported and skipped. What is no file is read as
  /// RunParts::streamAt says, and nothing is kept of it.
  void searchListings(const QString& searchText, const QString& desMatch, const std::vector<QString>& paths);

  /// From the moment at which the hits of the last run are cleared to the end of the last listing. Messages
  /// about the whole run come after it.
  bool isRunning() const { return isRunning_; }

  /// What the present run, or the last one, searches for, and how it went.
  const SearchQuery& query() const { return query_; }
  const RunReport& report() const { return report_; }

  std::int64_t hitCount() const { return counts_.hits; }
  std::int64_t searchedCount() const { return counts_.searched; }
  /// How many listings were missing, were no text or could not be searched to their end.
  int failedListings() const { return failedListings_; }

 private:
  void run(const QString& searchText, const QString& desMatch, const std::function<void()>& searchListings);
  void start(const QString& searchText, std::int16_t desiredMatch);
  void end();
  void searchSources();
  void searchOnlineSources();
  bool searchMainDataFile();
  void searchOfflineSources();
  int sourceCount() const;
  bool searchIfFound(const QString& path, SourceKind kind);
  void reportMissing(const QString& path);
  void scan(const QString& path, SourceKind kind, const std::function<void(ScanOutcome&)>& read);
  void scanFile(const QString& path, SourceKind kind);
  bool scanStream(const QString& path);
  ScanRequest request();
  bool yield();
  bool isEnding() const { return enough_ || parts_.endRequested(); }
  void showHits();
  void showSearched();
  void inform(const QString& text);
  void reportUnreadable();
  void reportChanged();
  void reportNoText();

  struct Unreadable {
    QString path;
    ScanOutcome outcome;
  };

  RunParts parts_;
  SearchQuery query_;
  RunCounts counts_;
  RunReport report_;
  bool isRunning_ = false;
  bool isQuiet_ = false;
  bool tellsMissing_ = true;
  /// The hit count that the display knows.
  std::int64_t shownHits_ = 0;
  /// The sink wants no more hits.
  bool enough_ = false;
  int failedListings_ = 0;
  std::vector<Unreadable> unreadable_;
  /// Listings that were written to while they were read.
  QStringList changed_;
  /// Listings that are no text.
  QStringList noText_;
};

}  // namespace quorvin
