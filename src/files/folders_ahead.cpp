// SPDX-License-Identifier: GPL-2.0-or-later
#include "files/folders_ahead.h"

#include "files/folder_contents.h"
#include "files/reading_window.h"

#include <algorithm>
#include <cstring>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace quorvin {

FoldersAhead::FoldersAhead(const ReadersAtOnce& readers)
    : window_(std::make_shared<ReadingWindow>()), readers_(readers) {}

FoldersAhead::~FoldersAhead() {
  plan({});
  Lock lock(window_->mutex);
  window_->waitForEnds(lock);
}

void FoldersAhead::plan(const WalkPlan& plan) {
  if (!isPlanned_ && !plan.use) return;
  isPlanned_ = plan.use != nullptr;
  // Freed without the lock.
  std::vector<std::shared_ptr<PlannedFolder>> left;
  {
    const Lock lock(window_->mutex);
    window_->giveUpAll();
    left.swap(window_->way);
    window_->isExhausted = false;
    window_->plan = isPlanned_ ? std::make_shared<const WalkPlan>(plan) : nullptr;
    window_->wantThreads(0);
  }
  if (current_ && current_->contents.lookUps) {
    current_->contents.lookUps->giveUp();
    current_->contents.lookUps = nullptr;
  }
  if (!isPlanned_) return;
  current_ = nullptr;
  if (!stretch_) stretch_ = std::make_unique<FolderStretch>();
  readers_.start();
  followReaders();
}

void FoldersAhead::forget() {
  if (!isPlanned_) return;
  {
    const Lock lock(window_->mutex);
    window_->giveUpAll();
    if (current_ && current_->contents.lookUps) {
      std::shared_ptr<LookUps>& lookUps = current_->contents.lookUps;
      lookUps->giveUp();
      lookUps = lookUps->from(nextLookUp_);
      nextLookUp_ = 0;
    }
    window_->wakeIdleThreads();
  }
  readers_.startAgain();
}

void FoldersAhead::makeRoom() {
  if (!isPlanned_) return;
  forget();
  Lock lock(window_->mutex);
  window_->isExhausted = true;
  window_->waitForTasks(lock);
}

FoldersAhead::Opened FoldersAhead::open(const char* name) {
  if (!isPlanned_ || window_->way.empty()) return {};
  step();
  Lock lock(window_->mutex);
  PlannedFolder& above = *window_->way.back();
  const auto start = above.subFolders.begin();
  const auto found =
      std::find_if(start + static_cast<std::ptrdiff_t>(above.nextSubFolder), above.subFolders.end(),
                   [name](const auto& each) { return each.name == name; });
  // One that is opened again after an error, or that nobody knew of.
  if (found == above.subFolders.end()) return {};
  window_->giveUpSubFolders(above, static_cast<std::size_t>(found - start));
  above.nextSubFolder = static_cast<std::size_t>(found - start) + 1;
  const std::shared_ptr<PlannedFolder> folder = std::move(found->folder);
  if (!folder) return {};
  while (folder->state == PlannedFolder::State::BeingRead) window_->waitForResult(lock, *stretch_);
  window_->passOn(*folder);
  if (folder->state == PlannedFolder::State::LeftToTheWalk) return {};
  if (folder->state == PlannedFolder::State::NotOpened) return {folder->error, nullptr};
  window_->way.push_back(folder);
  lock.unlock();
  makeCurrent(folder);
  return {0, std::move(folder->kept)};
}

void FoldersAhead::entered(const OpenFolder& opened, const char* name) {
  if (!isPlanned_) {
    current_ = nullptr;
    return;
  }
  const auto folder = std::make_shared<PlannedFolder>();
  folder->open = opened;
  // Only the walk's thread changes the way and the plan.
  if (!window_->way.empty()) folder->way = window_->way.back()->way + std::strlen(name) + 1;
  folder->state = PlannedFolder::State::Read;
  if (readers_.mayBecomeMore()) {
    folder->take(readContents(*opened, folder->way, *window_->plan, *stretch_, folder->isGivenUp));
  }
  makeCurrent(folder);
  const Lock lock(window_->mutex);
  window_->way.push_back(folder);
  window_->wakeIdleThreads();
}

