// SPDX-License-Identifier: GPL-2.0-or-later
#include "metafile/near_path.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace quorvin {

namespace {

const QRectF kNearBox(-kNear, -kNear, 2 * kNear, 2 * kNear);

bool isNear(const QPainterPath& path) {
  return path.isEmpty() || kNearBox.contains(path.controlPointRect());
}

/// A side of the box: how far inside of it a point is, below zero outside.
struct Side {
  double x;
  double y;

  double depthOf(const QPointF& point) const { return kNear + point.x() * x + point.y() * y; }
};

constexpr std::array<Side, 4> kSides = {{{1, 0}, {-1, 0}, {0, 1}, {0, -1}}};

/// Where the line from `inside` to `outside` crosses a side, by their depths.
QPointF crossing(const QPointF& inside, const QPointF& outside, double insideDepth, double outsideDepth) {
  return inside + (outside - inside) * (insideDepth / (insideDepth - outsideDepth));
}

/// The part of the line that is in the box.
std::optional<std::pair<QPointF, QPointF>> cut(QPointF start, QPointF end) {
  for (const Side& side : kSides) {
    const double startDepth = side.depthOf(start);
    const double endDepth = side.depthOf(end);
    if (startDepth < 0 && endDepth < 0) return std::nullopt;
    if (endDepth < 0) end = crossing(start, end, startDepth, endDepth);
    if (startDepth < 0) start = crossing(end, start, endDepth, startDepth);
  }
  return std::pair(start, end);
}

QPolygonF cutAt(const Side& side, const QPolygonF& polygon) {
  QPolygonF inside;
  for (qsizetype at = 0; at < polygon.size(); ++at) {
    const QPointF& point = polygon[at];
    const QPointF& before = polygon[at == 0 ? polygon.size() - 1 : at - 1];
    const double depth = side.depthOf(point);
    const double depthBefore = side.depthOf(before);
    if (depth >= 0 && depthBefore < 0) inside += crossing(point, before, depth, depthBefore);
    if (depth < 0 && depthBefore >= 0) inside += crossing(before, point, depthBefore, depth);
    if (depth >= 0) inside += point;
  }
  return inside;
}

}  // namespace

QPainterPath nearLine(const QPainterPath& line) {
  if (isNear(line)) return line;
  QPainterPath path;
  for (const QPolygonF& points : line.toSubpathPolygons()) {
    bool isConnected = false;
    for (qsizetype at = 1; at < points.size(); ++at) {
      const auto part = cut(points[at - 1], points[at]);
      if (part && !isConnected) path.moveTo(part->first);
      if (part) path.lineTo(part->second);
      isConnected = part && part->second == points[at];
    }
  }
  return path;
}

QPainterPath nearArea(const QPainterPath& area) {
  if (isNear(area)) return area;
  QPainterPath path;
  path.setFillRule(area.fillRule());
  for (QPolygonF polygon : area.toSubpathPolygons()) {
    for (const Side& side : kSides) polygon = cutAt(side, polygon);
    if (polygon.isEmpty()) continue;
    path.addPolygon(polygon);
    path.closeSubpath();
  }
  return path;
}

}  // namespace quorvin
