// SPDX-License-Identifier: GPL-2.0-or-later

// Enhanced metafiles: bitmaps, gradients and text.
#include "metafile/dib.h"
#include "metafile/emf_player.h"

#include <array>

namespace quorvin {

namespace {

/// Where records that copy a part of a device, and those that draw a stored bitmap, give the place of the
/// bitmap.
constexpr std::int64_t kCopiedPart = 84;
constexpr std::int64_t kStoredBitmap = 48;
constexpr std::int64_t kMaskOfMaskBlt = 112;

QRectF boxAt(const MetafileBytes& record, std::int64_t at) {
  return {record.point32(at), record.size32(at + 8)};
}

/// The two parts of a bitmap; the record holds their offsets and lengths at `offsets`.
struct StoredBitmap {
  StoredBitmap(const MetafileBytes& record, std::int64_t offsets)
      : header(record.slice(record.u32(offsets), record.u32(offsets + 4))),
        bits(record.slice(record.u32(offsets + 8), record.u32(offsets + 12))) {}

  MetafileBytes header;
  MetafileBytes bits;
};

QString wideText(const MetafileBytes& letters) {
  QString text;
  text.reserve(letters.size() / 2);
  for (qsizetype at = 0; at < letters.size(); at += 2) text.append(QChar(letters.u16(at)));
  return text;
}

constexpr std::uint32_t kGlyphNumbers = 0x10;

QList<quint32> glyphNumbers(const MetafileBytes& numbers) {
  QList<quint32> glyphs;
  for (qsizetype at = 0; at < numbers.size(); at += 2) glyphs.append(numbers.u16(at));
  return glyphs;
}

bool hasBitmap(const MetafileBytes& record, std::int64_t offsets) {
  return record.u32(offsets + 4) != 0;
}

QImage imageAt(const MetafileBytes& record, std::int64_t offsets) {
  const StoredBitmap bitmap(record, offsets);
  return imageOfDib(bitmap.header, bitmap.bits);
}

/// A bitmap of one bit to the pixel that says which pixels of another are drawn.
class Mask {
 public:
  /// `offsets` is where the record says where the mask is; 12 bytes before, it holds the place in the mask
  /// that belongs to `place` in the bitmap.
  Mask(const MetafileBytes& record, std::int64_t offsets, const QPointF& place)
      : shift_(pixelsFrom(place, record.point32(offsets - 12))) {
    const StoredBitmap bitmap(record, offsets);
    bits_ = bitsOfDib(bitmap.header, bitmap.bits);
  }

  /// `image` with only those pixels for which the mask's bit is set, or is not set. Pixels beside the mask
  /// are left out.
  QImage appliedTo(const QImage& image, bool isSet) const {
    QImage result = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < result.height(); ++y) {
      auto* pixels = reinterpret_cast<QRgb*>(result.scanLine(y));
      for (int x = 0; x < result.width(); ++x) {
        const QPoint place = QPoint(x, y) + shift_;
        const bool isDrawn = bits_.valid(place) && (bits_.pixelIndex(place) != 0) == isSet;
        if (!isDrawn) pixels[x] = 0;
      }
    }
    return result;
  }

 private:
  static QPoint pixelsFrom(const QPointF& one, const QPointF& other) {
    constexpr int kFarthest = 1'000'000;
    return {wholeWithin(other.x() - one.x(), -kFarthest, kFarthest),
            wholeWithin(other.y() - one.y(), -kFarthest, kFarthest)};
  }

  QImage bits_;
  QPoint shift_;
};

/// Whether a raster operation, given by its first byte, copies the bitmap or leaves what is there. Throws
/// MetafileOmission for all others, which are hardly ever used with a mask.
bool copies(std::uint32_t operation) {
  enum { LeaveAsItIs = 0xAA, Copy = 0xCC };
  if (operation != Copy && operation != LeaveAsItIs) {
    throw MetafileOmission(QT_TRANSLATE_NOOP("Texts", "bitmaps mixed through masks"));
  }
  return operation == Copy;
}

}  // namespace

