// SPDX-License-Identifier: GPL-2.0-or-later
#include "metafile/emf_player.h"

#include "metafile/dib.h"

#include <QTransform>

#include <cmath>
#include <utility>

namespace quorvin {

namespace {

constexpr std::uint32_t kEndOfFile = 14;
constexpr std::int64_t kLeastHeader = 88;
constexpr std::uint32_t kLeastRecord = 8;

QSizeF nonZero(const QSizeF& size, const QSizeF& otherwise) {
  return size.width() > 0 && size.height() > 0 ? size : otherwise;
}

constexpr std::uint32_t kStockMark = 0x80000000;
constexpr std::uint32_t kMostObjects = 0x10000;

QTransform transformAt(const MetafileBytes& record, std::int64_t at) {
  const QTransform transform(record.f32(at), record.f32(at + 4), record.f32(at + 8), record.f32(at + 12),
                             record.f32(at + 16), record.f32(at + 20));
  if (!isUsable(transform)) throw MetafileFault(QT_TRANSLATE_NOOP("Texts", "its scale makes no sense"));
  return transform;
}

/// `extent` times the first and third of four numbers, divided by the second and fourth.
QSizeF scaled(const QSizeF& extent, const MetafileBytes& record) {
  const auto ratio = [&](std::int64_t at) {
    if (record.i32(at + 4) == 0) throw MetafileFault(QT_TRANSLATE_NOOP("Texts", "its scale makes no sense"));
    return double(record.i32(at)) / record.i32(at + 4);
  };
  return {extent.width() * ratio(8), extent.height() * ratio(16)};
}

QTransform changedWorld(const QTransform& world, const MetafileBytes& record) {
  enum { Reset = 1, Before, After, Instead };
  switch (record.u32(32)) {
    case Reset:
      return {};
    case Before:
      return transformAt(record, 8) * world;
    case After:
      return world * transformAt(record, 8);
    case Instead:
      return transformAt(record, 8);
    default:
      return world;
  }
}

QString wideText(const MetafileBytes& bytes, std::int64_t at, std::int64_t mostUnits) {
  QString text;
  for (std::int64_t unit = 0; unit < mostUnits; ++unit) {
    const char16_t character = bytes.u16(at + unit * 2);
    if (character == 0) break;
    text.append(QChar(character));
  }
  return text;
}

MetafileFont fontOf(const MetafileBytes& record) {
  MetafileFont font;
  font.height = record.i32(12);
  font.width = record.i32(16);
  font.escapement = record.i32(20);
  font.weight = record.i32(28);
  font.isItalic = record.u8(32) != 0;
  font.isUnderlined = record.u8(33) != 0;
  font.isStruckOut = record.u8(34) != 0;
  font.charset = record.u8(35);
  font.family = wideText(record, 40, 32);
  return font;
}

/// Whether a comment starts the later, extended kind of records without promising that the plain records draw
/// the same.
bool needsExtendedRecords(const MetafileBytes& comment) {
  constexpr std::uint32_t kExtended = 0x2B464D45;
  constexpr std::uint16_t kHeader = 0x4001;
  constexpr std::uint16_t kPlainRecordsToo = 1;
  if (comment.size() < 20 || comment.u32(12) != kExtended || comment.u16(16) != kHeader) return false;
  return (comment.u16(18) & kPlainRecordsToo) == 0;
}

MetafilePen extendedPenOf(const MetafileBytes& record) {
  constexpr std::uint32_t kGeometric = 0x10000;
  const std::uint32_t style = record.u32(28);
  const double width = (style & kGeometric) != 0 ? record.u32(32) : 0;
  return {style, width, colourOf(record.u32(40))};
}

}  // namespace

struct EmfPlayer::Header {
  explicit Header(const MetafileBytes& record) {
    if (record.size() < kLeastHeader) {
      throw MetafileFault(QT_TRANSLATE_NOOP("Texts", "its header is too short"));
    }
    const QSizeF device = nonZero({double(record.i32(72)), double(record.i32(76))}, {1024, 768});
    const QSizeF millimetres = nonZero({double(record.i32(80)), double(record.i32(84))}, {270, 203});
    unitsPerMillimetre = {device.width() / millimetres.width(), device.height() / millimetres.height()};
    const QRectF frame = record.rect32(24);
    onDevice = {frame.x() / 100 * unitsPerMillimetre.width(), frame.y() / 100 * unitsPerMillimetre.height(),
                frame.width() / 100 * unitsPerMillimetre.width(),
                frame.height() / 100 * unitsPerMillimetre.height()};
    // Some writers leave the frame empty.
    sheet = sheetFor(frame.isValid() ? frame.size() : takeBounds(record.rect32(8)));
  }

