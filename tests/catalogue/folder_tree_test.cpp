// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/folder_tree.h"

#include <gmock/gmock.h>

namespace quorvin {
namespace {

TEST(FolderTree, GivesEachPathOfAVolumeOneFolderBelowThoseAboveIt) {
  FolderTree tree;
  const std::uint32_t volume = tree.addVolume(0, "A");
  const std::uint32_t songs = tree.addFolder(volume, "\\Music\\Songs\\");
  const std::uint32_t music = tree.parent(songs);
  EXPECT_EQ(tree.path(songs), "\\Music\\Songs\\");
  EXPECT_EQ(tree.path(music), "\\Music\\");
  EXPECT_EQ(tree.name(songs), "Songs");
  EXPECT_EQ(tree.addFolder(volume, "\\Music\\"), music);
  EXPECT_EQ(tree.addFolder(volume, "\\Music\\Songs"), songs);
  EXPECT_NE(tree.addFolder(volume, "\\music\\Songs"), songs);
  EXPECT_EQ(tree.path(tree.parent(music)), "\\");
  EXPECT_EQ(tree.path(tree.parent(tree.parent(music))), "");
  EXPECT_EQ(tree.parent(tree.parent(tree.parent(music))), FolderTree::kNone);
}

TEST(FolderTree, PathsThatShareTheirFirstLettersShareNoFolder) {
  FolderTree tree;
  const std::uint32_t volume = tree.addVolume(0, "A");
  const std::vector<std::string> paths = {"\\ab\\c\\", "\\a\\",    "\\ab\\cd\\", "\\ab\\",    "\\ab\\c\\d\\",
                                          "\\\\srv\\", "C:\\ab\\", "\\",         "\\ab\\c\\", "Music\\"};
  std::vector<std::uint32_t> folders;
  for (const std::string& path : paths) folders.push_back(tree.addFolder(volume, path));
  for (std::size_t i = 0; i < paths.size(); ++i) {
    EXPECT_EQ(tree.path(folders[i]), paths[i]);
    EXPECT_EQ(tree.addFolder(volume, paths[i]), folders[i]);
  }
  EXPECT_EQ(tree.path(tree.addFolder(volume, "")), "");
}

TEST(FolderTree, ThePathsOfTwoVolumesAreDifferentFolders) {
  FolderTree tree;
  const std::uint32_t one = tree.addVolume(0, "A");
  const std::uint32_t sameNameElsewhere = tree.addVolume(1, "A");
  const std::uint32_t other = tree.addVolume(1, "B");
  EXPECT_EQ(tree.addVolume(0, "A"), one);
  EXPECT_EQ(tree.addVolume(1, "A"), sameNameElsewhere);
  const std::uint32_t folder = tree.addFolder(one, "\\x\\");
  const std::uint32_t otherFolder = tree.addFolder(other, "\\x\\");
  EXPECT_NE(folder, otherFolder);
  EXPECT_EQ(tree.volumeOf(folder), one);
  EXPECT_EQ(tree.volumeOf(otherFolder), other);
  EXPECT_EQ(tree.addFolder(one, "\\x\\"), folder);
}

TEST(FolderTree, NamesAreComparedInLowerCase) {
  FolderTree tree;
  const std::uint32_t volume = tree.addVolume(0, "A");
  const std::uint32_t folder = tree.addFolder(volume, "\\\xC3\x84rger\\");
  const std::uint32_t other = tree.addFolder(volume, "\\x\\\xC3\xA4RGER\\");
  EXPECT_EQ(tree.nameInLowerCase(folder), tree.nameInLowerCase(other));
  EXPECT_NE(tree.nameInLowerCase(folder), tree.nameInLowerCase(tree.parent(other)));
}

TEST(FolderTree, KeepsThousandsOfFoldersApart) {
  FolderTree tree;
  const std::uint32_t volume = tree.addVolume(0, "A");
  for (int round = 0; round < 2; ++round) {
    for (std::uint32_t i = 0; i < 5000; ++i) {
      // Below the volume and its topmost folder.
      EXPECT_EQ(tree.addFolder(volume, "\\" + std::to_string(i) + "\\"), i + 2);
    }
  }
  EXPECT_EQ(tree.count(), 5002U);
}

}  // namespace
}  // namespace quorvin
