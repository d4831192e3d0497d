#include "search/segment/segment_store.h"

#include "faults/runtime_fault.h"
#include "platform/machine_memory.h"
#include "platform/standard_folders.h"

#include <QDate>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace quorvin {

namespace {

constexpr char16_t kSegmentEnding[] = u".qsegments";
/// Of files that earlier versions kept; nothing reads them any more.
constexpr char16_t kEarlierEnding[] = u".qimage";

QString readingRulesOf(const QLocale& locale) {
  const QStringList rules = {locale.name(), locale.dateFormat(QLocale::ShortFormat),
                             locale.timeFormat(QLocale::LongFormat),
                             QString::number(QDate::currentDate().year())};
  return rules.join(u'\n');
}

QStringList filesThatFit(const QString& folderPath, const QStringList& patterns) {
  const QDir folder(folderPath);
  QStringList paths;
  for (const QString& name : folder.entryList(patterns, QDir::Files, QDir::Name)) {
    paths += folder.filePath(name);
  }
  return paths;
}

/// Removes what is of no use to anybody.
void tidy(const QString& cacheFolder) {
  removeLeftovers(cacheFolder);
  for (const QString& path : earlierSegmentFiles(cacheFolder)) QFile::remove(path);
}

}  // namespace

std::optional<SegmentKey> segmentKeyOf(const QString& listing, const QLocale& locale) {
  const std::optional<FileIdentity> identity = fileIdentity(listing);
  if (!identity) return std::nullopt;
  return SegmentKey{QFileInfo(listing).absoluteFilePath(), *identity, readingRulesOf(locale)};
}

QString segmentFilePath(const QString& cacheFolder, const QString& listing) {
  const QByteArray name = listing.toUtf8();
  const std::uint64_t sum =
      checksumOf(std::as_bytes(std::span(name.constData(), static_cast<std::size_t>(name.size()))));
  return cacheFolder + QString::number(sum, 16).rightJustified(16, u'0') + QString::fromUtf16(kSegmentEnding);
}

QStringList segmentFiles(const QString& cacheFolder) {
  return filesThatFit(cacheFolder, {u'*' + QString::fromUtf16(kSegmentEnding)});
}

QStringList earlierSegmentFiles(const QString& cacheFolder) {
  const QString files = u'*' + QString::fromUtf16(kEarlierEnding);
  return filesThatFit(cacheFolder, {files, files + QStringLiteral(".*.new")});
}

SegmentStore::Options SegmentStore::defaultOptions(SegmentUse use) {
  return {userCacheFolder(), static_cast<std::size_t>(machineMemory() / 4), use};
}

SegmentStore::SegmentStore(Options options) : options_(std::move(options)) {}

SegmentStore::Segments SegmentStore::find(const SegmentKey& key) {
  const auto known = std::find_if(kept_.begin(), kept_.end(),
                                  [&](const Kept& kept) { return kept.key.listing == key.listing; });
  if (known != kept_.end()) {
    const bool damaged = std::ranges::any_of(
        known->segments,
        [](const std::shared_ptr<const Segment>& segment) { return segment->foundDamage(); });
    if (damaged) {
      forget(key.listing);
      return {};
    }
    if (known->key == key) {
      kept_.splice(kept_.begin(), kept_, known);
      return kept_.front().segments;
    }
    kept_.erase(known);
  }
  if (options_.cacheFolder.isEmpty()) return {};
  Segments segments = openSegmentFile(segmentFilePath(options_.cacheFolder, key.listing), key, options_.use);
  if (!segments.empty()) keep({key, segments, 0});
  return segments;
}

void SegmentStore::forget(const QString& listing) {
  kept_.remove_if([&](const Kept& kept) { return kept.key.listing == listing; });
  if (!options_.cacheFolder.isEmpty()) QFile::remove(segmentFilePath(options_.cacheFolder, listing));
}

void SegmentStore::keep(Kept kept) {
  kept_.remove_if([&](const Kept& other) { return other.key.listing == kept.key.listing; });
  kept_.push_front(std::move(kept));
  std::size_t memory = 0;
  for (const Kept& each : kept_) memory += each.memory;
  // The newest stays: it was let in because there is room for it alone.
  while (memory > options_.memoryBudget && kept_.size() > 1) {
    memory -= kept_.back().memory;
    kept_.pop_back();
  }
}

SegmentStore::Recorder::Recorder(SegmentStore& store, const SegmentKey& key) : store_(store), key_(key) {
  if (store.options_.cacheFolder.isEmpty()) return;
  if (!std::exchange(store.hasTidied_, true)) tidy(store.options_.cacheFolder);
  try {
    writer_ = std::make_unique<SegmentFileWriter>(segmentFilePath(store.options_.cacheFolder, key.listing));
  } catch (const RuntimeFault&) {
    // Without a cache folder the segments are kept in memory.
  }
}

std::shared_ptr<const Segment> SegmentStore::Recorder::add(const std::shared_ptr<GrowingSegment>& segment) {
  if (!keeping_) return nullptr;
  std::shared_ptr<const Segment> kept = segment;
  if (writer_) {
    try {
      kept = writer_->append(*segment);
    } catch (const RuntimeFault&) {
      writer_.reset();
    }
  }
  if (kept == segment) memory_ += segment->memorySize();
  if (memory_ > store_.options_.memoryBudget) {
    keeping_ = false;
    segments_.clear();
    return nullptr;
  }
  segments_.push_back(kept);
  return kept;
}

void SegmentStore::Recorder::finish() {
  if (!keeping_ || segments_.empty()) return;
  if (writer_) {
    try {
      writer_->finish(key_);
    } catch (const RuntimeFault&) {
      // The segments stay usable for this run: they are mapped from the file that now loses its name.
    }
  }
  store_.keep({key_, std::move(segments_), memory_});
}

}  // namespace quorvin
