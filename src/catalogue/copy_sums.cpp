// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/copy_sums.h"

#include <algorithm>
#include <tuple>

namespace quorvin {

std::vector<CopyLine> copyLines(const Copies& copies, const EqualFolders& folders, const WhichFiles& which) {
  std::vector<CopyLine> lines;
  for (std::uint32_t i = 0; i < folders.sets().size(); ++i) {
    const EqualFolders::Set& set = folders.sets()[i];
    if (set.isWanted && which.hasSize(set.holds.bytes)) lines.push_back({set.bytesBeyondFirst(), i, true});
  }
  for (std::uint32_t i = 0; i < copies.groups().size(); ++i) {
    const Copies::Group& group = copies.groups()[i];
    if (!which.has(group) || folders.explain(copies.placesOf(i))) continue;
    lines.push_back({group.bytesBeyondFirst(), i, false});
  }
  const auto firstOf = [&](const CopyLine& line) {
    return line.isFolders ? line.number : copies.placesOf(line.number).front();
  };
  std::ranges::sort(lines, [&](const CopyLine& a, const CopyLine& b) {
    if (a.bytesBeyondFirst != b.bytesBeyondFirst) return a.bytesBeyondFirst > b.bytesBeyondFirst;
    if (a.isFolders != b.isFolders) return a.isFolders;
    return firstOf(a) < firstOf(b);
  });
  return lines;
}

CopyTotals copyTotals(const Copies& copies, const WhichFiles& which) {
  CopyTotals totals;
  for (const Copies::Group& group : copies.groups()) {
    if (!which.has(group)) continue;
    ++totals.files;
    totals.beyondFirst.add(FileSum{group.copies - 1, group.bytesBeyondFirst()});
  }
  return totals;
}

std::vector<FileSum> copiesInFolders(const Copies& copies, const WhichFiles& which) {
  std::vector<FileSum> sums(copies.files().folders().count());
  for (std::uint32_t i = 0; i < copies.groups().size(); ++i) {
    const Copies::Group& group = copies.groups()[i];
    if (!which.has(group)) continue;
    for (const std::uint32_t place : copies.placesOf(i).subspan(1)) {
      sums[copies.files().folderOf(place)].add(group.size);
    }
  }
  return sums;
}

bool visitSingleFiles(const Copies& copies, const WhichFiles& which,
                      const std::function<void(ListedFiles::Visited&)>& visit, const StopAsked& stop) {
  const ListedFiles& files = copies.files();
  return files.visitFiles(
      [&](ListedFiles::Visited& file) {
        const bool isMeant = which.hasSize(file.size) && files.isWanted(file.place);
        if (isMeant && copies.isOnOneVolume(file.place)) visit(file);
      },
      stop);
}

std::vector<FileSum> singleFilesInFolders(const Copies& copies, const WhichFiles& which,
                                          const StopAsked& stop) {
  std::vector<FileSum> sums(copies.files().folders().count());
  const auto add = [&](ListedFiles::Visited& file) { sums[file.folder].add(file.size); };
  if (!visitSingleFiles(copies, which, add, stop)) sums.clear();
  return sums;
}

std::vector<FileSum> sumsOfVolumes(const FolderTree& folders, const std::vector<FileSum>& inFolders) {
  std::vector<FileSum> sums(folders.volumes().size());
  for (std::uint32_t folder = 0; folder < inFolders.size(); ++folder) {
    sums[folders.volumeOf(folder)].add(inFolders[folder]);
  }
  return sums;
}

FileSum sumOf(const std::vector<FileSum>& sums) {
  FileSum whole;
  for (const FileSum& sum : sums) whole.add(sum);
  return whole;
}

std::vector<std::uint32_t> largestFirst(const std::vector<FileSum>& sums) {
  std::vector<std::uint32_t> numbers;
  for (std::uint32_t i = 0; i < sums.size(); ++i) {
    if (sums[i].files > 0) numbers.push_back(i);
  }
  std::ranges::stable_sort(numbers, [&](std::uint32_t a, std::uint32_t b) {
    return std::tie(sums[a].bytes, sums[a].files) > std::tie(sums[b].bytes, sums[b].files);
  });
  return numbers;
}

}  // namespace quorvin