  /// Places the picture at its bounds, which include their last column and row. Returns its size.
  QSizeF takeBounds(const QRectF& bounds) {
    onDevice = bounds.adjusted(0, 0, 1, 1);
    return {onDevice.width() / unitsPerMillimetre.width() * 100,
            onDevice.height() / unitsPerMillimetre.height() * 100};
  }

  QTransform deviceToImage() const {
    return QTransform::fromTranslate(-onDevice.x(), -onDevice.y()) *
           QTransform::fromScale(sheet.pixels.width() / onDevice.width(),
                                 sheet.pixels.height() / onDevice.height());
  }

  QSizeF unitsPerMillimetre;
  QRectF onDevice;
  MetafileSheet sheet;
};

EmfPlayer::EmfPlayer(const MetafileBytes& file) : EmfPlayer(file, Header(file.slice(0, file.u32(4)))) {}

EmfPlayer::EmfPlayer(const MetafileBytes& file, const Header& header)
    : file_(file),
      ownSize_(header.sheet.ownSize),
      canvas_(header.sheet, header.deviceToImage()),
      objects_(file.u16(56)) {
  canvas_.state.mapping.deviceUnitsPerMillimetre = header.unitsPerMillimetre;
}

MetafilePicture EmfPlayer::play() {
  for (std::int64_t at = 0;;) {
    const std::uint32_t type = file_.u32(at);
    const std::uint32_t size = file_.u32(at + 4);
    if (size < kLeastRecord) throw MetafileFault(QT_TRANSLATE_NOOP("Texts", "it is damaged or cut short"));
    const MetafileBytes record = file_.slice(at, size);
    if (type == kEndOfFile) return canvas_.finish(ownSize_);
    try {
      playRecord(type, record);
    } catch (const MetafileOmission& omission) {
      canvas_.leaveOut(omission.what());
    } catch (const MetafileFault&) {
      // One record that makes no sense does not spoil the others.
      canvas_.leaveOut(QT_TRANSLATE_NOOP("Texts", "damaged parts"));
    }
    at += size;
  }
}

void EmfPlayer::playRecord(std::uint32_t type, const MetafileBytes& record) {
  playMapping(type, record) || playSetting(type, record) || playObject(type, record) ||
      playShape(type, record) || playPoints(type, record) || playPath(type, record) ||
      playClip(type, record) || playBitmap(type, record) || playText(type, record) ||
      noteOmission(type, record);
}

bool EmfPlayer::noteOmission(std::uint32_t type, const MetafileBytes& record) {
  enum { FloodFill = 53, Comment = 70, OpenGl = 102, OpenGlBounded, SetLayout = 115 };
  constexpr std::uint32_t kMirrored = 1;
  switch (type) {
    case FloodFill:
      throw MetafileOmission(QT_TRANSLATE_NOOP("Texts", "flood fills"));
    case Comment:
      if (needsExtendedRecords(record)) throw MetafileOmission(QT_TRANSLATE_NOOP("Texts", "EMF+ drawings"));
      return true;
    case OpenGl:
    case OpenGlBounded:
      throw MetafileOmission(QT_TRANSLATE_NOOP("Texts", "OpenGL drawings"));
    case SetLayout:
      if ((record.u32(8) & kMirrored) != 0) throw MetafileOmission(QT_TRANSLATE_NOOP("Texts", "mirroring"));
      return true;
    default:
      return false;
  }
}

bool EmfPlayer::playMapping(std::uint32_t type, const MetafileBytes& record) {
  enum { WindowExtent = 9, WindowOrigin, ViewportExtent, ViewportOrigin };
  enum { MapMode = 17, ScaleViewport = 31, ScaleWindow, SetWorld = 35, ModifyWorld };
  MetafileMapping& mapping = canvas_.state.mapping;
  switch (type) {
    case WindowExtent:
      mapping.windowExtent = record.size32(8);
      return true;
    case WindowOrigin:
      mapping.windowOrigin = record.point32(8);
      return true;
    case ViewportExtent:
      mapping.viewportExtent = record.size32(8);
      return true;
    case ViewportOrigin:
      mapping.viewportOrigin = record.point32(8);
      return true;
    case MapMode:
      mapping.mode = record.i32(8);
      return true;
    case ScaleViewport:
      mapping.viewportExtent = scaled(mapping.viewportExtent, record);
      return true;
    case ScaleWindow:
      mapping.windowExtent = scaled(mapping.windowExtent, record);
      return true;
    case SetWorld:
      mapping.world = transformAt(record, 8);
      return true;
    case ModifyWorld:
      mapping.world = changedWorld(mapping.world, record);
      return true;
    default:
      return false;
  }
}

bool EmfPlayer::playSetting(std::uint32_t type, const MetafileBytes& record) {
  enum { BackMode = 18, PolygonFill, RasterOperation, TextAlign = 22, TextColour = 24, BackColour };
  enum { MoveTo = 27, Save = 33, Restore, ArcDirection = 57 };
  constexpr std::uint32_t kTransparent = 1;
  constexpr std::uint32_t kWinding = 2;
  constexpr std::uint32_t kClockwise = 2;
  MetafileState& state = canvas_.state;
  switch (type) {
    case BackMode:
      state.isBackOpaque = record.u32(8) != kTransparent;
      return true;
    case PolygonFill:
      state.fillRule = record.u32(8) == kWinding ? Qt::WindingFill : Qt::OddEvenFill;
      return true;
    case RasterOperation:
      state.rasterOperation = record.i32(8);
      return true;
    case TextAlign:
      state.textAlign = record.u32(8);
      return true;
    case TextColour:
      state.textColour = colourOf(record.u32(8));
      return true;
    case BackColour:
      state.backColour = colourOf(record.u32(8));
      return true;
    case MoveTo:
      state.position = record.point32(8);
      return true;
    case Save:
      canvas_.save();
      return true;
    case Restore:
      canvas_.restore(record.i32(8));
      return true;
    case ArcDirection:
      state.arcsRunClockwise = record.u32(8) == kClockwise;
      return true;
    default:
      return false;
  }
}

bool EmfPlayer::playObject(std::uint32_t type, const MetafileBytes& record) {
  enum { Select = 37, Pen, Brush, Delete, Font = 82, MonoBrush = 93, PatternBrush, ExtendedPen };
  switch (type) {
    case Select:
      canvas_.select(objectOf(record.u32(8)));
      return true;
    case Pen:
      store(record.u32(8),
            MetafilePen{record.u32(12), std::abs(double(record.i32(16))), colourOf(record.u32(24))});
      return true;
    case Brush:
      store(record.u32(8), plainBrush(record.u32(12), record.u32(16), record.u32(20)));
      return true;
    case Delete:
      store(record.u32(8), {});
      return true;
    case Font:
      store(record.u32(8), fontOf(record));
      return true;
    case MonoBrush:
    case PatternBrush:
      storePatternBrush(record, type == MonoBrush);
      return true;
    case ExtendedPen:
      store(record.u32(8), extendedPenOf(record));
      return true;
    default:
      return false;
  }
}

void EmfPlayer::store(std::uint32_t number, MetafileObject object) {
  if (number == 0 || number >= kMostObjects) {
    throw MetafileFault(QT_TRANSLATE_NOOP("Texts", "it has too many objects"));
  }
  if (number >= objects_.size()) objects_.resize(number + 1);
  objects_[number] = std::move(object);
}

MetafileObject EmfPlayer::objectOf(std::uint32_t number) const {
  if ((number & kStockMark) != 0) return stockObject(number & ~kStockMark);
  return number < objects_.size() ? objects_[number] : MetafileObject();
}

void EmfPlayer::storePatternBrush(const MetafileBytes& record, bool isMonochrome) {
  const MetafileBytes header = record.slice(record.u32(16), record.u32(20));
  const MetafileBytes bits = record.slice(record.u32(24), record.u32(28));
  const QImage pattern =
      isMonochrome ? bitsOfDib(header, bits) : imageOfDib(header, bits).convertToFormat(QImage::Format_RGB32);
  store(record.u32(8), MetafileBrush{Qt::TexturePattern, {}, pattern});
}

}  // namespace quorvin
