#include "search/image_store.h"

#include "platform/machine_memory.h"
#include "platform/runtime_fault.h"
#include "platform/standard_folders.h"

#include <QDate>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace quorvin {

namespace {

constexpr char16_t kImageEnding[] = u".qimage";

QString readingRulesOf(const QLocale& locale) {
  const QStringList rules = {locale.name(), locale.dateFormat(QLocale::ShortFormat),
                             locale.timeFormat(QLocale::LongFormat),
                             QString::number(QDate::currentDate().year())};
  return rules.join(u'\n');
}

QStringList filesThatFit(const QString& folderPath, const QString& pattern) {
  const QDir folder(folderPath);
  QStringList paths;
  for (const QString& name : folder.entryList({pattern}, QDir::Files, QDir::Name)) {
    paths += folder.filePath(name);
  }
  return paths;
}

}  // namespace

std::optional<ImageKey> imageKeyOf(const QString& listing, const QLocale& locale) {
  const std::optional<FileIdentity> identity = fileIdentity(listing);
  if (!identity) return std::nullopt;
  return ImageKey{QFileInfo(listing).absoluteFilePath(), *identity, readingRulesOf(locale)};
}

QString imageFilePath(const QString& cacheFolder, const QString& listing) {
  const QByteArray name = listing.toUtf8();
  const std::uint64_t sum =
      checksumOf(std::as_bytes(std::span(name.constData(), static_cast<std::size_t>(name.size()))));
  return cacheFolder + QString::number(sum, 16).rightJustified(16, u'0') + QString::fromUtf16(kImageEnding);
}

QStringList imageFiles(const QString& cacheFolder) {
  return filesThatFit(cacheFolder, u'*' + QString::fromUtf16(kImageEnding));
}

QStringList unfinishedImageFiles(const QString& cacheFolder) {
  return filesThatFit(cacheFolder, u'*' + QString::fromUtf16(kImageEnding) + QStringLiteral(".*.new"));
}

ImageStore::Options ImageStore::defaultOptions(ImageUse use) {
  return {userCacheFolder(), static_cast<std::size_t>(machineMemory() / 4), use};
}

ImageStore::ImageStore(Options options) : options_(std::move(options)) {}

ImageStore::Images ImageStore::find(const ImageKey& key) {
  const auto known = std::find_if(kept_.begin(), kept_.end(),
                                  [&](const Kept& kept) { return kept.key.listing == key.listing; });
  if (known != kept_.end()) {
    const bool damaged = std::ranges::any_of(
        known->images, [](const std::shared_ptr<const SearchImage>& image) { return image->foundDamage(); });
    if (damaged) {
      forget(key.listing);
      return {};
    }
    if (known->key == key) {
      kept_.splice(kept_.begin(), kept_, known);
      return kept_.front().images;
    }
    kept_.erase(known);
  }
  if (options_.cacheFolder.isEmpty()) return {};
  Images images = openImageFile(imageFilePath(options_.cacheFolder, key.listing), key, options_.use);
  if (!images.empty()) keep({key, images, 0});
  return images;
}

void ImageStore::forget(const QString& listing) {
  kept_.remove_if([&](const Kept& kept) { return kept.key.listing == listing; });
  if (!options_.cacheFolder.isEmpty()) QFile::remove(imageFilePath(options_.cacheFolder, listing));
}

void ImageStore::keep(Kept kept) {
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

ImageStore::Recorder::Recorder(ImageStore& store, const ImageKey& key) : store_(store), key_(key) {
  if (store.options_.cacheFolder.isEmpty()) return;
  try {
    writer_ = std::make_unique<ImageFileWriter>(imageFilePath(store.options_.cacheFolder, key.listing));
  } catch (const RuntimeFault&) {
    // Without a cache folder the images are kept in memory.
  }
}

std::shared_ptr<const SearchImage> ImageStore::Recorder::add(const std::shared_ptr<GrowingImage>& image) {
  if (!keeping_) return nullptr;
  std::shared_ptr<const SearchImage> kept = image;
  if (writer_) {
    try {
      kept = writer_->append(*image);
    } catch (const RuntimeFault&) {
      writer_.reset();
    }
  }
  if (kept == image) memory_ += image->memorySize();
  if (memory_ > store_.options_.memoryBudget) {
    keeping_ = false;
    images_.clear();
    return nullptr;
  }
  images_.push_back(kept);
  return kept;
}

void ImageStore::Recorder::finish() {
  if (!keeping_ || images_.empty()) return;
  if (writer_) {
    try {
      writer_->finish(key_);
    } catch (const RuntimeFault&) {
      // The images stay usable for this run: they are mapped from the file that now loses its name.
    }
  }
  store_.keep({key_, std::move(images_), memory_});
}

}  // namespace quorvin
