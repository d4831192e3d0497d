// The window that shows a picture.
#pragma once

#include "preview/img_pre_pic.h"
#include "preview/picture_animation.h"
#include "preview/picture_load.h"

#include <QSizeF>
#include <QString>
#include <QThreadPool>
#include <QWidget>

namespace quorvin {

/// The preview window `ImgPre`: the frame `PicBox` fills it, and in its upper left corner `Pic` shows the
/// picture as large as fitPicture says, again after each change of the window's size and each activation. Esc
/// closes the window; a closed one only hides and keeps its picture.
class ImgPre : public QWidget {
  Q_OBJECT

 public:
  /// Decodes the frames of moving pictures in threads of `pool`, which must outlive the window.
  ImgPre(QThreadPool& pool, QWidget* parent);

  /// Takes the picture's place from now on; `path` tells screen readers and the tooltip which one it is.
  void setPicture(const LoadedPicture& picture, const QString& path);

 protected:
  bool event(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  void Form_Activate();
  void Form_Resize();

  QWidget* PicBox_;
  ImgPrePic* Pic_;
  QSizeF pictureSize_;
  PictureAnimation animation_;
};

}  // namespace quorvin
