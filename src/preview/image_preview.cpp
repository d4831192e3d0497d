// SPDX-License-Identifier: GPL-2.0-or-later
#include "preview/image_preview.h"

#include "preview/in_background.h"
#include "texts/texts.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>

#include <utility>

namespace quorvin {

namespace {

/// So many that one which is slow to stop does not hold up the others.
constexpr int kThreads = 4;
constexpr int kMillisecondsUnseen = 500;

}  // namespace

ImgPreLoading::ImgPreLoading(const QString& path, QWidget* parent) : QProgressDialog(parent) {
  setObjectName(QStringLiteral("ImgPreLoading"));
  setWindowTitle(Texts::tr("Image Preview"));
  setAttribute(Qt::WA_ShowWithoutActivating);
  auto* text = new QLabel;
  text->setObjectName(QStringLiteral("Status"));
  text->setTextFormat(Qt::PlainText);
  setLabel(text);
  setLabelText(Texts::tr("Loading %1...").arg(QFileInfo(path).fileName()));
  auto* bar = new QProgressBar;
  bar->setObjectName(QStringLiteral("bar"));
  bar->setAccessibleName(Texts::tr("Progress"));
  bar->setTextVisible(false);
  setBar(bar);
  auto* cancel = new QPushButton(Texts::tr("Cancel"));
  cancel->setObjectName(QStringLiteral("CancelButton"));
  // Taking the toolkit's own button away first removes its Esc as well; with two of them, Esc does nothing.
  setCancelButton(nullptr);
  setCancelButton(cancel);
  setRange(0, 0);
  setMinimumDuration(kMillisecondsUnseen);
  // The first value starts the time.
  setValue(0);
}

ImagePreview::ImagePreview(QWidget* owner, MetafileChild child, PreviewFaultReport report)
    : owner_(owner), child_(std::move(child)), report_(std::move(report)), threads_(kThreads) {}

ImagePreview::~ImagePreview() {
  unload();
}

void ImagePreview::PreviewImage(const QString& path) {
  cancel();
  stop_ = std::stop_source();
  loading_ = std::make_unique<ImgPreLoading>(path, owner_);
  connect(loading_.get(), &QProgressDialog::canceled, this, &ImagePreview::cancel);
  connect(loading_.get(), &QDialog::rejected, this, &ImagePreview::cancel);
  inBackground(
      threads_.pool(), this, [path, child = child_, stop = stop_] { return loadPicture(path, child, stop); },
      [this, path, stop = stop_](const QFuture<LoadedPicture>& picture) {
        if (!stop.stop_requested()) loadingEnded(picture, path);
      });
}

void ImagePreview::loadingEnded(const QFuture<LoadedPicture>& picture, const QString& path) {
  try {
    show(picture.result(), path);
  } catch (const RuntimeFault& fault) {
    cancel();
    report_(path, fault);
  }
}

void ImagePreview::cancel() {
  stop_.request_stop();
  closeBox();
}

void ImagePreview::closeBox() {
  if (!loading_) return;
  // The box may be the one that is asking, so it is deleted later; and that is after a message that runs its
  // own event loop has been closed. The reset hides the box, and stops the timer that would still open it.
  loading_->reset();
  loading_.release()->deleteLater();
}

void ImagePreview::show(const LoadedPicture& picture, const QString& path) {
  closeBox();
  // From now on the picture belongs to the window; giving up another one must not stop it.
  stop_ = std::stop_source();
  const QPointer<ImgPre> window = &madeWindow();
  window->setPicture(picture, path);
  QCoreApplication::processEvents();
  // The program may have been closed meanwhile.
  if (!window) return;
  window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
  window->show();
  window->raise();
  window->activateWindow();
}

ImgPre& ImagePreview::madeWindow() {
  if (!window_) window_ = std::make_unique<ImgPre>(threads_.pool(), owner_);
  return *window_;
}

void ImagePreview::unload() {
  cancel();
  window_.reset();
}

}  // namespace quorvin