// The names of the folder above are not needed any more.
void FoldersAhead::makeCurrent(std::shared_ptr<PlannedFolder> folder) {
  if (current_) {
    // Freed without the lock.
    FolderContents done;
    const Lock lock(window_->mutex);
    std::swap(done, current_->contents);
  }
  current_ = std::move(folder);
  nextName_ = nextLookUp_ = subFoldersNoted_ = 0;
}

void FoldersAhead::leave(const OpenFolder& above) {
  current_ = nullptr;
  if (!isPlanned_ || window_->way.empty()) return;
  // Freed without the lock.
  std::shared_ptr<PlannedFolder> left;
  const Lock lock(window_->mutex);
  left = std::move(window_->way.back());
  window_->way.pop_back();
  window_->giveUpSubFolders(*left, left->subFolders.size());
  if (left->contents.lookUps) left->contents.lookUps->giveUp();
  if (!window_->way.empty()) window_->way.back()->open = above;
}

std::optional<int> FoldersAhead::next(FolderName& name) {
  if (!current_) return std::nullopt;
  FolderContents& contents = current_->contents;
  name = {};
  if (nextName_ < contents.names.size()) {
    name = contents.name(nextName_++);
    return 0;
  }
  if (contents.error != 0) return std::exchange(contents.error, 0);
  return contents.isWhole ? std::optional(0) : std::nullopt;
}

void FoldersAhead::noteNext(const FolderName& name) {
  if (!current_ || !isPlanned_) return;
  PlannedFolder& folder = *current_;
  const WalkPlan& plan = *window_->plan;
  if (name.bytes.empty()) {
    if (subFoldersNoted_ > plan.mostSubFolders) folder.subFolders.clear();
    const Lock lock(window_->mutex);
    // Of a folder of which a part was read ahead only the rest was noted.
    folder.areSubFoldersKnown = folder.contents.names.empty();
    return;
  }
  if (name.kind == NameKind::Link) ++subFoldersNoted_;
  if (name.kind != NameKind::Folder || !plan.use(name).enter) return;
  ++subFoldersNoted_;
  if (folder.way + name.bytes.size() + 1 > plan.longestWay) return;
  folder.subFolders.push_back({std::string(name.bytes), nullptr});
}

std::optional<int> FoldersAhead::lookUp(const char* name, NameStatus& status) {
  if (!isPlanned_) return std::nullopt;
  step();
  LookUps* const lookUps = current_ ? current_->contents.lookUps.get() : nullptr;
  if (lookUps == nullptr) return std::nullopt;
  std::size_t row = nextLookUp_;
  while (row < lookUps->size() && std::strcmp(lookUps->name(row), name) != 0) ++row;
  // One that is made again after an error, or that nobody knew of.
  if (row == lookUps->size()) return std::nullopt;
  nextLookUp_ = row + 1;
  if (!lookUps->isMade(row)) {
    Lock lock(window_->mutex);
    while (!lookUps->isMade(row)) {
      if (row < lookUps->firstLeft()) {
        window_->waitForResult(lock, *stretch_);
        continue;
      }
      lookUps->takeUpTo(row);
      const ReadingWindow::Task task = window_->takeLookUps(*current_);
      if (!task) return std::nullopt;
      window_->perform(task, lock, *stretch_);
    }
  }
  const int result = lookUps->result(row, status);
  return result == LookUps::kNotKnown ? std::nullopt : std::optional(result);
}

void FoldersAhead::step() {
  if (readers_.step()) followReaders();
}

void FoldersAhead::followReaders() {
  const int count = readers_.count();
  const bool areSlow = readers_.areCallsSlow();
  // The walk is one of them, unless it only waits.
  const int threads = count == 1 ? 0 : areSlow ? count : count - 1;
  int missing = 0;
  {
    const Lock lock(window_->mutex);
    window_->areCallsSlow = areSlow;
    missing = window_->wantThreads(threads);
  }
  try {
    // Not the toolkit's threads: each of those takes a descriptor and ends the program where there is none.
    for (; missing > 0; --missing) std::thread([window = window_] { window->help(); }).detach();
  } catch (const std::system_error&) {
    // There are fewer, or none.
    const Lock lock(window_->mutex);
    window_->notStarted(missing);
  }
}

}  // namespace quorvin
