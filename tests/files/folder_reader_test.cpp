// SPDX-License-Identifier: GPL-2.0-or-later
#include "files/folder_reader.h"

#include "support/descriptors.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace quorvin {
namespace {

using Names = std::vector<std::pair<std::string, NameKind>>;

// The names of the current folder, sorted.
Names namesOf(FolderReader& reader) {
  Names names;
  FolderName name;
  while (reader.next(name) == 0 && !name.bytes.empty()) names.emplace_back(name.bytes, name.kind);
  std::sort(names.begin(), names.end());
  return names;
}

std::string pathIn(const TemporaryFolder& folder, const char* name) {
  return folder.pathOf(QString::fromUtf8(name)).toStdString();
}

TEST(FolderReader, GivesNamesWithTheirKindsButNoHiddenOnes) {
  const TemporaryFolder folder;
  folder.writeFile(u"file"_qs, "12345");
  folder.writeFile(u".hidden"_qs, "");
  folder.makeFolder(u"sub"_qs);
  folder.makeFolder(u".hidden sub"_qs);
  ASSERT_EQ(::symlink("file", pathIn(folder, "link").c_str()), 0);
  ASSERT_EQ(::mkfifo(pathIn(folder, "pipe").c_str(), 0600), 0);
  const auto reader = makeFolderReader();
  ASSERT_EQ(reader->enterTop(folder.path()), 0);
  EXPECT_EQ(namesOf(*reader), (Names{{"file", NameKind::File},
                                     {"link", NameKind::Link},
                                     {"pipe", NameKind::Other},
                                     {"sub", NameKind::Folder}}));
}

TEST(FolderReader, GivesEveryNameOfALargeFolderOnce) {
  const TemporaryFolder folder;
  Names expected;
  for (int i = 0; i < 1500; ++i) {
    const QString name = u"a name that is not short %1"_qs.arg(i, 5, 10, QLatin1Char('0'));
    folder.writeFile(name, "");
    expected.emplace_back(name.toStdString(), NameKind::File);
  }
  const auto reader = makeFolderReader();
  ASSERT_EQ(reader->enterTop(folder.path()), 0);
  EXPECT_EQ(namesOf(*reader), expected);
}

TEST(FolderReader, LooksUpSizeAndTimeAndFollowsLinks) {
  const TemporaryFolder folder;
  const QString file = folder.writeFile(u"file"_qs, "12345");
  const timespec times[2] = {{1'074'162'030, 999}, {1'074'162'030, 999'999'999}};
  ASSERT_EQ(::utimensat(AT_FDCWD, file.toUtf8().constData(), times, 0), 0);
  ASSERT_EQ(::symlink("file", pathIn(folder, "link").c_str()), 0);
  ASSERT_EQ(::symlink("gone", pathIn(folder, "broken").c_str()), 0);
  ASSERT_EQ(::symlink("loop", pathIn(folder, "loop").c_str()), 0);
  ASSERT_EQ(::symlink(".", pathIn(folder, "here").c_str()), 0);
  const auto reader = makeFolderReader();
  ASSERT_EQ(reader->enterTop(folder.path()), 0);
  for (const char* name : {"file", "link"}) {
    NameStatus status;
    EXPECT_EQ(reader->lookUp(name, status), 0);
    EXPECT_EQ(status.kind, NameKind::File);
    EXPECT_EQ(status.size, 5);
    EXPECT_EQ(status.modified, 1'074'162'030);
  }
  NameStatus status;
  EXPECT_EQ(reader->lookUp("broken", status), ENOENT);
  EXPECT_EQ(reader->lookUp("loop", status), ELOOP);
  EXPECT_EQ(reader->lookUp("here", status), 0);
  EXPECT_EQ(status.kind, NameKind::Folder);
}

TEST(FolderReader, EntersFoldersButNoLinksToThem) {
  const TemporaryFolder folder;
  folder.writeFile(u"sub/inner"_qs, "");
  ASSERT_EQ(::symlink("sub", pathIn(folder, "link").c_str()), 0);
  const auto reader = makeFolderReader();
  ASSERT_EQ(reader->enterTop(folder.path()), 0);
  EXPECT_EQ(reader->enter("link"), ENOTDIR);
  EXPECT_EQ(reader->enter("gone"), ENOENT);
  ASSERT_EQ(reader->enter("sub"), 0);
  EXPECT_EQ(namesOf(*reader), (Names{{"inner", NameKind::File}}));
  reader->leave();
  NameStatus status;
  EXPECT_EQ(reader->lookUp("sub", status), 0);
}

TEST(FolderReader, ATopMayBeALink) {
  const TemporaryFolder folder;
  folder.writeFile(u"sub/inner"_qs, "");
  ASSERT_EQ(::symlink("sub", pathIn(folder, "link").c_str()), 0);
  const auto reader = makeFolderReader();
  ASSERT_EQ(reader->enterTop(folder.pathOf(u"link"_qs)), 0);
  EXPECT_EQ(namesOf(*reader), (Names{{"inner", NameKind::File}}));
}

TEST(FolderReader, WhatIsNoFolderIsNoTop) {
  const TemporaryFolder folder;
  const auto reader = makeFolderReader();
  EXPECT_EQ(reader->enterTop(folder.writeFile(u"file"_qs, "")), ENOTDIR);
  EXPECT_EQ(reader->enterTop(folder.pathOf(u"gone"_qs)), ENOENT);
  EXPECT_EQ(reader->enterTop(QString()), ENOENT);
  EXPECT_EQ(reader->enterTop(folder.path() + QChar(u'\0') + u"x"_qs), ENOENT);
}

TEST(FolderReader, KnowsWhetherThePathStillLeadsToTheTop) {
  const TemporaryFolder folder;
  const QString path = folder.makeFolder(u"top"_qs);
  const auto reader = makeFolderReader();
  ASSERT_EQ(reader->enterTop(path), 0);
  reader->leave();
  EXPECT_TRUE(reader->topIsStillAt(path));
  ASSERT_EQ(::rename(pathIn(folder, "top").c_str(), pathIn(folder, "moved").c_str()), 0);
  EXPECT_FALSE(reader->topIsStillAt(path));
  folder.makeFolder(u"top"_qs);
  EXPECT_FALSE(reader->topIsStillAt(path));
  EXPECT_TRUE(reader->topIsStillAt(folder.pathOf(u"moved"_qs)));
}

// A chain "d/d/d/..." of folders, each with a sub-folder "z" beside the next one. Made and removed step by
// step, since its paths are longer than the system takes.
class FolderChain {
 public:
  FolderChain(const TemporaryFolder& folder, int depth) : depth_(depth) {
    int at = ::open(folder.path().toUtf8().constData(), O_RDONLY | O_DIRECTORY);
    for (int i = 0; i < depth; ++i) {
      const bool made = ::mkdirat(at, "d", 0700) == 0 && ::mkdirat(at, "z", 0700) == 0;
      const int below = made ? ::openat(at, "d", O_RDONLY | O_DIRECTORY) : -1;
      ::close(at);
      at = below;
    }
    bottom_ = at;
  }
  ~FolderChain() {
    for (int i = 0; i < depth_; ++i) {
      const int above = ::openat(bottom_, "..", O_RDONLY | O_DIRECTORY);
      ::close(bottom_);
      bottom_ = above;
      ::unlinkat(bottom_, "d", AT_REMOVEDIR);
      ::unlinkat(bottom_, "z", AT_REMOVEDIR);
    }
    ::close(bottom_);
  }
  bool made() const { return bottom_ >= 0; }

 private:
  int depth_;
  int bottom_ = -1;
};

TEST(FolderReader, FindsItsWayBackFrom5000LevelsWithFewFoldersOpen) {
  const TemporaryFolder folder;
  constexpr int kDepth = 5000;
  const FolderChain chain(folder, kDepth);
  ASSERT_TRUE(chain.made());
  const auto reader = makeFolderReader(4);
  ASSERT_EQ(reader->enterTop(folder.path()), 0);
  for (int i = 0; i < kDepth; ++i) ASSERT_EQ(reader->enter("d"), 0) << i;
  for (int i = kDepth; i > 0; --i) {
    reader->leave();
    ASSERT_EQ(reader->enter("z"), 0) << i;
    reader->leave();
  }
  EXPECT_EQ(reader->enter("d"), 0);
}

TEST(FolderReader, GivesFoldersUpWhenTheProcessMayOpenNoMore) {
  const TemporaryFolder folder;
  constexpr int kDepth = 200;
  const FolderChain chain(folder, kDepth);
  ASSERT_TRUE(chain.made());
  const test::FewDescriptors few(40);
  const auto reader = makeFolderReader();
  ASSERT_EQ(reader->enterTop(folder.path()), 0);
  for (int i = 0; i < kDepth; ++i) ASSERT_EQ(reader->enter("d"), 0) << i;
  for (int i = 0; i < kDepth; ++i) reader->leave();
}

TEST(FolderReader, FindsAFolderAgainWhoseSubFolderWasMovedAway) {
  const TemporaryFolder folder;
  folder.makeFolder(u"a/b/c/d"_qs);
  folder.makeFolder(u"a/z"_qs);
  const auto reader = makeFolderReader(2);
  ASSERT_EQ(reader->enterTop(folder.path()), 0);
  for (const char* name : {"a", "b", "c", "d"}) ASSERT_EQ(reader->enter(name), 0);
  // The way up from "c" leads elsewhere now.
  ASSERT_EQ(::rename(pathIn(folder, "a/b/c").c_str(), pathIn(folder, "moved").c_str()), 0);
  for (int i = 0; i < 3; ++i) reader->leave();
  EXPECT_EQ(reader->enter("z"), 0);
}

TEST(FolderReader, AFolderThatCannotBeFoundAgainHoldsNothing) {
  const TemporaryFolder folder;
  folder.makeFolder(u"a/b/c/d"_qs);
  folder.makeFolder(u"a/z"_qs);
  folder.makeFolder(u"other"_qs);
  const auto reader = makeFolderReader(2);
  ASSERT_EQ(reader->enterTop(folder.path()), 0);
  for (const char* name : {"a", "b", "c", "d"}) ASSERT_EQ(reader->enter(name), 0);
  ASSERT_EQ(::rename(pathIn(folder, "a/b/c").c_str(), pathIn(folder, "moved").c_str()), 0);
  ASSERT_EQ(::rename(pathIn(folder, "a").c_str(), pathIn(folder, "a2").c_str()), 0);
  for (int i = 0; i < 3; ++i) reader->leave();
  NameStatus status;
  EXPECT_EQ(reader->enter("z"), ENOENT);
  EXPECT_EQ(reader->lookUp("z", status), ENOENT);
  // The top is found again by its path.
  reader->leave();
  EXPECT_EQ(reader->enter("other"), 0);
}

TEST(FolderReader, AFolderThatTooFewDescriptorsHideIsNotTakenForOneThatIsGone) {
  const TemporaryFolder folder;
  folder.makeFolder(u"a/b/c"_qs);
  folder.makeFolder(u"a/z"_qs);
  const auto reader = makeFolderReader(2);
  ASSERT_EQ(reader->enterTop(folder.path()), 0);
  for (const char* name : {"a", "b", "c"}) ASSERT_EQ(reader->enter(name), 0);
  {
    const test::FewDescriptors none(0);
    EXPECT_TRUE(reader->topIsStillAt(folder.path()));
    reader->leave();
    reader->leave();
  }
  FolderName name;
  NameStatus status;
  EXPECT_EQ(reader->enter("z"), EMFILE);
  EXPECT_EQ(reader->lookUp("z", status), EMFILE);
  EXPECT_EQ(reader->next(name), EMFILE);
}

}  // namespace
}  // namespace quorvin
