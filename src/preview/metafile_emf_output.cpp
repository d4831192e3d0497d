// Enhanced metafiles: clips and regions, bitmaps and text.
#include "platform/text_encoding.h"
#include "preview/metafile_dib.h"
#include "preview/metafile_emf.h"

#include <algorithm>
#include <cmath>

namespace quorvin {

namespace {

/// Where the records for copied parts of a device, and those for stored bitmaps, tell where the bitmap
/// stands.
constexpr std::int64_t kCopiedPart = 84;
constexpr std::int64_t kStoredBitmap = 48;
constexpr std::uint32_t kMostRectangles = 100'000;

QSizeF sizeAt(const MetafileBytes& record, std::int64_t at) {
  const QPointF size = record.point32(at);
  return {size.x(), size.y()};
}

QRectF boxAt(const MetafileBytes& record, std::int64_t at) {
  return {record.point32(at), sizeAt(record, at + 8)};
}

/// Regions are calculated with ints, and so must their differences be.
QPoint deviceUnitAt(const MetafileBytes& data, std::int64_t at) {
  constexpr int kFarthest = 100'000'000;
  return {std::clamp(data.i32(at), -kFarthest, kFarthest),
          std::clamp(data.i32(at + 4), -kFarthest, kFarthest)};
}

}  // namespace

QRegion emfRegion(const MetafileBytes& data) {
  const std::uint32_t count = data.u32(8);
  if (count > kMostRectangles) throw MetafileFault("a region in it has too many parts");
  QRegion region;
  for (std::uint32_t index = 0; index < count; ++index) {
    const std::int64_t at = data.u32(0) + std::int64_t{16} * index;
    region |= QRect(deviceUnitAt(data, at), deviceUnitAt(data, at + 8) - QPoint(1, 1));
  }
  return region;
}

bool EmfPlayer::playClip(std::uint32_t type, const MetafileBytes& record) {
  enum { Offset = 26, Exclude = 29, Intersect, FillRegion = 71, PaintRegion = 74, SelectRegion };
  constexpr int kAnd = 1;
  constexpr int kWithout = 4;
  switch (type) {
    case Offset:
      canvas_.moveClip(record.point32(8));
      return true;
    case Exclude:
      canvas_.clip(record.rect32(8), kWithout);
      return true;
    case Intersect:
      canvas_.clip(record.rect32(8), kAnd);
      return true;
    case FillRegion: {
      const std::uint32_t number = record.u32(28);
      const auto* brush = number < objects_.size() ? std::get_if<MetafileBrush>(&objects_[number]) : nullptr;
      if (brush != nullptr) canvas_.fillRegion(emfRegion(record.slice(32, record.u32(24))), *brush);
      return true;
    }
    case PaintRegion:
      canvas_.fillRegion(emfRegion(record.slice(28, record.u32(24))), canvas_.state.brush);
      return true;
    case SelectRegion:
      if (record.u32(8) == 0) {
        canvas_.clip(std::optional<QRegion>(), record.i32(12));
      } else {
        canvas_.clip(emfRegion(record.slice(16, record.u32(8))), record.i32(12));
      }
      return true;
    default:
      return false;
  }
}

bool EmfPlayer::playBitmap(std::uint32_t type, const MetafileBytes& record) {
  enum { BitBlt = 76, StretchBlt, SetDibits = 80, StretchDibits, AlphaBlend = 114, TransparentBlt = 116 };
  switch (type) {
    case BitBlt: {
      const QRectF target = boxAt(record, 24);
      drawBitmap(record, kCopiedPart, target, {record.point32(44), target.size()}, record.u32(40));
      return true;
    }
    case StretchBlt:
      drawBitmap(record, kCopiedPart, boxAt(record, 24), {record.point32(44), sizeAt(record, 100)},
                 record.u32(40));
      return true;
    case AlphaBlend:
    case TransparentBlt:
      drawBitmap(record, kCopiedPart, boxAt(record, 24), {record.point32(44), sizeAt(record, 100)},
                 kCopyOperation);
      return true;
    case SetDibits: {
      const QRectF source = boxAt(record, 32);
      drawBitmap(record, kStoredBitmap, {record.point32(24), source.size()}, source, kCopyOperation);
      return true;
    }
    case StretchDibits:
      drawBitmap(record, kStoredBitmap, {record.point32(24), sizeAt(record, 72)}, boxAt(record, 32),
                 record.u32(68));
      return true;
    default:
      return false;
  }
}

void EmfPlayer::drawBitmap(const MetafileBytes& record, std::int64_t offsets, const QRectF& target,
                           QRectF source, std::uint32_t operation) {
  if (record.u32(offsets + 4) == 0) return canvas_.fill(target, operation);
  const QImage image = imageOfDib(record.slice(record.u32(offsets), record.u32(offsets + 4)),
                                  record.slice(record.u32(offsets + 8), record.u32(offsets + 12)));
  // Rows of stored bitmaps are counted from the last one on.
  if (offsets == kStoredBitmap) source.moveTop(image.height() - source.y() - source.height());
  canvas_.drawImage(target, image, source, operation);
}

bool EmfPlayer::playText(std::uint32_t type, const MetafileBytes& record) {
  enum { Narrow = 83, Wide = 84, PolyNarrow = 96, PolyWide = 97, Small = 108 };
  switch (type) {
    case Narrow:
    case Wide:
      drawString(record, 36, record.u32(52), type == Wide);
      return true;
    case PolyNarrow:
    case PolyWide:
      for (std::uint32_t index = 0; index < record.u32(36); ++index) {
        drawString(record, 40 + 40LL * index, record.u32(40 + 40LL * index + 16), type == PolyWide);
      }
      return true;
    case Small: {
      constexpr std::uint32_t kNoBox = 0x100;
      constexpr std::uint32_t kNarrow = 0x200;
      const std::uint32_t count = record.u32(16);
      const std::uint32_t options = record.u32(20);
      const std::int64_t at = (options & kNoBox) != 0 ? 36 : 52;
      MetafileText text{record.point32(8), {}, {}, {}, {}};
      for (std::uint32_t unit = 0; unit < count; ++unit) {
        text.text.append((options & kNarrow) != 0 ? QChar(char16_t{record.u8(at + unit)})
                                                  : QChar(record.u16(at + 2LL * unit)));
      }
      canvas_.drawText(text);
      return true;
    }
    default:
      return false;
  }
}

void EmfPlayer::drawString(const MetafileBytes& record, std::int64_t at, std::uint32_t options, bool isWide) {
  constexpr std::uint32_t kOpaque = 2;
  constexpr std::uint32_t kClipped = 4;
  constexpr std::uint32_t kGlyphNumbers = 0x10;
  const std::uint32_t count = record.u32(at + 8);
  const MetafileBytes letters = record.slice(record.u32(at + 12), count * (isWide ? 2LL : 1LL));
  MetafileText text{record.point32(at), {}, {}, {}, {}};
  if (isWide) {
    for (std::uint32_t unit = 0; unit < count; ++unit) text.text.append(QChar(letters.u16(2LL * unit)));
  } else {
    text.text = decodeSystemText(letters.all());
  }
  // The numbers of glyphs mean something in one version of one font only.
  if ((options & kGlyphNumbers) != 0) text.text.clear();
  if ((options & kOpaque) != 0) text.opaque = record.rect32(at + 20);
  if ((options & kClipped) != 0) text.clip = record.rect32(at + 20);
  const std::uint32_t steps = record.u32(at + 36);
  if (steps != 0 && text.text.size() == static_cast<qsizetype>(count)) {
    const MetafileBytes widths = record.slice(steps, 4LL * count);
    for (std::uint32_t unit = 0; unit < count; ++unit) text.steps.push_back(widths.i32(4LL * unit));
  }
  canvas_.drawText(text);
}

}  // namespace quorvin
