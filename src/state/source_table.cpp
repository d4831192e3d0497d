// SPDX-License-Identifier: GPL-2.0-or-later
#include "state/source_table.h"

#include "faults/runtime_fault.h"
#include "texts/texts.h"

namespace quorvin {

SourceTable::SourceTable() : rows_(kLastRow + 1) {}

const QString& SourceTable::at(int row, int column) const {
  checkSubscripts(row, column);
  return rows_[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
}

QString& SourceTable::at(int row, int column) {
  checkSubscripts(row, column);
  return rows_[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
}

void SourceTable::set(int row, const QString& description, const QString& path) {
  at(row, kDescription) = description;
  at(row, kPath) = path;
}

void SourceTable::checkSubscripts(int row, int column) {
  const bool rowFits = row >= 0 && row <= kLastRow;
  const bool columnFits = column >= 0 && column <= kPath;
  if (rowFits && columnFits) return;
  throw RuntimeFault(FaultNumber::SubscriptOutOfRange,
                     describe(FaultNumber::SubscriptOutOfRange) + QStringLiteral(": ") +
                         Texts::tr("row %1, column %2 of a source table").arg(row).arg(column));
}

}  // namespace quorvin
