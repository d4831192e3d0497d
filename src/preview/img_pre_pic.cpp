#include "preview/img_pre_pic.h"

#include <QPainter>

namespace quorvin {

ImgPrePic::ImgPrePic(QWidget* parent) : QWidget(parent) {}

void ImgPrePic::setPicture(const QImage& picture) {
  picture_ = picture;
  stretched_ = {};
  update();
}

void ImgPrePic::paintEvent(QPaintEvent*) {
  if (picture_.isNull()) return;
  const QSize pixels = size() * devicePixelRatio();
  if (stretched_.size() != pixels) {
    // What is made larger shows its pixels; softened they would look like a fault.
    const bool isEnlarged = pixels.width() > 4 * picture_.width();
    const auto mode = isEnlarged ? Qt::FastTransformation : Qt::SmoothTransformation;
    stretched_ = QPixmap::fromImage(picture_.scaled(pixels, Qt::IgnoreAspectRatio, mode));
  }
  QPainter(this).drawPixmap(rect(), stretched_);
}

}  // namespace quorvin
