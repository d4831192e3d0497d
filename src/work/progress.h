// The window that shows how far a long piece of work has come.
#pragma once

#include "state/program_state.h"

#include <QDialog>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

namespace quorvin {

/// One line of text; what does not fit is left out in its middle, so that the begin and the end of a path are
/// seen. text() is always the whole.
class MiddleElidedLabel : public QLabel {
  Q_OBJECT

 public:
  using QLabel::QLabel;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

/// The `Progress` window: a label `Status`, a label for details, the bar and a `CancelButton`. It takes no
/// focus when it is shown. Cancelling (the button, Esc, or closing the window) sets `AbortRequested` and says
/// so in the window; the window stays until the work has come to its end and hides it.
class Progress : public QDialog {
  Q_OBJECT

 public:
  /// `state` must outlive the window. The window is not shown yet.
  explicit Progress(ProgramState& state, QWidget* parent = nullptr);

  /// Shows the window for a new piece of work: nothing is cancelled yet, the bar is at 0, no detail.
  void begin();

  void setStatus(const QString& text);
  /// A second line below the status, for counts; empty for none.
  void setDetail(const QString& text);
  /// 0 to 100; values beyond are taken for the nearer end.
  void setBar(int percent);
  /// The bar only moves to and fro, since it is not known how much there is to do.
  void setBusy();

  /// The work has failed, and the window stays as it is: from now on the button, Esc, or closing the window
  /// only hides it.
  void leaveStanding();

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
  bool isCancelled_ = false;
  /// There is no work any more that could be cancelled.
  bool isLeft_ = false;
};

}  // namespace quorvin
