// SPDX-License-Identifier: GPL-2.0-or-later
#include "preview/img_pre.h"

#include "platform/screen_room.h"
#include "preview/in_background.h"
#include "preview/picture_fit.h"
#include "texts/texts.h"

#include <QCloseEvent>
#include <QFileInfo>
#include <QKeySequence>
#include <QPainter>
#include <QPixmap>
#include <QShortcut>

#include <algorithm>
#include <cmath>
#include <utility>

namespace quorvin {

namespace {

constexpr float kTwipsPerPixel = 15;
constexpr QSize kFirstSize(640, 480);
constexpr int kNoteMargin = 4;

int pixelsOf(float twips) {
  // The rule leaves no height to a picture that is far wider than high; a line of it can still be seen.
  return std::max(1, static_cast<int>(std::lround(twips / kTwipsPerPixel)));
}

/// `drawnWithout` is in English, as the program that draws metafiles has sent it.
QString textOfMissing(const QString& drawnWithout) {
  if (drawnWithout.isEmpty()) return {};
  QStringList parts = drawnWithout.split(QStringLiteral(", "));
  for (QString& part : parts) part = Texts::tr(part.toUtf8().constData());
  return Texts::tr("Drawn without: %1.").arg(parts.join(QStringLiteral(", ")));
}

}  // namespace

PictureAnimation::PictureAnimation(QThreadPool& pool) : pool_(pool) {
  timer_.setSingleShot(true);
  timer_.setTimerType(Qt::PreciseTimer);
  connect(&timer_, &QTimer::timeout, this, [this] {
    isTimeOver_ = true;
    showNext();
  });
}

PictureAnimation::~PictureAnimation() {
  stop();
}

void PictureAnimation::start(std::shared_ptr<PictureDecoder> decoder, int milliseconds) {
  stop();
  decoder_ = std::move(decoder);
  if (!decoder_) return;
  timer_.start(milliseconds);
  decodeNext();
}

void PictureAnimation::stop() {
  timer_.stop();
  if (decoder_) decoder_->stop();
  decoder_.reset();
  next_.reset();
  isTimeOver_ = false;
}

void PictureAnimation::setPaused(bool isPaused) {
  isPaused_ = isPaused;
  showNext();
}

void PictureAnimation::decodeNext() {
  inBackground(
      pool_, this, [decoder = decoder_] { return decoder->next(); },
      [this, decoder = decoder_](const QFuture<std::optional<PictureFrame>>& frame) {
        // Another picture may have come meanwhile.
        if (decoder == decoder_) frameDecoded(frame.result());
      });
}

void PictureAnimation::frameDecoded(const std::optional<PictureFrame>& frame) {
  if (!frame) return stop();
  next_ = frame;
  showNext();
}

void PictureAnimation::showNext() {
  if (!next_ || !isTimeOver_ || isPaused_) return;
  const PictureFrame frame = *std::exchange(next_, std::nullopt);
  isTimeOver_ = false;
  timer_.start(frame.milliseconds);
  decodeNext();
  Q_EMIT frameReached(frame.image);
}

/// The control `Pic`: stretches its picture to whatever size it is given.
class ImgPre::Picture : public QWidget {
 public:
  explicit Picture(QWidget* parent) : QWidget(parent) {}

  void setImage(const QImage& image) {
    image_ = image;
    stretched_ = {};
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    if (image_.isNull()) return;
    const QSize pixels = size() * devicePixelRatio();
    if (stretched_.size() != pixels) stretched_ = stretchedTo(pixels);
    QPainter(this).drawPixmap(rect(), stretched_);
  }

 private:
  QPixmap stretchedTo(const QSize& pixels) const {
    // What is made much larger shows its pixels; softened, they would look like a fault.
    const bool isEnlarged = pixels.width() > 4 * image_.width();
    const auto mode = isEnlarged ? Qt::FastTransformation : Qt::SmoothTransformation;
    return QPixmap::fromImage(image_.scaled(pixels, Qt::IgnoreAspectRatio, mode));
  }

  QImage image_;
  /// The image in the size in which it was painted last.
  QPixmap stretched_;
};

ImgPre::ImgPre(QThreadPool& pool, QWidget* parent)
    : QWidget(parent, Qt::Window),
      PicBox_(new QWidget(this)),
      Pic_(new Picture(PicBox_)),
      Note_(new QLabel(this)),
      PicName_(new QLabel(this)),
      animation_(pool) {
  setObjectName(QStringLiteral("ImgPre"));
  setWindowTitle(Texts::tr("Image Preview"));
  PicBox_->setObjectName(QStringLiteral("PicBox"));
  PicBox_->setAccessibleName(Texts::tr("Picture frame"));
  Pic_->setObjectName(QStringLiteral("Pic"));
  Pic_->setAccessibleName(Texts::tr("Picture"));
  Pic_->setGeometry(0, 0, 1, 1);
  Note_->setObjectName(QStringLiteral("Note"));
  Note_->setTextFormat(Qt::PlainText);
  Note_->setWordWrap(true);
  Note_->setMargin(kNoteMargin);
  Note_->setAutoFillBackground(true);
  Note_->hide();
  PicName_->setObjectName(QStringLiteral("PicName"));
  PicName_->setTextFormat(Qt::PlainText);
  PicName_->setMargin(kNoteMargin);
  PicName_->setAutoFillBackground(true);
  resize(kFirstSize.boundedTo(largestInside(*screen())));
  connect(&animation_, &PictureAnimation::frameReached, Pic_, &Picture::setImage);
  connect(new QShortcut(QKeySequence(Qt::Key_Escape), this), &QShortcut::activated, this, &QWidget::close);
}

void ImgPre::setPicture(const LoadedPicture& picture, const QString& path) {
  pictureSize_ = picture.size;
  Pic_->setImage(picture.frame.image);
  Pic_->setAccessibleName(Texts::tr("Picture %1").arg(QFileInfo(path).fileName()));
  Pic_->setToolTip(path.toHtmlEscaped());
  fileName_ = QFileInfo(path).fileName();
  Note_->setText(textOfMissing(picture.drawnWithout));
  Note_->setVisible(!picture.drawnWithout.isEmpty());
  Pic_->setAccessibleDescription(Note_->text());
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

/// The medium of a picture that nobody looks at any more can be taken out.
void ImgPre::closeEvent(QCloseEvent* event) {
  animation_.stop();
  QWidget::closeEvent(event);
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
  placeNote();
}

void ImgPre::placeNote() {
  const int height = Note_->heightForWidth(width());
  Note_->setGeometry(0, this->height() - height, width(), height);
  placeName(Note_->isHidden() ? this->height() : Note_->y());
}

/// Where a picture that is fitted into the upper left corner reaches last.
void ImgPre::placeName(int bottom) {
  const int most = width() - 2 * kNoteMargin;
  PicName_->setAccessibleName(fileName_);
  PicName_->setText(PicName_->fontMetrics().elidedText(fileName_, Qt::ElideMiddle, most));
  PicName_->setVisible(!fileName_.isEmpty());
  const QSize size = PicName_->sizeHint().boundedTo(QSize(width(), height()));
  PicName_->setGeometry(QRect(QPoint(width() - size.width(), bottom - size.height()), size));
}

}  // namespace quorvin
