// SPDX-License-Identifier: GPL-2.0-or-later

// Bitmaps inside metafiles.
#pragma once

#include "metafile/metafile_bytes.h"

#include <QImage>
#include <QRectF>

namespace quorvin {

/// The bitmap whose header (with masks and palette) is `header` and whose pixels are `bits`. Throws
/// MetafileFault when it cannot be read or has more than 64 megapixels, and MetafileOmission when its pixels
/// are a JPEG or PNG picture.
QImage imageOfDib(const MetafileBytes& header, const MetafileBytes& bits);

/// The same for a bitmap in one piece: the pixels follow the palette.
QImage imageOfPackedDib(const MetafileBytes& dib);

/// The same for a bitmap of 32 bits whose fourth byte is alpha, by which the colours have been multiplied
/// already. Bitmaps of other depths have no alpha.
QImage imageOfDibWithAlpha(const MetafileBytes& header, const MetafileBytes& bits);

/// The bits of a bitmap of one bit to the pixel, as QImage::Format_Mono; it need not have a palette. Throws
/// MetafileFault for every other depth and for compressed bits, besides the reasons above.
QImage bitsOfDib(const MetafileBytes& header, const MetafileBytes& bits);

/// Some records count the rows of `part` as they are stored: from the bottom of the picture, unless `header`
/// says that its top row comes first. The result counts from the top.
QRectF partFromTop(const MetafileBytes& header, QRectF part);

}  // namespace quorvin
