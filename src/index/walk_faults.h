// SPDX-License-Identifier: GPL-2.0-or-later

// What becomes of a walk when a folder or a name in it cannot be read.
#pragma once

#include "faults/runtime_fault.h"
#include "files/folder_reader.h"
#include "platform/message_box.h"
#include "state/program_state.h"
#include "work/work.h"

#include <QString>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace quorvin {

/// How a step of a walk ended. Skipped: it failed, and the walk goes on with the next one. LeaveFolder: the
/// current folder is to be left at once.
enum class Step { Done, Skipped, LeaveFolder };

/// Throws fault 75 where `errorNumber` says that the program has run out of descriptors or memory, so that it
/// can read no folder at all; `path` is the one that it was at. What follows could not be read either, and a
/// listing without it must not pass for a whole one.
void throwIfExhausted(int errorNumber, const QString& path);

/// Which table of a folder is full.
enum class FullTable { Files, SubFolders };

/// Decides by the fault's number: a name that is not found (53) or not accessible (75) is logged and the walk
/// goes on; anything else is asked about with Abort, Retry and Ignore.
class WalkFaults {
 public:
  /// `folderPath` is the current folder with its trailing separator, in UTF-8, whenever a step is attempted;
  /// all five must outlive the object. The user may end `job` where asked about a fault; what `folders` have
  /// read ahead is forgotten then.
  WalkFaults(ProgramState& state, const Job& job, MessageBoxes& messages, FolderReader& folders,
             const std::string& folderPath)
      : state_(state), job_(job), messages_(messages), folders_(folders), folderPath_(folderPath) {}

  /// Runs `action`, again as long as the user wants to retry it. It gives nothing when all went well, else
  /// the fault's number. `name` is what it works on, empty for the folder as a whole.
  template <typename Action>
  Step attempt(std::string_view name, Action action) {
    for (;;) {
      const std::optional<FaultNumber> fault = action();
      if (!fault) return Step::Done;
      const std::optional<Step> step = stepAfter(*fault, name);
      if (step) return *step;
    }
  }

  /// The fault for what a call of a reader gave: nothing for 0. A permission that is missing is a path or
  /// file access error here: it is logged, not asked about, folder after folder. A folder that has become
  /// something else is not found. Throws as throwIfExhausted() does.
  std::optional<FaultNumber> faultOfReading(int errorNumber) const {
    return errorNumber == 0 ? std::nullopt : std::optional(faultOfError(errorNumber));
  }

  /// Asks about a table that is full, until the user does not want to retry it any more: `leftOut` names that
  /// begin with `first`, out of `all` of this `kind`, have no room in it.
  Step reportFull(std::string_view first, FullTable kind, std::size_t leftOut, std::size_t all);

  /// While the files' sizes and dates are read, a file that is not found is not logged: it has its line.
  void setFilePass(bool inFilePass) { inFilePass_ = inFilePass; }

  /// Appends a line to the error log: the folder's path, `name` and `what` has happened.
  void note(std::string_view name, const QString& what);
  /// Notes that `name` holds `mark` and why that matters; nothing when `mark` is empty.
  void noteMark(std::string_view name, std::string_view mark);

 private:
  FaultNumber faultOfError(int errorNumber) const;
  // Nothing: to be tried again.
  std::optional<Step> stepAfter(FaultNumber number, std::string_view name);
  std::optional<Step> ask(FaultNumber number, const QString& subject, const QString& remark = {});
  void noteAccessError(std::string_view name);
  QString folder() const;

  ProgramState& state_;
  const Job& job_;
  MessageBoxes& messages_;
  FolderReader& folders_;
  const std::string& folderPath_;
  bool inFilePass_ = false;
  // The folder of the access errors at the end of the log, and where that end was.
  std::string folderOfAccessErrors_;
  qsizetype endOfAccessErrors_ = -1;
};

}  // namespace quorvin
