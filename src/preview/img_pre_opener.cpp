#include "preview/img_pre_opener.h"

#include "preview/picture_background.h"

#include <QCoreApplication>

#include <utility>

namespace quorvin {

namespace {

/// Enough that one which is slow to stop holds up no other.
constexpr int kThreads = 4;

}  // namespace

ImgPreOpener::ImgPreOpener(QWidget* owner, MetafileChild child, PreviewFaultReport report)
    : owner_(owner), child_(std::move(child)), report_(std::move(report)) {
  pool_.setMaxThreadCount(kThreads);
}

ImgPreOpener::~ImgPreOpener() {
  unload();
}

void ImgPreOpener::PreviewImage(const QString& path) {
  cancel();
  stop_ = PictureStop();
  loading_ = std::make_unique<ImgPreLoading>(path, owner_);
  connect(loading_.get(), &QProgressDialog::canceled, this, &ImgPreOpener::cancel);
  connect(loading_.get(), &QDialog::rejected, this, &ImgPreOpener::cancel);
  inBackground(
      pool_, this, [path, child = child_, stop = stop_] { return loadPicture(path, child, stop); },
      [this, path, stop = stop_](const QFuture<LoadedPicture>& picture) {
        if (!stop.isRequested()) loadingEnded(picture, path);
      });
}

void ImgPreOpener::loadingEnded(const QFuture<LoadedPicture>& picture, const QString& path) {
  try {
    show(picture.result(), path);
  } catch (const RuntimeFault& fault) {
    cancel();
    report_(path, fault);
  }
}

void ImgPreOpener::cancel() {
  stop_.request();
  // The box may be the one that is asking.
  if (loading_) loading_.release()->deleteLater();
}

void ImgPreOpener::show(const LoadedPicture& picture, const QString& path) {
  loading_.release()->deleteLater();
  // From now on the picture belongs to the window: giving up another must not stop it.
  stop_ = PictureStop();
  const QPointer<ImgPre> window = &madeWindow();
  window->setPicture(picture, path);
  QCoreApplication::processEvents();
  // The program may have been closed.
  if (!window) return;
  window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
  window->show();
  window->raise();
  window->activateWindow();
}

ImgPre& ImgPreOpener::madeWindow() {
  if (!window_) window_ = std::make_unique<ImgPre>(pool_, owner_);
  return *window_;
}

void ImgPreOpener::unload() {
  cancel();
  window_.reset();
}

}  // namespace quorvin
