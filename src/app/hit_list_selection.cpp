#include "app/hit_list_selection.h"

#include <algorithm>

namespace quorvin {

std::int64_t selectedRowCount(const QItemSelectionModel& selection) {
  std::int64_t count = 0;
  for (const QItemSelectionRange& range : selection.selection()) count += range.height();
  return count;
}

std::vector<int> selectedRows(const QItemSelectionModel& selection) {
  std::vector<int> rows;
  for (const QItemSelectionRange& range : selection.selection()) {
    for (int row = range.top(); row <= range.bottom(); ++row) rows.push_back(row);
  }
  std::ranges::sort(rows);
  return rows;
}

}  // namespace quorvin
