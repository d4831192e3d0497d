// SPDX-License-Identifier: GPL-2.0-or-later
#include "files/reading_window.h"

#include <algorithm>
#include <chrono>
#include <new>
#include <utility>

namespace quorvin {

namespace {

/// How many look-ups of a folder a thread takes at once: more where they are quick, so that agreeing on it
/// costs little, and one where they are slow, so that all threads have some.
constexpr std::size_t kQuickLookUps = 16;
constexpr std::size_t kSlowLookUps = 1;

/// So many levels of the walk are searched for a task: as many as are kept open, about. A path may be many
/// thousand deep.
constexpr std::size_t kLevelsSearched = 64;

/// How long a thread is waited for that does not answer.
constexpr std::chrono::milliseconds kPatience{200};

}  // namespace

void PlannedFolder::take(FolderContents read) {
  // The only step that can fail.
  subFolders.reserve(read.subFolders.size());
  contents = std::move(read);
  for (std::string& name : contents.subFolders) subFolders.push_back({std::move(name), nullptr});
  areSubFoldersKnown = contents.isWhole;
  state = State::Read;
}

ReadingWindow::Task ReadingWindow::takeTask() {
  const std::size_t levels = std::min(way.size(), kLevelsSearched);
  for (std::size_t i = 1; i <= levels; ++i) {
    if (Task task = takeTaskIn(*way[way.size() - i])) return task;
  }
  return {};
}

ReadingWindow::Task ReadingWindow::takeTaskIn(PlannedFolder& folder) {
  if (folder.state != PlannedFolder::State::Read) return {};
  if (Task task = takeLookUps(folder)) return task;
  if (!folder.areSubFoldersKnown) return {};
  for (std::size_t i = folder.nextSubFolder; i < folder.subFolders.size(); ++i) {
    PlannedFolder::SubFolder& below = folder.subFolders[i];
    // They are taken in their order, so all behind the first that is left are left too.
    if (!below.folder) return takeSubFolder(folder, below);
    if (Task task = takeTaskIn(*below.folder)) return task;
  }
  return {};
}

ReadingWindow::Task ReadingWindow::takeLookUps(PlannedFolder& folder) {
  const std::shared_ptr<LookUps>& lookUps = folder.contents.lookUps;
  if (!lookUps || lookUps->firstLeft() == lookUps->size()) return {};
  OpenFolder at = folder.open.lock();
  if (!at) return {};
  const std::size_t first = lookUps->firstLeft();
  const std::size_t end = std::min(first + (areCallsSlow ? kSlowLookUps : kQuickLookUps), lookUps->size());
  lookUps->takeUpTo(end);
  return {std::move(at), nullptr, {}, lookUps, first, end};
}

ReadingWindow::Task ReadingWindow::takeSubFolder(PlannedFolder& above, PlannedFolder::SubFolder& subFolder) {
  // Few threads need few: on a disk with one arm an attempt is to change the order of few calls.
  const std::size_t most =
      areCallsSlow ? std::min<std::size_t>(kMostFolders, 2 * static_cast<std::size_t>(threadsWanted_))
                   : kMostFolders;
  if (isExhausted || foldersAhead_ >= most || lookUpsAhead_ >= kMostLookUps) return {};
  OpenFolder at = above.open.lock();
  if (!at) return {};
  try {
    Task task{std::move(at), std::make_shared<PlannedFolder>(), subFolder.name, nullptr};
    task.folder->way = above.way + subFolder.name.size() + 1;
    subFolder.folder = task.folder;
    ++foldersAhead_;
    return task;
  } catch (const std::bad_alloc&) {
    isExhausted = true;
    return {};
  }
}

void ReadingWindow::perform(const Task& task, Lock& lock, FolderStretch& stretch) {
  ++busyThreads_;
  if (task.folder) {
    readFolder(task, lock, stretch);
  } else {
    lock.unlock();
    task.lookUps->make(*task.at, task.first, task.end);
    lock.lock();
  }
  --busyThreads_;
  if (walkWaits_) result_.notify_one();
}

void ReadingWindow::readFolder(const Task& task, Lock& lock, FolderStretch& stretch) {
  PlannedFolder& folder = *task.folder;
  const std::shared_ptr<const WalkPlan> planned = plan;
  lock.unlock();
  OpenFolder opened;
  FolderContents contents;
  int error = 0;
  bool isMemoryLeft = true;
  try {
    error = openSubFolder(*task.at, task.name.c_str(), opened);
    if (error == 0) contents = readContents(*opened, folder.way, *planned, stretch, folder.isGivenUp);
  } catch (const std::bad_alloc&) {
    isMemoryLeft = false;
  }
  lock.lock();
  if (folder.isGivenUp) return;
  folder.state = PlannedFolder::State::LeftToTheWalk;
  isExhausted = isExhausted || !isMemoryLeft || isExhaustion(error);
  if (!isMemoryLeft || isExhaustion(error)) return;
  folder.error = error;
  folder.state = PlannedFolder::State::NotOpened;
  if (error != 0) return;
  folder.open = folder.kept = std::move(opened);
  settle(folder, std::move(contents));
}

void ReadingWindow::settle(PlannedFolder& folder, FolderContents contents) {
  try {
    folder.take(std::move(contents));
  } catch (const std::bad_alloc&) {
    folder.state = PlannedFolder::State::LeftToTheWalk;
    isExhausted = true;
    return;
  }
  if (folder.contents.lookUps) lookUpsAhead_ += folder.contents.lookUps->size();
  wakeIdleThreads();
}

void ReadingWindow::waitForResult(Lock& lock, FolderStretch& stretch) {
  if (!areCallsSlow) {
    if (const Task task = takeTask()) {
      perform(task, lock, stretch);
      return;
    }
  }
  walkWaits_ = true;
  result_.wait(lock);
  walkWaits_ = false;
}

void ReadingWindow::waitForTasks(Lock& lock) {
  waitBriefly(lock, busyThreads_);
}

void ReadingWindow::waitForEnds(Lock& lock) {
  waitBriefly(lock, threads_);
}

// A thread that a lost drive keeps waiting is left to itself: what it uses is its own, or this object, which
// it holds.
void ReadingWindow::waitBriefly(Lock& lock, const int& count) {
  walkWaits_ = true;
  result_.wait_for(lock, kPatience, [&count] { return count == 0; });
  walkWaits_ = false;
}

void ReadingWindow::passOn(PlannedFolder& folder) {
  --foldersAhead_;
  if (folder.contents.lookUps) lookUpsAhead_ -= folder.contents.lookUps->size();
  // Not for each one, since waking costs as much as some look-ups.
  if (foldersAhead_ <= kMostFolders / 2) wakeIdleThreads();
}

void ReadingWindow::giveUp(PlannedFolder& folder) {
  folder.isGivenUp = true;
  if (folder.contents.lookUps) folder.contents.lookUps->giveUp();
  passOn(folder);
  giveUpSubFolders(folder, folder.subFolders.size());
}

void ReadingWindow::giveUpSubFolders(PlannedFolder& folder, std::size_t end) {
  for (std::size_t i = folder.nextSubFolder; i < end && folder.subFolders[i].folder; ++i) {
    giveUp(*std::exchange(folder.subFolders[i].folder, nullptr));
  }
}

void ReadingWindow::giveUpAll() {
  for (const auto& folder : way) giveUpSubFolders(*folder, folder->subFolders.size());
}

int ReadingWindow::wantThreads(int count) {
  threadsWanted_ = count;
  if (threads_ > count) work_.notify_all();
  const int missing = std::max(count - threads_, 0);
  threads_ += missing;
  return missing;
}

void ReadingWindow::help() {
  const std::unique_ptr<FolderStretch> stretch(new (std::nothrow) FolderStretch);
  Lock lock(mutex);
  while (stretch && threads_ <= threadsWanted_) {
    if (const Task task = takeTask()) {
      perform(task, lock, *stretch);
      continue;
    }
    ++idleThreads_;
    work_.wait(lock);
    --idleThreads_;
  }
  --threads_;
  if (walkWaits_) result_.notify_one();
}

void ReadingWindow::wakeIdleThreads() {
  if (idleThreads_ > 0) work_.notify_all();
}

}  // namespace quorvin
