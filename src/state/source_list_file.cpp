#include "state/source_list_file.h"

#include "faults/runtime_fault.h"
#include "files/file_aside.h"
#include "platform/text_encoding.h"
#include "state/source_list_fields.h"

namespace quorvin {

namespace {

RuntimeFault tooManyRecords(const QString& path) {
  return {FaultNumber::SubscriptOutOfRange,
          describe(FaultNumber::SubscriptOutOfRange) + QStringLiteral(": ") + path +
              QStringLiteral(" holds more than %1 records").arg(SourceTable::kLastRow)};
}

QByteArray recordsText(const SourceTable& table, int count) {
  QByteArray text;
  for (int row = 1; row <= count; ++row) {
    const QString record =
        u'"' + table.description(row) + QStringLiteral("\",\"") + table.path(row) + QStringLiteral("\"\r\n");
    text += encodeSystemText(record);
  }
  return text;
}

}  // namespace

void loadSourceList(const QString& path, SourceTable& table, int& count) {
  SourceListFields fields(path);
  while (!fields.atEnd()) {
    const QString description = fields.next();
    const QString sourcePath = fields.next();
    if (count >= SourceTable::kLastRow) throw tooManyRecords(path);
    table.set(count + 1, description, sourcePath);
    ++count;
  }
}

void saveSourceList(const QString& path, const SourceTable& table, int count) {
  replaceFile(path, recordsText(table, count));
}

}  // namespace quorvin
