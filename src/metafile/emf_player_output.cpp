// Enhanced metafiles: bitmaps, gradients and text.
#include "metafile/dib.h"
#include "metafile/emf_player.h"
#include "platform/text_encoding.h"

namespace quorvin {

namespace {

/// Where records that copy a part of a device, and those that draw a stored bitmap, give the place of the
/// bitmap.
constexpr std::int64_t kCopiedPart = 84;
constexpr std::int64_t kStoredBitmap = 48;

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

}  // namespace

bool EmfPlayer::playBitmap(std::uint32_t type, const MetafileBytes& record) {
  enum { BitBlt = 76, StretchBlt, SetDibits = 80, StretchDibits };
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

void EmfPlayer::drawBitmap(const MetafileBytes& record, std::int64_t offsets, const QRectF& target,
                           QRectF source, std::uint32_t operation) {
  if (record.u32(offsets + 4) == 0) return canvas_.fill(target, operation);
  const StoredBitmap bitmap(record, offsets);
  if (offsets == kStoredBitmap) source = partFromTop(bitmap.header, source);
  canvas_.drawImage(target, imageOfDib(bitmap.header, bitmap.bits), source, operation);
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
  // The numbers of glyphs have a meaning only in one version of one font.
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
