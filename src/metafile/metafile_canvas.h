// SPDX-License-Identifier: GPL-2.0-or-later

// The sheet that a metafile is drawn on.
#pragma once

#include "metafile/boundary.h"
#include "metafile/metafile_state.h"

#include <QImage>
#include <QList>
#include <QPainter>
#include <QPainterPath>
#include <QPointF>
#include <QRegion>
#include <QSize>
#include <QSizeF>
#include <QString>
#include <QStringList>

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace quorvin {

/// The image for a picture of this size.
struct MetafileSheet {
  /// In hundredths of a millimetre, at most a kilometre.
  QSize ownSize;
  /// Some 96 to the inch, but enough for a sharp picture, and not more than 2000 each way.
  QSize pixels;
  /// How many of these pixels stand for one at 96 to the inch.
  double scale = 1;
};

/// The sheet for a picture of `ownSize` hundredths of a millimetre. Throws MetafileFault when the size is not
/// above zero.
MetafileSheet sheetFor(const QSizeF& ownSize);

/// How a text is written besides what the state says. It is given by letters or by the numbers of glyphs.
struct MetafileText {
  QPointF at;
  QString text;
  /// The step from each UTF-16 unit of the text to the next, in the drawing's own units. Empty: the font
  /// decides.
  std::vector<double> steps;
  /// A box that is filled with the background colour first, and one at which the text is cut off.
  std::optional<QRectF> opaque;
  std::optional<QRectF> clip;
  /// Numbers of glyphs in the state's font, instead of letters. They have a meaning only in that font: where
  /// it is not installed, they are left out.
  QList<quint32> glyphs = {};
};

/// The ternary raster operation that draws a picture over what is there.
inline constexpr std::uint32_t kCopyOperation = 0x00CC0020;

/// How a clip changes the one before. The values are those of the file formats.
enum class MetafileClip { And = 1, Or, ExclusiveOr, Without, Instead };

/// A corner of an area whose colours run from corner to corner.
struct MetafileVertex {
  QPointF at;
  QColor colour;
};

enum class MetafilePaint { Fill, Stroke, FillAndStroke };

/// Draws into an image. All places and sizes are in the drawing's own units unless it says otherwise. Every
/// function that draws throws MetafileFault while the state's mapping makes no sense.
class MetafileCanvas {
 public:
  /// A white sheet. `deviceToImage` places the metafile's device on it. However small the drawing is, its
  /// lines may be as thin as one pixel of the image.
  MetafileCanvas(const MetafileSheet& sheet, const QTransform& deviceToImage);
  MetafileCanvas(const MetafileCanvas&) = delete;
  MetafileCanvas& operator=(const MetafileCanvas&) = delete;

  MetafileState state;

  void save();
  /// A negative `depth` counts back from the last save, a positive one from the first. Wrong ones do nothing.
  void restore(int depth);
  void select(const MetafileObject& object);

  /// Draws `path`, or adds it to the path that is being recorded.
  void draw(const QPainterPath& path, MetafilePaint paint);
  /// Both draw from the state's position, and move it to the end.
  void lineTo(const QPointF& end);
  void continueWith(const QPainterPath& path);
  /// The part of the ellipse in `box` from the ray through `start` to the ray through `end`, in the state's
  /// direction. `joint`: 0 leaves it open, 1 joins the ends, 2 joins both to the centre.
  QPainterPath arc(const QRectF& box, const QPointF& start, const QPointF& end, int joint) const;
  void setPixel(const QPointF& place, const QColor& colour);
  /// Fills a region of device units, fills a frame along its inner edge, or inverts its colours.
  void fillRegion(const QRegion& region, const MetafileBrush& brush);
  void frameRegion(const QRegion& region, const QSize& frame, const MetafileBrush& brush);
  void invertRegion(const QRegion& region);

  void beginPath();
  void closeFigure();
  void endPath() { isRecording_ = false; }
  void dropPath();
  void paintPath(MetafilePaint paint);
  void clipToPath(MetafileClip mode);
  /// Replaces the recorded path by the area that the pen would cover along it; leaves one of more than 10,000
  /// elements as it is.
  void widenPath();

  /// No region means the whole sheet. A mode that is none of the above throws MetafileFault.
  void clip(const std::optional<QRegion>& device, MetafileClip mode);
  void clip(const QRectF& box, MetafileClip mode);
  void moveClip(const QPointF& offset);

  /// Draws the part `source` (in pixels of `image`) into `target` by the ternary raster operation; rare ones
  /// copy. `opacity` goes from 0 to 1.
  void drawImage(const QRectF& target, const QImage& image, const QRectF& source, std::uint32_t operation,
                 double opacity = 1);
  /// Draws the part over what is there, into the parallelogram with these upper left, upper right and lower
  /// left corners.
  void drawImage(const std::array<QPointF, 3>& corners, const QImage& image, const QRectF& source);
  /// Throws MetafileOmission for rare operations.
  void fill(const QRectF& target, std::uint32_t operation);

  /// Fills the rectangle with these two corners; the colour changes from left to right or from top to bottom.
  void fillGradient(const MetafileVertex& one, const MetafileVertex& other, Qt::Orientation direction);
  /// Fills a triangle.
  void fillGradient(const std::array<MetafileVertex, 3>& corners);

  void drawText(const MetafileText& text);

  /// Notes that something is not drawn: words that continue "Drawn without:". Repetitions do no harm.
  void leaveOut(const char* what);

  /// The finished sheet, of a drawing that asks for this size. Nothing can be drawn after it.
  MetafilePicture finish(const QSize& ownSize);

 private:
  QTransform toImage() const;
  /// The pixels of the sheet that may belong to an area with these corners, in pixels of the image.
  QRect pixelsAround(const QPolygonF& corners) const;
  QRegion regionInImage(const QRectF& box) const;
  double lengthInImage(double length) const;
  void beginPainting();
  void paint(const QPainterPath& imagePath, MetafilePaint paint);
  QPen penInImage() const;
  QBrush brushInImage(const MetafileBrush& brush) const;
  void combineClip(const std::optional<QRegion>& image, MetafileClip mode);

  QImage image_;
  QPainter painter_;
  QTransform deviceToImage_;
  double scale_;
  std::vector<MetafileState> saved_;
  bool isRecording_ = false;
  QPainterPath path_;
  QStringList leftOut_;
};

}  // namespace quorvin
