// SPDX-License-Identifier: GPL-2.0-or-later

// The reader of source lists, held against the rules of docs/formats/source-lists.md written down as plainly
// as can be, over the whole file at once. An input is the file.
#include "faults/runtime_fault.h"
#include "fuzz/require.h"
#include "platform/text_encoding.h"
#include "state/source_list_file.h"

#include <QFile>
#include <QTemporaryDir>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace quorvin {
namespace {

/// A character, or a whole line end.
struct Sign {
  QString text;
  bool isLineEnd = false;

  bool is(char16_t c) const { return text == QChar(c); }
};

struct Reading {
  std::vector<std::pair<QString, QString>> records;
  int fault = 0;

  bool operator==(const Reading&) const = default;
};

std::vector<Sign> signsOf(QByteArray file) {
  std::vector<Sign> signs;
  while (!file.isEmpty()) {
    const qsizetype feed = file.indexOf('\n');
    QByteArray line = feed < 0 ? file : file.first(feed);
    file = feed < 0 ? QByteArray() : file.sliced(feed + 1);
    const bool hasReturn = line.endsWith('\r');
    if (hasReturn) line.chop(1);
    for (const QChar c : decodeSystemText(line)) signs.push_back({c, false});
    const QString end = QLatin1String(hasReturn ? "\r" : "") + QLatin1String(feed < 0 ? "" : "\n");
    if (!end.isEmpty()) signs.push_back({end, true});
  }
  return signs;
}

/// The fields of a file, one after another.
class PlainFields {
 public:
  explicit PlainFields(const QByteArray& file) : signs_(signsOf(file)) {}

  bool atEnd() const { return at_ == signs_.size(); }

  /// False where the file ends instead.
  bool take(QString& field) {
    skipBlanks();
    if (atEnd()) return false;
    field.clear();
    if (signs_[at_].is(u'"')) {
      takeQuoted(field);
    } else {
      while (!atEnd() && !isSeparator()) field += signs_[at_++].text;
      while (field.endsWith(u' ')) field.chop(1);
      skipSeparator();
    }
    return true;
  }

 private:
  bool isSeparator() const { return signs_[at_].isLineEnd || signs_[at_].is(u','); }

  void takeQuoted(QString& field) {
    ++at_;
    while (!atEnd() && !signs_[at_].is(u'"')) field += signs_[at_++].text;
    if (atEnd()) {
      if (signs_.back().isLineEnd) field.chop(signs_.back().text.size());
      return;
    }
    ++at_;
    skipBlanks();
    skipSeparator();
  }

  void skipBlanks() {
    while (!atEnd() && signs_[at_].is(u' ')) ++at_;
  }

  void skipSeparator() {
    if (!atEnd() && isSeparator()) ++at_;
  }

  std::vector<Sign> signs_;
  std::size_t at_ = 0;
};

Reading plainReading(const QByteArray& file) {
  Reading reading;
  PlainFields fields(file.startsWith("\xEF\xBB\xBF") ? file.sliced(3) : file);
  while (!fields.atEnd()) {
    QString description;
    QString path;
    if (!fields.take(description) || !fields.take(path)) {
      reading.fault = 62;
      break;
    }
    if (reading.records.size() == SourceTable::kLastRow) {
      reading.fault = 9;
      break;
    }
    reading.records.emplace_back(description, path);
  }
  return reading;
}

Reading programReading(const QByteArray& bytes) {
  static const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("list.txt"));
  QFile file(path);
  const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
  fuzz::require(isWritten, "the list can be written");
  file.close();
  SourceTable table;
  int count = 0;
  Reading reading;
  try {
    loadSourceList(path, table, count);
  } catch (const RuntimeFault& fault) {
    reading.fault = fault.number();
  }
  for (int row = 1; row <= count; ++row)
    reading.records.emplace_back(table.description(row), table.path(row));
  return reading;
}

}  // namespace
}  // namespace quorvin

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quorvin;
  const QByteArray file(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  const Reading reading = programReading(file);
  const Reading expected = plainReading(file);
  const auto text = [](const Reading& it) {
    return std::to_string(it.records.size()) + " records and fault " + std::to_string(it.fault);
  };
  fuzz::require(reading == expected, text(reading) + " are read, and should be " + text(expected));
  return 0;
}
