// SPDX-License-Identifier: GPL-2.0-or-later

// Enhanced metafiles.
#pragma once

#include "metafile/boundary.h"
#include "metafile/metafile_bytes.h"
#include "metafile/metafile_canvas.h"

#include <cstdint>
#include <vector>

namespace quorvin {

/// Plays the records of an enhanced metafile on a canvas. Offsets are counted as in the file format, from the
/// start of a record; its first eight bytes are its type and its size.
class EmfPlayer {
 public:
  /// `file` must outlive the player. Throws MetafileFault when the header makes no sense.
  explicit EmfPlayer(const MetafileBytes& file);

  MetafilePicture play();

 private:
  struct Header;
  EmfPlayer(const MetafileBytes& file, const Header& header);

  void playRecord(std::uint32_t type, const MetafileBytes& record);
  // Each returns whether the type is one of its kind.
  bool playMapping(std::uint32_t type, const MetafileBytes& record);
  bool playSetting(std::uint32_t type, const MetafileBytes& record);
  bool playObject(std::uint32_t type, const MetafileBytes& record);
  bool playShape(std::uint32_t type, const MetafileBytes& record);
  bool playPoints(std::uint32_t type, const MetafileBytes& record);
  bool playPath(std::uint32_t type, const MetafileBytes& record);
  bool playClip(std::uint32_t type, const MetafileBytes& record);
  bool playBitmap(std::uint32_t type, const MetafileBytes& record);
  void drawMasked(const MetafileBytes& record);
  void drawInParallelogram(const MetafileBytes& record);
  void fillGradients(const MetafileBytes& record);
  bool playText(std::uint32_t type, const MetafileBytes& record);
  /// Throws MetafileOmission for what can be seen but is not drawn.
  static bool noteOmission(std::uint32_t type, const MetafileBytes& record);

  void store(std::uint32_t number, MetafileObject object);
  /// Empty where there is no such object.
  MetafileObject objectOf(std::uint32_t number) const;
  void storePatternBrush(const MetafileBytes& record, bool isMonochrome);
  void drawArc(const MetafileBytes& record, int joint);
  void arcTo(const MetafileBytes& record);
  void angleArc(const MetafileBytes& record);
  void polyDraw(const MetafileBytes& record, bool isShort);
  void drawPoints(const std::vector<QPointF>& points, bool isBezier, bool fromPosition, bool isClosed);
  void polyPoly(const MetafileBytes& record, bool isShort, bool isClosed);
  void drawBitmap(const MetafileBytes& record, std::int64_t offsets, const QRectF& target, QRectF source,
                  std::uint32_t operation);
  /// `use` is where the record says what the numbers of a bitmap's palette mean.
  void noteColoursOfPalettes(const MetafileBytes& record, std::int64_t use);
  void blend(const MetafileBytes& record);
  void drawWithoutColour(const MetafileBytes& record);
  void drawString(const MetafileBytes& record, std::int64_t at, std::uint32_t options, bool isWide);

  MetafileBytes file_;
  QSize ownSize_;
  MetafileCanvas canvas_;
  std::vector<MetafileObject> objects_;
};

}  // namespace quorvin
