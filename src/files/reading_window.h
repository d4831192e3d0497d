// SPDX-License-Identifier: GPL-2.0-or-later

// What the threads that read ahead of a walk share with it.
#pragma once

#include "files/folder_calls.h"
#include "files/folder_contents.h"
#include "files/folder_reader.h"

#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace quorvin {

/// A folder on the way of the walk, or ahead of it.
struct PlannedFolder {
  enum class State { BeingRead, Read, NotOpened, LeftToTheWalk };
  struct SubFolder {
    std::string name;
    /// None while nobody has taken it.
    std::shared_ptr<PlannedFolder> folder;
  };

  State state = State::BeingRead;
  /// Why it could not be opened.
  int error = 0;
  /// Bytes from the top to here: names, with a separator each.
  std::size_t way = 0;
  /// Ahead of the walk this keeps it open; on the way the walk does so.
  OpenFolder kept;
  std::weak_ptr<const Descriptor> open;

  FolderContents contents;
  /// Those that the walk enters, looked at only when it is certain which these are; and the first that it has
  /// not come to.
  std::vector<SubFolder> subFolders;
  std::size_t nextSubFolder = 0;
  bool areSubFoldersKnown = false;

  /// Nobody needs it any more: who reads it ends after the call at hand.
  std::atomic<bool> isGivenUp = false;

  /// It has been read.
  void take(FolderContents read);
};

/// The folders from the top down to the walk, those ahead of it, and who does what. Everything in here is
/// under the mutex, except what a thread reads as its task. Threads share the object, so that one that a
/// drive keeps waiting can be left to itself.
class ReadingWindow {
 public:
  using Lock = std::unique_lock<std::mutex>;

  /// So many folders, and about so many look-ups, are ahead of the walk at most.
  static constexpr std::size_t kMostFolders = 64;
  static constexpr std::size_t kMostLookUps = 65'536;

  /// Something to be done ahead: a folder to be read, or some look-ups, or nothing.
  struct Task {
    OpenFolder at;
    std::shared_ptr<PlannedFolder> folder;
    std::string name;
    std::shared_ptr<LookUps> lookUps;
    std::size_t first = 0;
    std::size_t end = 0;

    explicit operator bool() const { return at != nullptr; }
  };

  std::mutex mutex;
  std::shared_ptr<const WalkPlan> plan;
  /// From the top down to the current folder.
  std::vector<std::shared_ptr<PlannedFolder>> way;
  bool areCallsSlow = false;
  /// Descriptors or memory have run out: no more folders are read ahead.
  bool isExhausted = false;

  /// Takes the first task that the walk will come to.
  Task takeTask();
  Task takeLookUps(PlannedFolder& folder);
  /// Lets go of `lock` meanwhile.
  void perform(const Task& task, Lock& lock, FolderStretch& stretch);
  /// For the walk: returns when there may be something new. Where calls are quick it does a task itself
  /// instead of waiting; a slow one could hold it up.
  void waitForResult(Lock& lock, FolderStretch& stretch);

  /// For the walk: returns when no thread is at a task any more, or after a moment.
  void waitForTasks(Lock& lock);

  /// A folder is not ahead of the walk any more.
  void passOn(PlannedFolder& folder);
  /// Gives up what was read below `folder`, up to its sub-folder `end`.
  void giveUpSubFolders(PlannedFolder& folder, std::size_t end);
  void giveUpAll();

  /// How many threads are to help; gives how many more have to be started, each of which calls help() once.
  int wantThreads(int count);
  /// So many of them could not be started.
  void notStarted(int count) { threads_ -= count; }
  /// When no threads are wanted any more: returns when all have ended, or after a moment.
  void waitForEnds(Lock& lock);
  /// Does task after task until there are more threads than wanted.
  void help();
  /// There may be new tasks.
  void wakeIdleThreads();

 private:
  Task takeTaskIn(PlannedFolder& folder);
  Task takeSubFolder(PlannedFolder& above, PlannedFolder::SubFolder& subFolder);
  void readFolder(const Task& task, Lock& lock, FolderStretch& stretch);
  void settle(PlannedFolder& folder, FolderContents contents);
  void giveUp(PlannedFolder& folder);
  void waitBriefly(Lock& lock, const int& count);

  /// There may be something to do, or a thread may have to end.
  std::condition_variable work_;
  /// What the walk waits for may be there.
  std::condition_variable result_;
  std::size_t foldersAhead_ = 0;
  std::size_t lookUpsAhead_ = 0;
  int threadsWanted_ = 0;
  int threads_ = 0;
  int idleThreads_ = 0;
  int busyThreads_ = 0;
  bool walkWaits_ = false;
};

}  // namespace quorvin
