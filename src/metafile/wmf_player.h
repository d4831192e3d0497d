// SPDX-License-Identifier: GPL-2.0-or-later

// Windows metafiles.
#pragma once

#include "metafile/boundary.h"
#include "metafile/metafile_bytes.h"
#include "metafile/metafile_canvas.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace quorvin {

/// The parameters of a record: what follows its size and its function. They are 16-bit numbers, and the file
/// holds them from the last to the first, so that y comes before x. Offsets are bytes of the file.
class WmfParameters : public MetafileBytes {
 public:
  explicit WmfParameters(const MetafileBytes& bytes) : MetafileBytes(bytes) {}

  QPointF point(std::int64_t at) const { return {double(i16(at + 2)), double(i16(at))}; }
  QSizeF extent(std::int64_t at) const { return {double(i16(at + 2)), double(i16(at))}; }
  /// The right lower corner, followed by the left upper one.
  QRectF corners(std::int64_t at) const { return QRectF(point(at + 4), point(at)).normalized(); }
  /// The size, followed by the left upper corner.
  QRectF sizeAndPlace(std::int64_t at) const { return {point(at + 4), extent(at)}; }
};

/// Plays the records of a Windows metafile on a canvas.
class WmfPlayer {
 public:
  /// `file` must outlive the player. Throws MetafileFault when the header makes no sense, and for a file
  /// without a placeable header that does not give the size of its drawing.
  explicit WmfPlayer(const MetafileBytes& file);

  MetafilePicture play();

 private:
  void playRecord(std::uint16_t function, const WmfParameters& parameters);
  // Each returns whether the function is one of its kind.
  bool playWindow(std::uint16_t function, const WmfParameters& parameters);
  bool playSetting(std::uint16_t function, const WmfParameters& parameters);
  bool playObject(std::uint16_t function, const WmfParameters& parameters);
  bool playShape(std::uint16_t function, const WmfParameters& parameters);
  bool playClip(std::uint16_t function, const WmfParameters& parameters);
  bool playBitmap(std::uint16_t function, const WmfParameters& parameters);
  bool playText(std::uint16_t function, const WmfParameters& parameters);
  /// Throws MetafileOmission for what can be seen but is not drawn.
  static bool noteOmission(std::uint16_t function, const WmfParameters& parameters);

  void store(MetafileObject object);
  const MetafileObject& object(std::uint16_t number) const;
  void drawArc(const WmfParameters& parameters, int joint);
  void polyPolygon(const WmfParameters& parameters);
  void textOut(const WmfParameters& parameters);
  void extTextOut(const WmfParameters& parameters);
  void drawStored(const MetafileBytes& dib, const QRectF& target, const QRectF& source,
                  std::uint32_t operation);

  MetafileBytes records_;
  QSize ownSize_;
  std::unique_ptr<MetafileCanvas> canvas_;
  std::vector<MetafileObject> objects_;
};

}  // namespace quorvin
