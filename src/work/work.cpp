// SPDX-License-Identifier: GPL-2.0-or-later
#include "work/work.h"

#include <algorithm>

namespace quorvin {

namespace {

constexpr JobKind kindAt(int index) {
  return static_cast<JobKind>(index);
}

}  // namespace

Job::Job(Work& work, JobKind kind) : work_(&work), kind_(kind) {
  if (kind == JobKind::Refresh) {
    work.state_.RescanRunning = true;
  } else {
    work.isRunning_[static_cast<std::size_t>(kind)] = true;
  }
}

void Job::end() {
  if (!work_) return;
  hide();
  Work& work = *std::exchange(work_, nullptr);
  if (kind_ == JobKind::Refresh) {
    work.state_.RescanRunning = false;
  } else {
    work.isRunning_[static_cast<std::size_t>(kind_)] = false;
  }
}

WorkDisplay& Job::display() const {
  return work_->display_;
}

void Job::show() {
  if (isClosing()) return;
  isShown_ = true;
  display().begin();
}

void Job::hide() {
  if (std::exchange(isShown_, false)) display().end();
}

void Job::leaveStanding() {
  if (std::exchange(isShown_, false)) display().leaveStanding();
}

void Job::letEventsRun() const {
  display().processEvents();
  // As the closing of a window would.
  if (!display().endRequested()) return;
  work_->state_.AbortRequested = true;
  work_->state_.RescanAbort = work_->state_.RescanRunning;
}

void Job::waitForEvents() const {
  display().waitForEvents();
}

bool Job::isStopRequested() const {
  return isAbortRequested() || isClosing() || (isShown_ && display().isCancelled());
}

bool Job::isAbortRequested() const {
  return work_->state_.AbortRequested;
}

void Job::requestStop() const {
  work_->state_.AbortRequested = true;
}

void Job::dropStopRequest() const {
  if (!isClosing()) work_->state_.AbortRequested = false;
}

bool Job::takeRescanAbort() const {
  return std::exchange(work_->state_.RescanAbort, false);
}

bool Job::isClosing() const {
  return work_->isClosing();
}

Work::Work(ProgramState& state, WorkDisplay& display) : state_(state), display_(display) {}

bool Work::isRunning(JobKind kind) const {
  if (kind == JobKind::Closing) return state_.QuitPending;
  if (kind == JobKind::Refresh) return state_.RescanRunning;
  return isRunning_[static_cast<std::size_t>(kind)];
}

std::optional<JobKind> Work::strictestAgainst(JobKind wanted) const {
  std::optional<JobKind> strictest;
  // Closing comes last and wins over the others of its strictness: it silences them.
  for (int index = 0; index < kJobKinds; ++index) {
    const JobKind kind = kindAt(index);
    if (!isRunning(kind)) continue;
    if (!strictest || answerWhile(kind, wanted) >= answerWhile(*strictest, wanted)) strictest = kind;
  }
  return strictest;
}

Answer Work::answerTo(JobKind wanted) const {
  const std::optional<JobKind> running = strictestAgainst(wanted);
  return running ? answerWhile(*running, wanted) : Answer::Starts;
}

QString Work::refusalOf(JobKind wanted) const {
  const std::optional<JobKind> running = strictestAgainst(wanted);
  if (!running || answerWhile(*running, wanted) != Answer::Refused) return {};
  return refusalText(*running, wanted);
}

std::optional<Job> Work::start(JobKind kind) {
  if (answerTo(kind) != Answer::Starts) return std::nullopt;
  return Job(*this, kind);
}

Answer Work::run(JobKind kind, std::function<void(Job&)> action) {
  const Answer answer = answerTo(kind);
  if (answer == Answer::Waits) {
    std::erase_if(waiting_, [kind](const Waiting& waiting) { return waiting.kind == kind; });
    waiting_.push_back({kind, std::move(action)});
  }
  if (answer != Answer::Starts) return answer;
  runAsJob(kind, action);
  wake();
  return answer;
}

void Work::runAsJob(JobKind kind, const std::function<void(Job&)>& action) {
  Job job(*this, kind);
  action(job);
}

void Work::wake() {
  if (isClosing()) waiting_.clear();
  for (;;) {
    const auto next = std::ranges::find_if(
        waiting_, [this](const Waiting& waiting) { return answerTo(waiting.kind) == Answer::Starts; });
    if (next == waiting_.end()) return;
    // Taken out first: others may be asked for while it runs.
    const Waiting waiting = std::move(*next);
    waiting_.erase(next);
    runAsJob(waiting.kind, waiting.action);
  }
}

}  // namespace quorvin
