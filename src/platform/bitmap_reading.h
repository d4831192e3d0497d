// SPDX-License-Identifier: GPL-2.0-or-later

// Reading bitmaps with the toolkit's reader, which needs help with two things.
#pragma once

#include <QImage>
#include <QImageReader>

namespace quorvin {

/// The number of rows of a bitmap whose header gives this height. A bitmap that starts with its top row has a
/// negative height there, and the reader passes it on as it is.
int bitmapRows(int heightInHeader);

/// Reads the bitmap at which `reader` is. Pixels that a run-length-encoded bitmap skips, or that are missing
/// at the end of the file, get the first colour of the palette, or black; the reader alone would leave there
/// what the memory held before. Returns a null image when the bitmap cannot be read.
QImage readBitmap(QImageReader& reader);

}  // namespace quorvin
