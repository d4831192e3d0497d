// Decoding bitmaps, icons, JPEG and GIF pictures.
#pragma once

#include "preview/picture_file.h"
#include "preview/picture_format.h"

#include <QImage>
#include <QImageReader>
#include <QSize>
#include <QString>

#include <memory>
#include <optional>

namespace quorvin {

/// One picture of a file, and for how long it is to be seen when others follow.
struct PictureFrame {
  QImage image;
  int milliseconds = 0;
};

/// Reads the frames of a file one after another; all files but animated GIFs have one. May be used from any
/// thread, but from one at a time; stop() from any at any time.
class PictureDecoder {
 public:
  /// `name` is the file's name for messages. Throws RuntimeFault, with the name and the reason, for a picture
  /// that is damaged from its start or has more than 256 megapixels.
  PictureDecoder(std::unique_ptr<PictureFile> file, PictureFormat format, const QString& name);

  /// The picture's own size in pixels, as it is to be seen.
  QSize size() const { return size_; }

  /// Reads the first frame. Throws RuntimeFault where it cannot be read.
  PictureFrame first();

  /// The next frame; after the last one the first again, as often as the file asks for. Nothing when there is
  /// no further one, or when it cannot be read.
  std::optional<PictureFrame> next();

  /// What is being read ends soon, and nothing can be read any more.
  void stop() const { file_->stop(); }

 private:
  void chooseIcon();
  void rewind();
  std::optional<PictureFrame> read();
  void mend(QImage& image) const;
  void refuseTooLarge(const QSize& size) const;
  [[noreturn]] void refuse(const QString& why) const;

  std::unique_ptr<PictureFile> file_;
  PictureFormat format_;
  QString name_;
  int iconNumber_ = 0;
  QByteArray iconPart_;
  QSize size_;
  std::unique_ptr<QImageReader> reader_;
  int framesRead_ = 0;
  int roundsLeft_ = 0;
};

/// "NAME cannot be shown: WHY."
QString pictureRefusal(const QString& name, const QString& why);

}  // namespace quorvin
