// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/folder_tree.h"

#include "platform/text_encoding.h"
#include "search/format/listing_line.h"

#include <algorithm>
#include <utility>
#include <xxhash.h>

namespace quorvin {

namespace {

constexpr char kSeparator = '\\';
constexpr std::size_t kFewestSlots = 64;

std::uint64_t hashOfText(std::string_view text) {
  return XXH3_64bits(text.data(), text.size());
}

std::uint64_t hashOfPair(std::uint32_t one, std::uint32_t other) {
  const std::uint32_t both[2] = {one, other};
  return XXH3_64bits(both, sizeof both);
}

std::string lowerCaseOf(std::string_view text) {
  if (!isAscii(text)) return simpleLowerCase(textOfUtf8(text)).toStdString();
  std::string lower(text);
  for (char& letter : lower) {
    if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter + ('a' - 'A'));
  }
  return lower;
}

}  // namespace

void NumberTable::add(std::uint64_t hash, std::uint32_t number) {
  if ((count_ + 1) * 3 > slots_.size() * 2) grow();
  put({static_cast<std::uint32_t>(hash >> 32), static_cast<std::uint32_t>(hash), number});
  ++count_;
}

void NumberTable::put(const Slot& slot) {
  std::size_t at = slot.low & mask();
  while (slots_[at].number != kNone) at = (at + 1) & mask();
  slots_[at] = slot;
}

void NumberTable::grow() {
  const std::vector<Slot> before =
      std::exchange(slots_, std::vector<Slot>(std::max(kFewestSlots, slots_.size() * 2)));
  for (const Slot& slot : before) {
    if (slot.number != kNone) put(slot);
  }
}

std::uint32_t FolderTree::addVolume(std::uint32_t listing, std::string_view name) {
  const std::uint64_t hash = XXH3_64bits_withSeed(name.data(), name.size(), listing);
  const std::uint32_t known = volumesByName_.find(hash, [&](std::uint32_t volume) {
    return volumes_[volume].listing == listing && volumes_[volume].name == name;
  });
  if (known != kNone) return known;
  const auto volume = static_cast<std::uint32_t>(volumes_.size());
  volumes_.push_back({listing, std::string(name)});
  volumesByName_.add(hash, volume);
  volumeFolders_.push_back(count());
  folders_.push_back({kNone, nameOf({}), volume});
  return volume;
}

std::uint32_t FolderTree::addFolder(std::uint32_t volume, std::string_view path) {
  if (volume != lastVolume_) {
    steps_.clear();
    lastPath_.clear();
    lastVolume_ = volume;
  }
  if (path.empty()) return volumeFolders_[volume];
  if (path.ends_with(kSeparator)) path.remove_suffix(1);
  keepCommonSteps(path);
  std::uint32_t folder = steps_.empty() ? volumeFolders_[volume] : steps_.back().folder;
  std::size_t begin = steps_.empty() ? 0 : steps_.back().end + 1;
  while (begin <= path.size()) {
    const std::size_t end = std::min(path.find(kSeparator, begin), path.size());
    folder = addBelow(folder, path.substr(begin, end - begin));
    steps_.push_back({end, folder});
    begin = end + 1;
  }
  lastPath_ = path;
  return folder;
}

/// Leaves the steps of the last path that `path` begins with.
void FolderTree::keepCommonSteps(std::string_view path) {
  const auto same = static_cast<std::size_t>(std::ranges::mismatch(path, lastPath_).in1 - path.begin());
  const auto isCommon = [&](const Step& step) {
    return step.end <= same && (step.end == path.size() || path[step.end] == kSeparator);
  };
  // A part that ends where both paths are still the same also ends there in the other path or goes on.
  while (!steps_.empty() && !isCommon(steps_.back())) steps_.pop_back();
}

std::uint32_t FolderTree::addBelow(std::uint32_t parent, std::string_view name) {
  const std::uint32_t number = nameOf(name);
  const std::uint64_t hash = hashOfPair(parent, number);
  const std::uint32_t known = foldersByName_.find(hash, [&](std::uint32_t folder) {
    return folders_[folder].parent == parent && folders_[folder].name == number;
  });
  if (known != kNone) return known;
  const std::uint32_t folder = count();
  folders_.push_back({parent, number, folders_[parent].volume});
  foldersByName_.add(hash, folder);
  return folder;
}

/// The number of a name, which is added where it is not known, with what it is in lower case.
std::uint32_t FolderTree::nameOf(std::string_view text) {
  const std::uint32_t name = addName(text);
  if (names_[name].lower != kNone) return name;
  const std::uint32_t lower = addName(lowerCaseOf(text));
  names_[lower].lower = lower;
  names_[name].lower = lower;
  return name;
}

std::uint32_t FolderTree::addName(std::string_view text) {
  const std::uint64_t hash = hashOfText(text);
  const std::uint32_t known =
      namesByText_.find(hash, [&](std::uint32_t name) { return textOfName(names_[name]) == text; });
  if (known != kNone) return known;
  const auto name = static_cast<std::uint32_t>(names_.size());
  names_.push_back({texts_.size(), static_cast<std::uint32_t>(text.size()), kNone});
  texts_ += text;
  namesByText_.add(hash, name);
  return name;
}

std::string_view FolderTree::textOfName(const Name& name) const {
  return std::string_view(texts_).substr(name.start, name.size);
}

std::string_view FolderTree::name(std::uint32_t folder) const {
  return textOfName(names_[folders_[folder].name]);
}

std::string_view FolderTree::title(std::uint32_t folder) const {
  const std::string_view own = name(folder);
  return own.empty() ? std::string_view(volumes_[volumeOf(folder)].name) : own;
}

std::string FolderTree::path(std::uint32_t folder) const {
  std::vector<std::string_view> names;
  for (; parent(folder) != kNone; folder = parent(folder)) names.push_back(name(folder));
  std::string path;
  for (auto it = names.rbegin(); it != names.rend(); ++it) {
    path += *it;
    path += kSeparator;
  }
  return path;
}

}  // namespace quorvin
