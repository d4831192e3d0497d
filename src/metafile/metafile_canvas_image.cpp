// The canvas: bitmaps.
#include "metafile/metafile_canvas.h"

namespace quorvin {

namespace {

// Ternary raster operations that have a meaning without a picture.
constexpr std::uint32_t kBlackness = 0x00000042;
constexpr std::uint32_t kInvert = 0x00550009;
constexpr std::uint32_t kPattern = 0x00F00021;
constexpr std::uint32_t kPatternInvert = 0x005A0049;
constexpr std::uint32_t kWhiteness = 0x00FF0062;

/// Operations that are not listed copy.
QPainter::CompositionMode sourceComposition(std::uint32_t operation) {
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
    default:
      return QPainter::CompositionMode_SourceOver;
  }
}

}  // namespace

void MetafileCanvas::drawImage(const QRectF& target, const QImage& image, const QRectF& source,
                               std::uint32_t operation, double opacity) {
  beginPainting();
  painter_.setOpacity(opacity);
  painter_.setCompositionMode(sourceComposition(operation));
  painter_.setTransform(toImage());
  painter_.translate(target.topLeft());
  // A negative width or height mirrors the picture.
  painter_.scale(target.width() < 0 ? -1 : 1, target.height() < 0 ? -1 : 1);
  const QRectF place(QPointF(), QSizeF(std::abs(target.width()), std::abs(target.height())));
  painter_.drawImage(place, image, source);
  painter_.resetTransform();
  painter_.setOpacity(1);
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
    default:
      return;
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
