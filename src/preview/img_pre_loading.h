// The box that is seen while a picture takes long to load.
#pragma once

#include <QProgressDialog>
#include <QString>

namespace quorvin {

/// Appears by itself after half a second, without taking the focus, with a bar that has no end and a button
/// that cancels. Nothing else waits for it.
class ImgPreLoading : public QProgressDialog {
  Q_OBJECT

 public:
  /// `path` is the file that is being loaded.
  ImgPreLoading(const QString& path, QWidget* parent);
};

}  // namespace quorvin
