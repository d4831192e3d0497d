#include "metafile/bitmap_reading.h"

#include <algorithm>
#include <limits>

namespace quorvin {

int bitmapRows(int toldHeight) {
  return toldHeight < 0 ? -std::max(toldHeight, -std::numeric_limits<int>::max()) : toldHeight;
}

QImage readBitmap(QImageReader& reader) {
  const QSize told = reader.size();
  // The reader leaves such pixels as they were in an image of the right size and format.
  QImage image(told.width(), bitmapRows(told.height()), reader.imageFormat());
  image.fill(0);
  return reader.read(&image) ? image : QImage();
}

}  // namespace quorvin
