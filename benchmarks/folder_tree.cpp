// SPDX-License-Identifier: GPL-2.0-or-later
#include "folder_tree.h"

#include "random_source.h"

#include <QString>

#include <algorithm>

namespace quorvin {
namespace {

constexpr std::uint32_t kRoot = 0;

bool isPlain(char byte) {
  return static_cast<unsigned char>(byte) < 0x80U && byte != '\\' && byte != '\r' && byte != '\0';
}

}  // namespace

std::string listedName(std::string_view name) {
  if (std::all_of(name.begin(), name.end(), isPlain)) return std::string(name);
  QString text = QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
  for (const QChar unlistable :
       {QChar(u'\\'), QChar(u'\r'), QChar(u'\0'), QChar(QChar::ReplacementCharacter)}) {
    text.replace(unlistable, u'?');
  }
  return text.toStdString();
}

FolderTree::FolderTree() : folders_(1), numbers_{{std::string(), kRoot}} {}

void FolderTree::add(std::string_view path) {
  const auto slash = path.rfind('/');
  const std::string_view folderPath =
      slash == std::string_view::npos ? std::string_view{} : path.substr(0, slash);
  // Lists are sorted, so most files follow one of the same folder.
  if (folderPath != latestPath_) {
    latest_ = folderAt(folderPath);
    latestPath_ = folderPath;
  }
  std::string& files = folders_[latest_].files;
  files += slash == std::string_view::npos ? path : path.substr(slash + 1);
  files += '\n';
}

FolderTree::FolderNumber FolderTree::folderAt(std::string_view path) {
  const auto known = numbers_.find(std::string(path));
  if (known != numbers_.end()) return known->second;

  const auto slash = path.rfind('/');
  const bool inRoot = slash == std::string_view::npos;
  const FolderNumber parent = inRoot ? kRoot : folderAt(path.substr(0, slash));
  const auto number = static_cast<FolderNumber>(folders_.size());
  folders_.push_back({std::string(inRoot ? path : path.substr(slash + 1)), {}, {}});
  folders_[parent].subFolders.push_back(number);
  numbers_.emplace(std::string(path), number);
  return number;
}

class FolderTree::Walk {
 public:
  Walk(const std::vector<Folder>& folders, CatalogueWriter& writer, std::string_view volume,
       std::int64_t limit)
      : folders_(folders), writer_(writer), volume_(volume), limit_(limit) {}

  /// The path so far ends with a separator in both spellings.
  void visit(FolderNumber number) {
    const Folder& folder = folders_[number];
    writer_.beginBlock(volume_, listedPath_);
    const std::vector<FolderNumber> walkable = writeSubFolders(folder);
    writeFiles(folder);
    for (const FolderNumber child : walkable) {
      if (writer_.entries() >= limit_) return;
      descend(child);
    }
  }

 private:
  // A folder whose name cannot be listed is left out, as the indexer does.
  std::vector<FolderNumber> writeSubFolders(const Folder& folder) {
    std::vector<FolderNumber> walkable;
    for (const FolderNumber child : folder.subFolders) {
      const std::string name = listedName(folders_[child].name);
      if (name.find('?') != std::string::npos) continue;
      writer_.subFolder(name);
      walkable.push_back(child);
    }
    writer_.endSubFolders();
    return walkable;
  }

  void writeFiles(const Folder& folder) {
    const std::size_t folderLength = realPath_.size();
    std::string_view rest = folder.files;
    while (!rest.empty() && writer_.entries() < limit_) {
      const auto end = rest.find('\n');
      realPath_ += rest.substr(0, end);
      writer_.entry(listedName(rest.substr(0, end)), traitsOf(stableHash(realPath_)));
      realPath_.resize(folderLength);
      rest.remove_prefix(end + 1);
    }
  }

  void descend(FolderNumber child) {
    const std::size_t listedLength = listedPath_.size();
    const std::size_t realLength = realPath_.size();
    listedPath_ += listedName(folders_[child].name) + '\\';
    realPath_ += folders_[child].name + '/';
    visit(child);
    listedPath_.resize(listedLength);
    realPath_.resize(realLength);
  }

  const std::vector<Folder>& folders_;
  CatalogueWriter& writer_;
  std::string_view volume_;
  std::int64_t limit_;
  std::string listedPath_ = "\\";
  std::string realPath_;
};

void FolderTree::write(CatalogueWriter& writer, std::string_view volume, std::int64_t entryLimit) const {
  Walk(folders_, writer, volume, entryLimit).visit(kRoot);
}

}  // namespace quorvin
