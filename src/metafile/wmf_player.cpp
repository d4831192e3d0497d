// SPDX-License-Identifier: GPL-2.0-or-later
#include "metafile/wmf_player.h"

#include "metafile/dib.h"
#include "platform/text_encoding.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace quorvin {

namespace {

constexpr std::int64_t kPlaceableSize = 22;
constexpr std::int64_t kHeaderSize = 18;
constexpr std::int64_t kLeastWmfRecord = 6;
constexpr double kHundredthMillimetresPerInch = 2540;
/// Without a placeable header, a unit counts as a pixel of the usual screen.
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
    if (size < kLeastWmfRecord) throw MetafileFault(QT_TRANSLATE_NOOP("Texts", "it is damaged or cut short"));
    const MetafileBytes record = records.slice(at, size);
    const std::uint16_t function = record.u16(4);
    if (function == kEnd || !use(function, WmfParameters(record.from(kLeastWmfRecord)))) return;
    at += size;
  }
}

/// The window in which the drawing is placed, in its own units, as its first records say.
std::optional<QRectF> firstWindow(const MetafileBytes& records) {
  std::optional<QPointF> origin;
  std::optional<QSizeF> extent;
  forEachRecord(records, [&](std::uint16_t function, const WmfParameters& parameters) {
    if (function == kSetWindowOrigin && !origin) origin = parameters.point(0);
    if (function == kSetWindowExtent && !extent) extent = parameters.extent(0);
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
  if (!window) throw MetafileFault(QT_TRANSLATE_NOOP("Texts", "it does not say how large it is"));
  return {*window, kUsualUnitsPerInch};
}

constexpr std::size_t kMostWmfObjects = 0x10000;

MetafileFont fontOf(const WmfParameters& parameters) {
  MetafileFont font;
  font.height = parameters.i16(0);
  font.width = parameters.i16(2);
  font.escapement = parameters.i16(4);
  font.weight = parameters.i16(8);
  font.isItalic = parameters.u8(10) != 0;
  font.isUnderlined = parameters.u8(11) != 0;
  font.isStruckOut = parameters.u8(12) != 0;
  font.charset = parameters.u8(13);
  const QByteArrayView name = parameters.from(18).all();
  const qsizetype end = name.indexOf('\0');
  font.family = decodeSystemText(end < 0 ? name : name.first(end));
  return font;
}

/// A region is listed in bands: each with its count of numbers, its top and bottom, and pairs of left and
/// right.
QRegion regionOf(const WmfParameters& parameters) {
  const std::uint16_t bands = parameters.u16(10);
  std::int64_t at = 22;
  QRegion region;
  for (int band = 0; band < bands; ++band) {
    const std::uint16_t count = parameters.u16(at);
    const int top = parameters.i16(at + 2);
    const int bottom = parameters.i16(at + 4);
    for (std::int64_t pair = at + 6; pair < at + 6 + 2LL * count; pair += 4) {
      region |= QRect(QPoint(parameters.i16(pair), top), QPoint(parameters.i16(pair + 2) - 1, bottom - 1));
    }
    at += 8 + 2LL * count;
  }
  return region;
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
  ownSize_ = sheet.ownSize;
  const QTransform windowToSheet = QTransform::fromTranslate(-place.window.x(), -place.window.y()) *
                                   QTransform::fromScale(sheet.pixels.width() / place.window.width(),
                                                         sheet.pixels.height() / place.window.height());
  canvas_ = std::make_unique<MetafileCanvas>(sheet, windowToSheet);
  // The first window always fills the sheet: what the file says about its own screen does not matter here.
  MetafileMapping& mapping = canvas_->state.mapping;
  mapping.mode = MetafileMapping::Anisotropic;
  mapping.viewportOrigin = mapping.windowOrigin = place.window.topLeft();
  mapping.viewportExtent = mapping.windowExtent = place.window.size();
}

MetafilePicture WmfPlayer::play() {
  forEachRecord(records_, [this](std::uint16_t function, const WmfParameters& parameters) {
    try {
      playRecord(function, parameters);
    } catch (const MetafileOmission& omission) {
      canvas_->leaveOut(omission.what());
    } catch (const MetafileFault&) {
      // One record that makes no sense does not spoil the others.
      canvas_->leaveOut(QT_TRANSLATE_NOOP("Texts", "damaged parts"));
    }
    return true;
  });
  return canvas_->finish(ownSize_);
}

void WmfPlayer::playRecord(std::uint16_t function, const WmfParameters& parameters) {
  playWindow(function, parameters) || playSetting(function, parameters) || playObject(function, parameters) ||
      playShape(function, parameters) || playClip(function, parameters) || playBitmap(function, parameters) ||
      playText(function, parameters) || noteOmission(function, parameters);
}

bool WmfPlayer::noteOmission(std::uint16_t function, const WmfParameters& parameters) {
  enum { SetLayout = 0x0149, FloodFill = 0x0419, ExtendedFloodFill = 0x0548 };
  constexpr std::uint16_t kMirrored = 1;
  switch (function) {
    case FloodFill:
    case ExtendedFloodFill:
      throw MetafileOmission(QT_TRANSLATE_NOOP("Texts", "flood fills"));
    case SetLayout:
      if ((parameters.u16(0) & kMirrored) != 0) {
        throw MetafileOmission(QT_TRANSLATE_NOOP("Texts", "mirroring"));
      }
      return true;
    default:
      return false;
  }
}

bool WmfPlayer::playWindow(std::uint16_t function, const WmfParameters& parameters) {
  enum { OffsetOrigin = 0x020F, ScaleExtent = 0x0410 };
  MetafileMapping& mapping = canvas_->state.mapping;
  switch (function) {
    case kSetWindowOrigin:
      mapping.windowOrigin = parameters.point(0);
      return true;
    case kSetWindowExtent:
      mapping.windowExtent = parameters.extent(0);
      return true;
    case OffsetOrigin:
      mapping.windowOrigin += parameters.point(0);
      return true;
    case ScaleExtent: {
      const QSizeF through = {double(parameters.i16(4)), double(parameters.i16(0))};
      if (through.width() == 0 || through.height() == 0) {
        throw MetafileFault(QT_TRANSLATE_NOOP("Texts", "its scale makes no sense"));
      }
      mapping.windowExtent = {mapping.windowExtent.width() * parameters.i16(6) / through.width(),
                              mapping.windowExtent.height() * parameters.i16(2) / through.height()};
      return true;
    }
    default:
      return false;
  }
}

bool WmfPlayer::playSetting(std::uint16_t function, const WmfParameters& parameters) {
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
      state.position = parameters.point(0);
      return true;
    default:
      return false;
  }
}

bool WmfPlayer::playObject(std::uint16_t function, const WmfParameters& parameters) {
  enum { Palette = 0x00F7, DibPattern = 0x0142, Select = 0x012D, Delete = 0x01F0, Pattern = 0x01F9 };
  enum { Pen = 0x02FA, Font = 0x02FB, Brush = 0x02FC, Region = 0x06FF };
  switch (function) {
    case Select:
      canvas_->select(object(parameters.u16(0)));
      return true;
    case Delete:
      if (parameters.u16(0) < objects_.size()) objects_[parameters.u16(0)] = {};
      return true;
    case Pen:
      store(MetafilePen{parameters.u16(0), std::abs(double(parameters.i16(2))), colourOf(parameters.u32(6))});
      return true;
    case Font:
      store(fontOf(parameters));
      return true;
    case Brush:
      store(plainBrush(parameters.u16(0), parameters.u32(2), parameters.u16(6)));
      return true;
    case Region:
      store(regionOf(parameters));
      return true;
    case DibPattern:
      store(MetafileBrush{Qt::TexturePattern,
                          {},
                          imageOfPackedDib(parameters.from(4)).convertToFormat(QImage::Format_RGB32)});
      return true;
    case Palette:
      store(MetafilePlaceholder{});
      return true;
    case Pattern:
      store(MetafilePlaceholder{});
      throw MetafileOmission(QT_TRANSLATE_NOOP("Texts", "patterns in the form of a device"));
    default:
      return false;
  }
}

void WmfPlayer::store(MetafileObject object) {
  const auto isFree = [](const MetafileObject& each) { return std::holds_alternative<std::monostate>(each); };
  const auto place = std::ranges::find_if(objects_, isFree);
  if (place != objects_.end()) {
    *place = std::move(object);
  } else if (objects_.size() < kMostWmfObjects) {
    objects_.push_back(std::move(object));
  }
}

const MetafileObject& WmfPlayer::object(std::uint16_t number) const {
  if (number >= objects_.size()) {
    throw MetafileFault(QT_TRANSLATE_NOOP("Texts", "it uses an object that it has not made"));
  }
  return objects_[number];
}

}  // namespace quorvin
