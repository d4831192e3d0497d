// SPDX-License-Identifier: GPL-2.0-or-later
#include "metafile/metafile_canvas.h"

#include "metafile/metafile_bytes.h"
#include "metafile/near_path.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace quorvin {

namespace {

constexpr std::size_t kDeepestSave = 1000;
constexpr int kCopyPen = 13;
/// The outline of a line has several elements for each of the line's, and can be widened again.
constexpr int kMostElementsToWiden = 10'000;
/// In pixels of the image.
constexpr double kThinnestLine = 1;

QPainter::CompositionMode compositionOf(int rasterOperation) {
  constexpr std::array kModes = {
      QPainter::RasterOp_ClearDestination,        QPainter::RasterOp_NotSourceAndNotDestination,
      QPainter::RasterOp_NotSourceAndDestination, QPainter::RasterOp_NotSource,
      QPainter::RasterOp_SourceAndNotDestination, QPainter::RasterOp_NotDestination,
      QPainter::RasterOp_SourceXorDestination,    QPainter::RasterOp_NotSourceOrNotDestination,
      QPainter::RasterOp_SourceAndDestination,    QPainter::RasterOp_NotSourceXorDestination,
      QPainter::CompositionMode_Destination,      QPainter::RasterOp_NotSourceOrDestination,
      QPainter::CompositionMode_SourceOver,       QPainter::RasterOp_SourceOrNotDestination,
      QPainter::RasterOp_SourceOrDestination,     QPainter::RasterOp_SetDestination};
  const auto index = static_cast<std::size_t>(rasterOperation - 1);
  return index < kModes.size() ? kModes.at(index) : QPainter::CompositionMode_SourceOver;
}

Qt::PenStyle penStyle(std::uint32_t style) {
  constexpr std::array kStyles = {Qt::SolidLine,   Qt::DashLine,       Qt::DotLine,
                                  Qt::DashDotLine, Qt::DashDotDotLine, Qt::NoPen};
  const std::uint32_t index = style & 0xF;
  return index < kStyles.size() ? kStyles.at(index) : Qt::SolidLine;
}

Qt::PenCapStyle penCap(std::uint32_t style) {
  constexpr std::array kCaps = {Qt::RoundCap, Qt::SquareCap, Qt::FlatCap};
  const std::uint32_t index = (style >> 8) & 0xF;
  return index < kCaps.size() ? kCaps.at(index) : Qt::RoundCap;
}

Qt::PenJoinStyle penJoin(std::uint32_t style) {
  constexpr std::array kJoins = {Qt::RoundJoin, Qt::BevelJoin, Qt::MiterJoin};
  const std::uint32_t index = (style >> 12) & 0xF;
  return index < kJoins.size() ? kJoins.at(index) : Qt::RoundJoin;
}

/// So that the picture is sharp in a window of the usual size, and thin lines survive when it is made
/// smaller.
constexpr double kLeastLongSide = 600;
constexpr double kMostLongSide = 2000;
constexpr double kHundredthMillimetresPerPixel = 2540.0 / 96;

QSize wholeHundredths(const QSizeF& size) {
  constexpr int kLongest = 100'000'000;
  return {wholeWithin(size.width(), 1, kLongest), wholeWithin(size.height(), 1, kLongest)};
}

/// A place on the sheet as a pixel. What is far outside is moved nearer, where it is outside still.
QPoint pixelAt(const QPointF& place) {
  constexpr int kFarthest = 100'000;
  return {wholeWithin(std::round(place.x()), -kFarthest, kFarthest),
          wholeWithin(std::round(place.y()), -kFarthest, kFarthest)};
}

QPolygon pixelsAt(const QPolygonF& places) {
  QPolygon pixels;
  pixels.reserve(places.size());
  for (const QPointF& place : places) pixels += pixelAt(place);
  return pixels;
}

/// The pixels in an area. Far beyond the sheet it is cut: a region has a part for each row of a slanted edge.
QRegion regionOf(const QPainterPath& area, Qt::FillRule rule) {
  QRegion region;
  for (const QPolygonF& polygon : nearArea(area).toFillPolygons()) region ^= QRegion(pixelsAt(polygon), rule);
  return region;
}

/// In degrees from the right, counter-clockwise as one sees it.
double angleOf(const QPointF& point, const QRectF& box) {
  const QPointF from = point - box.center();
  const double x = from.x() / std::max(box.width(), 1e-6);
  const double y = from.y() / std::max(box.height(), 1e-6);
  return std::atan2(-y, x) * 180 / std::numbers::pi;
}

}  // namespace

MetafileSheet sheetFor(const QSizeF& ownSize) {
  if (!(ownSize.width() > 0 && ownSize.height() > 0)) {
    throw MetafileFault(QT_TRANSLATE_NOOP("Texts", "it has no size"));
  }
  const QSizeF natural = ownSize / kHundredthMillimetresPerPixel;
  const double longSide = std::max(natural.width(), natural.height());
  const double scale = std::clamp(longSide, kLeastLongSide, kMostLongSide) / longSide;
  const auto pixels = [scale](double side) {
    return std::max(1, static_cast<int>(std::lround(side * scale)));
  };
  return {wholeHundredths(ownSize), {pixels(natural.width()), pixels(natural.height())}, scale};
}

