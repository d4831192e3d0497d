// SPDX-License-Identifier: GPL-2.0-or-later

// Previewing pictures: what the main window's "Preview Image" does.
#pragma once

#include "faults/runtime_fault.h"
#include "files/drive_threads.h"
#include "preview/img_pre.h"
#include "preview/loaded_picture.h"
#include "preview/metafile_child.h"

#include <QFuture>
#include <QObject>
#include <QProgressDialog>
#include <QString>

#include <functional>
#include <memory>
#include <stop_token>

namespace quorvin {

/// The box that appears while a picture takes long to load: by itself after half a second, without taking the
/// focus, with a bar that has no end and a button that cancels.
class ImgPreLoading : public QProgressDialog {
  Q_OBJECT

 public:
  /// `path` is the file that is being loaded.
  ImgPreLoading(const QString& path, QWidget* parent);
};

/// Called for a picture that cannot be shown, with its path and the fault, whose description names the
/// picture and says why. The call may run an event loop, as a message does.
using PreviewFaultReport = std::function<void(const QString& path, const RuntimeFault& fault)>;

/// Loads pictures and shows them in the window `ImgPre`, which is made when the first picture has been loaded
/// and is used again for all later ones. Pictures are loaded in other threads, so that the program can be
/// used meanwhile. The object may be destroyed at any time; a reader that a drive keeps waiting is left to
/// itself then (see DriveThreads).
class ImagePreview : public QObject {
  Q_OBJECT

 public:
  /// `owner` is the window above which the others are shown; it must outlive the object.
  ImagePreview(QWidget* owner, MetafileChild child, PreviewFaultReport report);
  ~ImagePreview() override;

  /// Loads the picture `path`, shows it and brings the window to the front; returns at once. A picture that
  /// is still being loaded is given up. When this one cannot be loaded, the window stays as it is and the
  /// fault is reported; when the user cancels, nothing happens.
  void PreviewImage(const QString& path);

  bool isLoading() const { return loading_ != nullptr; }

  /// Gives up what is being loaded and deletes the window.
  void unload();

  /// Null before the first picture.
  ImgPre* window() const { return window_.get(); }

 private:
  void cancel();
  void closeBox();
  void loadingEnded(const QFuture<LoadedPicture>& picture, const QString& path);
  void show(const LoadedPicture& picture, const QString& path);
  ImgPre& madeWindow();

  QWidget* owner_;
  MetafileChild child_;
  PreviewFaultReport report_;
  std::stop_source stop_;
  std::unique_ptr<ImgPreLoading> loading_;
  DriveThreads threads_;
  std::unique_ptr<ImgPre> window_;
};

}  // namespace quorvin
