#include "preview/picture_fit.h"

namespace quorvin {

namespace {

constexpr float kLeastFrame = 120;
constexpr float kMargin = 60;

PictureExtent fitToWidth(const PictureExtent& frame, double heightToWidth) {
  return {frame.width - kMargin, static_cast<float>(frame.width * heightToWidth - kMargin)};
}

PictureExtent fitToHeight(const PictureExtent& frame, double widthToHeight) {
  return {static_cast<float>(frame.height * widthToHeight - kMargin), frame.height - kMargin};
}

}  // namespace

std::optional<PictureExtent> fitPicture(const PictureExtent& frame, double pictureWidth,
                                        double pictureHeight) {
  if (!(pictureWidth > 0 && pictureHeight > 0)) return std::nullopt;
  const double widthToHeight = pictureWidth / pictureHeight;
  const double heightToWidth = pictureHeight / pictureWidth;
  if (frame.width <= kLeastFrame || frame.height <= kLeastFrame) return std::nullopt;
  const bool isWide = frame.height <= frame.width;
  const bool fitsWidth =
      isWide ? frame.width <= frame.height * widthToHeight : frame.height > frame.width * heightToWidth;
  return fitsWidth ? fitToWidth(frame, heightToWidth) : fitToHeight(frame, widthToHeight);
}

}  // namespace quorvin