MetafileCanvas::MetafileCanvas(const MetafileSheet& sheet, const QTransform& deviceToImage)
    : image_(sheet.pixels, QImage::Format_RGB32), deviceToImage_(deviceToImage), scale_(sheet.scale) {
  if (image_.isNull()) throw MetafileFault(QT_TRANSLATE_NOOP("Texts", "there is not enough memory for it"));
  image_.fill(Qt::white);
  painter_.begin(&image_);
}

void MetafileCanvas::leaveOut(const char* what) {
  const QString words = QString::fromLatin1(what);
  if (!leftOut_.contains(words)) leftOut_ += words;
}

MetafilePicture MetafileCanvas::finish(const QSize& ownSize) {
  painter_.end();
  return {ownSize, image_, leftOut_.join(QStringLiteral(", "))};
}

void MetafileCanvas::save() {
  if (saved_.size() >= kDeepestSave) {
    throw MetafileFault(QT_TRANSLATE_NOOP("Texts", "it saves its state too often"));
  }
  saved_.push_back(state);
}

void MetafileCanvas::restore(int depth) {
  const auto count = static_cast<int>(saved_.size());
  const int wanted = depth < 0 ? count + depth : depth - 1;
  if (depth == 0 || wanted < 0 || wanted >= count) return;
  state = saved_.at(static_cast<std::size_t>(wanted));
  saved_.resize(static_cast<std::size_t>(wanted));
}

void MetafileCanvas::select(const MetafileObject& object) {
  if (const auto* pen = std::get_if<MetafilePen>(&object)) state.pen = *pen;
  if (const auto* brush = std::get_if<MetafileBrush>(&object)) state.brush = *brush;
  if (const auto* font = std::get_if<MetafileFont>(&object)) state.font = *font;
  if (const auto* region = std::get_if<QRegion>(&object)) clip(*region, MetafileClip::Instead);
}

QTransform MetafileCanvas::toImage() const {
  const QTransform transform = state.mapping.toDevice() * deviceToImage_;
  if (!isUsable(transform)) throw MetafileFault(QT_TRANSLATE_NOOP("Texts", "its scale makes no sense"));
  return transform;
}

QRect MetafileCanvas::pixelsAround(const QPolygonF& corners) const {
  return pixelsAt(corners).boundingRect().adjusted(-1, -1, 1, 1) & image_.rect();
}

QRegion MetafileCanvas::regionInImage(const QRectF& box) const {
  QPainterPath path;
  path.addPolygon(toImage().map(QPolygonF(box)));
  return regionOf(path, Qt::OddEvenFill);
}

double MetafileCanvas::lengthInImage(double length) const {
  return length * std::sqrt(std::abs(toImage().determinant()));
}

void MetafileCanvas::beginPainting() {
  painter_.setCompositionMode(compositionOf(state.rasterOperation));
  // Soft edges would mix with colours that a raster operation has inverted.
  painter_.setRenderHint(QPainter::Antialiasing, state.rasterOperation == kCopyPen);
  painter_.setClipping(state.clip.has_value());
  if (state.clip) painter_.setClipRegion(*state.clip);
}

QPen MetafileCanvas::penInImage() const {
  if (state.pen.isNull()) return Qt::NoPen;
  const double width = std::clamp(lengthInImage(state.pen.width), kThinnestLine, kNear);
  return {state.pen.colour, width, penStyle(state.pen.style), penCap(state.pen.style),
          penJoin(state.pen.style)};
}

QBrush MetafileCanvas::brushInImage(const MetafileBrush& brush) const {
  if (brush.pattern.isNull()) return {brush.colour, brush.style};
  QImage pattern = brush.pattern;
  if (pattern.format() == QImage::Format_Mono) {
    pattern.setColorTable({state.textColour.rgb(), state.backColour.rgb()});
  }
  // As an image of full colours: an image of one bit would be taken for a mask.
  QBrush result(pattern.convertToFormat(QImage::Format_RGB32));
  result.setTransform(QTransform::fromScale(scale_, scale_));
  return result;
}

void MetafileCanvas::draw(const QPainterPath& path, MetafilePaint paintWhat) {
  const QPainterPath imagePath = toImage().map(path);
  if (isRecording_) {
    path_.addPath(imagePath);
  } else {
    paint(imagePath, paintWhat);
  }
}

void MetafileCanvas::paint(const QPainterPath& imagePath, MetafilePaint paintWhat) {
  beginPainting();
  if (paintWhat != MetafilePaint::Stroke && !state.brush.isNull()) {
    QPainterPath area = nearArea(imagePath);
    area.setFillRule(state.fillRule);
    const bool isHatched = state.brush.style != Qt::SolidPattern && state.brush.pattern.isNull();
    if (isHatched && state.isBackOpaque) painter_.fillPath(area, state.backColour);
    painter_.fillPath(area, brushInImage(state.brush));
  }
  if (paintWhat != MetafilePaint::Fill && !state.pen.isNull()) {
    painter_.strokePath(nearLine(imagePath), penInImage());
  }
}

