// SPDX-License-Identifier: GPL-2.0-or-later
#include "provider/file_finder.h"

#include "faults/runtime_fault.h"
#include "hits/hit_paths.h"
#include "platform/message_box.h"
#include "platform/text_encoding.h"
#include "search/hit_table.h"
#include "search/match/search_query.h"
#include "search/match/segment_search.h"
#include "search/word_places.h"
#include "state/settings.h"
#include "state/source_entries.h"

#include <QMimeDatabase>
#include <QStringList>

#include <algorithm>
#include <set>

namespace quorvin {

namespace {

/// More than all but one is all.
constexpr std::int16_t kAllWords = 99;
/// Their search takes less than a millisecond.
constexpr std::uint32_t kEntriesBetweenLooks = 50'000;
/// Enough to choose the best ones from.
constexpr std::int64_t kMostHits = 1000;
/// A helper of the desktop is not to fill the memory; beyond that, listings are opened again for each search.
constexpr std::size_t kMemoryBudget = std::size_t{256} << 20;

/// Nobody is there to be told.
class NoMessages : public MessageBoxes {
 public:
  void inform(const QString&) override {}
  bool askYesNo(const QString&) override { return false; }
  FaultAnswer askAbortRetryIgnore(const QString&) override { return FaultAnswer::Ignore; }
};

SegmentStore::Options storeOptions() {
  SegmentStore::Options options = SegmentStore::defaultOptions();
  options.memoryBudget = std::min(options.memoryBudget, kMemoryBudget);
  return options;
}

struct Listing {
  SourceKind kind;
  QString path;
};

/// In the order in which the window searches them.
std::vector<Listing> listingsOf(const ProgramState& state) {
  std::vector<Listing> listings;
  for (const SourceEntry& entry : entriesOf(state.OnlineSources, state.OnlineSourceCount)) {
    listings.push_back({SourceKind::Online, state.onlineListingPath(entry.description)});
  }
  if (!state.TextFile.isEmpty()) {
    listings.push_back({SourceKind::MainDataFile, state.placeOf(state.TextFile)});
  }
  for (const SourceEntry& entry : entriesOf(state.OfflineSources, state.OfflineSourceCount)) {
    listings.push_back({SourceKind::Offline, entry.path});
  }
  return listings;
}

/// One search over kept segments.
class KeptSearch {
 public:
  KeptSearch(const SearchQuery& query, HitTable& table, const std::function<bool()>& isOver)
      : search_(query), table_(table), isOver_(isOver) {}

  bool isEnough() const { return table_.rowCount() >= kMostHits || isOver_(); }

  void search(const Listing& listing, const SegmentStore::Segments& segments) {
    table_.startListing(listing.kind, listing.path);
    for (const auto& segment : segments) {
      if (isEnough()) return;
      search(segment);
      segment->searched();
      table_.endSegment(segment, segment);
    }
  }

 private:
  void search(const std::shared_ptr<const Segment>& segment) {
    const std::uint32_t count = segment->entryCount();
    for (std::uint32_t first = 0; first < count && !isEnough();) {
      const std::uint32_t last = std::min(count - first, kEntriesBetweenLooks) + first;
      found_.clear();
      search_.search(*segment, first, last, found_);
      if (!found_.empty()) table_.addHits(segment, found_);
      first = last;
    }
  }

