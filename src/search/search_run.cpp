#include "search/search_run.h"

#include "dates/general_number.h"
#include "faults/runtime_fault.h"
#include "files/file_lookup.h"
#include "platform/text_encoding.h"

#include <algorithm>

namespace quorvin {

namespace {

constexpr char16_t kIdleCaption[] = u"Find";
constexpr char16_t kRunningCaption[] = u"Stop";
constexpr char16_t kListingEnding[] = u".txt";

/// Messages name at most this many listings; the rest is told as a number.
constexpr std::size_t kMostListingsNamed = 10;

/// Gives the button its idle caption back however a run ends.
class RunningCaption {
 public:
  explicit RunningCaption(SearchRunView& view) : view_(view) {}
  ~RunningCaption() { view_.setFindCaption(QString::fromUtf16(kIdleCaption)); }
  RunningCaption(const RunningCaption&) = delete;
  RunningCaption& operator=(const RunningCaption&) = delete;

 private:
  SearchRunView& view_;
};

QString text(const char16_t* literal) {
  return QString::fromUtf16(literal);
}

std::int16_t correctedMatch(const QString& desMatch) {
  const std::int16_t wanted = roundToInt16(leadingNumber(desMatch));
  return std::clamp<std::int16_t>(wanted, 1, 100);
}

}  // namespace

/// Stands between the scan and the window: counts, rows and events at each yield.
class SearchRun::Listener : public ScanListener, public HitReceiver {
 public:
  explicit Listener(SearchRun& run) : run_(run) {}

  bool reached(std::int64_t searchedCount) override {
    showHits();
    run_.view_.showSearched(searchedCount);
    run_.view_.processEvents();
    if (run_.view_.endRequested()) return true;
    if (!run_.state_.AbortRequested) return false;
    run_.view_.showSearched(searchedCount);
    run_.state_.AbortRequested = false;
    return true;
  }

  void beginListing(SourceKind kind) override { run_.hits_.beginListing(kind); }

  void addHits(const std::shared_ptr<const Segment>& segment, std::span<const FoundEntry> hits) override {
    run_.hits_.addHits(segment, hits);
    run_.hitCount_ += static_cast<std::int64_t>(hits.size());
    newHits_ = true;
  }

  bool countsOnly() const override { return run_.hits_.countsOnly(); }

  void addCount(std::int64_t hits) override {
    run_.hitCount_ += hits;
    newHits_ = newHits_ || hits > 0;
  }

  void endSegment(const std::shared_ptr<const Segment>& segment,
                  const std::shared_ptr<const Segment>& kept) override {
    // The rows first: they were announced by nobody yet, and the segment may now be replaced under them.
    showHits();
    run_.hits_.endSegment(segment, kept);
  }

  void showHits() {
    if (!newHits_) return;
    newHits_ = false;
    run_.view_.showFound(run_.hitCount_);
    run_.view_.hitsArrived();
  }

