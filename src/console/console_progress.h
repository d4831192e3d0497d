// How far an indexing in the terminal has come.
#pragma once

#include "index/index_view.h"
#include "state/program_state.h"

#include <QString>

#include <chrono>

namespace quorvin {

/// Shows one line on standard error that is written over again and again, if that is a terminal. An
/// interrupt stops the work as closing the window would: `AbortRequested` and `RescanAbort` are set.
class ConsoleProgress : public RefreshView {
 public:
  explicit ConsoleProgress(ProgramState& state);
  /// Clears the line.
  ~ConsoleProgress() override;
  ConsoleProgress(const ConsoleProgress&) = delete;
  ConsoleProgress& operator=(const ConsoleProgress&) = delete;

  void createProgress() override {}
  void setStatus(const QString& text) override { status_ = text; }
  void showIndexed(const IndexCounts& counts) override { counts_ = counts; }
  void processEvents() override;

  QString progressTitle() const override { return {}; }
  void setProgressTitle(const QString&) override {}
  void refreshBegins() override {}
  void refreshEnded() override { clearLine(); }
  void showSource(int row, int count) override;
  void setDefaultPointer() override {}
  void showErrorLog(const QString& log) override;

 private:
  using Clock = std::chrono::steady_clock;

  void showLine();
  void clearLine();

  ProgramState& state_;
  bool onTerminal_;
  Clock::time_point nextLine_;
  bool lineShown_ = false;
  QString status_;
  QString source_;
  IndexCounts counts_;
};

}  // namespace quorvin
