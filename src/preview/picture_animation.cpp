#include "preview/picture_animation.h"

#include "preview/picture_background.h"

#include <utility>

namespace quorvin {

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

}  // namespace quorvin
