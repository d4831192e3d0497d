// SPDX-License-Identifier: GPL-2.0-or-later

// The window that shows how far a long piece of work has come.
#pragma once

#include "state/program_state.h"
#include "work/work_display.h"

#include <QDialog>
#include <QElapsedTimer>
#include <QLabel>
#include <QList>
#include <QProgressBar>
#include <QPushButton>

namespace quorvin {

/// One line of text; what does not fit is left out in its middle, so that both ends of a path can be seen.
/// text() is always the whole.
class MiddleElidedLabel : public QLabel {
  Q_OBJECT

 public:
  using QLabel::QLabel;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

/// What all windows have in common that show progress: lays `rows` out in `dialog`, one below the other, and
/// in a last row `detail` in a dim colour with `cancel`, which becomes the `CancelButton`. The dialog takes
/// no focus when it is shown, and keeps its size, `characters` wide, whatever its texts become.
void layOutProgress(QDialog& dialog, const QList<QWidget*>& rows, QLabel& detail, QPushButton& cancel,
                    int characters);

/// The `Progress` window: a label `Status`, a label for details, the bar (0 to 100) and a `CancelButton`.
/// Cancelling (the button, Esc, or closing the window) sets `AbortRequested` and says so in the window, which
/// stays until the job has ended and takes it away. After leaveStanding() cancelling only hides it.
class Progress : public QDialog, public WorkDisplay {
  Q_OBJECT

 public:
  /// `state` must outlive the window. The window is not shown yet.
  explicit Progress(ProgramState& state, QWidget* parent = nullptr);

  void begin() override;
  void end() override { hide(); }
  void leaveStanding() override;
  QString title() const override { return windowTitle(); }
  void setTitle(const QString& title) override { setWindowTitle(title); }
  void setStatus(const QString& text) override;
  void setDetail(const QString& text) override;
  void setBarMaximum(std::int32_t maximum) override { maximum_ = maximum; }
  void setBar(std::int32_t value) override;
  void setBusy() override;
  void setBusyPointer(bool busy) override;
  bool isDue() override;
  void processEvents() override;
  void waitForEvents() override;
  bool isCancelled() const override { return isCancelled_; }
  bool endRequested() const override { return false; }

  void reject() override;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void CancelButton_Click();
  void enableCancelButton();
  void showDetail();

  ProgramState& state_;
  MiddleElidedLabel* status_;
  QLabel* detail_;
  QProgressBar* bar_;
  QPushButton* cancelButton_;
  QString detailText_;
  std::int32_t maximum_ = kFullBar;
  QElapsedTimer sinceDue_;
  bool isCancelled_ = false;
  /// There is no job any more that could be cancelled.
  bool isLeft_ = false;
  bool isPointerBusy_ = false;
};

}  // namespace quorvin
