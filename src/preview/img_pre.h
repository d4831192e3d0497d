// SPDX-License-Identifier: GPL-2.0-or-later

// The window that shows a picture.
#pragma once

#include "preview/loaded_picture.h"

#include <QImage>
#include <QLabel>
#include <QObject>
#include <QSizeF>
#include <QString>
#include <QThreadPool>
#include <QTimer>
#include <QWidget>

#include <memory>
#include <optional>

namespace quorvin {

/// Hands out the frames of a moving picture, each when its time has come. While one is seen, the next is
/// decoded in another thread, so that the user interface never waits for it.
class PictureAnimation : public QObject {
  Q_OBJECT

 public:
  /// `pool` must outlive the object.
  explicit PictureAnimation(QThreadPool& pool);
  ~PictureAnimation() override;

  /// Forgets the picture before. The first frame, which has been decoded already, is seen from now on for
  /// `milliseconds`. Ends by itself when the picture has no further frame; `decoder` may be null.
  void start(std::shared_ptr<PictureDecoder> decoder, int milliseconds);
  void stop();

  /// No frame comes while it is paused.
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

/// The preview window `ImgPre`. The frame `PicBox` fills it. In its upper left corner, `Pic` shows the
/// picture in the size that fitPicture gives, which is applied again after each change of the window's size
/// and each activation. What is missing from a drawing is said in `Note`, a line over the lower edge that is
/// seen only then; the name of the file is in the lower right corner, as `PicName`. Esc closes the window; a
/// closed window is only hidden and keeps its picture, but no open file: a moving picture stands still from
/// then on.
class ImgPre : public QWidget {
  Q_OBJECT

 public:
  /// Decodes the frames of moving pictures in threads of `pool`, which must outlive the window.
  ImgPre(QThreadPool& pool, QWidget* parent);

  /// Replaces the picture; `path` is its file, for screen readers and the tooltip.
  void setPicture(const LoadedPicture& picture, const QString& path);

 protected:
  bool event(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  class Picture;

  void Form_Activate();
  void Form_Resize();
  void placeNote();
  void placeName(int bottom);

  QWidget* PicBox_;
  Picture* Pic_;
  QLabel* Note_;
  QLabel* PicName_;
  QString fileName_;
  QSizeF pictureSize_;
  PictureAnimation animation_;
};

}  // namespace quorvin
