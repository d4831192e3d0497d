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

int runRefresh() {
  const QLocale locale;
  ProgramState state;
  ErrorLines messages;
  watchStopSignal();
  try {
    loadUserSources(state, locale);
  } catch (const RuntimeFault& fault) {
    printError(fault.description());
    return 2;
  }
  ConsoleProgress progress;
  Work work(state, progress);
  RefreshOutcome outcome;
  work.run(JobKind::Refresh,
           [&](Job& job) { outcome = refreshLocalLists(state, job, messages, locale, {}); });
  printErrorLog(outcome.errorLog);
  if (!outcome.fault.isEmpty()) {
    printError(outcome.fault);
    return 2;
  }
  return outcome.isStopped ? kInterrupted : 0;
}

}  // namespace quorvin
