// `Progress` for unpacking and for the web update.
#pragma once

#include "update/web_update.h"
#include "work/progress.h"

#include <QPushButton>
#include <QWidget>

#include <functional>

namespace quorvin {

/// The windows that an update shows itself in; all must outlive the display.
struct UpdateWindows {
  QWidget& mainWindow;
  QPushButton& webUpdate;
  /// Gives the `Progress` window, made when there is none.
  std::function<Progress&()> progress;
  /// Whether the main window has been closed.
  std::function<bool()> endRequested;
};

class ProgressDisplay : public WebUpdateView {
 public:
  explicit ProgressDisplay(UpdateWindows windows);

  void showMainWindow() override;
  void showProgress() override;
  void unloadProgress() override;
  void setStatus(const QString& text) override;
  void setBarMaximum(std::int32_t maximum) override;
  void setBar(std::int32_t value) override;
  void processEvents() override;
  bool endRequested() const override;

  void setWebUpdateEnabled(bool enabled) override;
  void setBusyPointer(bool busy) override;
  void waitForEvents() override;
  void leaveProgress() override;

 private:
  UpdateWindows windows_;
  std::int32_t barMaximum_ = 0;
};

}  // namespace quorvin
