// Moving pictures.
#pragma once

#include "preview/picture_decoder.h"

#include <QImage>
#include <QObject>
#include <QThreadPool>
#include <QTimer>

#include <memory>
#include <optional>

namespace quorvin {

/// Gives the frames of a picture in time. Each is decoded aside while the one before is seen, so that the
/// user interface never waits for one.
class PictureAnimation : public QObject {
  Q_OBJECT

 public:
  /// `pool` must outlive the object.
  explicit PictureAnimation(QThreadPool& pool);
  ~PictureAnimation() override;

  /// Forgets the picture before; the first frame, which has been decoded already, is seen from now on for
  /// `milliseconds`. A picture that has no further frames ends by itself.
  void start(std::shared_ptr<PictureDecoder> decoder, int milliseconds);
  void stop();

  /// While it is paused no frame comes.
  void setPaused(bool isPaused);

 Q_SIGNALS:
  void frameReached(const QImage& image);

 private:
  void decodeNext();
  void frameDecoded(const std::optional<PictureFrame>& frame);
  void showNext();

  QThreadPool& pool_;
  QTimer timer_;
  std::shared_ptr<PictureDecoder> decoder_;
  std::optional<PictureFrame> next_;
  bool isTimeOver_ = false;
  bool isPaused_ = false;
};

}  // namespace quorvin