bool EmfPlayer::playBitmap(std::uint32_t type, const MetafileBytes& record) {
  enum { BitBlt = 76, StretchBlt, MaskBlt, PlgBlt, SetDibits = 80, StretchDibits };
  enum { AlphaBlend = 114, TransparentBlt = 116, GradientFill = 118 };
  switch (type) {
    case BitBlt: {
      const QRectF target = boxAt(record, 24);
      drawBitmap(record, kCopiedPart, target, {record.point32(44), target.size()}, record.u32(40));
      return true;
    }
    case StretchBlt:
      drawBitmap(record, kCopiedPart, boxAt(record, 24), {record.point32(44), record.size32(100)},
                 record.u32(40));
      return true;
    case AlphaBlend:
      blend(record);
      return true;
    case TransparentBlt:
      drawWithoutColour(record);
      return true;
    case MaskBlt:
      drawMasked(record);
      return true;
    case PlgBlt:
      drawInParallelogram(record);
      return true;
    case GradientFill:
      fillGradients(record);
      return true;
    case SetDibits: {
      const QRectF source = boxAt(record, 32);
      drawBitmap(record, kStoredBitmap, {record.point32(24), source.size()}, source, kCopyOperation);
      return true;
    }
    case StretchDibits:
      drawBitmap(record, kStoredBitmap, {record.point32(24), record.size32(72)}, boxAt(record, 32),
                 record.u32(68));
      return true;
    default:
      return false;
  }
}

void EmfPlayer::noteColoursOfPalettes(const MetafileBytes& record, std::int64_t use) {
  constexpr std::uint32_t kColoursOfPalette = 1;
  if (record.u32(use) == kColoursOfPalette) {
    canvas_.leaveOut(QT_TRANSLATE_NOOP("Texts", "colours of palettes"));
  }
}

void EmfPlayer::drawBitmap(const MetafileBytes& record, std::int64_t offsets, const QRectF& target,
                           QRectF source, std::uint32_t operation) {
  if (record.u32(offsets + 4) == 0) return canvas_.fill(target, operation);
  noteColoursOfPalettes(record, offsets == kStoredBitmap ? kStoredBitmap + 16 : offsets - 4);
  const StoredBitmap bitmap(record, offsets);
  if (offsets == kStoredBitmap) source = partFromTop(bitmap.header, source);
  canvas_.drawImage(target, imageOfDib(bitmap.header, bitmap.bits), source, operation);
}

void EmfPlayer::drawMasked(const MetafileBytes& record) {
  const QRectF target = boxAt(record, 24);
  const QRectF source(record.point32(44), target.size());
  const std::uint32_t operations = record.u32(40);
  const std::uint32_t whereSet = operations & 0x00FFFFFF;
  if (!hasBitmap(record, kMaskOfMaskBlt)) return drawBitmap(record, kCopiedPart, target, source, whereSet);
  const bool copiesWhereSet = copies(whereSet >> 16);
  // The second operation is given by its first byte alone.
  const bool copiesElsewhere = copies(operations >> 24);
  const QImage image = imageAt(record, kCopiedPart);
  const Mask mask(record, kMaskOfMaskBlt, source.topLeft());
  if (copiesWhereSet) canvas_.drawImage(target, mask.appliedTo(image, true), source, kCopyOperation);
  if (copiesElsewhere) canvas_.drawImage(target, mask.appliedTo(image, false), source, kCopyOperation);
}

void EmfPlayer::drawInParallelogram(const MetafileBytes& record) {
  constexpr std::int64_t kBitmap = 96;
  constexpr std::int64_t kMask = 124;
  const std::array<QPointF, 3> corners = {record.point32(24), record.point32(32), record.point32(40)};
  const QRectF source = boxAt(record, 48);
  QImage image = imageAt(record, kBitmap);
  if (hasBitmap(record, kMask)) image = Mask(record, kMask, source.topLeft()).appliedTo(image, true);
  canvas_.drawImage(corners, image, source);
}

