// SPDX-License-Identifier: GPL-2.0-or-later

// Taking edits of a list back, and making them again.
#pragma once

#include "editors/source_list_model.h"

#include <optional>
#include <vector>

namespace quorvin {

/// The list as it is, or was, at a moment.
struct EditedList {
  std::vector<SourceEntry> entries;
  /// The selected rows, counted from 0, ascending.
  std::vector<int> selected;
};

/// What the list was before each edit: of the last hundred edits, and of those that were taken back.
class EditHistory {
 public:
  /// An edit has been made; `before` is the list without it. What was taken back cannot be made again.
  void record(EditedList before);

  bool canUndo() const { return !done_.empty(); }
  bool canRedo() const { return !undone_.empty(); }

  /// Takes the last edit back, where there is one. `now` is the list with it; the result is the list to show.
  std::optional<EditedList> undo(EditedList now);
  /// The opposite.
  std::optional<EditedList> redo(EditedList now);

 private:
  std::vector<EditedList> done_;
  std::vector<EditedList> undone_;
};

}  // namespace quorvin
