// SPDX-License-Identifier: GPL-2.0-or-later

// The bitmap without file header that bitmap files, icons and metafiles hold.
#pragma once

#include "metafile/byte_writer.h"

#include <QImage>
#include <QList>

#include <array>
#include <cstdint>

namespace quorvin::test {

/// What the header says, and where it is in the bytes.
struct DibForm {
  int headerSize = 40;
  int depth = 24;
  int compression = 0;
  bool isTopDown = false;
  /// For compressions 3 and 6, and headers above 40: red, green, blue, alpha.
  std::array<std::uint32_t, 4> masks = {};
  QList<QRgb> palette = {};
  /// Written instead of the picture's height; icons count their mask, too.
  int toldHeight = 0;
};

/// The rows of `image` in this form, each padded to four bytes. Palette depths take the index from `image`,
/// which then is an indexed one; the others its colours.
QByteArray dibBits(const QImage& image, const DibForm& form);

/// `image` with what is left of its colours in this form.
QImage asStored(const QImage& image, const DibForm& form);

/// Header, masks and palette.
QByteArray dibHeader(const QSize& size, const DibForm& form, qsizetype bitsLength);

QByteArray dibOf(const QImage& image, const DibForm& form);

/// A picture of 13 by 7 pixels, which no row width of any depth fits, with all of `colours` in it.
QImage indexedPicture(const QList<QRgb>& colours);
/// The same size in many colours, with transparent parts.
QImage colouredPicture(bool isTransparent = false);
QList<QRgb> paletteOf(int count);

}  // namespace quorvin::test