void EmfPlayer::fillGradients(const MetafileBytes& record) {
  enum { LeftToRight, TopToBottom, Triangles };
  constexpr std::int64_t kVertexSize = 16;
  const MetafileBytes vertices = record.slice(36, kVertexSize * record.u32(24));
  const auto vertex = [&vertices](std::uint32_t number) {
    const MetafileBytes bytes = vertices.slice(kVertexSize * number, kVertexSize);
    // The channels have 16 bits.
    return MetafileVertex{bytes.point32(0), QColor(bytes.u8(9), bytes.u8(11), bytes.u8(13))};
  };
  const std::uint32_t mode = record.u32(32);
  const std::int64_t size = mode == Triangles ? 12 : 8;
  const MetafileBytes areas = record.slice(36 + vertices.size(), size * record.u32(28));
  for (std::int64_t at = 0; at < areas.size(); at += size) {
    const MetafileVertex one = vertex(areas.u32(at));
    const MetafileVertex other = vertex(areas.u32(at + 4));
    if (mode == Triangles) {
      canvas_.fillGradient({one, other, vertex(areas.u32(at + 8))});
    } else {
      canvas_.fillGradient(one, other, mode == TopToBottom ? Qt::Vertical : Qt::Horizontal);
    }
  }
}

void EmfPlayer::blend(const MetafileBytes& record) {
  constexpr std::uint8_t kPixelsHaveAlpha = 1;
  noteColoursOfPalettes(record, kCopiedPart - 4);
  const StoredBitmap bitmap(record, kCopiedPart);
  const QImage image = record.u8(43) == kPixelsHaveAlpha ? imageOfDibWithAlpha(bitmap.header, bitmap.bits)
                                                         : imageOfDib(bitmap.header, bitmap.bits);
  canvas_.drawImage(boxAt(record, 24), image, {record.point32(44), record.size32(100)}, kCopyOperation,
                    record.u8(42) / 255.0);
}

void EmfPlayer::drawWithoutColour(const MetafileBytes& record) {
  const StoredBitmap bitmap(record, kCopiedPart);
  QImage image = imageOfDib(bitmap.header, bitmap.bits);
  image.setAlphaChannel(image.createMaskFromColor(colourOf(record.u32(40)).rgb(), Qt::MaskOutColor));
  canvas_.drawImage(boxAt(record, 24), image, {record.point32(44), record.size32(100)}, kCopyOperation);
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
      if ((options & kGlyphNumbers) != 0) {
        text.glyphs = glyphNumbers(record.slice(at, 2LL * count));
      } else if ((options & kNarrow) != 0) {
        text.text = canvas_.state.font.textOf(record.slice(at, count).all());
      } else {
        text.text = wideText(record.slice(at, 2LL * count));
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
  const std::uint32_t count = record.u32(at + 8);
  const bool isNumbered = (options & kGlyphNumbers) != 0;
  // The numbers have 16 bits in both kinds of text.
  const MetafileBytes letters = record.slice(record.u32(at + 12), count * (isWide || isNumbered ? 2LL : 1LL));
  MetafileText text{record.point32(at), {}, {}, {}, {}};
  if (isNumbered) {
    text.glyphs = glyphNumbers(letters);
  } else if (isWide) {
    text.text = wideText(letters);
  } else {
    text.text = canvas_.state.font.textOf(letters.all());
  }
  if ((options & kOpaque) != 0) text.opaque = record.rect32(at + 20);
  if ((options & kClipped) != 0) text.clip = record.rect32(at + 20);
  const std::uint32_t steps = record.u32(at + 36);
  if (steps != 0 && text.text.size() + text.glyphs.size() == static_cast<qsizetype>(count)) {
    const MetafileBytes widths = record.slice(steps, 4LL * count);
    for (std::uint32_t unit = 0; unit < count; ++unit) text.steps.push_back(widths.i32(4LL * unit));
  }
  canvas_.drawText(text);
}

}  // namespace quorvin
