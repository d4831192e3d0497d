// SPDX-License-Identifier: GPL-2.0-or-later

// Reading folders ahead of the walk that comes to them.
#pragma once

#include "files/folder_calls.h"
#include "files/folder_reader.h"
#include "files/readers_at_once.h"
#include "files/reading_window.h"

#include <cstddef>
#include <memory>
#include <optional>

namespace quorvin {

/// The part of a folder reader that keeps to a plan. The reader asks it before each call of its own: it gives
/// what other threads have found already, waits for what they are at, and otherwise leaves the call to the
/// reader. They work in the order of the walk, within a ReadingWindow. Without a plan it gives nothing and
/// costs nothing. While there is one reader alone, the calls and their order are those of a walk without.
///
/// The end of the object waits for a moment at most for threads that a drive keeps waiting; everything that
/// they use is their own or shared with them.
class FoldersAhead {
 public:
  explicit FoldersAhead(const ReadersAtOnce& readers);
  ~FoldersAhead();
  FoldersAhead(const FoldersAhead&) = delete;
  FoldersAhead& operator=(const FoldersAhead&) = delete;

  /// As FolderReader::planWalk.
  void plan(const WalkPlan& plan);
  /// As FolderReader::forgetAhead.
  void forget();
  /// The walk lacks descriptors: what is open ahead is closed, and no more folders are read until another
  /// plan.
  void makeRoom();

  /// What has come of opening a sub-folder ahead: an error, or the open folder, or neither where the reader
  /// is to open it.
  struct Opened {
    int error = 0;
    OpenFolder folder;
  };
  Opened open(const char* name);
  /// The walk has entered a folder that open() did not give: the top, which has no name here, or another.
  void entered(const OpenFolder& opened, const char* name);
  /// The walk has gone back to `above`, which may be none.
  void leave(const OpenFolder& above);

  /// The next name, or the error, as FolderReader::next gives them; nothing where the reader has to ask the
  /// system.
  std::optional<int> next(FolderName& name);
  /// The system has given the reader this name, or none at the end.
  void noteNext(const FolderName& name);

  /// What a look-up gives; nothing where the reader has to make it.
  std::optional<int> lookUp(const char* name, NameStatus& status);

 private:
  using Lock = ReadingWindow::Lock;

  void step();
  void followReaders();
  void makeCurrent(std::shared_ptr<PlannedFolder> folder);

  std::shared_ptr<ReadingWindow> window_;
  ReadersAtOnce readers_;
  bool isPlanned_ = false;
  /// The folder whose names the walk reads; none once it has come back from a sub-folder.
  std::shared_ptr<PlannedFolder> current_;
  std::size_t nextName_ = 0;
  std::size_t nextLookUp_ = 0;
  /// The sub-folders of the current folder and its links, which may lead to some.
  std::size_t subFoldersNoted_ = 0;
  std::unique_ptr<FolderStretch> stretch_;
};

}  // namespace quorvin