void MetafileCanvas::lineTo(const QPointF& end) {
  QPainterPath line(state.position);
  line.lineTo(end);
  continueWith(line);
}

void MetafileCanvas::continueWith(const QPainterPath& path) {
  QPainterPath whole(state.position);
  whole.connectPath(path);
  const QPointF start = toImage().map(state.position);
  if (isRecording_ && !path_.isEmpty() && path_.currentPosition() == start) {
    path_.connectPath(toImage().map(whole));
  } else {
    draw(whole, MetafilePaint::Stroke);
  }
  state.position = path.currentPosition();
}

QPainterPath MetafileCanvas::arc(const QRectF& box, const QPointF& start, const QPointF& end,
                                 int joint) const {
  const QRectF upright = box.normalized();
  const double from = angleOf(start, upright);
  // The direction is the one that is seen, so a mapping that mirrors reverses it.
  const bool againstTheClock = state.arcsRunClockwise == (toImage().determinant() < 0);
  double sweep = std::fmod(angleOf(end, upright) - from + 720, 360);
  if (sweep == 0) sweep = 360;
  if (!againstTheClock) sweep = sweep == 360 ? -360 : sweep - 360;
  QPainterPath path;
  path.arcMoveTo(upright, from);
  if (joint == 2) path.moveTo(upright.center());
  path.arcTo(upright, from, sweep);
  if (joint != 0) path.closeSubpath();
  return path;
}

void MetafileCanvas::setPixel(const QPointF& place, const QColor& colour) {
  beginPainting();
  const QPointF corner = toImage().map(place);
  painter_.fillRect(QRectF(corner, QSizeF(scale_, scale_)), colour);
}

void MetafileCanvas::fillRegion(const QRegion& region, const MetafileBrush& brush) {
  QPainterPath path;
  path.addRegion(region);
  beginPainting();
  painter_.fillPath(nearArea(deviceToImage_.map(path)), brushInImage(brush));
}

void MetafileCanvas::frameRegion(const QRegion& region, const QSize& frame, const MetafileBrush& brush) {
  const auto moved = [&region](int x, int y) { return region.translated(x, y); };
  const QRegion inner = moved(frame.width(), 0) & moved(-frame.width(), 0) & moved(0, frame.height()) &
                        moved(0, -frame.height());
  fillRegion(region - inner, brush);
}

void MetafileCanvas::invertRegion(const QRegion& region) {
  QPainterPath path;
  path.addRegion(region);
  beginPainting();
  painter_.setRenderHint(QPainter::Antialiasing, false);
  painter_.setCompositionMode(QPainter::RasterOp_SourceXorDestination);
  painter_.fillPath(nearArea(deviceToImage_.map(path)), Qt::white);
}

void MetafileCanvas::beginPath() {
  path_ = {};
  isRecording_ = true;
}

void MetafileCanvas::closeFigure() {
  if (isRecording_) path_.closeSubpath();
}

void MetafileCanvas::dropPath() {
  path_ = {};
  isRecording_ = false;
}

void MetafileCanvas::paintPath(MetafilePaint paintWhat) {
  paint(path_, paintWhat);
  dropPath();
}

void MetafileCanvas::clipToPath(MetafileClip mode) {
  combineClip(regionOf(path_, state.fillRule), mode);
  dropPath();
}

void MetafileCanvas::widenPath() {
  if (state.pen.isNull()) return;
  if (path_.elementCount() > kMostElementsToWiden) {
    return leaveOut(QT_TRANSLATE_NOOP("Texts", "very long outlines"));
  }
  path_ = QPainterPathStroker(penInImage()).createStroke(path_);
  path_.setFillRule(Qt::WindingFill);
}

void MetafileCanvas::clip(const std::optional<QRegion>& device, MetafileClip mode) {
  combineClip(device ? std::optional(deviceToImage_.map(*device)) : std::nullopt, mode);
}

void MetafileCanvas::clip(const QRectF& box, MetafileClip mode) {
  combineClip(regionInImage(box), mode);
}

void MetafileCanvas::moveClip(const QPointF& offset) {
  if (!state.clip) return;
  const QTransform transform = toImage();
  state.clip->translate(pixelAt(transform.map(offset) - transform.map(QPointF())));
}

void MetafileCanvas::combineClip(const std::optional<QRegion>& image, MetafileClip mode) {
  if (mode == MetafileClip::Instead || !image) {
    state.clip = image;
    return;
  }
  const QRegion before = state.clip.value_or(QRegion(image_.rect()));
  switch (mode) {
    case MetafileClip::And:
      state.clip = before & *image;
      return;
    case MetafileClip::Or:
      state.clip = before | *image;
      return;
    case MetafileClip::ExclusiveOr:
      state.clip = before ^ *image;
      return;
    case MetafileClip::Without:
      state.clip = before - *image;
      return;
    default:
      throw MetafileFault(QT_TRANSLATE_NOOP("Texts", "it cuts its drawing in an unknown way"));
  }
}

}  // namespace quorvin
