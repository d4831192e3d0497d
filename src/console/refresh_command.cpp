#include "console/refresh_command.h"

#include "console/console_progress.h"
#include "console/error_lines.h"
#include "console/index_command.h"
#include "faults/runtime_fault.h"
#include "index/local_list_refresh.h"
#include "platform/stop_signal.h"
#include "state/settings.h"

#include <QLocale>

namespace quorvin {
namespace {

/// The only thing that a refresh informs of is the fault that ended it.
class RefreshMessages : public ErrorLines {
 public:
  void inform(const QString& text) override {
    failed_ = true;
    ErrorLines::inform(text);
  }
  bool failed() const { return failed_; }

 private:
  bool failed_ = false;
};

}  // namespace

int runRefresh() {
  const QLocale locale;
  ProgramState state;
  RefreshMessages messages;
  watchStopSignal();
  try {
    loadUserSources(state, locale);
  } catch (const RuntimeFault& fault) {
    printError(fault.description());
    return 2;
  }
  ConsoleProgress progress(state);
  refreshLocalLists(state, progress, messages, locale, {});
  if (messages.failed()) return 2;
  return state.AbortRequested ? kInterrupted : 0;
}

}  // namespace quorvin
