// SPDX-License-Identifier: GPL-2.0-or-later

// Rows of the commands that can write them as tables for scripts.
#pragma once

#include "console/json_text.h"
#include "console/row_cells.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace quorvin {

/// Text is for people; in the other forms each row has the same cells, or is an object with the same keys.
enum class TableFormat { Text, Tsv, Csv, Json };

/// What becomes of texts in such rows.
constexpr CellRule cellRuleOf(TableFormat format) {
  return format == TableFormat::Csv ? CellRule::Quotes : CellRule::Blanks;
}

/// A row that is being made at the end of a text: cells, or members of an object. Not for TableFormat::Text.
class TableRow {
 public:
  /// `cells` and `text` must outlive the row.
  TableRow(TableFormat format, const CellForm& cells, std::string& text)
      : format_(format), cells_(cells), text_(text) {
    if (isJson()) text_ += '{';
  }

  TableRow& add(std::string_view key, std::string_view value) {
    startCell(key);
    if (isJson()) {
      addJsonString(text_, value);
    } else {
      cells_.add(text_, value);
    }
    return *this;
  }
  TableRow& add(std::string_view key, std::int64_t value) {
    startCell(key);
    addNumber(text_, value);
    return *this;
  }
  /// A cell without anything in it; no member of an object.
  TableRow& skip() {
    if (!isJson()) startCell({});
    return *this;
  }
  /// For what is appended to the text by the caller.
  void startCell(std::string_view key) {
    if (!isFirst_) text_ += format_ == TableFormat::Tsv ? '\t' : ',';
    isFirst_ = false;
    if (!isJson()) return;
    addJsonString(text_, key);
    text_ += ':';
  }
  void end(bool endsWithNul) {
    if (isJson()) text_ += '}';
    text_ += endsWithNul ? '\0' : '\n';
  }
  /// For an object in an array.
  void endObject() { text_ += '}'; }

 private:
  bool isJson() const { return format_ == TableFormat::Json; }

  TableFormat format_;
  const CellForm& cells_;
  std::string& text_;
  bool isFirst_ = true;
};

}  // namespace quorvin
