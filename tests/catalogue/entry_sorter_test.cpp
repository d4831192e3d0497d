// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/import/entry_sorter.h"

#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <random>

namespace quorvin {
namespace {

using namespace std::string_view_literals;

std::string textOf(const SortedEntry& entry) {
  std::string text(entry.folder);
  std::ranges::replace(text, '\0', '/');
  text += '|' + std::string(entry.name) + ' ' + std::to_string(entry.size.value_or(-1));
  text += ' ' + std::to_string(static_cast<int>(entry.kind)) + ' ' + std::to_string(entry.modified.seconds);
  return text;
}

std::vector<std::string> sorted(EntrySorter& sorter) {
  sorter.finish();
  std::vector<std::string> texts;
  SortedEntry entry;
  while (sorter.next(entry)) texts.push_back(textOf(entry));
  return texts;
}

TEST(EntrySorter, AFolderIsBeforeThoseWithinItAndEqualNamesStayInOrder) {
  const TemporaryFolder folder;
  EntrySorter sorter(folder.pathOf(u"listing.txt"_qs));
  sorter.add({"a b", "x", EntryKind::File, 1});
  sorter.add({"a\0b"sv, "x", EntryKind::File, 2});
  sorter.add({"a", "z", EntryKind::File, 4});
  sorter.add({"a", "z", EntryKind::File, 3});
  sorter.add({"", "a", EntryKind::Folder});
  sorter.add({"a", "", EntryKind::Folder});
  EXPECT_EQ(sorted(sorter), (std::vector<std::string>{"|a -1 1 0", "a| -1 1 0", "a|z 4 0 0", "a|z 3 0 0",
                                                      "a/b|x 2 0 0", "a b|x 1 0 0"}));
  EXPECT_EQ(sorter.fileCount(), 0U);
}

TEST(EntrySorter, WhatDoesNotFitIntoMemoryIsSortedInTheSameWayAndLeavesNoFiles) {
  const TemporaryFolder folder;
  {
    EntrySorter large(folder.pathOf(u"listing.txt"_qs));
    EntrySorter small(folder.pathOf(u"listing.txt"_qs), 5'000);
    std::mt19937 random(7);
    for (int i = 0; i < 3'000; ++i) {
      std::string path;
      for (unsigned depth = random() % 4; depth > 0; --depth) {
        path += (path.empty() ? ""sv : "\0"sv);
        path += static_cast<char>('a' + random() % 3);
      }
      const std::string name(random() % 3, static_cast<char>(random() % 256));
      const std::int64_t size = static_cast<std::int64_t>(random()) * 5;
      const SortedEntry entry{path,
                              name,
                              static_cast<EntryKind>(random() % 3),
                              i % 3 == 0 ? std::nullopt : std::optional(size),
                              {ListDate::Kind::Moment, i}};
      large.add(entry);
      small.add(entry);
    }
    EXPECT_EQ(sorted(small), sorted(large));
    EXPECT_GT(small.fileCount(), 10U);
    EXPECT_EQ(large.fileCount(), 0U);
  }
  EXPECT_EQ(folder.names(), QStringList());
}

}  // namespace
}  // namespace quorvin
