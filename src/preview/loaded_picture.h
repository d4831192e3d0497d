// SPDX-License-Identifier: GPL-2.0-or-later

// Loading a picture from a file.
#pragma once

#include "preview/metafile_child.h"
#include "preview/picture_file.h"

#include <QByteArray>
#include <QImage>
#include <QImageReader>
#include <QSize>
#include <QSizeF>
#include <QString>

#include <memory>
#include <optional>
#include <stop_token>

namespace quorvin {

/// One picture of a file, and how long it is seen when others follow.
struct PictureFrame {
  QImage image;
  int milliseconds = 0;
};

/// Decodes the frames of a bitmap, icon, JPEG or GIF picture one after another; only moving GIF pictures have
/// more than one. May be used by any thread, but by one at a time; stop() by any thread at any time.
class PictureDecoder {
 public:
  /// `name` is the name of the file for messages. Throws RuntimeFault, with the name and the reason, for a
  /// picture that is damaged from its start or has more than 256 megapixels.
  PictureDecoder(std::unique_ptr<PictureFile> file, PictureFormat format, const QString& name);

  /// The picture's own size in pixels, as it is to be seen.
  QSize size() const { return size_; }

  /// Reads the first frame. Throws RuntimeFault where it cannot be read.
  PictureFrame first();

  /// The next frame; after the last one the first again, as often as the file asks for. Nothing when there is
  /// no further one, or when it cannot be read.
  std::optional<PictureFrame> next();

  /// Makes reading fail from now on, the reading in progress included.
  void stop() { file_->stop(); }

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

/// A picture that can be shown. `size` is its own size, in pixels or hundredths of a millimetre: only the
/// ratio is of use. `decoder` is null unless further frames may follow. `drawnWithout` names what of a
/// drawing is missing, as MetafilePicture::leftOut does.
struct LoadedPicture {
  QSizeF size;
  PictureFrame frame;
  std::shared_ptr<PictureDecoder> decoder;
  QString drawnWithout = {};
};

/// Loads the picture, whatever its name says it is. May take long, so it is called outside of the user
/// interface's thread; `stop` ends it early, with a fault. Throws RuntimeFault, which names the file, for a
/// file that cannot be read or shown.
LoadedPicture loadPicture(const QString& path, const MetafileChild& child, const std::stop_source& stop);

}  // namespace quorvin
