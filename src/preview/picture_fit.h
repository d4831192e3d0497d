// SPDX-License-Identifier: GPL-2.0-or-later

// The rule that fits a picture into its frame.
#pragma once

#include <optional>

namespace quorvin {

/// A width and a height. The rule works on any unit; the window uses twips.
struct PictureExtent {
  float width = 0;
  float height = 0;

  bool operator==(const PictureExtent&) const = default;
};

/// The extent in which a picture is shown in `frame`. The picture's own width and height may be in any unit,
/// since only their ratio counts. The picture keeps its proportions, but for 60 units that are taken off both
/// sides afterwards; so a picture that is far longer in one direction may come out below zero in the other.
/// Nothing when the picture is to stay as it is: in a frame of 120 units or less in either direction, and for
/// a picture without width or height.
inline std::optional<PictureExtent> fitPicture(const PictureExtent& frame, double pictureWidth,
                                               double pictureHeight) {
  constexpr float kLeastFrame = 120;
  constexpr float kMargin = 60;
  if (!(pictureWidth > 0 && pictureHeight > 0)) return std::nullopt;
  if (frame.width <= kLeastFrame || frame.height <= kLeastFrame) return std::nullopt;
  const double widthToHeight = pictureWidth / pictureHeight;
  const double heightToWidth = pictureHeight / pictureWidth;
  const bool isWide = frame.height <= frame.width;
  const bool fitsWidth =
      isWide ? frame.width <= frame.height * widthToHeight : frame.height > frame.width * heightToWidth;
  if (fitsWidth) {
    return PictureExtent{frame.width - kMargin, static_cast<float>(frame.width * heightToWidth - kMargin)};
  }
  return PictureExtent{static_cast<float>(frame.height * widthToHeight - kMargin), frame.height - kMargin};
}

}  // namespace quorvin
