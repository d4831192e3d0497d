// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/copies.h"

#include "platform/text_encoding.h"
#include "search/format/listing_line.h"

#include <algorithm>

namespace quorvin {

namespace {

/// Whether `listed` in lower case is `folded`.
bool isSameInLowerCase(std::string_view listed, std::string_view folded) {
  if (listed == folded) return true;
  if (!isAscii(listed)) return simpleLowerCase(textOfUtf8(listed)).toStdString() == folded;
  return std::ranges::equal(listed, folded, [](char a, char b) {
    return (a >= 'A' && a <= 'Z' ? static_cast<char>(a + ('a' - 'A')) : a) == b;
  });
}

}  // namespace

bool Copies::find(const StopAsked& stop) {
  files_.endListing();
  if (!guess(stop) || !decide(stop)) return false;
  collectPlaces();
  return true;
}

/// Gives each place the number of a group by the hash alone.
bool Copies::guess(const StopAsked& stop) {
  groupAt_.assign(files_.placeCount(), kUnknown);
  for (std::size_t part = 0; part < ListedFiles::kParts; ++part) {
    const std::vector<FileRecord> records = files_.takePart(part);
    for (auto begin = records.begin(); begin != records.end();) {
      const auto end = std::find_if(begin, records.end(),
                                    [&](const FileRecord& record) { return record.hash() != begin->hash(); });
      guess({begin, end});
      begin = end;
    }
    if (stop()) return false;
  }
  return true;
}

void Copies::guess(std::span<const FileRecord> sameHash) {
  if (sameHash.size() == 1) {
    groupAt_[sameHash.front().place] = kAlone;
    return;
  }
  for (const FileRecord& record : sameHash)
    groupAt_[record.place] = static_cast<std::uint32_t>(groups_.size());
  groups_.emplace_back();
}

/// Looks at names and sizes, and takes apart what only has the same hash.
bool Copies::decide(const StopAsked& stop) {
  return files_.visitFiles(
      [this](ListedFiles::Visited& file) {
        if (groupAt_[file.place] < kAlone) decide(file);
      },
      stop);
}

void Copies::decide(ListedFiles::Visited& file) {
  const ListedWalk::Text name = file.name();
  const std::uint32_t number = groupLike(groupAt_[file.place], file, name.folded);
  groupAt_[file.place] = number;
  note(file, groups_[number]);
}

/// Counts the file as one of the group.
void Copies::note(ListedFiles::Visited& file, Group& group) {
  if (group.copies == 0) {
    group.size = file.size;
    group.name = names_.keep(file.name().listed);
    group.volume = files_.folders().volumeOf(file.folder);
  }
  ++group.copies;
  if (files_.folders().volumeOf(file.folder) != group.volume) group.isOnManyVolumes = true;
  if (files_.isWanted(file.place)) group.isWanted = true;
}

/// The group of the file among those with its hash, of which `group` is the first. It may be a new one.
std::uint32_t Copies::groupLike(std::uint32_t group, ListedFiles::Visited& file, std::string_view folded) {
  while (groups_[group].copies > 0) {
    const Group& other = groups_[group];
    if (other.size == file.size && isSameInLowerCase(other.name, folded)) return group;
    const auto next =
        std::ranges::lower_bound(nextLike_, group, {}, &std::pair<std::uint32_t, std::uint32_t>::first);
    if (next != nextLike_.end() && next->first == group) {
      group = next->second;
      continue;
    }
    const auto added = static_cast<std::uint32_t>(groups_.size());
    nextLike_.insert(next, {group, added});
    groups_.emplace_back();
    return added;
  }
  return group;
}

void Copies::collectPlaces() {
  placesStart_.assign(groups_.size() + 1, 0);
  std::uint32_t start = 0;
  for (std::size_t i = 0; i < groups_.size(); ++i) {
    placesStart_[i] = start;
    start += groups_[i].copies;
  }
  places_.resize(start);
  for (std::uint32_t place = 0; place < groupAt_.size(); ++place) {
    if (groupAt_[place] < kAlone) places_[placesStart_[groupAt_[place]]++] = place;
  }
  // Each start has gone on to its end, which is the next group's start.
  std::copy_backward(placesStart_.begin(), placesStart_.end() - 1, placesStart_.end());
  placesStart_.front() = 0;
}

std::optional<std::int64_t> Copies::takeApart(std::span<const PlacedContent> contents,
                                              const StopAsked& stop) {
  const auto before = static_cast<std::uint32_t>(groups_.size());
  std::vector<bool> isChanged(before, false);
  std::int64_t moved = 0;
  for (std::uint32_t group = 0; group < before; ++group) {
    const std::int64_t others = groups_[group].copies < 2 ? 0 : takeApart(group, contents);
    isChanged[group] = others > 0;
    moved += others;
  }
  if (moved == 0) return 0;
  isChanged.resize(groups_.size(), true);
  for (std::uint32_t group = 0; group < before; ++group) {
    if (isChanged[group]) groups_[group] = {};
  }
  const auto noteAgain = [&](ListedFiles::Visited& file) {
    const std::uint32_t group = groupAt_[file.place];
    if (group < kAlone && isChanged[group]) note(file, groups_[group]);
  };
  if (!files_.visitFiles(noteAgain, stop)) return std::nullopt;
  collectPlaces();
  return moved;
}

/// Gives files of the group that hold something else than its first one new groups, and counts them.
std::int64_t Copies::takeApart(std::uint32_t group, std::span<const PlacedContent> contents) {
  std::vector<std::pair<ContentHash, std::uint32_t>> kinds;
  std::int64_t moved = 0;
  for (const std::uint32_t place : placesOf(group)) {
    const auto known = std::ranges::lower_bound(contents, place, {}, &PlacedContent::place);
    if (known == contents.end() || known->place != place) continue;
    auto kind = std::ranges::find(kinds, known->content, &std::pair<ContentHash, std::uint32_t>::first);
    if (kind == kinds.end()) {
      kinds.emplace_back(known->content, kinds.empty() ? group : static_cast<std::uint32_t>(groups_.size()));
      kind = kinds.end() - 1;
      if (kinds.size() > 1) groups_.emplace_back();
    }
    groupAt_[place] = kind->second;
    if (kind->second != group) ++moved;
  }
  return moved;
}

std::uint32_t Copies::groupAt(std::uint32_t place) const {
  const std::uint32_t group = groupAt_[place];
  return group < kAlone && groups_[group].copies >= 2 ? group : kNone;
}

std::span<const std::uint32_t> Copies::placesOf(std::uint32_t group) const {
  return std::span(places_).subspan(placesStart_[group], groups_[group].copies);
}

bool Copies::isOnOneVolume(std::uint32_t place) const {
  const std::uint32_t group = groupAt_[place];
  if (group >= kAlone) return group == kAlone;
  return !groups_[group].isOnManyVolumes;
}

}  // namespace quorvin
