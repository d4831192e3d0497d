// The selected rows of a list, also of one with very many rows.
#pragma once

#include <QItemSelectionModel>

#include <cstdint>
#include <vector>

namespace quorvin {

/// How many rows are selected. Costs nothing for rows that were selected together.
std::int64_t selectedRowCount(const QItemSelectionModel& selection);

/// The numbers of the selected rows, in the order of the list.
std::vector<int> selectedRows(const QItemSelectionModel& selection);

}  // namespace quorvin
