// Windows metafiles: lines and areas, and clips.
#include "metafile/metafile_wmf.h"
#include "metafile/metafile_wmf_points.h"

#include <cmath>
#include <optional>

namespace quorvin {

namespace {

/// Lists of points hold x before y.
QPolygonF pointsAt(const MetafileBytes& parameters, std::int64_t at, std::uint16_t count) {
  const MetafileBytes all = parameters.slice(at, 4LL * count);
  QPolygonF points;
  for (std::int64_t index = 0; index < count; ++index) points.append(all.point16(index * 4));
  return points;
}

}  // namespace

bool WmfPlayer::playShape(std::uint16_t function, const MetafileBytes& parameters) {
  enum { LineTo = 0x0213, Polygon = 0x0324, Polyline = 0x0325, Ellipse = 0x0418, Rectangle = 0x041B };
  enum { Pixel = 0x041F, PolyPolygon = 0x0538, RoundRectangle = 0x061C };
  enum { Arc = 0x0817, Pie = 0x081A, Chord = 0x0830 };
  QPainterPath path;
  switch (function) {
    case LineTo:
      canvas_->lineTo(wmfPoint(parameters, 0));
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
      path.addEllipse(wmfCorners(parameters, 0));
      canvas_->draw(path, MetafilePaint::FillAndStroke);
      return true;
    case Rectangle:
      path.addRect(wmfCorners(parameters, 0));
      canvas_->draw(path, MetafilePaint::FillAndStroke);
      return true;
    case Pixel:
      canvas_->setPixel(wmfPoint(parameters, 4), colourOf(parameters.u32(0)));
      return true;
    case PolyPolygon:
      polyPolygon(parameters);
      return true;
    case RoundRectangle: {
      const QPointF corner = wmfPoint(parameters, 0);
      path.addRoundedRect(wmfCorners(parameters, 4), std::abs(corner.x()) / 2, std::abs(corner.y()) / 2);
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

void WmfPlayer::drawArc(const MetafileBytes& parameters, int joint) {
  const QPainterPath path =
      canvas_->arc(wmfCorners(parameters, 8), wmfPoint(parameters, 4), wmfPoint(parameters, 0), joint);
  canvas_->draw(path, joint == 0 ? MetafilePaint::Stroke : MetafilePaint::FillAndStroke);
}

void WmfPlayer::polyPolygon(const MetafileBytes& parameters) {
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

bool WmfPlayer::playClip(std::uint16_t function, const MetafileBytes& parameters) {
  enum { SelectRegion = 0x012C, Offset = 0x0220, Exclude = 0x0415, Intersect = 0x0416 };
  enum { PaintRegion = 0x012B, FillRegion = 0x0228 };
  switch (function) {
    case SelectRegion: {
      // Anything but a region takes the clip away.
      const auto* region = std::get_if<QRegion>(&object(parameters.u16(0)));
      canvas_->clip(region != nullptr ? std::optional(*region) : std::nullopt, MetafileClip::Instead);
      return true;
    }
    case Offset:
      canvas_->moveClip(wmfPoint(parameters, 0));
      return true;
    case Exclude:
      canvas_->clip(wmfCorners(parameters, 0), MetafileClip::Without);
      return true;
    case Intersect:
      canvas_->clip(wmfCorners(parameters, 0), MetafileClip::And);
      return true;
    case PaintRegion:
    case FillRegion: {
      const auto* region = std::get_if<QRegion>(&object(parameters.u16(0)));
      const auto* brush =
          function == FillRegion ? std::get_if<MetafileBrush>(&object(parameters.u16(2))) : nullptr;
      if (region != nullptr) canvas_->fillRegion(*region, brush != nullptr ? *brush : canvas_->state.brush);
      return true;
    }
    default:
      return false;
  }
}

}  // namespace quorvin
