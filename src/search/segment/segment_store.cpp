// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/segment/segment_store.h"

#include "faults/runtime_fault.h"
#include "files/file_lookup.h"
#include "platform/machine_memory.h"
#include "platform/standard_folders.h"

#include <QDate>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <exception>
#include <iterator>
#include <new>
#include <utility>

namespace quorvin {

namespace {

constexpr char16_t kSegmentEnding[] = u".qsegments";
/// Of files that earlier versions kept; nothing reads them any more.
constexpr char16_t kEarlierEnding[] = u".qimage";

QString readingRulesOf(const QLocale& locale) {
  return locale.name() + u'\n' + locale.dateFormat(QLocale::ShortFormat) + u'\n' +
         locale.timeFormat(QLocale::LongFormat) + u'\n' + QString::number(QDate::currentDate().year());
}

QStringList filesThatFit(const QString& folderPath, const QString& pattern) {
  const QDir folder(folderPath);
  QStringList paths;
  for (const QString& name : namesThatFit(folderPath, pattern)) paths += folder.filePath(name);
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
  return filesThatFit(cacheFolder, u'*' + QString::fromUtf16(kSegmentEnding));
}

QStringList earlierSegmentFiles(const QString& cacheFolder) {
  const QString files = u'*' + QString::fromUtf16(kEarlierEnding);
  const QString unfinished = QStringLiteral(".*.new");
  return filesThatFit(cacheFolder, files) + filesThatFit(cacheFolder, files + unfinished) +
         filesThatFit(cacheFolder, u'*' + QString::fromUtf16(kSegmentEnding) + unfinished);
}

SegmentStore::Options SegmentStore::defaultOptions(SegmentUse use) {
  return {userCacheFolder(), static_cast<std::size_t>(machineMemory() / 4), use};
}

SegmentStore::SegmentStore(Options options) : options_(std::move(options)) {}

SegmentStore::Segments SegmentStore::find(const SegmentKey& key) {
  makeRoom();
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
      known->isUsed = true;
      return kept_.front().segments;
    }
    remove(known);
  }
  if (options_.cacheFolder.isEmpty()) return {};
  Segments segments =
      openSegmentFile(segmentFilePath(options_.cacheFolder, key.listing), key, options_.use, buffers_);
  if (!segments.empty()) keep({key, segments});
  return segments;
}

void SegmentStore::forget(const QString& listing) {
  const auto known =
      std::find_if(kept_.begin(), kept_.end(), [&](const Kept& kept) { return kept.key.listing == listing; });
  if (known != kept_.end()) remove(known);
  if (!options_.cacheFolder.isEmpty()) QFile::remove(segmentFilePath(options_.cacheFolder, listing));
}

void SegmentStore::releaseUnused() {
  makeRoom();
  for (auto kept = kept_.begin(); kept != kept_.end();) {
    const auto here = kept++;
    if (!std::exchange(here->isUsed, false)) remove(here);
  }
}

void SegmentStore::keep(Kept kept) {
  const auto known = std::find_if(kept_.begin(), kept_.end(),
                                  [&](const Kept& other) { return other.key.listing == kept.key.listing; });
  if (known != kept_.end()) remove(known);
  kept_.push_front(std::move(kept));
  makeRoom();
}

void SegmentStore::remove(std::list<Kept>::iterator kept) {
  memory_ -= kept->memory;
  kept_.erase(kept);
}

/// Lets go of what was used longest ago until the rest is within the budget. Only the segments that were used
/// last have grown since the last look.
void SegmentStore::makeRoom() {
  if (kept_.empty()) return;
  Kept& newest = kept_.front();
  memory_ -= newest.memory;
  newest.memory = 0;
  for (const auto& segment : newest.segments) newest.memory += segment->memorySize();
  memory_ += newest.memory;
  // The newest stays: it was let in because there is room for it alone.
  while (memory_ > options_.memoryBudget && kept_.size() > 1) {
    // Hits may keep them alive for a long time.
    for (const auto& segment : kept_.back().segments) segment->release();
    remove(std::prev(kept_.end()));
  }
}

SegmentStore::Recorder::Recorder(SegmentStore& store, const SegmentKey& key)
    : store_(store), key_(key), isHolding_(store.options_.use == SegmentUse::Repeated) {
  if (store.options_.cacheFolder.isEmpty()) return;
  if (!std::exchange(store.hasTidied_, true)) tidy(store.options_.cacheFolder);
  try {
    writer_ = std::make_unique<SegmentFileWriter>(segmentFilePath(store.options_.cacheFolder, key.listing));
  } catch (const RuntimeFault&) {
    // Without a cache folder the segments are kept in memory.
  }
}

void SegmentStore::Recorder::add(const std::shared_ptr<GrowingSegment>& segment) {
  added_ = segment;
  if (writer_) startWriting();
}

void SegmentStore::Recorder::startWriting() {
  if (added_->memorySize() >= store_.options_.writtenBeside) {
    try {
      writing_ = std::async(std::launch::async, [this] { write(); });
      return;
    } catch (const std::exception&) {
      // There is no thread to be had, or no memory for one: it is done here.
    }
  }
  // It is small, and so perhaps held in memory: what the file needs it will need, too.
  added_->complete();
  write();
}

/// Makes a segment in the file of the one that is being added.
void SegmentStore::Recorder::write() {
  try {
    writer_->append(*added_);
    if (isHolding_) inFile_ = writer_->last();
  } catch (const RuntimeFault&) {
    writer_.reset();
  } catch (const std::bad_alloc&) {
    writer_.reset();
    stopHolding();
  }
}

std::shared_ptr<const Segment> SegmentStore::Recorder::settle() {
  if (writing_.valid()) writing_.get();
  const std::shared_ptr<GrowingSegment> added = std::exchange(added_, nullptr);
  std::shared_ptr<const Segment> kept = std::exchange(inFile_, nullptr);
  if (!added || !isHolding_) return nullptr;
  if (!kept) {
    added->complete();
    memory_ += added->memorySize();
    kept = added;
  }
  if (memory_ > store_.options_.memoryBudget) {
    stopHolding();
    return nullptr;
  }
  segments_.push_back(kept);
  return kept;
}

void SegmentStore::Recorder::stopHolding() {
  isHolding_ = false;
  segments_.clear();
}

void SegmentStore::Recorder::finish() {
  if (writer_) {
    try {
      writer_->finish(key_);
    } catch (const RuntimeFault&) {
      // The segments stay usable for this run: the file that now loses its name is still open.
    }
  }
  if (!segments_.empty()) store_.keep({key_, std::move(segments_)});
}

}  // namespace quorvin