  SegmentSearch search_;
  HitTable& table_;
  const std::function<bool()>& isOver_;
  std::vector<FoundEntry> found_;
};

QString idOf(const HitRow& hit) {
  return QStringList{QString::number(static_cast<int>(hit.kind)), hit.volume, hit.folder, hit.name}.join(
      u'\n');
}

/// Nothing where it is no identifier.
std::optional<HitRow> hitOf(const QString& id) {
  const QStringList parts = id.split(u'\n');
  if (parts.size() != 4) return std::nullopt;
  bool isNumber = false;
  const int kind = parts[0].toInt(&isNumber);
  if (!isNumber || kind < 0 || kind > static_cast<int>(SourceKind::Offline)) return std::nullopt;
  HitRow hit;
  hit.kind = static_cast<SourceKind>(kind);
  hit.volume = parts[1];
  hit.folder = parts[2];
  hit.name = parts[3];
  return hit;
}

/// Names come from foreign disks, and the desktop shows what it is given.
QString shownText(QString text) {
  for (QChar& character : text) {
    if (character.category() == QChar::Other_Control) character = u' ';
  }
  return text;
}

FoundFile fileOfHit(const HitRow& hit) {
  FoundFile file;
  file.id = idOf(hit);
  file.name = shownText(hit.name).trimmed();
  file.place = shownText(hit.volume + QStringLiteral(": ") + hit.folder);
  const QMimeType kind = QMimeDatabase().mimeTypeForFile(file.name, QMimeDatabase::MatchExtension);
  file.icon = kind.isDefault() ? QStringLiteral("text-x-generic") : kind.iconName();
  return file;
}

/// The bus ends a text at the first zero, and the rest would be another file.
bool canBeSent(const HitRow& hit) {
  return !hit.volume.contains(u'\0') && !hit.folder.contains(u'\0') && !hit.name.contains(u'\0');
}

std::vector<FoundFile> bestOf(const HitTable& table, const SearchQuery& query) {
  const WordPlaces words(query);
  std::vector<FoundFile> byName;
  std::vector<FoundFile> others;
  std::set<QString> ids;
  for (std::int64_t row = 0; row < table.rowCount() && byName.size() < FileFinder::kMostFiles; ++row) {
    const HitRow hit = table.row(row);
    const bool isFoundByName = words.found({}, hit.name) == query.wordCount();
    if (!isFoundByName && others.size() >= FileFinder::kMostFiles) continue;
    if (!canBeSent(hit) || !ids.insert(idOf(hit)).second) continue;
    FoundFile file = fileOfHit(hit);
    file.isFoundByName = isFoundByName;
    (isFoundByName ? byName : others).push_back(std::move(file));
  }
  const std::size_t room = FileFinder::kMostFiles - byName.size();
  byName.insert(byName.end(), others.begin(),
                others.begin() + static_cast<std::ptrdiff_t>(std::min(room, others.size())));
  return byName;
}

}  // namespace

FileFinder::FileFinder(const QLocale& locale) : locale_(locale), segments_(storeOptions()) {}

/// They may have been changed since the last search; reading them takes a millisecond.
bool FileFinder::loadSources() {
  NoMessages messages;
  state_ = ProgramState();
  try {
    loadUserSources(state_, locale_, messages);
  } catch (const RuntimeFault&) {
    return false;
  }
  return true;
}

std::vector<FoundFile> FileFinder::find(const QString& text, const std::function<bool()>& isOver) {
  const QString words = text.simplified();
  if (words.isEmpty() || !loadSources()) return {};
  try {
    const SearchQuery query(simpleLowerCase(words), kAllWords);
    HitTable table;
    KeptSearch search(query, table, isOver);
    bool hasSeenAll = true;
    for (const Listing& listing : listingsOf(state_)) {
      hasSeenAll = !search.isEnough();
      if (!hasSeenAll) break;
      const std::optional<SegmentKey> key = segmentKeyOf(listing.path, locale_);
      if (!key) continue;
      try {
        search.search(listing, segments_.find(*key));
      } catch (const DamagedSegment&) {
        // The window makes it again when it comes there.
        continue;
      }
    }
    // Those that were not reached are wanted by the next search, which gets further.
    if (hasSeenAll) segments_.releaseUnused();
    return bestOf(table, query);
  } catch (const RuntimeFault&) {
    // More words than there may be.
    return {};
  }
}

std::optional<FoundFile> FileFinder::fileOf(const QString& id) {
  const std::optional<HitRow> hit = hitOf(id);
  return hit ? std::optional(fileOfHit(*hit)) : std::nullopt;
}

QString FileFinder::pathOf(const QString& id) {
  const std::optional<HitRow> hit = hitOf(id);
  if (!hit || !loadSources()) return {};
  const HitPath path = HitPaths(state_).of(*hit);
  return path.isEmpty() ? QString() : path.fullPath();
}

}  // namespace quorvin
