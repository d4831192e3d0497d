// Images of a listing in one file of the program's own. Layout: docs/formats/image-cache.md.
#pragma once

#include "platform/file_identity.h"
#include "search/search_image.h"

#include <QByteArray>
#include <QFile>
#include <QString>

#include <memory>
#include <vector>

namespace quorvin {

/// How often images out of a file are going to be searched. For a single time their texts are read piece by
/// piece; for more they are mapped, so that a later search need not read them again.
enum class ImageUse { Once, Repeated };

/// What an image file belongs to: a listing as it stood, and the rules by which it was read.
struct ImageKey {
  QString listing;
  FileIdentity identity;
  /// Name of the locale and its date forms, the year of dates without one, the text encoding.
  QString readingRules;

  bool operator==(const ImageKey&) const = default;
};

/// One segment of an image file: where its bytes stand and where each array stands in them.
struct SegmentRecord {
  static constexpr std::size_t kArrayCount = 21;
  struct ArrayPlace {
    /// Bytes from the segment's begin; number of elements.
    std::uint64_t offset;
    std::uint64_t count;
  };
  std::uint64_t offset;
  std::uint64_t size;
  std::uint64_t entryCount;
  std::uint64_t blockCount;
  /// ImageArrays::allOwn: 1 or 0.
  std::uint64_t allOwn;
  ArrayPlace arrays[kArrayCount];
};

/// Writes an image file beside its final name, segment by segment.
class ImageFileWriter {
 public:
  /// Throws RuntimeFault when the file cannot be made.
  explicit ImageFileWriter(const QString& path);
  /// Removes the file unless it was put in place.
  ~ImageFileWriter();
  ImageFileWriter(const ImageFileWriter&) = delete;
  ImageFileWriter& operator=(const ImageFileWriter&) = delete;

  /// Writes a complete image and returns it as it stands in the file. Throws RuntimeFault when the disk is
  /// full or the like; the writer is then of no more use.
  std::shared_ptr<const SearchImage> append(const SearchImage& image);

  /// Writes the key and puts the file in place. Throws as append does.
  void finish(const ImageKey& key);

 private:
  void write(const void* data, std::size_t size);
  void pad();

  QString path_;
  QFile file_;
  std::uint64_t position_ = 0;
  std::vector<SegmentRecord> segments_;
  std::vector<std::vector<std::uint64_t>> sums_;
  bool finished_ = false;
};

/// The images of the file at `path` if it is whole and belongs to `key`; else none. Only its directory is
/// read now; each stretch of the images is checked when it is first used (DamagedImage). Never throws.
std::vector<std::shared_ptr<const SearchImage>> openImageFile(const QString& path, const ImageKey& key,
                                                              ImageUse use);

/// The listing that the image file at `path` belongs to; empty text if it is none.
QString listingOfImageFile(const QString& path);

}  // namespace quorvin
