// SPDX-License-Identifier: GPL-2.0-or-later

// The canvas: bitmaps and gradients.
#include "metafile/metafile_bytes.h"
#include "metafile/metafile_canvas.h"

#include <QLinearGradient>

#include <algorithm>
#include <cmath>
#include <optional>

namespace quorvin {

namespace {

// Ternary raster operations that have a meaning without a picture.
constexpr std::uint32_t kBlackness = 0x00000042;
constexpr std::uint32_t kInvert = 0x00550009;
constexpr std::uint32_t kPattern = 0x00F00021;
constexpr std::uint32_t kPatternInvert = 0x005A0049;
constexpr std::uint32_t kWhiteness = 0x00FF0062;
constexpr std::uint32_t kNothing = 0x00AA0029;

constexpr auto kRareOperations = QT_TRANSLATE_NOOP("Texts", "rare raster operations");

/// Nothing for operations that are rare with a picture.
std::optional<QPainter::CompositionMode> sourceComposition(std::uint32_t operation) {
  switch (operation) {
    case 0x00EE0086:
      return QPainter::RasterOp_SourceOrDestination;
    case 0x008800C6:
      return QPainter::RasterOp_SourceAndDestination;
    case 0x00660046:
      return QPainter::RasterOp_SourceXorDestination;
    case 0x00440328:
      return QPainter::RasterOp_SourceAndNotDestination;
    case 0x00330008:
      return QPainter::RasterOp_NotSource;
    case 0x001100A6:
      return QPainter::RasterOp_NotSourceAndNotDestination;
    case 0x00BB0226:
      return QPainter::RasterOp_NotSourceOrDestination;
    case kCopyOperation:
      return QPainter::CompositionMode_SourceOver;
    default:
      return std::nullopt;
  }
}

/// The third byte of an operation holds the result for each of the eight combinations of brush, picture and
/// what is there. Two that differ in the picture alone are two bits apart.
bool usesPicture(std::uint32_t operation) {
  constexpr std::uint32_t kWithoutPicture = 0x330000;
  return ((operation ^ (operation >> 2)) & kWithoutPicture) != 0;
}

double crossProduct(const QPointF& one, const QPointF& other) {
  return one.x() * other.y() - one.y() * other.x();
}

/// The shares of the three corners of a triangle in a place; they add up to one, and are all above zero
/// inside.
class TriangleShares {
 public:
  explicit TriangleShares(const std::array<QPointF, 3>& corners)
      : corners_(corners), area_(crossProduct(corners[1] - corners[0], corners[2] - corners[0])) {}

  bool isFlat() const { return !std::isfinite(area_) || area_ == 0; }

  std::array<double, 3> at(const QPointF& place) const {
    const double second = crossProduct(place - corners_[0], corners_[2] - corners_[0]) / area_;
    const double third = crossProduct(corners_[1] - corners_[0], place - corners_[0]) / area_;
    return {1 - second - third, second, third};
  }

