// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/import/entry_sorter.h"

#include "files/file_reader.h"

#include <algorithm>
#include <cstring>
#include <tuple>
#include <utility>

namespace quorvin {

namespace {

constexpr std::int64_t kNoSize = -1;

/// The head of an entry in a file. Texts follow, the folder's only where it differs from that before.
struct Head {
  std::uint32_t folderLength;
  std::uint32_t nameLength;
  std::int64_t size;
  std::int64_t seconds;
  std::uint8_t kind;
  std::uint8_t dateKind;
  std::uint8_t hasFolder;
};

bool isBefore(const SortedEntry& left, const SortedEntry& right) {
  const int folders = left.folder.compare(right.folder);
  return folders != 0 ? folders < 0 : left.name < right.name;
}

}  // namespace

/// One of the sorted files, read from its front.
class EntrySorter::Run {
 public:
  explicit Run(const QString& path) : file_(path), buffer_(1 << 18, '\0') { step(); }

  bool isAtEnd() const { return isAtEnd_; }
  const SortedEntry& entry() const { return entry_; }

  void step() {
    Head head;
    isAtEnd_ = !take(reinterpret_cast<char*>(&head), sizeof head);
    if (isAtEnd_) return;
    if (head.hasFolder != 0) {
      folder_.resize(head.folderLength);
      take(folder_.data(), folder_.size());
    }
    name_.resize(head.nameLength);
    take(name_.data(), name_.size());
    entry_ = {folder_,
              name_,
              static_cast<EntryKind>(head.kind),
              std::nullopt,
              {static_cast<ListDate::Kind>(head.dateKind), head.seconds}};
    if (head.size != kNoSize) entry_.size = head.size;
  }

 private:
  bool take(char* place, std::size_t count) {
    while (count > 0) {
      if (at_ == filled_) {
        filled_ = file_.read(buffer_);
        at_ = 0;
        if (filled_ == 0) return false;
      }
      const std::size_t part = std::min(count, filled_ - at_);
      std::memcpy(place, buffer_.data() + at_, part);
      place += part;
      at_ += part;
      count -= part;
    }
    return true;
  }

  SequentialFile file_;
  std::string buffer_;
  std::size_t at_ = 0;
  std::size_t filled_ = 0;
  std::string folder_;
  std::string name_;
  SortedEntry entry_;
  bool isAtEnd_ = false;
};

EntrySorter::EntrySorter(QString place, std::size_t memory) : place_(std::move(place)), memory_(memory) {}

EntrySorter::~EntrySorter() = default;

void EntrySorter::add(const SortedEntry& entry) {
  if (text_.size() + rows_.size() * sizeof(Row) > memory_) writeRows();
  Row row{};
  const bool isSameFolder = !rows_.empty() && entryOf(rows_.back()).folder == entry.folder;
  row.folder = isSameFolder ? rows_.back().folder : text_.size();
  if (!isSameFolder) text_ += entry.folder;
  row.folderLength = static_cast<std::uint32_t>(entry.folder.size());
  row.name = text_.size();
  text_ += entry.name;
  row.nameLength = static_cast<std::uint32_t>(entry.name.size());
  row.size = entry.size.value_or(kNoSize);
  row.modified = entry.modified;
  row.kind = entry.kind;
  rows_.push_back(row);
}

SortedEntry EntrySorter::entryOf(const Row& row) const {
  const std::string_view text = text_;
  SortedEntry entry{text.substr(row.folder, row.folderLength), text.substr(row.name, row.nameLength),
                    row.kind, std::nullopt, row.modified};
  if (row.size != kNoSize) entry.size = row.size;
  return entry;
}

void EntrySorter::sortRows() {
  const char* const text = text_.data();
  std::stable_sort(rows_.begin(), rows_.end(), [text](const Row& left, const Row& right) {
    if (left.folder != right.folder) {
      const int folders = std::string_view(text + left.folder, left.folderLength)
                              .compare(std::string_view(text + right.folder, right.folderLength));
      if (folders != 0) return folders < 0;
    }
    return std::string_view(text + left.name, left.nameLength) <
           std::string_view(text + right.name, right.nameLength);
  });
}

void EntrySorter::writeRows() {
  sortRows();
  files_.push_back(
      std::make_unique<FileAside>(place_, AsideOptions{.durability = Durability::None, .mayReplace = false}));
  FileAside& file = *files_.back();
  std::string_view folder;
  for (const Row& row : rows_) {
    const SortedEntry entry = entryOf(row);
    const bool hasFolder = &row == rows_.data() || entry.folder != folder;
    folder = entry.folder;
    Head head{};
    head.folderLength = row.folderLength;
    head.nameLength = row.nameLength;
    head.size = row.size;
    head.seconds = row.modified.seconds;
    head.kind = static_cast<std::uint8_t>(row.kind);
    head.dateKind = static_cast<std::uint8_t>(row.modified.kind);
    head.hasFolder = hasFolder ? 1 : 0;
    file.write({reinterpret_cast<const char*>(&head), sizeof head});
    if (hasFolder) file.write(entry.folder);
    file.write(entry.name);
  }
  file.finish();
  rows_.clear();
  text_.clear();
}

void EntrySorter::finish() {
  if (files_.empty()) {
    sortRows();
    return;
  }
  writeRows();
  std::exchange(rows_, {}).shrink_to_fit();
  std::exchange(text_, {}).shrink_to_fit();
  for (const std::unique_ptr<FileAside>& file : files_) runs_.push_back(std::make_unique<Run>(file->path()));
}

bool EntrySorter::next(SortedEntry& entry) {
  if (files_.empty()) {
    if (nextRow_ == rows_.size()) return false;
    entry = entryOf(rows_[nextRow_++]);
    return true;
  }
  if (given_) given_->step();
  given_ = nullptr;
  // The runs are in the order in which their entries came, so the first of equals is the earlier one.
  for (const std::unique_ptr<Run>& run : runs_) {
    if (run->isAtEnd()) continue;
    if (!given_ || isBefore(run->entry(), given_->entry())) given_ = run.get();
  }
  if (!given_) return false;
  entry = given_->entry();
  return true;
}

}  // namespace quorvin
