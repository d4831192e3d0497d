// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/equal_folders.h"

#include <algorithm>
#include <xxhash.h>

namespace quorvin {

namespace {

constexpr std::uint32_t kFoldersBetweenLooks = 1024;
/// Above the groups of files, which have 32 bits.
constexpr std::uint64_t kIsFolder = std::uint64_t{1} << 63;
/// Of folders with one file it says more that the files are the same.
constexpr std::int64_t kFewestFiles = 2;
constexpr std::uint32_t kToBeNumbered = EqualFolders::kNone - 1;

/// Puts the numbers from 0 to `count` - 1 into lists, by the list that `listOf` says for each; kNone for none
/// of them. Each list is ascending and ends where the next one starts.
template <typename ListOf>
void putIntoLists(std::uint32_t count, std::uint32_t lists, ListOf listOf,
                  std::vector<std::uint32_t>& numbers, std::vector<std::uint32_t>& starts) {
  starts.assign(lists + 2, 0);
  for (std::uint32_t number = 0; number < count; ++number) {
    if (listOf(number) != EqualFolders::kNone) ++starts[listOf(number) + 2];
  }
  for (std::uint32_t list = 2; list < starts.size(); ++list) starts[list] += starts[list - 1];
  numbers.resize(starts.back());
  for (std::uint32_t number = 0; number < count; ++number) {
    if (listOf(number) != EqualFolders::kNone) numbers[starts[listOf(number) + 1]++] = number;
  }
  starts.pop_back();
}

std::span<const std::uint32_t> listAt(const std::vector<std::uint32_t>& numbers,
                                      const std::vector<std::uint32_t>& starts, std::uint32_t list) {
  return std::span(numbers).subspan(starts[list], starts[list + 1] - starts[list]);
}

}  // namespace

EqualFolders::EqualFolders(const Copies& copies) : copies_(copies), folders_(copies.files().folders()) {}

bool EqualFolders::find(const StopAsked& stop) {
  collectBlocks();
  collectFolders();
  kindOf_.assign(folders_.count(), kNone);
  Content content;
  // A folder's number is above that of the one it is in.
  for (std::uint32_t folder = folders_.count(); folder-- > 0;) {
    const bool isVolume = folders_.parent(folder) == kNone;
    if (!isVolume && read(folder, content)) kindOf_[folder] = kindLike(folder, content);
    if (folder % kFoldersBetweenLooks == 0 && stop()) return false;
  }
  collectSets();
  return true;
}

void EqualFolders::collectBlocks() {
  const auto& blocks = copies_.files().blocks();
  putIntoLists(
      static_cast<std::uint32_t>(blocks.size()), folders_.count(),
      [&](std::uint32_t block) { return blocks[block].folder; }, blocks_, blocksStart_);
}

void EqualFolders::collectFolders() {
  putIntoLists(
      folders_.count(), folders_.count(), [&](std::uint32_t folder) { return folders_.parent(folder); },
      inside_, insideStart_);
}

std::uint32_t EqualFolders::endOfBlock(std::uint32_t block) const {
  const auto& blocks = copies_.files().blocks();
  return block + 1 < blocks.size() ? blocks[block + 1].firstPlace : copies_.files().placeCount();
}

/// False where the folder cannot be equal to another one.
bool EqualFolders::read(std::uint32_t folder, Content& content) const {
  content.clear();
  for (const std::uint32_t inside : listAt(inside_, insideStart_, folder)) {
    if (kindOf_[inside] == kNone) return false;
    content.push_back(kIsFolder | std::uint64_t{folders_.nameInLowerCase(inside)} << 32 | kindOf_[inside]);
  }
  if (!readFiles(folder, content)) return false;
  std::ranges::sort(content);
  return !content.empty();
}

bool EqualFolders::readFiles(std::uint32_t folder, Content& content) const {
  for (const std::uint32_t block : listAt(blocks_, blocksStart_, folder)) {
    const std::uint32_t end = endOfBlock(block);
    for (std::uint32_t place = copies_.files().blocks()[block].firstPlace; place < end; ++place) {
      const std::uint32_t group = copies_.groupAt(place);
      if (group == Copies::kNone) return false;
      content.push_back(group);
    }
  }
  return true;
}

/// The kind of a folder of that content, which it joins. It may be a new one.
std::uint32_t EqualFolders::kindLike(std::uint32_t folder, const Content& content) {
  const std::uint64_t hash = XXH3_64bits(content.data(), content.size() * sizeof(Content::value_type));
  const std::uint32_t known = kindsByContent_.find(
      hash, [&](std::uint32_t kind) { return read(kinds_[kind].first, other_) && other_ == content; });
  if (known != kNone) {
    ++kinds_[known].folders;
    kinds_[known].isWanted = kinds_[known].isWanted || isWanted(folder);
    return known;
  }
  const auto added = static_cast<std::uint32_t>(kinds_.size());
  kinds_.push_back({folder, 1, {}, isWanted(folder)});
  sumUp(folder, kinds_.back());
  kindsByContent_.add(hash, added);
  return added;
}

void EqualFolders::sumUp(std::uint32_t folder, Kind& kind) const {
  for (const std::uint32_t inside : listAt(inside_, insideStart_, folder)) {
    kind.holds.add(kinds_[kindOf_[inside]].holds);
  }
  for (const std::uint32_t block : listAt(blocks_, blocksStart_, folder)) {
    const std::uint32_t end = endOfBlock(block);
    for (std::uint32_t place = copies_.files().blocks()[block].firstPlace; place < end; ++place) {
      kind.holds.add(copies_.groups()[copies_.groupAt(place)].size);
    }
  }
}

/// Whether a file in it is wanted, or one in a folder equal to one in it.
bool EqualFolders::isWanted(std::uint32_t folder) const {
  const auto isBlockWanted = [&](std::uint32_t block) {
    for (std::uint32_t place = copies_.files().blocks()[block].firstPlace; place < endOfBlock(block);
         ++place) {
      if (copies_.files().isWanted(place)) return true;
    }
    return false;
  };
  return std::ranges::any_of(listAt(blocks_, blocksStart_, folder), isBlockWanted) ||
         std::ranges::any_of(listAt(inside_, insideStart_, folder),
                             [&](std::uint32_t inside) { return kinds_[kindOf_[inside]].isWanted; });
}

/// The kind of the folders that all folders of a kind are in, one in each; kNone where there is no such kind.
std::vector<std::uint32_t> EqualFolders::kindsAround() const {
  std::vector<std::uint32_t> around(kinds_.size(), kNone);
  std::vector<bool> isKnown(kinds_.size());
  for (std::uint32_t folder = 0; folder < kindOf_.size(); ++folder) {
    const std::uint32_t kind = kindOf_[folder];
    if (kind == kNone) continue;
    const std::uint32_t parent = folders_.parent(folder);
    const std::uint32_t kindOfParent = kindOf_[parent];
    if (!isKnown[kind]) around[kind] = kindOfParent;
    if (around[kind] != kindOfParent) around[kind] = kNone;
    isKnown[kind] = true;
  }
  for (std::uint32_t kind = 0; kind < kinds_.size(); ++kind) {
    if (around[kind] != kNone && kinds_[around[kind]].folders != kinds_[kind].folders) around[kind] = kNone;
  }
  return around;
}

void EqualFolders::collectSets() {
  const std::vector<std::uint32_t> around = kindsAround();
  isTold_.assign(kinds_.size(), false);
  std::vector<std::uint32_t> setOf(kinds_.size(), kNone);
  // A kind's number is below that of one around it.
  for (std::uint32_t kind = static_cast<std::uint32_t>(kinds_.size()); kind-- > 0;) {
    const bool isAroundTold = around[kind] != kNone && isTold_[around[kind]];
    isTold_[kind] = isAroundTold || (kinds_[kind].folders > 1 && kinds_[kind].holds.files >= kFewestFiles);
    if (isTold_[kind] && !isAroundTold) setOf[kind] = kToBeNumbered;
  }
  for (std::uint32_t folder = 0; folder < kindOf_.size(); ++folder) {
    if (kindOf_[folder] == kNone || setOf[kindOf_[folder]] == kNone) continue;
    std::uint32_t& set = setOf[kindOf_[folder]];
    if (set == kToBeNumbered) {
      const Kind& kind = kinds_[kindOf_[folder]];
      set = static_cast<std::uint32_t>(sets_.size());
      sets_.push_back({{}, kind.holds, kind.isWanted});
    }
    sets_[set].folders.push_back(folder);
  }
}

bool EqualFolders::explain(std::span<const std::uint32_t> places) const {
  const std::uint32_t kind = kindOf_[copies_.files().folderOf(places.front())];
  if (kind == kNone || !isTold_[kind] || kinds_[kind].folders != places.size()) return false;
  return std::ranges::all_of(
      places, [&](std::uint32_t place) { return kindOf_[copies_.files().folderOf(place)] == kind; });
}

}  // namespace quorvin
