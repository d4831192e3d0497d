// SPDX-License-Identifier: GPL-2.0-or-later

// Source lists as they stand on disk.
#pragma once

#include "state/source_table.h"

#include <QByteArray>
#include <QString>

#include <utility>
#include <vector>

namespace quorvin::test {

/// Description and path.
using SourceRecord = std::pair<QString, QString>;
using SourceRecords = std::vector<SourceRecord>;

/// The file that holds these records.
inline QByteArray listFile(const SourceRecords& records) {
  QByteArray file;
  for (const auto& [description, path] : records) {
    file += '"' + description.toUtf8() + "\",\"" + path.toUtf8() + "\"\r\n";
  }
  return file;
}

inline void fillTable(const SourceRecords& records, SourceTable& table, int& count) {
  count = 0;
  for (const auto& [description, path] : records) table.set(++count, description, path);
}

}  // namespace quorvin::test