 private:
  SearchRun& run_;
  bool newHits_ = false;
};

SearchRun::SearchRun(ProgramState& state, SearchRunView& view, MessageBoxes& messages, HitReceiver& hits,
                     SegmentStore* segments, const QLocale& locale, PathStyle style)
    : state_(state),
      view_(view),
      messages_(messages),
      hits_(hits),
      segments_(segments),
      locale_(locale),
      style_(style) {}

void SearchRun::Find_Click(const QString& searchText, const QString& desMatch) {
  if (view_.findCaption() != text(kIdleCaption)) {
    state_.AbortRequested = true;
    return;
  }
  if (!begin(searchText, desMatch)) return;
  {
    const RunningCaption running(view_);
    if (searchSources()) view_.showSearched(searchedCount_);
  }
  tellUnreadable();
  tellChanged();
}

void SearchRun::searchListings(const QString& searchText, const QString& desMatch,
                               const std::vector<QString>& paths) {
  if (!begin(searchText, desMatch)) return;
  {
    const RunningCaption running(view_);
    for (const QString& path : paths) {
      if (!view_.endRequested()) searchIfFound(path, SourceKind::Offline);
    }
    view_.showSearched(searchedCount_);
  }
  tellUnreadable();
  tellChanged();
}

bool SearchRun::begin(const QString& searchText, const QString& desMatch) {
  hitCount_ = 0;
  const std::int16_t desiredMatch = correctedMatch(desMatch);
  view_.setDesMatch(QString::number(desiredMatch));
  const QString lowered = simpleLowerCase(searchText);
  if (lowered.isEmpty()) return false;
  query_ = SearchQuery(lowered, desiredMatch);
  searchedCount_ = 0;
  failedListings_ = 0;
  unreadable_.clear();
  changed_.clear();
  view_.showFound(0);
  view_.setFindCaption(text(kRunningCaption));
  view_.clearHits();
  return true;
}

/// False when a missing main data file ended the run.
bool SearchRun::searchSources() {
  searchOnlineSources();
  if (!searchMainDataFile()) return false;
  searchOfflineSources();
  return true;
}

void SearchRun::searchOnlineSources() {
  for (int row = 1; row <= state_.OnlineSourceCount && !view_.endRequested(); ++row) {
    const QString& description = state_.OnlineSources.description(row);
    searchIfFound(state_.LocalFolder + description + text(kListingEnding), SourceKind::Online);
  }
}

bool SearchRun::searchMainDataFile() {
  const QString& file = state_.TextFile;
  if (file.isEmpty() || view_.endRequested()) return true;
  const QString path = isTakenAsItStands(file, style_) ? file : state_.LocalFolder + file;
  return searchIfFound(path, SourceKind::MainDataFile);
}

void SearchRun::searchOfflineSources() {
  for (int row = 1; row <= state_.OfflineSourceCount && !view_.endRequested(); ++row) {
    searchIfFound(state_.OfflineSources.path(row), SourceKind::Offline);
  }
}

bool SearchRun::searchIfFound(const QString& path, SourceKind kind) {
  if (ordinaryFileExists(path)) {
    scan(path, kind);
    return true;
  }
  ++failedListings_;
  messages_.inform(QStringLiteral("Listing file not found: ") + path);
  return false;
}

void SearchRun::scan(const QString& path, SourceKind kind) {
  Listener listener(*this);
  ScanOutcome outcome;
  listener.beginListing(kind);
  try {
    scanListingFile(path, segments_, query_, locale_, searchedCount_, listener, listener, outcome);
  } catch (const RuntimeFault& fault) {
    ++failedListings_;
    messages_.inform(
        QStringLiteral("The listing %1 could not be searched to its end.\r\nRun-time error '%2': "
                       "%3\r\nThe hits found in it so far are kept.")
            .arg(path)
            .arg(fault.number())
            .arg(fault.description()));
  }
  listener.showHits();
  view_.showSearched(searchedCount_);
  if (outcome.unreadableHits > 0) unreadable_.push_back({path, outcome});
  if (outcome.changedMeanwhile) changed_ += path;
}

void SearchRun::tellUnreadable() {
  if (unreadable_.empty() || view_.endRequested()) return;
  QString message = QStringLiteral(
      "The size or date of some hits could not be read. They are shown with the size and date of the hit "
      "before them.");
  const std::size_t named = std::min(unreadable_.size(), kMostListingsNamed);
  for (std::size_t i = 0; i < named; ++i) {
    const auto& [path, outcome] = unreadable_[i];
    message += QStringLiteral("\r\n%1: %2 line(s), the first is line %3")
                   .arg(path)
                   .arg(outcome.unreadableHits)
                   .arg(outcome.firstUnreadableLine);
  }
  if (unreadable_.size() > named) {
    message += QStringLiteral("\r\nand in %1 more listings").arg(unreadable_.size() - named);
  }
  messages_.inform(message);
}

void SearchRun::tellChanged() {
  if (changed_.isEmpty() || view_.endRequested()) return;
  const auto named = std::min(changed_.size(), static_cast<qsizetype>(kMostListingsNamed));
  QString message =
      QStringLiteral(
          "These listings were written to while they were searched. Hits in them may be partly of the "
          "old and partly of the new content; press Find again for the new one.\r\n") +
      changed_.first(named).join(QStringLiteral("\r\n"));
  if (changed_.size() > named) {
    message += QStringLiteral("\r\nand %1 more listings").arg(changed_.size() - named);
  }
  messages_.inform(message);
}

}  // namespace quorvin
