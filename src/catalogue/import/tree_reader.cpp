// SPDX-License-Identifier: GPL-2.0-or-later

// The lists of tree: a path in the first line, and below it branches, "|-- [    5 Jan 15  2004]  name".
#include "catalogue/import/list_dates.h"
#include "catalogue/import/list_readers.h"
#include "catalogue/import/list_text.h"

#include <array>
#include <utility>
#include <vector>

namespace quorvin {

namespace {

bool takeOneOf(std::string_view& text, const auto& wanted) {
  for (const std::string_view one : wanted) {
    if (takeText(text, one)) return true;
  }
  return false;
}

class TreeReader : public ListReader {
 public:
  explicit TreeReader(ListReadOptions options) : options_(std::move(options)) {}

  LineSays read(std::string_view line, ListEntry& entry) override {
    if (line.empty()) return LineSays::NoEntry;
    static constexpr std::array<std::string_view, 4> kStems{"\u2502\u00A0\u00A0 ", "\u2502   ", "|   ",
                                                            "    "};
    static constexpr std::array<std::string_view, 4> kTwigs{"\u251C\u2500\u2500 ", "\u2514\u2500\u2500 ",
                                                            "|-- ", "`-- "};
    const std::string_view whole = line;
    std::size_t depth = 0;
    while (takeOneOf(line, kStems)) ++depth;
    if (takeOneOf(line, kTwigs)) return readBranch(line, depth, entry);
    if (isSum(whole)) return LineSays::NoEntry;
    return hasTop_ ? LineSays::NotUnderstood : readTop(whole, entry);
  }

 private:
  LineSays readTop(std::string_view line, ListEntry& entry) {
    takeFacts(line, entry);
    if (line.empty()) return LineSays::NotUnderstood;
    hasTop_ = true;
    above_ = {nameIn(line)};
    if (above_.front().size() > 1 && above_.front().ends_with('/')) above_.front().pop_back();
    entry = {above_.front(), EntryKind::Folder};
    // Any line could be the first one.
    return LineSays::NoEntry;
  }

  LineSays readBranch(std::string_view line, std::size_t depth, ListEntry& entry) {
    if (!hasTop_) above_ = {"."};
    hasTop_ = true;
    entry.kind = EntryKind::Unknown;
    takeFacts(line, entry);
    const std::size_t arrow = line.find(" -> ");
    const bool isLink = arrow != std::string_view::npos;
    if (isLink) entry.kind = EntryKind::File;
    std::string name = nameIn(line.substr(0, arrow));
    const bool hasRoom = depth < above_.size();
    if (name.empty() || name == "/" || !hasRoom) return LineSays::NotUnderstood;
    if (name.ends_with('/')) {
      name.pop_back();
      entry.kind = EntryKind::Folder;
    }
    if (isLink || entry.kind == EntryKind::Folder) {
      entry.size.reset();
      entry.modified = {};
    }
    above_.resize(depth + 1);
    // With -f each name is a whole path.
    const bool isWhole = name.starts_with(above_.back() + '/');
    entry.path = isWhole ? name : above_.back() + '/' + name;
    above_.push_back(entry.path);
    return LineSays::Entry;
  }

  /// "[-rw-r--r-- ann 5 Jan 15  2004]  ", of which each may be missing.
  void takeFacts(std::string_view& line, ListEntry& entry) const {
    entry.size.reset();
    entry.modified = {};
    const std::size_t end = line.find("]  ");
    if (!line.starts_with('[') || end == std::string_view::npos) return;
    std::string_view facts = line.substr(1, end);
    line.remove_prefix(end + 3);
    std::string_view before;
    for (;;) {
      takeBlanks(facts);
      if (facts == "]" || facts.empty()) break;
      if (const auto date = takeDate(facts)) {
        entry.modified = *date;
        break;
      }
      before = takeWord(facts).value_or(std::string_view());
      if (before.starts_with('d') && before.size() >= 10) entry.kind = EntryKind::Folder;
      if (before.ends_with(']')) {
        before.remove_suffix(1);
        break;
      }
    }
    entry.size = exactSize(before);
  }

  std::optional<ListDate> takeDate(std::string_view& facts) const {
    if (auto date = takeMonthNameDate(facts, options_.made)) return date;
    return takeIsoDate(facts);
  }

  /// The name, with a slash at its end where the list says that it is a folder's. In quotes, quotes have
  /// a backslash before them, and signs that do not print are three octal digits; a backslash stays as it is.
  static std::string nameIn(std::string_view text) {
    const std::size_t end = text.rfind('"');
    const bool isQuoted = text.starts_with('"') && end > 0 && text.size() - end <= 2;
    if (!isQuoted) return std::string(text);
    std::string name;
    std::string_view rest = text.substr(1, end - 1);
    while (!rest.empty()) {
      const bool isNumber = rest.size() >= 4 && rest[0] == '\\' && rest[1] >= '0' && rest[1] <= '3' &&
                            rest.substr(2, 2).find_first_not_of("01234567") == std::string_view::npos;
      if (isNumber) {
        name += static_cast<char>((rest[1] - '0') * 64 + (rest[2] - '0') * 8 + rest[3] - '0');
      } else if (!rest.starts_with("\\\"")) {
        name += rest.front();
      }
      rest.remove_prefix(isNumber ? 4 : 1);
    }
    if (text.ends_with('/')) name += '/';
    return name;
  }

  /// "3 directories, 5 files", perhaps behind "12K used in ".
  static bool isSum(std::string_view line) {
    return line.find(" director") != std::string_view::npos && line.front() >= '0' && line.front() <= '9';
  }

  ListReadOptions options_;
  bool hasTop_ = false;
  /// The paths from the top to the last one read.
  std::vector<std::string> above_;
};

}  // namespace

std::unique_ptr<ListReader> makeTreeReader(const ListReadOptions& options) {
  return std::make_unique<TreeReader>(options);
}

}  // namespace quorvin
