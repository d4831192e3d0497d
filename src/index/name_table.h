// A folder's table of names.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quorvin {

/// Names in the order in which they came, each with a small note. The capacity is fixed; memory that was used
/// once is kept for the next folder.
class NameTable {
 public:
  explicit NameTable(std::size_t capacity) : capacity_(capacity) {}

  /// False, with nothing added, when the table is full.
  bool add(std::string_view name, std::uint8_t note) {
    if (rows_.size() == capacity_) return false;
    rows_.push_back({bytes_.size(), static_cast<std::uint32_t>(name.size()), note});
    bytes_ += name;
    bytes_ += '\0';
    return true;
  }

  void clear() {
    rows_.clear();
    bytes_.clear();
  }

  std::size_t size() const { return rows_.size(); }
  /// A NUL follows it. Valid until the table changes.
  std::string_view name(std::size_t row) const {
    return {bytes_.data() + rows_[row].offset, rows_[row].length};
  }
  std::uint8_t note(std::size_t row) const { return rows_[row].note; }

 private:
  struct Row {
    std::size_t offset;
    std::uint32_t length;
    std::uint8_t note;
  };

  std::size_t capacity_;
  std::vector<Row> rows_;
  std::string bytes_;
};

}  // namespace quorvin
