// SPDX-License-Identifier: GPL-2.0-or-later
#include "editors/edit_history.h"

#include <utility>

namespace quorvin {

namespace {

constexpr std::size_t kMostEdits = 100;

std::optional<EditedList> step(std::vector<EditedList>& from, std::vector<EditedList>& to, EditedList now) {
  if (from.empty()) return std::nullopt;
  to.push_back(std::move(now));
  EditedList then = std::move(from.back());
  from.pop_back();
  return then;
}

}  // namespace

void EditHistory::record(EditedList before) {
  undone_.clear();
  if (done_.size() == kMostEdits) done_.erase(done_.begin());
  done_.push_back(std::move(before));
}

std::optional<EditedList> EditHistory::undo(EditedList now) {
  return step(done_, undone_, std::move(now));
}

std::optional<EditedList> EditHistory::redo(EditedList now) {
  return step(undone_, done_, std::move(now));
}

}  // namespace quorvin
