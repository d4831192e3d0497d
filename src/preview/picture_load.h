// Loading a picture from a file.
#pragma once

#include "preview/metafile_child.h"
#include "preview/picture_decoder.h"
#include "preview/picture_stop.h"

#include <QImage>
#include <QSizeF>
#include <QString>

#include <memory>

namespace quorvin {

/// A picture that can be shown. `size` is its own size, in pixels or hundredths of a millimetre: only the
/// ratio is of use. `decoder` is there where the picture may go on with further frames.
struct LoadedPicture {
  QSizeF size;
  PictureFrame frame;
  std::shared_ptr<PictureDecoder> decoder;
};

/// Loads the picture, whatever its name says it is. May take long: to be called aside from the user
/// interface. Throws RuntimeFault, which names the file, for a file that cannot be read or shown.
LoadedPicture loadPicture(const QString& path, const MetafileChild& child, const PictureStop& stop);

}  // namespace quorvin
