#include "app/search_form_refresh.h"

#include "preview/res_win.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QGuiApplication>

#include <utility>

namespace quorvin {

namespace {

constexpr std::int64_t kMillisecondsBetweenShowings = 16;

std::vector<std::int64_t> listingSizes(const ProgramState& state) {
  std::vector<std::int64_t> sizes;
  for (int row = 1; row <= state.OnlineSourceCount; ++row) {
    sizes.push_back(QFileInfo(state.onlineListingPath(state.OnlineSources.description(row))).size());
  }
  return sizes;
}

}  // namespace

RefreshDisplay::RefreshDisplay(ProgramState& state, QWidget& owner, const QLocale& locale)
    : state_(state), owner_(owner), locale_(locale) {}

Progress& RefreshDisplay::progress() {
  if (!progress_) progress_ = new Progress(state_, &owner_);
  return *progress_;
}

void RefreshDisplay::close() {
  isClosed_ = true;
  if (progress_) progress_->hide();
}

void RefreshDisplay::createProgress() {
  progress();
}

void RefreshDisplay::setStatus(const QString& text) {
  status_ = text;
  if (!isRunning_) progress().setStatus(text);
}

void RefreshDisplay::showIndexed(const IndexCounts& counts) {
  counts_ = counts;
  share_.indexed(counts);
}

void RefreshDisplay::processEvents() {
  if (!sinceShown_.isValid() || sinceShown_.hasExpired(kMillisecondsBetweenShowings)) show();
  QCoreApplication::processEvents();
}

void RefreshDisplay::show() {
  sinceShown_.start();
  progress().setStatus(status_);
  progress().setDetail(countsText());
  const std::optional<int> percent = share_.percent();
  if (percent) {
    progress().setBar(*percent);
  } else {
    progress().setBusy();
  }
}

QString RefreshDisplay::countsText() const {
  const QString files = counts_.files == 1 ? QStringLiteral("1 file")
                                           : locale_.toString(counts_.files) + QStringLiteral(" files");
  const QString folders = counts_.folders == 1
                              ? QStringLiteral("1 folder")
                              : locale_.toString(counts_.folders) + QStringLiteral(" folders");
  return files + QStringLiteral(" in ") + folders;
}

QString RefreshDisplay::progressTitle() const {
  return progress_ ? progress_->windowTitle() : QString();
}

void RefreshDisplay::setProgressTitle(const QString& title) {
  progress().setWindowTitle(title);
}

void RefreshDisplay::refreshBegins() {
  isRunning_ = true;
  counts_ = {};
  share_ = RefreshShare(listingSizes(state_));
  sinceShown_.invalidate();
  status_.clear();
  if (!isClosed_) progress().begin();
}

void RefreshDisplay::refreshEnded() {
  show();
  isRunning_ = false;
  progress().hide();
}

void RefreshDisplay::showSource(int row, int) {
  share_.beginSource(row);
}

void RefreshDisplay::setBusyPointer() {
  if (!std::exchange(isPointerBusy_, true)) QGuiApplication::setOverrideCursor(Qt::BusyCursor);
}

void RefreshDisplay::setDefaultPointer() {
  if (std::exchange(isPointerBusy_, false)) QGuiApplication::restoreOverrideCursor();
}

void RefreshDisplay::showErrorLog(const QString& log) {
  if (isClosed_) return;
  ResWin window(&owner_);
  window.setText(log);
  window.exec();
}

}  // namespace quorvin
