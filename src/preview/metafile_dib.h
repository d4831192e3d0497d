// Bitmaps inside of metafiles.
#pragma once

#include "preview/metafile_bytes.h"

#include <QImage>

namespace quorvin {

/// The bitmap whose header (with masks and palette) is `header` and whose pixels are `bits`. Throws
/// MetafileFault when there is none, or a far too large one.
QImage imageOfDib(const MetafileBytes& header, const MetafileBytes& bits);

/// The same for a bitmap in one piece: the pixels follow the palette.
QImage imageOfPackedDib(const MetafileBytes& dib);

}  // namespace quorvin
