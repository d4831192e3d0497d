// The local list refresh on the screen.
#pragma once

#include "app/refresh_share.h"
#include "index/index_view.h"
#include "state/program_state.h"
#include "work/progress.h"

#include <QElapsedTimer>
#include <QLocale>
#include <QPointer>
#include <QWidget>

namespace quorvin {

/// Shows a refresh in `Progress` and `ResWin`, at a pace that people can see: a walk tells its status for
/// each folder, which is many thousand times a second.
class RefreshDisplay : public RefreshView {
 public:
  /// `state` and `owner`, the window above which the others are shown, must outlive the object; `locale` is
  /// the one in which counts are written.
  RefreshDisplay(ProgramState& state, QWidget& owner, const QLocale& locale);

  /// The window, made when there is none. It is a child of the owner and may be deleted at any time.
  Progress& progress();

  /// The owner is closing: nothing is shown from now on.
  void close();

  void createProgress() override;
  void setStatus(const QString& text) override;
  void showIndexed(const IndexCounts& counts) override;
  void processEvents() override;

  QString progressTitle() const override;
  void setProgressTitle(const QString& title) override;
  void refreshBegins() override;
  void refreshEnded() override;
  void showSource(int row, int count) override;
  /// Sets the mouse pointer, over the whole program, to the arrow with the hourglass.
  void setBusyPointer();
  /// Takes back setBusyPointer(); who else has set a pointer keeps it.
  void setDefaultPointer() override;
  void showErrorLog(const QString& log) override;

 private:
  void show();
  QString countsText() const;

  ProgramState& state_;
  QWidget& owner_;
  QLocale locale_;
  QPointer<Progress> progress_;
  bool isClosed_ = false;
  bool isRunning_ = false;
  bool isPointerBusy_ = false;
  QString status_;
  IndexCounts counts_;
  RefreshShare share_;
  QElapsedTimer sinceShown_;
};

}  // namespace quorvin
