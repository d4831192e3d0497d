#include "preview/img_pre.h"

#include "preview/picture_fit.h"

#include <QFileInfo>
#include <QKeySequence>
#include <QShortcut>

#include <algorithm>
#include <cmath>

namespace quorvin {

namespace {

constexpr float kTwipsPerPixel = 15;
constexpr QSize kFirstSize(640, 480);

int pixelsOf(float twips) {
  // A picture that is far longer than wide has no width left by the rule; a line of it can still be seen.
  return std::max(1, static_cast<int>(std::lround(twips / kTwipsPerPixel)));
}

}  // namespace

ImgPre::ImgPre(QThreadPool& pool, QWidget* parent)
    : QWidget(parent, Qt::Window),
      PicBox_(new QWidget(this)),
      Pic_(new ImgPrePic(PicBox_)),
      animation_(pool) {
  setObjectName(QStringLiteral("ImgPre"));
  setWindowTitle(QStringLiteral("Image Preview"));
  PicBox_->setObjectName(QStringLiteral("PicBox"));
  PicBox_->setAccessibleName(QStringLiteral("Picture frame"));
  Pic_->setObjectName(QStringLiteral("Pic"));
  Pic_->setAccessibleName(QStringLiteral("Picture"));
  Pic_->setGeometry(0, 0, 1, 1);
  resize(kFirstSize);
  connect(&animation_, &PictureAnimation::frameReached, Pic_, &ImgPrePic::setPicture);
  connect(new QShortcut(QKeySequence(Qt::Key_Escape), this), &QShortcut::activated, this, &QWidget::close);
}

void ImgPre::setPicture(const LoadedPicture& picture, const QString& path) {
  pictureSize_ = picture.size;
  Pic_->setPicture(picture.frame.image);
  Pic_->setAccessibleName(QStringLiteral("Picture ") + QFileInfo(path).fileName());
  Pic_->setToolTip(path.toHtmlEscaped());
  animation_.start(picture.decoder, picture.frame.milliseconds);
  Form_Resize();
}

bool ImgPre::event(QEvent* event) {
  const bool isHandled = QWidget::event(event);
  if (event->type() == QEvent::WindowActivate) Form_Activate();
  return isHandled;
}

void ImgPre::resizeEvent(QResizeEvent*) {
  Form_Resize();
}

void ImgPre::showEvent(QShowEvent*) {
  animation_.setPaused(false);
}

void ImgPre::hideEvent(QHideEvent*) {
  animation_.setPaused(true);
}

void ImgPre::Form_Activate() {
  Form_Resize();
}

void ImgPre::Form_Resize() {
  PicBox_->setGeometry(rect());
  const PictureExtent frame{static_cast<float>(PicBox_->width()) * kTwipsPerPixel,
                            static_cast<float>(PicBox_->height()) * kTwipsPerPixel};
  const auto fitted = fitPicture(frame, pictureSize_.width(), pictureSize_.height());
  if (fitted) Pic_->resize(pixelsOf(fitted->width), pixelsOf(fitted->height));
}

}  // namespace quorvin
