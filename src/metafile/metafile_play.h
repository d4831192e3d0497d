// Drawing a metafile.
#pragma once

#include <QByteArrayView>
#include <QImage>
#include <QSize>

namespace quorvin {

/// A metafile as an image. `ownSize` is the size that the file asks for, in hundredths of a millimetre.
struct MetafilePicture {
  QSize ownSize;
  QImage image;
};

/// Whether the bytes begin as an enhanced metafile does, or as a Windows metafile with or without a placeable
/// header.
bool beginsEnhancedMetafile(QByteArrayView bytes);
bool beginsWindowsMetafile(QByteArrayView bytes);

/// Draws the whole metafile on white. Records that make no sense are left out. Throws MetafileFault where the
/// file as a whole makes none: a header that is not one, a chain of records that leads out of the file or has
/// no end. Needs a QGuiApplication, for the fonts. May take long: it is meant for a process with limits.
MetafilePicture playMetafile(QByteArrayView bytes);

/// For the players: the image for a picture of `ownSize` (see above), some 96 pixels to the inch where that
/// is neither very small nor very large; and how many of its pixels stand for one at 96 to the inch. Throws
/// MetafileFault when the size is not above zero.
struct MetafileSheet {
  QSize pixels;
  double scale = 1;
};
MetafileSheet sheetFor(const QSizeF& ownSize);

}  // namespace quorvin
