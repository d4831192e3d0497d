// SPDX-License-Identifier: GPL-2.0-or-later
#include "generated_tree.h"

#include <algorithm>
#include <array>

namespace quorvin {
namespace {

// The most sub-folders of a folder by its depth; the mean is half of it. Deeper folders have none.
constexpr auto kMostSubFolders = std::to_array<std::uint32_t>({36, 16, 8, 3, 2, 1});

std::string volumeLabel(int number) {
  constexpr auto kKinds = std::to_array<std::string_view>({"MUSIC", "PHOTOS", "BACKUP", "DATA", "VIDEO"});
  const std::string digits = std::to_string(number);
  const std::size_t zeros = digits.size() < 4 ? 4 - digits.size() : 0;
  return std::string(kKinds[static_cast<std::size_t>(number) % kKinds.size()]) + '_' +
         std::string(zeros, '0') + digits;
}

}  // namespace

void GeneratedTree::write(std::int64_t entries) {
  wanted_ = entries;
  for (int number = 1; writer_.entries() < wanted_; ++number) {
    volume_ = volumeLabel(number);
    path_ = "\\";
    visit(0);
  }
}

void GeneratedTree::visit(int depth) {
  const std::vector<std::string> children = subFolders(depth);
  writer_.beginBlock(volume_, path_);
  for (const std::string& child : children) writer_.subFolder(child);
  writer_.endSubFolders();
  writeFiles();

  const std::size_t length = path_.size();
  for (const std::string& child : children) {
    if (writer_.entries() >= wanted_) return;
    path_ += child;
    path_ += '\\';
    visit(depth + 1);
    path_.resize(length);
  }
}

std::vector<std::string> GeneratedTree::subFolders(int depth) {
  std::vector<std::string> names;
  const auto level = static_cast<std::size_t>(depth);
  if (level >= kMostSubFolders.size()) return names;

  const std::uint32_t count = random_.below(kMostSubFolders[level] + 1);
  for (std::uint32_t i = 0; i < count; ++i) {
    const std::string& name = names_.folderName();
    // The rare second folder of a name is left out: a folder listed twice would be walked twice.
    if (std::find(names.begin(), names.end(), name) == names.end()) names.push_back(name);
  }
  return names;
}

void GeneratedTree::writeFiles() {
  const std::int64_t count = std::min(fileCount(), wanted_ - writer_.entries());
  for (std::int64_t i = 0; i < count; ++i) {
    const std::string& name = names_.fileName();
    writer_.entry(name, traitsOf(random_.next()));
  }
}

std::int64_t GeneratedTree::fileCount() {
  constexpr std::uint32_t kOneInSoManyIsHuge = 4000;
  const int power = random_.heads(16) - 6;
  if (power < 0) return 0;
  const std::uint32_t start = std::uint32_t{1} << static_cast<unsigned>(power);
  const std::uint32_t count = start + random_.below(start);
  return random_.below(kOneInSoManyIsHuge) == 0 ? count * 8 : count;
}

}  // namespace quorvin
