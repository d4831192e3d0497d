// Previewing pictures.
#pragma once

#include "faults/runtime_fault.h"
#include "preview/img_pre.h"
#include "preview/img_pre_loading.h"
#include "preview/metafile_child.h"
#include "preview/picture_stop.h"

#include <QFuture>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QThreadPool>

#include <functional>
#include <memory>

namespace quorvin {

/// Told of a picture that cannot be shown: its path, and the fault, whose description names it and says why.
using PreviewFaultReport = std::function<void(const QString& path, const RuntimeFault& fault)>;

/// What the main window's `ShowPreview` does in the end. Owns the window `ImgPre`, which is made when the
/// first picture has been loaded and is used again for all later ones. Loading goes on aside: meanwhile the
/// program can be used, and a box with a cancel button appears when it takes longer than half a second. The
/// object may end at any time, and waits then for no longer than an image reader takes to see it.
class ImgPreOpener : public QObject {
  Q_OBJECT

 public:
  /// `owner` is the window above which the others are shown; it must outlive the object.
  ImgPreOpener(QWidget* owner, MetafileChild child, PreviewFaultReport report);
  ~ImgPreOpener() override;

  /// Loads the picture `path`, shows it and brings the window to the front; returns at once. A picture that
  /// is still being loaded is given up. When this one cannot be loaded, the window stays as it is and the
  /// fault is reported; when the user cancels, nothing happens.
  void PreviewImage(const QString& path);

  bool isLoading() const { return loading_ != nullptr; }

  /// Gives up what is being loaded and deletes the window.
  void unload();

  /// Nothing before the first picture.
  ImgPre* window() const { return window_.get(); }

 private:
  void cancel();
  void loadingEnded(const QFuture<LoadedPicture>& picture, const QString& path);
  void show(const LoadedPicture& picture, const QString& path);
  ImgPre& madeWindow();

  QWidget* owner_;
  MetafileChild child_;
  PreviewFaultReport report_;
  PictureStop stop_;
  std::unique_ptr<ImgPreLoading> loading_;
  QThreadPool pool_;
  std::unique_ptr<ImgPre> window_;
};

}  // namespace quorvin
