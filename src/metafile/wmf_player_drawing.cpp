// SPDX-License-Identifier: GPL-2.0-or-later

// Windows metafiles: lines and areas, clips, bitmaps and text.
#include "metafile/dib.h"
#include "metafile/wmf_player.h"

#include <cmath>
#include <optional>

namespace quorvin {

namespace {

/// Lists of points hold x before y.
QPolygonF pointsAt(const WmfParameters& parameters, std::int64_t at, std::uint16_t count) {
  const MetafileBytes all = parameters.slice(at, 4LL * count);
  QPolygonF points;
  for (std::int64_t index = 0; index < count; ++index) points.append(all.point16(index * 4));
  return points;
}

/// What the numbers of a bitmap's palette may mean: places in the palette that is selected.
constexpr std::uint16_t kPaletteColours = 1;

}  // namespace

bool WmfPlayer::playShape(std::uint16_t function, const WmfParameters& parameters) {
  enum { LineTo = 0x0213, Polygon = 0x0324, Polyline = 0x0325, Ellipse = 0x0418, Rectangle = 0x041B };
  enum { Pixel = 0x041F, PolyPolygon = 0x0538, RoundRectangle = 0x061C };
  enum { Arc = 0x0817, Pie = 0x081A, Chord = 0x0830 };
  QPainterPath path;
  switch (function) {
    case LineTo:
      canvas_->lineTo(parameters.point(0));
      return true;
    case Polygon:
      path.addPolygon(pointsAt(parameters, 2, parameters.u16(0)));
      path.closeSubpath();
      canvas_->draw(path, MetafilePaint::FillAndStroke);
      return true;
    case Polyline:
      path.addPolygon(pointsAt(parameters, 2, parameters.u16(0)));
      canvas_->draw(path, MetafilePaint::Stroke);
      return true;
    case Ellipse:
      path.addEllipse(parameters.corners(0));
      canvas_->draw(path, MetafilePaint::FillAndStroke);
      return true;
    case Rectangle:
      path.addRect(parameters.corners(0));
      canvas_->draw(path, MetafilePaint::FillAndStroke);
      return true;
    case Pixel:
      canvas_->setPixel(parameters.point(4), colourOf(parameters.u32(0)));
      return true;
    case PolyPolygon:
      polyPolygon(parameters);
      return true;
    case RoundRectangle: {
      const QPointF corner = parameters.point(0);
      path.addRoundedRect(parameters.corners(4), std::abs(corner.x()) / 2, std::abs(corner.y()) / 2);
      canvas_->draw(path, MetafilePaint::FillAndStroke);
      return true;
    }
    case Arc:
      drawArc(parameters, 0);
      return true;
    case Chord:
      drawArc(parameters, 1);
      return true;
    case Pie:
      drawArc(parameters, 2);
      return true;
    default:
      return false;
  }
}

void WmfPlayer::drawArc(const WmfParameters& parameters, int joint) {
  const QPainterPath path =
      canvas_->arc(parameters.corners(8), parameters.point(4), parameters.point(0), joint);
  canvas_->draw(path, joint == 0 ? MetafilePaint::Stroke : MetafilePaint::FillAndStroke);
}

void WmfPlayer::polyPolygon(const WmfParameters& parameters) {
  const std::uint16_t polygons = parameters.u16(0);
  std::int64_t at = 2 + 2LL * polygons;
  QPainterPath path;
  for (std::int64_t index = 0; index < polygons; ++index) {
    const std::uint16_t count = parameters.u16(2 + 2 * index);
    path.addPolygon(pointsAt(parameters, at, count));
    path.closeSubpath();
    at += 4LL * count;
  }
  canvas_->draw(path, MetafilePaint::FillAndStroke);
}

bool WmfPlayer::playClip(std::uint16_t function, const WmfParameters& parameters) {
  enum { SelectRegion = 0x012C, Offset = 0x0220, Exclude = 0x0415, Intersect = 0x0416 };
  enum { InvertRegion = 0x012A, PaintRegion = 0x012B, FillRegion = 0x0228, FrameRegion = 0x0429 };
  switch (function) {
    case SelectRegion: {
      // Anything but a region takes the clip away.
      const auto* region = std::get_if<QRegion>(&object(parameters.u16(0)));
      canvas_->clip(region != nullptr ? std::optional(*region) : std::nullopt, MetafileClip::Instead);
      return true;
    }
    case Offset:
      canvas_->moveClip(parameters.point(0));
      return true;
    case Exclude:
      canvas_->clip(parameters.corners(0), MetafileClip::Without);
      return true;
    case Intersect:
      canvas_->clip(parameters.corners(0), MetafileClip::And);
      return true;
    case PaintRegion:
    case FillRegion: {
      const auto* region = std::get_if<QRegion>(&object(parameters.u16(0)));
      const auto* brush =
          function == FillRegion ? std::get_if<MetafileBrush>(&object(parameters.u16(2))) : nullptr;
      if (region != nullptr) canvas_->fillRegion(*region, brush != nullptr ? *brush : canvas_->state.brush);
      return true;
    }
    case FrameRegion: {
      const auto* region = std::get_if<QRegion>(&object(parameters.u16(0)));
      const auto* brush = std::get_if<MetafileBrush>(&object(parameters.u16(2)));
      if (region == nullptr || brush == nullptr) return true;
      canvas_->frameRegion(*region, {std::abs(parameters.i16(6)), std::abs(parameters.i16(4))}, *brush);
      return true;
    }
    case InvertRegion:
      if (const auto* region = std::get_if<QRegion>(&object(parameters.u16(0))))
        canvas_->invertRegion(*region);
      return true;
    default:
      return false;
  }
}

bool WmfPlayer::playBitmap(std::uint16_t function, const WmfParameters& parameters) {
  enum {
    PatternFill = 0x061D,
    DeviceBitBlt = 0x0922,
    DeviceStretch = 0x0B23,
    DibBitBlt = 0x0940,
    DibStretch = 0x0B41,
    SetDib = 0x0D33,
    StretchDib = 0x0F43
  };
  // A copy without a bitmap is as short as its numbers: it fills.
  constexpr qsizetype kBareCopy = 18;
  constexpr qsizetype kBareStretch = 22;
  constexpr auto kDeviceBitmaps = QT_TRANSLATE_NOOP("Texts", "bitmaps in the form of a device");
  switch (function) {
    case PatternFill:
      canvas_->fill(parameters.sizeAndPlace(4), parameters.u32(0));
      return true;
    case DeviceBitBlt:
    case DibBitBlt: {
      if (parameters.size() <= kBareCopy) {
        canvas_->fill(parameters.sizeAndPlace(10), parameters.u32(0));
        return true;
      }
      if (function == DeviceBitBlt) throw MetafileOmission(kDeviceBitmaps);
      const QRectF target = parameters.sizeAndPlace(8);
      canvas_->drawImage(target, imageOfPackedDib(parameters.from(16)), {parameters.point(4), target.size()},
                         parameters.u32(0));
      return true;
    }
    case DeviceStretch:
    case DibStretch:
      if (parameters.size() <= kBareStretch) {
        canvas_->fill(parameters.sizeAndPlace(14), parameters.u32(0));
        return true;
      }
      if (function == DeviceStretch) throw MetafileOmission(kDeviceBitmaps);
      canvas_->drawImage(parameters.sizeAndPlace(12), imageOfPackedDib(parameters.from(20)),
                         parameters.sizeAndPlace(4), parameters.u32(0));
      return true;
    case SetDib: {
      const QSizeF size = parameters.extent(10);
      if (parameters.u16(0) == kPaletteColours) {
        canvas_->leaveOut(QT_TRANSLATE_NOOP("Texts", "colours of palettes"));
      }
      drawStored(parameters.from(18), {parameters.point(14), size}, {parameters.point(6), size},
                 kCopyOperation);
      return true;
    }
    case StretchDib:
      if (parameters.u16(4) == kPaletteColours) {
        canvas_->leaveOut(QT_TRANSLATE_NOOP("Texts", "colours of palettes"));
      }
      drawStored(parameters.from(22), parameters.sizeAndPlace(14), parameters.sizeAndPlace(6),
                 parameters.u32(0));
      return true;
    default:
      return false;
  }
}

void WmfPlayer::drawStored(const MetafileBytes& dib, const QRectF& target, const QRectF& source,
                           std::uint32_t operation) {
  canvas_->drawImage(target, imageOfPackedDib(dib), partFromTop(dib, source), operation);
}

bool WmfPlayer::playText(std::uint16_t function, const WmfParameters& parameters) {
  enum { TextOut = 0x0521, ExtTextOut = 0x0A32 };
  if (function == TextOut) {
    textOut(parameters);
  } else if (function == ExtTextOut) {
    extTextOut(parameters);
  }
  return function == TextOut || function == ExtTextOut;
}

void WmfPlayer::textOut(const WmfParameters& parameters) {
  const std::uint16_t count = parameters.u16(0);
  const QByteArrayView letters = parameters.slice(2, count).all();
  canvas_->drawText(
      {parameters.point(2 + count + count % 2), canvas_->state.font.textOf(letters), {}, {}, {}});
}

void WmfPlayer::extTextOut(const WmfParameters& parameters) {
  constexpr int kOpaque = 2;
  constexpr int kClipped = 4;
  constexpr int kGlyphNumbers = 0x10;
  const std::uint16_t count = parameters.u16(4);
  const std::uint16_t options = parameters.u16(6);
  const bool hasBox = (options & (kOpaque | kClipped)) != 0;
  const std::int64_t at = hasBox ? 16 : 8;
  MetafileText text{
      parameters.point(0), canvas_->state.font.textOf(parameters.slice(at, count).all()), {}, {}, {}};
  // Hardly any file has them, and whether the numbers have one byte or two is not said.
  if ((options & kGlyphNumbers) != 0) {
    canvas_->leaveOut(QT_TRANSLATE_NOOP("Texts", "text by glyph numbers"));
    text.text.clear();
  }
  if ((options & kOpaque) != 0) text.opaque = QRectF(parameters.point16(8), parameters.point16(12));
  if ((options & kClipped) != 0) text.clip = QRectF(parameters.point16(8), parameters.point16(12));
  const std::int64_t steps = at + count + count % 2;
  if (text.text.size() == count && parameters.size() >= steps + 2LL * count) {
    for (std::int64_t letter = 0; letter < count; ++letter) {
      text.steps.push_back(parameters.i16(steps + 2 * letter));
    }
  }
  canvas_->drawText(text);
}

}  // namespace quorvin
