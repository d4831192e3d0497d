// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/bitmap_reading.h"

#include <algorithm>
#include <limits>

namespace quorvin {

int bitmapRows(int heightInHeader) {
  if (heightInHeader >= 0) return heightInHeader;
  return -std::max(heightInHeader, -std::numeric_limits<int>::max());
}

QImage readBitmap(QImageReader& reader) {
  const QSize size = reader.size();
  // The reader draws into an image of the right size and format, and leaves such pixels as they are in it.
  QImage image(size.width(), bitmapRows(size.height()), reader.imageFormat());
  image.fill(0);
  return reader.read(&image) ? image : QImage();
}

}  // namespace quorvin
