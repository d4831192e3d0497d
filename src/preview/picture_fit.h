// The rule that fits a picture into its frame.
#pragma once

#include <optional>

namespace quorvin {

/// A width and a height. The rule works on any unit; the windows use twips.
struct PictureExtent {
  float width = 0;
  float height = 0;

  bool operator==(const PictureExtent&) const = default;
};

/// The extent in which a picture of the size `picture` (any unit: only the ratio counts) is shown in a frame.
/// It keeps its proportions but for 60 units that are taken off both sides after the fit, and may come out
/// below zero for a picture that is far longer than wide. Nothing when the picture is to stay as it is: in a
/// frame of 120 units or less either way, and for a picture without width or height.
std::optional<PictureExtent> fitPicture(const PictureExtent& frame, double pictureWidth,
                                        double pictureHeight);

}  // namespace quorvin
