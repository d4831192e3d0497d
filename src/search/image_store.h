// The images of listings that have been read before: in memory and in the user's cache folder.
#pragma once

#include "search/growing_image.h"
#include "search/image_file.h"

#include <QLocale>
#include <QString>
#include <QStringList>

#include <cstddef>
#include <list>
#include <memory>
#include <optional>
#include <vector>

namespace quorvin {

/// The key under which the images of `listing` are kept now; nothing if the file cannot be looked at. The
/// path is made absolute.
std::optional<ImageKey> imageKeyOf(const QString& listing, const QLocale& locale);

/// Keeps images. User-interface thread only. A store that fails to keep something is no fault: the listing is
/// read again the next time.
class ImageStore {
 public:
  using Images = std::vector<std::shared_ptr<const SearchImage>>;

  struct Options {
    /// Where image files stand, with a trailing separator; empty for none.
    QString cacheFolder;
    /// Bytes that images without a file may take up in memory.
    std::size_t memoryBudget = 0;
    /// Once where the program ends after one search.
    ImageUse use = ImageUse::Repeated;
  };

  /// The user's cache folder and a quarter of the machine's memory.
  static Options defaultOptions(ImageUse use = ImageUse::Repeated);

  explicit ImageStore(Options options);

  /// The images of a listing, in file order, if they are known and the listing is as it was; else none.
  Images find(const ImageKey& key);

  /// Lets go of a listing's images, in memory and on disk.
  void forget(const QString& listing);

  /// Takes the images of one listing while they are built. Unless finish() is called nothing is kept.
  class Recorder {
   public:
    Recorder(ImageStore& store, const ImageKey& key);

    /// Takes a complete image and returns the one to be used from now on instead: an equal one in a file, or
    /// itself. Null if there is no room for it; then nothing of the listing will be kept.
    std::shared_ptr<const SearchImage> add(const std::shared_ptr<GrowingImage>& image);

    /// The listing has been read to its end and has not changed.
    void finish();

   private:
    ImageStore& store_;
    ImageKey key_;
    std::unique_ptr<ImageFileWriter> writer_;
    Images images_;
    std::size_t memory_ = 0;
    bool keeping_ = true;
  };

 private:
  struct Kept {
    ImageKey key;
    Images images;
    /// Bytes in memory that no file backs.
    std::size_t memory;
  };

  void keep(Kept kept);

  Options options_;
  /// The one used last stands first.
  std::list<Kept> kept_;
};

/// The file for a listing's images in `cacheFolder`.
QString imageFilePath(const QString& cacheFolder, const QString& listing);

/// All image files in `cacheFolder`, by name.
QStringList imageFiles(const QString& cacheFolder);
/// What programs that were ended while they wrote left in `cacheFolder`; what others write just now is among
/// it.
QStringList unfinishedImageFiles(const QString& cacheFolder);

}  // namespace quorvin
