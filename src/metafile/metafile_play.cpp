#include "metafile/metafile_play.h"

#include "metafile/metafile_bytes.h"
#include "metafile/metafile_emf.h"
#include "metafile/metafile_wmf.h"

#include <algorithm>
#include <cmath>

namespace quorvin {

namespace {

/// So that the picture is sharp in a window of the usual size, and fine lines are not lost when it is made
/// smaller.
constexpr double kLeastLongSide = 600;
constexpr double kMostLongSide = 2000;
constexpr double kHundredthMillimetresPerPixel = 2540.0 / 96;

}  // namespace

MetafileSheet sheetFor(const QSizeF& ownSize) {
  if (!(ownSize.width() > 0 && ownSize.height() > 0)) throw MetafileFault("it has no size");
  const QSizeF natural = ownSize / kHundredthMillimetresPerPixel;
  const double longSide = std::max(natural.width(), natural.height());
  const double scale = std::clamp(longSide, kLeastLongSide, kMostLongSide) / longSide;
  const auto pixels = [scale](double side) {
    return std::max(1, static_cast<int>(std::lround(side * scale)));
  };
  return {{pixels(natural.width()), pixels(natural.height())}, scale};
}

bool beginsEnhancedMetafile(QByteArrayView bytes) {
  return bytes.size() >= 44 && bytes.startsWith(QByteArrayView("\x01\0\0\0", 4)) &&
         bytes.sliced(40, 4) == QByteArrayView(" EMF");
}

bool beginsWindowsMetafile(QByteArrayView bytes) {
  if (bytes.startsWith(QByteArrayView("\xD7\xCD\xC6\x9A", 4))) return true;
  if (bytes.size() < 6) return false;
  const MetafileBytes header(bytes);
  return (header.u16(0) == 1 || header.u16(0) == 2) && header.u16(2) == 9 &&
         (header.u16(4) == 0x0100 || header.u16(4) == 0x0300);
}

MetafilePicture playMetafile(QByteArrayView bytes) {
  if (beginsEnhancedMetafile(bytes)) return EmfPlayer(MetafileBytes(bytes)).play();
  if (beginsWindowsMetafile(bytes)) return WmfPlayer(MetafileBytes(bytes)).play();
  throw MetafileFault("it is not a metafile");
}

}  // namespace quorvin
