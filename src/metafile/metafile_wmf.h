// Windows metafiles.
#pragma once

#include "metafile/metafile_bytes.h"
#include "metafile/metafile_canvas.h"
#include "metafile/metafile_play.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace quorvin {

/// Plays the records of a Windows metafile on a canvas. Parameters are 16-bit numbers, given in the file from
/// the last to the first; in the code they are counted as they stand in the file, after the record's size and
/// function.
class WmfPlayer {
 public:
  /// `file` must outlive the player. Throws MetafileFault when the header makes no sense, and for a file
  /// without a placeable header that does not say how large its drawing is.
  explicit WmfPlayer(const MetafileBytes& file);

  MetafilePicture play();

 private:
  void playRecord(std::uint16_t function, const MetafileBytes& parameters);
  // Each tells whether the function is one of its kind.
  bool playWindow(std::uint16_t function, const MetafileBytes& parameters);
  bool playSetting(std::uint16_t function, const MetafileBytes& parameters);
  bool playObject(std::uint16_t function, const MetafileBytes& parameters);
  bool playShape(std::uint16_t function, const MetafileBytes& parameters);
  bool playClip(std::uint16_t function, const MetafileBytes& parameters);
  bool playBitmap(std::uint16_t function, const MetafileBytes& parameters);
  bool playText(std::uint16_t function, const MetafileBytes& parameters);

  void store(MetafileObject object);
  const MetafileObject& object(std::uint16_t number) const;
  void drawArc(const MetafileBytes& parameters, int joint);
  void polyPolygon(const MetafileBytes& parameters);
  void textOut(const MetafileBytes& parameters);
  void extTextOut(const MetafileBytes& parameters);
  void drawStored(const MetafileBytes& dib, const QRectF& target, const QRectF& source,
                  std::uint32_t operation);

  MetafileBytes records_;
  QSize ownSize_;
  std::unique_ptr<MetafileCanvas> canvas_;
  std::vector<MetafileObject> objects_;
};

}  // namespace quorvin
