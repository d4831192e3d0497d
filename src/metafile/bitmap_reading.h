// What the toolkit's reader of bitmaps needs help with.
#pragma once

#include <QImage>
#include <QImageReader>

namespace quorvin {

/// The rows of a bitmap that tells this height: one that begins with its first row tells it below zero.
int bitmapRows(int toldHeight);

/// Reads the bitmap that `reader` is at. Pixels that it jumps over, or that its file lacks, have the first
/// colour of its palette, or are black. A null image when it cannot be read.
QImage readBitmap(QImageReader& reader);

}  // namespace quorvin
