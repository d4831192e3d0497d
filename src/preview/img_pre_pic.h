// The picture in the preview window.
#pragma once

#include <QImage>
#include <QPixmap>
#include <QWidget>

namespace quorvin {

/// The control `Pic`: stretches its picture to whatever size it is given.
class ImgPrePic : public QWidget {
  Q_OBJECT

 public:
  explicit ImgPrePic(QWidget* parent);

  /// Kept as it is; an empty image shows nothing.
  void setPicture(const QImage& picture);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QImage picture_;
  /// The picture in the size in which it was painted last.
  QPixmap stretched_;
};

}  // namespace quorvin
