// SPDX-License-Identifier: GPL-2.0-or-later

// Enhanced metafiles: lines and areas, regions and clips.
#include "metafile/emf_player.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace quorvin {

namespace {

/// `count` points from `at` on, of two 16-bit or 32-bit numbers each. Throws before it takes memory for
/// points that are not there.
std::vector<QPointF> pointsAt(const MetafileBytes& record, std::int64_t at, std::uint32_t count,
                              bool isShort) {
  const std::int64_t size = isShort ? 4 : 8;
  const MetafileBytes all = record.slice(at, size * count);
  std::vector<QPointF> points;
  points.reserve(count);
  for (std::uint32_t index = 0; index < count; ++index) {
    points.push_back(isShort ? all.point16(index * size) : all.point32(index * size));
  }
  return points;
}

/// Regions are calculated with ints, and the differences must fit into one, too.
QPoint deviceUnitAt(const MetafileBytes& data, std::int64_t at) {
  constexpr int kFarthest = 100'000'000;
  return {std::clamp(data.i32(at), -kFarthest, kFarthest),
          std::clamp(data.i32(at + 4), -kFarthest, kFarthest)};
}

/// In device units.
QRegion regionOf(const MetafileBytes& data) {
  constexpr std::uint32_t kMostRectangles = 100'000;
  const std::uint32_t count = data.u32(8);
  if (count > kMostRectangles) {
    throw MetafileFault(QT_TRANSLATE_NOOP("Texts", "a region in it has too many parts"));
  }
  QRegion region;
  for (std::uint32_t index = 0; index < count; ++index) {
    const std::int64_t at = data.u32(0) + std::int64_t{16} * index;
    region |= QRect(deviceUnitAt(data, at), deviceUnitAt(data, at + 8) - QPoint(1, 1));
  }
  return region;
}

/// A width and a height, not beyond any region.
QSize frameSizeAt(const MetafileBytes& record, std::int64_t at) {
  const QPoint size = deviceUnitAt(record, at);
  return {std::abs(size.x()), std::abs(size.y())};
}

MetafileBrush brushIn(const MetafileObject& object) {
  if (const auto* brush = std::get_if<MetafileBrush>(&object)) return *brush;
  throw MetafileFault(QT_TRANSLATE_NOOP("Texts", "it uses an object that it has not made"));
}

}  // namespace

bool EmfPlayer::playShape(std::uint32_t type, const MetafileBytes& record) {
  enum { Pixel = 15, AngleArc = 41, Ellipse, Rectangle, RoundRectangle, Arc, Chord, Pie };
  enum { LineTo = 54, ArcTo };
  QPainterPath path;
  switch (type) {
    case Pixel:
      canvas_.setPixel(record.point32(8), colourOf(record.u32(16)));
      return true;
    case AngleArc:
      angleArc(record);
      return true;
    case Ellipse:
      path.addEllipse(record.rect32(8));
      canvas_.draw(path, MetafilePaint::FillAndStroke);
      return true;
    case Rectangle:
      path.addRect(record.rect32(8));
      canvas_.draw(path, MetafilePaint::FillAndStroke);
      return true;
    case RoundRectangle:
      path.addRoundedRect(record.rect32(8).normalized(), record.i32(24) / 2.0, record.i32(28) / 2.0);
      canvas_.draw(path, MetafilePaint::FillAndStroke);
      return true;
    case Arc:
    case Chord:
    case Pie:
      drawArc(record, static_cast<int>(type - Arc));
      return true;
    case LineTo:
      canvas_.lineTo(record.point32(8));
      return true;
    case ArcTo:
      arcTo(record);
      return true;
    default:
      return false;
  }
}

void EmfPlayer::drawArc(const MetafileBytes& record, int joint) {
  const QPainterPath path = canvas_.arc(record.rect32(8), record.point32(24), record.point32(32), joint);
  canvas_.draw(path, joint == 0 ? MetafilePaint::Stroke : MetafilePaint::FillAndStroke);
}

void EmfPlayer::arcTo(const MetafileBytes& record) {
  canvas_.continueWith(canvas_.arc(record.rect32(8), record.point32(24), record.point32(32), 0));
}

void EmfPlayer::angleArc(const MetafileBytes& record) {
  const QPointF centre = record.point32(8);
  const double radius = record.u32(16);
  const double start = record.f32(20);
  const double sweep = record.f32(24);
  if (!std::isfinite(start) || !std::isfinite(sweep)) {
    throw MetafileFault(QT_TRANSLATE_NOOP("Texts", "an arc in it makes no sense"));
  }
  const QRectF box(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius);
  QPainterPath arc;
  arc.arcMoveTo(box, start);
  arc.arcTo(box, start, std::fmod(sweep, 720));
  canvas_.continueWith(arc);
}

bool EmfPlayer::playPoints(std::uint32_t type, const MetafileBytes& record) {
  enum { Bezier = 2, Polygon, Polyline, BezierTo, PolylineTo, PolyPolyline, PolyPolygon, PolyDraw = 56 };
  enum { Bezier16 = 85, PolyPolygon16 = 91, PolyDraw16 = 92 };
  const bool isShort = type >= Bezier16 && type <= PolyDraw16;
  const std::uint32_t kind = isShort && type <= PolyPolygon16 ? type - Bezier16 + Bezier : type;
  switch (kind) {
    case Bezier:
    case Polygon:
    case Polyline:
    case BezierTo:
    case PolylineTo:
      drawPoints(pointsAt(record, 28, record.u32(24), isShort), kind == Bezier || kind == BezierTo,
                 kind == BezierTo || kind == PolylineTo, kind == Polygon);
      return true;
    case PolyPolyline:
    case PolyPolygon:
      polyPoly(record, isShort, kind == PolyPolygon);
      return true;
    case PolyDraw:
    case PolyDraw16:
      polyDraw(record, isShort);
      return true;
    default:
      return false;
  }
}

