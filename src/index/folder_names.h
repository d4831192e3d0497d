// The names of one folder, sorted into sub-folders and files.
#pragma once

#include "files/folder_reader.h"
#include "index/walk_faults.h"

#include <QString>

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
  /// A NUL stands behind it. Valid until the table changes.
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

/// The most sub-folders and the most files of one folder.
inline constexpr std::size_t kMostSubFolders = 10'001;
inline constexpr std::size_t kMostFiles = 31'001;

/// The note of a sub-folder that is a link and is not walked into.
inline constexpr std::uint8_t kLinkToFolder = 1;

/// Reads a folder once for both of its passes. Names that hold "?" are logged, as are sub-folders whose name
/// a reader of the listing will misread. A table that overflows is fault 9; when the user ignores it, the
/// rest of that kind is left out and the number is logged.
class FolderNames {
 public:
  /// Both must outlive the object.
  FolderNames(FolderReader& folders, WalkFaults& faults) : folders_(folders), faults_(faults) {}

  /// Reads the reader's current folder. Its sub-folders come into `subFolders`, whose notes are 0 or
  /// kLinkToFolder; files whose name fits `filePattern` are kept for files(), unless `withFiles` is false.
  /// Gives false when the folder is to be left at once.
  bool read(NameTable& subFolders, const QString& filePattern, bool withFiles);

  /// Tells when there were more files than the table holds; to be called before they are used. Gives false
  /// when the folder is to be left at once.
  bool checkFileCount();

  /// The files; notes are the NameTraits of their names.
  const NameTable& files() const { return files_; }

  /// Forgets what was read.
  void clear();

 private:
  bool take(NameTable& subFolders, const FolderName& found);
  bool takeFolder(NameTable& subFolders, std::string_view name, std::uint8_t note);
  bool takeLink(NameTable& subFolders, std::string_view name);
  void takeQuestioned(const FolderName& found);
  void takeFile(std::string_view name, std::uint8_t traits);
  void noteLeftOut(std::size_t count, const QString& kind);

  FolderReader& folders_;
  WalkFaults& faults_;
  NameTable files_{kMostFiles};
  QString filePattern_;
  bool everyFile_ = true;
  bool withFiles_ = true;
  std::size_t subFoldersLeftOut_ = 0;
  std::size_t filesLeftOut_ = 0;
  std::string firstFileLeftOut_;
};

}  // namespace quorvin
