// SPDX-License-Identifier: GPL-2.0-or-later

// The one owner of anything that takes long.
#pragma once

#include "state/program_state.h"
#include "work/job_table.h"
#include "work/work_display.h"

#include <QString>

#include <array>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace quorvin {

class Work;

/// A long job while it runs, made by Work. It ends with the object, and then what it has shown is taken away.
/// `RescanRunning` is set exactly while there is a job of the kind Refresh.
class Job {
 public:
  Job(Job&& other) noexcept : work_(std::exchange(other.work_, nullptr)), kind_(other.kind_) {
    isShown_ = std::exchange(other.isShown_, false);
  }
  Job(const Job&) = delete;
  Job& operator=(const Job&) = delete;
  Job& operator=(Job&&) = delete;
  ~Job() { end(); }

  /// Ends the job before the end of its object, which must not be used any more: for what is reported of it
  /// when it does not run any longer.
  void end();

  /// What the job shows itself in. It must not be used after the job's end.
  WorkDisplay& display() const;

  /// Shows the display for this job, unless the program is closing.
  void show();
  /// Takes it away before the job's end.
  void hide();
  /// The job has failed: its display stays when it ends, and the user can take it away.
  void leaveStanding();

  /// Lets events run, or waits for some first. Anything may have happened afterwards: a stop request, another
  /// job that came and went, the closing of the program.
  void letEventsRun() const;
  void waitForEvents() const;

  /// Whether the job is to end: the user has cancelled it, `AbortRequested` is set, or the program is
  /// closing.
  bool isStopRequested() const;
  /// `AbortRequested` alone, which is all that the indexer looks at. It may be left over from before, and a
  /// search that runs meanwhile clears it.
  bool isAbortRequested() const;
  /// The user wants the job to end: sets `AbortRequested`.
  void requestStop() const;
  /// The stop request has been dealt with, or was meant for an earlier job: clears `AbortRequested`, unless
  /// the program is closing, since others still have to see it then.
  void dropStopRequest() const;
  /// Whether the refresh is to end after its current source; clears `RescanAbort`, which has asked for that.
  bool takeRescanAbort() const;
  /// Whether the program is closing: nothing more is shown, asked or reported.
  bool isClosing() const;

 private:
  friend class Work;
  Job(Work& work, JobKind kind);

  /// Null in a job that has ended or was moved from.
  Work* work_;
  JobKind kind_;
  bool isShown_ = false;
};

/// Starts long jobs, lets them wait or refuses them, by the table of job_table.h; knows which of them run;
/// and owns the flags by which they are stopped. User-interface thread only.
class Work {
 public:
  /// Both must outlive the object and every job.
  Work(ProgramState& state, WorkDisplay& display);

  /// What the table says to `wanted` now: the strictest of the answers while each of the running jobs runs.
  Answer answerTo(JobKind wanted) const;
  /// Why `wanted` is refused now, as a sentence for the user; empty when it is not, or when the program
  /// closes.
  QString refusalOf(JobKind wanted) const;

  /// Starts a job that lives as long as the object; nothing unless the answer is Starts.
  std::optional<Job> start(JobKind kind);

  /// Runs `action` as a job: now, or, where the answer is Waits, as soon as it may start, that is at the end
  /// of the run() or the wake() that ended the last job it had to wait for. Of each kind one job waits, the
  /// one asked for last. Returns the answer; for any other than Starts and Waits `action` is dropped. A
  /// waiting job is dropped when the program closes. `action` must not throw.
  Answer run(JobKind kind, std::function<void(Job&)> action);
  /// Runs what has waited and may start now. To be called after the end of a job that was made by start().
  void wake();

  bool isRunning(JobKind kind) const;
  /// Whether the program is closing: `QuitPending`.
  bool isClosing() const { return state_.QuitPending; }

 private:
  friend class Job;
  struct Waiting {
    JobKind kind;
    std::function<void(Job&)> action;
  };

  /// The running job that has the last word on `wanted`; nothing when none of them minds.
  std::optional<JobKind> strictestAgainst(JobKind wanted) const;
  void runAsJob(JobKind kind, const std::function<void(Job&)>& action);

  ProgramState& state_;
  WorkDisplay& display_;
  /// All kinds but Refresh and Closing, whose flags are fields of the state.
  std::array<bool, kJobKinds> isRunning_{};
  std::vector<Waiting> waiting_;
};

}  // namespace quorvin
