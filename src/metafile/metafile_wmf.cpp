#include "metafile/metafile_wmf.h"

#include "metafile/metafile_whole.h"
#include "metafile/metafile_wmf_points.h"

#include <cmath>
#include <optional>

namespace quorvin {

namespace {

constexpr std::int64_t kPlaceableSize = 22;
constexpr std::int64_t kHeaderSize = 18;
constexpr std::int64_t kLeastRecord = 6;
constexpr double kHundredthMillimetresPerInch = 2540;
/// What a drawing without a placeable header counts as: pixels of the usual screen.
constexpr int kUsualUnitsPerInch = 96;

constexpr std::uint16_t kEnd = 0x0000;
constexpr std::uint16_t kSetWindowOrigin = 0x020B;
constexpr std::uint16_t kSetWindowExtent = 0x020C;

bool isPlaceable(const MetafileBytes& file) {
  return file.u32(0) == 0x9AC6CDD7;
}

/// Calls `use(function, parameters)` for each record up to the end; `use` says whether to go on.
template <typename Use>
void forEachRecord(const MetafileBytes& records, Use&& use) {
  for (std::int64_t at = 0;;) {
    const std::int64_t size = records.u32(at) * 2LL;
    if (size < kLeastRecord) throw MetafileFault("it is damaged or cut short");
    const MetafileBytes record = records.slice(at, size);
    const std::uint16_t function = record.u16(4);
    if (function == kEnd || !use(function, record.from(kLeastRecord))) return;
    at += size;
  }
}

/// The window in which the drawing is placed, in its own units, as its first records say.
std::optional<QRectF> firstWindow(const MetafileBytes& records) {
  std::optional<QPointF> origin;
  std::optional<QSizeF> extent;
  forEachRecord(records, [&](std::uint16_t function, const MetafileBytes& parameters) {
    if (function == kSetWindowOrigin && !origin) origin = wmfPoint(parameters, 0);
    if (function == kSetWindowExtent && !extent) extent = wmfSize(parameters, 0);
    return !origin || !extent;
  });
  if (!extent) return std::nullopt;
  return QRectF(origin.value_or(QPointF()), *extent);
}

struct WmfPlace {
  QRectF window;
  int unitsPerInch = kUsualUnitsPerInch;
};

WmfPlace placeOf(const MetafileBytes& file, const MetafileBytes& records) {
  if (isPlaceable(file)) {
    const QRectF box(QPointF(file.i16(6), file.i16(8)), QPointF(file.i16(10), file.i16(12)));
    return {box, file.u16(14) == 0 ? kUsualUnitsPerInch : file.u16(14)};
  }
  const std::optional<QRectF> window = firstWindow(records);
  if (!window) throw MetafileFault("it does not say how large it is");
  return {*window, kUsualUnitsPerInch};
}

}  // namespace

WmfPlayer::WmfPlayer(const MetafileBytes& file) : records_(file) {
  const std::int64_t header = isPlaceable(file) ? kPlaceableSize : 0;
  records_ = file.from(header + kHeaderSize);
  objects_.resize(file.u16(header + 10));
  const WmfPlace place = placeOf(file, records_);
  const QSizeF size = QSizeF(std::abs(place.window.width()), std::abs(place.window.height())) *
                      kHundredthMillimetresPerInch / place.unitsPerInch;
  const MetafileSheet sheet = sheetFor(size);
  ownSize_ = wholeHundredths(size);
  const QTransform windowToSheet = QTransform::fromTranslate(-place.window.x(), -place.window.y()) *
                                   QTransform::fromScale(sheet.pixels.width() / place.window.width(),
                                                         sheet.pixels.height() / place.window.height());
  canvas_ = std::make_unique<MetafileCanvas>(sheet.pixels, windowToSheet, sheet.scale);
  // The first window always fills the sheet: what the file says of its screen does not hold for another.
  MetafileMapping& mapping = canvas_->state.mapping;
  mapping.mode = MetafileMapping::Anisotropic;
  mapping.viewportOrigin = mapping.windowOrigin = place.window.topLeft();
  mapping.viewportExtent = mapping.windowExtent = place.window.size();
}

MetafilePicture WmfPlayer::play() {
  forEachRecord(records_, [this](std::uint16_t function, const MetafileBytes& parameters) {
    try {
      playRecord(function, parameters);
    } catch (const MetafileFault&) {
      // One record that makes no sense does not spoil the others.
    }
    return true;
  });
  return {ownSize_, canvas_->finish()};
}

void WmfPlayer::playRecord(std::uint16_t function, const MetafileBytes& parameters) {
  playWindow(function, parameters) || playSetting(function, parameters) || playObject(function, parameters) ||
      playShape(function, parameters) || playClip(function, parameters) || playBitmap(function, parameters) ||
      playText(function, parameters);
}

bool WmfPlayer::playWindow(std::uint16_t function, const MetafileBytes& parameters) {
  enum { OffsetOrigin = 0x020F, ScaleExtent = 0x0410 };
  MetafileMapping& mapping = canvas_->state.mapping;
  switch (function) {
    case kSetWindowOrigin:
      mapping.windowOrigin = wmfPoint(parameters, 0);
      return true;
    case kSetWindowExtent:
      mapping.windowExtent = wmfSize(parameters, 0);
      return true;
    case OffsetOrigin:
      mapping.windowOrigin += wmfPoint(parameters, 0);
      return true;
    case ScaleExtent: {
      const QSizeF through = {double(parameters.i16(4)), double(parameters.i16(0))};
      if (through.width() == 0 || through.height() == 0) {
        throw MetafileFault("its scale makes no sense");
      }
      mapping.windowExtent = {mapping.windowExtent.width() * parameters.i16(6) / through.width(),
                              mapping.windowExtent.height() * parameters.i16(2) / through.height()};
      return true;
    }
    default:
      return false;
  }
}

bool WmfPlayer::playSetting(std::uint16_t function, const MetafileBytes& parameters) {
  enum { Save = 0x001E, BackMode = 0x0102, RasterOperation = 0x0104, PolygonFill = 0x0106 };
  enum { Restore = 0x0127, TextAlign = 0x012E, BackColour = 0x0201, TextColour = 0x0209, MoveTo = 0x0214 };
  constexpr int kTransparent = 1;
  constexpr int kWinding = 2;
  MetafileState& state = canvas_->state;
  switch (function) {
    case Save:
      canvas_->save();
      return true;
    case Restore:
      canvas_->restore(parameters.i16(0));
      return true;
    case BackMode:
      state.isBackOpaque = parameters.u16(0) != kTransparent;
      return true;
    case RasterOperation:
      state.rasterOperation = parameters.u16(0);
      return true;
    case PolygonFill:
      state.fillRule = parameters.u16(0) == kWinding ? Qt::WindingFill : Qt::OddEvenFill;
      return true;
    case TextAlign:
      state.textAlign = parameters.u16(0);
      return true;
    case BackColour:
      state.backColour = colourOf(parameters.u32(0));
      return true;
    case TextColour:
      state.textColour = colourOf(parameters.u32(0));
      return true;
    case MoveTo:
      state.position = wmfPoint(parameters, 0);
      return true;
    default:
      return false;
  }
}

}  // namespace quorvin
