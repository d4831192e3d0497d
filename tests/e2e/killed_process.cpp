// SPDX-License-Identifier: GPL-2.0-or-later
#include "e2e/killed_process.h"

#include <csignal>
#include <stdexcept>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quorvin::test {

namespace {

/// What a stop at a system call is told as, so that it cannot be taken for a signal of the process's own.
constexpr int kStoppedAtCall = SIGTRAP | 0x80;

pid_t startWatched(const std::function<void()>& work) {
  const pid_t child = ::fork();
  if (child < 0) throw std::runtime_error("no process could be started");
  if (child > 0) return child;
  if (::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0) ::_exit(2);
  // Until the watching process is there.
  ::raise(SIGSTOP);
  try {
    work();
  } catch (...) {
    ::_exit(1);
  }
  ::_exit(0);
}

int nextStatus(pid_t child) {
  int status = 0;
  if (::waitpid(child, &status, 0) != child) throw std::runtime_error("a process got lost");
  return status;
}

int continueToCall(pid_t child, int signal) {
  ::ptrace(PTRACE_SYSCALL, child, nullptr, signal);
  return nextStatus(child);
}

void kill(pid_t child) {
  ::kill(child, SIGKILL);
  while (!WIFSIGNALED(nextStatus(child))) continue;
}

}  // namespace

bool killedBeforeCall(int number, const std::function<void()>& work) {
  const pid_t child = startWatched(work);
  int status = nextStatus(child);
  if (!WIFSTOPPED(status)) throw std::runtime_error("the system does not let a process be watched");
  ::ptrace(PTRACE_SETOPTIONS, child, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);

  int calls = 0;
  bool isEntering = true;
  status = continueToCall(child, 0);
  while (WIFSTOPPED(status)) {
    int signal = 0;
    if (WSTOPSIG(status) != kStoppedAtCall) {
      signal = WSTOPSIG(status);
    } else {
      if (isEntering && ++calls == number) {
        kill(child);
        return true;
      }
      isEntering = !isEntering;
    }
    status = continueToCall(child, signal);
  }
  if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) throw std::runtime_error("the work failed");
  return false;
}

}  // namespace quorvin::test