 private:
  std::array<QPointF, 3> corners_;
  double area_;
};

QRgb mixed(const std::array<MetafileVertex, 3>& corners, const std::array<double, 3>& shares) {
  double red = 0;
  double green = 0;
  double blue = 0;
  for (std::size_t corner = 0; corner < corners.size(); ++corner) {
    red += shares.at(corner) * corners.at(corner).colour.red();
    green += shares.at(corner) * corners.at(corner).colour.green();
    blue += shares.at(corner) * corners.at(corner).colour.blue();
  }
  return qRgb(wholeWithin(std::round(red), 0, 255), wholeWithin(std::round(green), 0, 255),
              wholeWithin(std::round(blue), 0, 255));
}

}  // namespace

void MetafileCanvas::fillGradient(const MetafileVertex& one, const MetafileVertex& other,
                                  Qt::Orientation direction) {
  const QPointF end =
      direction == Qt::Horizontal ? QPointF(other.at.x(), one.at.y()) : QPointF(one.at.x(), other.at.y());
  QLinearGradient gradient(one.at, end);
  gradient.setColorAt(0, one.colour);
  gradient.setColorAt(1, other.colour);
  beginPainting();
  painter_.setTransform(toImage());
  painter_.fillRect(QRectF(one.at, other.at).normalized(), gradient);
  painter_.resetTransform();
}

void MetafileCanvas::fillGradient(const std::array<MetafileVertex, 3>& corners) {
  const QTransform transform = toImage();
  const std::array<QPointF, 3> places = {transform.map(corners[0].at), transform.map(corners[1].at),
                                         transform.map(corners[2].at)};
  const TriangleShares shares(places);
  const QRect box = pixelsAround({places[0], places[1], places[2]});
  if (shares.isFlat() || box.isEmpty()) return;
  QImage triangle(box.size(), QImage::Format_ARGB32_Premultiplied);
  triangle.fill(Qt::transparent);
  for (int y = 0; y < box.height(); ++y) {
    for (int x = 0; x < box.width(); ++x) {
      const std::array<double, 3> share = shares.at(box.topLeft() + QPointF(x + 0.5, y + 0.5));
      if (std::ranges::min(share) >= 0) triangle.setPixel(x, y, mixed(corners, share));
    }
  }
  beginPainting();
  painter_.drawImage(box.topLeft(), triangle);
}

void MetafileCanvas::drawImage(const QRectF& target, const QImage& image, const QRectF& source,
                               std::uint32_t operation, double opacity) {
  if (!usesPicture(operation)) return fill(target, operation);
  beginPainting();
  painter_.setOpacity(opacity);
  const std::optional<QPainter::CompositionMode> composition = sourceComposition(operation);
  if (!composition) leaveOut(kRareOperations);
  painter_.setCompositionMode(composition.value_or(QPainter::CompositionMode_SourceOver));
  painter_.setTransform(toImage());
  painter_.translate(target.topLeft());
  // A negative width or height mirrors the picture.
  painter_.scale(target.width() < 0 ? -1 : 1, target.height() < 0 ? -1 : 1);
  const QRectF place(QPointF(), QSizeF(std::abs(target.width()), std::abs(target.height())));
  painter_.drawImage(place, image, source);
  painter_.resetTransform();
  painter_.setOpacity(1);
}

void MetafileCanvas::drawImage(const std::array<QPointF, 3>& corners, const QImage& image,
                               const QRectF& source) {
  if (!source.isValid()) throw MetafileFault(QT_TRANSLATE_NOOP("Texts", "a bitmap in it has no size"));
  const QPointF across = (corners[1] - corners[0]) / source.width();
  const QPointF down = (corners[2] - corners[0]) / source.height();
  const QTransform toUnits(across.x(), across.y(), down.x(), down.y(), corners[0].x(), corners[0].y());
  const QTransform toPixels = toUnits * toImage();
  if (!isUsable(toPixels)) throw MetafileFault(QT_TRANSLATE_NOOP("Texts", "its scale makes no sense"));
  beginPainting();
  painter_.setTransform(toPixels);
  painter_.drawImage(QRectF(QPointF(), source.size()), image, source);
  painter_.resetTransform();
}

void MetafileCanvas::fill(const QRectF& target, std::uint32_t operation) {
  QBrush brush;
  switch (operation) {
    case kBlackness:
      brush = Qt::black;
      break;
    case kWhiteness:
    case kInvert:
      brush = Qt::white;
      break;
    case kPattern:
    case kPatternInvert:
      brush = brushInImage(state.brush);
      break;
    case kNothing:
      return;
    default:
      throw MetafileOmission(kRareOperations);
  }
  const bool inverts = operation == kInvert || operation == kPatternInvert;
  beginPainting();
  painter_.setRenderHint(QPainter::Antialiasing, !inverts);
  painter_.setCompositionMode(inverts ? QPainter::RasterOp_SourceXorDestination
                                      : QPainter::CompositionMode_SourceOver);
  QPainterPath area;
  area.addRect(target.normalized());
  painter_.fillPath(toImage().map(area), brush);
}

}  // namespace quorvin