void EmfPlayer::drawPoints(const std::vector<QPointF>& points, bool isBezier, bool fromPosition,
                           bool isClosed) {
  if (points.empty()) return;
  QPainterPath path(fromPosition ? canvas_.state.position : points.front());
  std::size_t next = fromPosition ? 0 : 1;
  if (isBezier) {
    for (; next + 2 < points.size(); next += 3)
      path.cubicTo(points[next], points[next + 1], points[next + 2]);
  } else {
    for (; next < points.size(); ++next) path.lineTo(points[next]);
  }
  if (fromPosition) return canvas_.continueWith(path);
  if (isClosed) path.closeSubpath();
  canvas_.draw(path, isClosed ? MetafilePaint::FillAndStroke : MetafilePaint::Stroke);
}

void EmfPlayer::polyPoly(const MetafileBytes& record, bool isShort, bool isClosed) {
  const std::uint32_t polygons = record.u32(24);
  const MetafileBytes counts = record.slice(32, 4LL * polygons);
  std::int64_t at = 32 + counts.size();
  QPainterPath path;
  for (std::uint32_t index = 0; index < polygons; ++index) {
    const std::vector<QPointF> points = pointsAt(record, at, counts.u32(4LL * index), isShort);
    at += static_cast<std::int64_t>(points.size()) * (isShort ? 4 : 8);
    if (points.empty()) continue;
    path.addPolygon(QPolygonF(QList<QPointF>(points.begin(), points.end())));
    if (isClosed) path.closeSubpath();
  }
  canvas_.draw(path, isClosed ? MetafilePaint::FillAndStroke : MetafilePaint::Stroke);
}

void EmfPlayer::polyDraw(const MetafileBytes& record, bool isShort) {
  enum { CloseMark = 1, Line = 2, Curve = 4, Move = 6 };
  const std::uint32_t count = record.u32(24);
  const std::vector<QPointF> points = pointsAt(record, 28, count, isShort);
  const MetafileBytes kinds = record.slice(28 + (isShort ? 4LL : 8LL) * count, count);
  QPainterPath path(canvas_.state.position);
  for (std::uint32_t index = 0; index < count; ++index) {
    const int kind = kinds.u8(index) & ~CloseMark;
    if (kind == Move) path.moveTo(points[index]);
    if (kind == Line) path.lineTo(points[index]);
    if (kind == Curve && index + 2 < count) {
      path.cubicTo(points[index], points[index + 1], points[index + 2]);
      index += 2;
    }
    if ((kinds.u8(index) & CloseMark) != 0) path.closeSubpath();
  }
  canvas_.draw(path, MetafilePaint::Stroke);
  if (!points.empty()) canvas_.state.position = points.back();
}

bool EmfPlayer::playPath(std::uint32_t type, const MetafileBytes& record) {
  enum { Begin = 59, End, Close, Fill, StrokeAndFill, Stroke, Widen = 66, SelectClip, Abort };
  switch (type) {
    case Begin:
      canvas_.beginPath();
      return true;
    case End:
      canvas_.endPath();
      return true;
    case Close:
      canvas_.closeFigure();
      return true;
    case Fill:
      canvas_.paintPath(MetafilePaint::Fill);
      return true;
    case StrokeAndFill:
      canvas_.paintPath(MetafilePaint::FillAndStroke);
      return true;
    case Stroke:
      canvas_.paintPath(MetafilePaint::Stroke);
      return true;
    case Widen:
      canvas_.widenPath();
      return true;
    case SelectClip:
      canvas_.clipToPath(static_cast<MetafileClip>(record.i32(8)));
      return true;
    case Abort:
      canvas_.dropPath();
      return true;
    default:
      return false;
  }
}

bool EmfPlayer::playClip(std::uint32_t type, const MetafileBytes& record) {
  enum { Offset = 26, Exclude = 29, Intersect };
  enum { FillRegion = 71, FrameRegion, InvertRegion, PaintRegion, SelectRegion };
  switch (type) {
    case Offset:
      canvas_.moveClip(record.point32(8));
      return true;
    case Exclude:
      canvas_.clip(record.rect32(8), MetafileClip::Without);
      return true;
    case Intersect:
      canvas_.clip(record.rect32(8), MetafileClip::And);
      return true;
    case FillRegion:
      canvas_.fillRegion(regionOf(record.slice(32, record.u32(24))), brushIn(objectOf(record.u32(28))));
      return true;
    case FrameRegion:
      canvas_.frameRegion(regionOf(record.slice(40, record.u32(24))), frameSizeAt(record, 32),
                          brushIn(objectOf(record.u32(28))));
      return true;
    case InvertRegion:
      canvas_.invertRegion(regionOf(record.slice(28, record.u32(24))));
      return true;
    case PaintRegion:
      canvas_.fillRegion(regionOf(record.slice(28, record.u32(24))), canvas_.state.brush);
      return true;
    case SelectRegion: {
      const auto mode = static_cast<MetafileClip>(record.i32(12));
      std::optional<QRegion> region;
      if (record.u32(8) != 0) region = regionOf(record.slice(16, record.u32(8)));
      canvas_.clip(region, mode);
      return true;
    }
    default:
      return false;
  }
}

}  // namespace quorvin
