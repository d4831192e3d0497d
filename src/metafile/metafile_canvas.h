// The sheet that a metafile is drawn on.
#pragma once

#include "metafile/metafile_mapping.h"
#include "metafile/metafile_objects.h"

#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QPointF>
#include <QRegion>
#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

namespace quorvin {

/// Everything that a metafile sets before it draws, and that it can save and restore. Numbers have the
/// values of the file formats.
struct MetafileState {
  MetafilePen pen;
  MetafileBrush brush;
  MetafileFont font;
  QColor textColour = Qt::black;
  QColor backColour = Qt::white;
  bool isBackOpaque = true;
  Qt::FillRule fillRule = Qt::OddEvenFill;
  std::uint32_t textAlign = 0;
  int rasterOperation = 13;
  bool arcsRunClockwise = false;
  QPointF position;
  MetafileMapping mapping;
  /// In pixels of the image; nothing is a whole sheet.
  std::optional<QRegion> clip;
};

/// How a text is written besides what the state says.
struct MetafileText {
  QPointF at;
  QString text;
  /// The step from each UTF-16 unit of the text to the next in the drawing's own units; empty: as the font
  /// has it.
  std::vector<double> steps;
  /// Where it is to be filled with the background colour, and cut off.
  std::optional<QRectF> opaque;
  std::optional<QRectF> clip;
};

/// The ternary raster operation that draws a picture over what is there.
inline constexpr std::uint32_t kCopyOperation = 0x00CC0020;

/// How a clip changes the one before. The values are those of the file formats.
enum class MetafileClip { And = 1, Or, ExclusiveOr, Without, Instead };

enum class MetafilePaint { Fill, Stroke, FillAndStroke };

/// Draws into an image. All places and sizes are in the drawing's own units unless it is said otherwise.
class MetafileCanvas {
 public:
  /// A white sheet of `pixels`. `deviceToImage` places the device of the metafile on it; `thinnestLine`, in
  /// pixels, is the width of lines that have none.
  MetafileCanvas(const QSize& pixels, const QTransform& deviceToImage, double thinnestLine);
  MetafileCanvas(const MetafileCanvas&) = delete;
  MetafileCanvas& operator=(const MetafileCanvas&) = delete;

  MetafileState state;

  void save();
  /// `depth` below zero counts back from the last save, above zero from the first. Wrong ones do nothing.
  void restore(int depth);
  void select(const MetafileObject& object);

  /// Draws `path`, or adds it to the path that is being recorded.
  void draw(const QPainterPath& path, MetafilePaint paint);
  /// Draws from the position on, which moves to the end.
  void lineTo(const QPointF& end);
  void continueWith(const QPainterPath& path);
  /// The part of the ellipse in `box` from the ray through `start` to the ray through `end`, in the state's
  /// direction. `joint`: 0 leaves it open, 1 joins the ends, 2 joins both to the middle.
  QPainterPath arc(const QRectF& box, const QPointF& start, const QPointF& end, int joint) const;
  void setPixel(const QPointF& place, const QColor& colour);
  /// Fills a region of device units.
  void fillRegion(const QRegion& region, const MetafileBrush& brush);

  void beginPath();
  void closeFigure();
  void endPath() { isRecording_ = false; }
  void dropPath();
  void paintPath(MetafilePaint paint);
  void clipToPath(MetafileClip mode);

  /// Nothing as region: the whole sheet. A mode that is none of the above throws MetafileFault.
  void clip(const std::optional<QRegion>& device, MetafileClip mode);
  void clip(const QRectF& box, MetafileClip mode);
  void moveClip(const QPointF& offset);

  /// Draws the part `source` (in pixels of `image`) into `target` by the ternary raster operation. `opacity`
  /// goes from 0 to 1.
  void drawImage(const QRectF& target, const QImage& image, const QRectF& source, std::uint32_t operation,
                 double opacity = 1);
  void fill(const QRectF& target, std::uint32_t operation);

  void drawText(const MetafileText& text);

  /// The finished sheet. Nothing can be drawn after it.
  QImage finish();

 private:
  QTransform toImage() const;
  double lengthInImage(double length) const;
  void beginPainting();
  void paint(const QPainterPath& imagePath, MetafilePaint paint);
  QPen penInImage() const;
  QBrush brushInImage(const MetafileBrush& brush) const;
  void combineClip(const std::optional<QRegion>& image, MetafileClip mode);

  QImage image_;
  QPainter painter_;
  QTransform deviceToImage_;
  double thinnestLine_;
  std::vector<MetafileState> saved_;
  bool isRecording_ = false;
  QPainterPath path_;
};

}  // namespace quorvin
