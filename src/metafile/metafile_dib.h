// Bitmaps inside of metafiles.
#pragma once

#include "metafile/metafile_bytes.h"

#include <QImage>
#include <QRectF>

namespace quorvin {

/// The bitmap whose header (with masks and palette) is `header` and whose pixels are `bits`. Throws
/// MetafileFault when there is none, or a far too large one.
QImage imageOfDib(const MetafileBytes& header, const MetafileBytes& bits);

/// The same for a bitmap in one piece: the pixels follow the palette.
QImage imageOfPackedDib(const MetafileBytes& dib);

/// imageOfDib for a bitmap of 32 bits whose fourth byte is the alpha, by which the colours have been
/// multiplied; of other depths without alpha.
QImage imageOfDibWithAlpha(const MetafileBytes& header, const MetafileBytes& bits);

/// Records that draw stored bitmaps count the rows of `part` as they stand in the file: from the last one of
/// the picture on, unless `header` tells that it begins with its first. The result counts from the top.
QRectF partFromTop(const MetafileBytes& header, QRectF part);

}  // namespace quorvin
