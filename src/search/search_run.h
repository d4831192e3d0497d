// The search run: what the Find button starts.
#pragma once

#include "files/path_style.h"
#include "platform/message_box.h"
#include "search/listing_scan.h"
#include "search/match/hit_receiver.h"
#include "state/program_state.h"

#include <QLocale>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <vector>

namespace quorvin {

/// What a run needs of the window that started it; the console and the tests have their own.
class SearchRunView {
 public:
  virtual ~SearchRunView() = default;

  /// Writes the corrected desired match back to `DesMatch`.
  virtual void setDesMatch(const QString& text) = 0;
  /// The caption of `Find`: "Find" while idle, "Stop" while a run goes on.
  virtual QString findCaption() const = 0;
  virtual void setFindCaption(const QString& caption) = 0;
  /// `lblFound` and `lblSearched`.
  virtual void showFound(std::int64_t count) = 0;
  virtual void showSearched(std::int64_t count) = 0;
  /// All rows are to be removed from the hit list and from what is behind it.
  virtual void clearHits() = 0;
  /// Rows have been added to the hit receiver since the last call; comes before events are processed.
  virtual void hitsArrived() = 0;
  /// Lets pending window events run; the user may press Find (Stop) meanwhile.
  virtual void processEvents() = 0;
  /// Whether the program is closing: the run then ends at its next yield, without further sources or
  /// messages.
  virtual bool endRequested() const = 0;
};

/// Runs a search over all sources. User-interface thread only; everything handed over must outlive it.
class SearchRun {
 public:
  /// `segments` keeps what was read for later runs; null to read every listing anew.
  SearchRun(ProgramState& state, SearchRunView& view, MessageBoxes& messages, HitReceiver& hits,
            SegmentStore* segments, const QLocale& locale, PathStyle style = nativePathStyle());

  /// The click handler of `Find`. While the caption is not "Find" it only sets `AbortRequested`. Otherwise:
  /// corrects the desired match, lower-cases the search text (an empty one ends the run before anything
  /// changes), clears the hits and scans the online listings, the main data file and the offline listings,
  /// in this order. A listing that is missing or cannot be read is told in a message; only a missing main
  /// data file ends the run. Throws fault 9 for more than 101 words and fault 6 for a desired match beyond 16
  /// bits, before anything is cleared.
  void Find_Click(const QString& searchText, const QString& desMatch);

  /// Scans the listings at `paths`, in order, instead of the sources of the state; the console's way of
  /// searching listings that are named. Missing ones are told and skipped.
  void searchListings(const QString& searchText, const QString& desMatch, const std::vector<QString>& paths);

  std::int64_t hitCount() const { return hitCount_; }
  std::int64_t searchedCount() const { return searchedCount_; }
  /// How many listings were missing or could not be searched to their end.
  int failedListings() const { return failedListings_; }

 private:
  class Listener;

  bool begin(const QString& searchText, const QString& desMatch);
  bool searchSources();
  void searchOnlineSources();
  bool searchMainDataFile();
  void searchOfflineSources();
  bool searchIfFound(const QString& path, SourceKind kind);
  void scan(const QString& path, SourceKind kind);
  void tellUnreadable();
  void tellChanged();

  struct Unreadable {
    QString path;
    ScanOutcome outcome;
  };

  ProgramState& state_;
  SearchRunView& view_;
  MessageBoxes& messages_;
  HitReceiver& hits_;
  SegmentStore* segments_;
  QLocale locale_;
  PathStyle style_;
  SearchQuery query_;
  std::int64_t hitCount_ = 0;
  std::int64_t searchedCount_ = 0;
  int failedListings_ = 0;
  std::vector<Unreadable> unreadable_;
  /// Listings that were written to while they were read.
  QStringList changed_;
};

}  // namespace quorvin
