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
  /// The run has started: `Find` is "Stop" from now on.
  virtual void runStarted() = 0;
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
  /// Keeps what was read for later runs; null to read every listing again.
  SegmentStore* segments = nullptr;
  /// Null where nobody watches.
  RunDisplay* display = nullptr;
  /// Whether the program is closing: the run then ends at its next yield, without further sources or
  /// messages.
  std::function<bool()> endRequested = [] { return false; };
};

/// Runs a search over all sources. User-interface thread only.
class SearchRun {
 public:
  explicit SearchRun(RunParts parts) : parts_(std::move(parts)) {}

  /// The click handler of `Find`. While a run goes on it only sets `AbortRequested`. Otherwise: corrects the
  /// desired match, lower-cases the search text (an empty one ends the run before anything changes), clears
  /// the hits and scans the online listings, the main data file and the offline listings, in this order. A
  /// listing that is missing or cannot be read is reported in a message; only a missing main data file ends
  /// the run. Throws fault 9 for more than 101 words, before anything is cleared.
  void Find_Click(const QString& searchText, const QString& desMatch);

  /// Scans the listings at `paths`, in order, instead of the sources of the state; the console's way of
  /// searching listings that are named. Missing ones are reported and skipped.
  void searchListings(const QString& searchText, const QString& desMatch, const std::vector<QString>& paths);

  /// From the moment at which the hits of the last run are cleared to the end of the last listing. Messages
  /// about the whole run come after it.
  bool isRunning() const { return isRunning_; }

  std::int64_t hitCount() const { return counts_.hits; }
  std::int64_t searchedCount() const { return counts_.searched; }
  /// How many listings were missing, were no text or could not be searched to their end.
  int failedListings() const { return failedListings_; }

 private:
  void run(const QString& searchText, const QString& desMatch, const std::function<void()>& searchListings);
  void start();
  void end();
  void searchSources();
  void searchOnlineSources();
  bool searchMainDataFile();
  void searchOfflineSources();
  bool searchIfFound(const QString& path, SourceKind kind);
  void scan(const QString& path, SourceKind kind);
  bool yield();
  bool isEnding() const { return enough_ || parts_.endRequested(); }
  void showHits();
  void showSearched();
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
  bool isRunning_ = false;
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
