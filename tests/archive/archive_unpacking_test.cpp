// SPDX-License-Identifier: GPL-2.0-or-later

// What unpacking does with honest archives, and with ones that are damaged on the way.
#include "archive/archive_fixture.h"
#include "faults/runtime_fault.h"

#include <QTemporaryFile>

#include <algorithm>
#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>

namespace quorvin::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ArchiveUnpacking : public ArchiveTest {};

MadeEntry newer(const QByteArray& name) {
  MadeEntry entry;
  entry.name = name;
  if (!name.endsWith('/')) entry.content = "newer";
  return entry;
}

MadeEntry file(const QByteArray& name, const QByteArray& content) {
  MadeEntry entry;
  entry.name = name;
  entry.content = content;
  entry.method = kDeflated;
  return entry;
}

TEST_F(ArchiveUnpacking, PutsEveryFileAndFolderIntoTheTarget) {
  MadeEntry folder = file("empty/", "");
  folder.method = kStored;
  folder.mode = kFolderMode;
  MadeEntry stored = file("sub/deep/b.txt", "bb");
  stored.method = kStored;
  EXPECT_EQ(unpack({file("a.txt", "aaa"), folder, stored}), UnpackingOutcome::Unpacked);
  EXPECT_EQ(tree(), (Tree{{u"a.txt"_qs, "aaa"},
                          {u"empty/"_qs, ""},
                          {u"sub/"_qs, ""},
                          {u"sub/deep/"_qs, ""},
                          {u"sub/deep/b.txt"_qs, "bb"}}));
  EXPECT_THAT(record_.codes, IsEmpty());
}

TEST_F(ArchiveUnpacking, TakesAnArchiveWithoutEntries) {
  EXPECT_EQ(unpack(std::vector<MadeEntry>{}), UnpackingOutcome::Unpacked);
  EXPECT_EQ(tree(), Tree());
}

TEST_F(ArchiveUnpacking, TakesFilesWithoutContent) {
  EXPECT_EQ(unpack({file("a.txt", "")}), UnpackingOutcome::Unpacked);
  EXPECT_EQ(tree(), (Tree{{u"a.txt"_qs, ""}}));
  EXPECT_THAT(record_.percentages, ElementsAre(0, 100));
}

TEST_F(ArchiveUnpacking, ReplacesFilesOfTheSameNameAndLeavesOthers) {
  outer_.writeFile(u"target/a.txt"_qs, "a long earlier content");
  outer_.writeFile(u"target/other.txt"_qs, "other");
  EXPECT_EQ(unpack({file("a.txt", "new")}), UnpackingOutcome::Unpacked);
  EXPECT_EQ(tree(), (Tree{{u"a.txt"_qs, "new"}, {u"other.txt"_qs, "other"}}));
}

TEST_F(ArchiveUnpacking, HandsThePermissionsOfAReplacedFileOn) {
  const QString path = outer_.writeFile(u"target/a.txt"_qs, "old");
  ASSERT_TRUE(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner));
  EXPECT_EQ(unpack({file("a.txt", "new")}), UnpackingOutcome::Unpacked);
  struct stat status {};
  ASSERT_EQ(::stat(QFile::encodeName(path).constData(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777U, 0600U);
}

TEST_F(ArchiveUnpacking, ReplacesALinkAndNotWhatItLeadsTo) {
  const QString elsewhere = outer_.writeFile(u"elsewhere.txt"_qs, "mine");
  ASSERT_TRUE(QFile::link(elsewhere, target_ + u"a.txt"_qs));
  EXPECT_EQ(unpack({file("a.txt", "new")}), UnpackingOutcome::Unpacked);
  EXPECT_FALSE(QFileInfo(target_ + u"a.txt"_qs).isSymLink());
  EXPECT_EQ(outer_.readFile(u"elsewhere.txt"_qs), QByteArray("mine"));
  EXPECT_EQ(outer_.readFile(u"target/a.txt"_qs), QByteArray("new"));
}

TEST_F(ArchiveUnpacking, DoesNotGoThroughALinkToAFolder) {
  const QString elsewhere = outer_.makeFolder(u"elsewhere"_qs);
  ASSERT_TRUE(QFile::link(elsewhere, target_ + u"sub"_qs));
  try {
    unpack({file("sub/a.txt", "new")});
    ADD_FAILURE() << "the link was followed";
  } catch (const RuntimeFault& fault) {
    EXPECT_EQ(fault.number(), 75);
    EXPECT_EQ(fault.description(), u"Path/File access error: "_qs + target_ + u"sub"_qs);
  }
  EXPECT_EQ(treeOf(elsewhere), Tree());
}

TEST_F(ArchiveUnpacking, DoesNotReplaceAFolderByAFile) {
  outer_.writeFile(u"target/a.txt/inside.txt"_qs, "mine");
  try {
    unpack({file("a.txt", "new")});
    ADD_FAILURE() << "the folder was replaced";
  } catch (const RuntimeFault& fault) {
    EXPECT_EQ(fault.number(), 75);
  }
  EXPECT_EQ(tree(), (Tree{{u"a.txt/"_qs, ""}, {u"a.txt/inside.txt"_qs, "mine"}}));
}

TEST_F(ArchiveUnpacking, OfAFullDiskLeavesTheEarlierFileAndNothingElse) {
  outer_.writeFile(u"target/a.txt"_qs, "old");
  const QByteArray archive = archiveOf("a.txt", QByteArray(1 << 20, 'x'));
  archivePath_ = outer_.writeFile(u"lists.zip"_qs, archive);
  const auto before = std::signal(SIGXFSZ, SIG_IGN);
  rlimit limit{};
  ::getrlimit(RLIMIT_FSIZE, &limit);
  const rlimit small{100'000, limit.rlim_max};
  ::setrlimit(RLIMIT_FSIZE, &small);
  try {
    unpackFile(archivePath_, target_);
    ADD_FAILURE() << "the disk was not full";
  } catch (const RuntimeFault& fault) {
    EXPECT_EQ(fault.number(), 61);
  }
  ::setrlimit(RLIMIT_FSIZE, &limit);
  std::signal(SIGXFSZ, before);
  EXPECT_EQ(tree(), (Tree{{u"a.txt"_qs, "old"}}));
}

TEST_F(ArchiveUnpacking, OfAMissingTargetIsAFault) {
  const QString archive = outer_.writeFile(u"lists.zip"_qs, archiveOf("a.txt", "a"));
  try {
    unpackFile(archive, outer_.pathOf(u"nowhere/"_qs));
    ADD_FAILURE() << "the folder was found";
  } catch (const RuntimeFault& fault) {
    EXPECT_EQ(fault.number(), 53);
  }
}

TEST_F(ArchiveUnpacking, OfAMissingArchiveIsAnError) {
  EXPECT_EQ(unpackFile(outer_.pathOf(u"none.zip"_qs), target_), UnpackingOutcome::Failed);
  EXPECT_EQ(record_.descriptions,
            QStringList{u"The archive \"none.zip\" cannot be read. Nothing was unpacked."_qs});
}

TEST_F(ArchiveUnpacking, OfAFewBytesReportsNoMoreThanAll) {
  EXPECT_EQ(unpack({file("a.txt", "12345"), file("b.txt", "12345")}), UnpackingOutcome::Unpacked);
  EXPECT_THAT(record_.percentages, ElementsAre(0, 50, 100));
}

TEST_F(ArchiveUnpacking, ReportsEachPercentage) {
  EXPECT_EQ(unpack({file("a.txt", QByteArray(10 << 20, 'a')), file("b.txt", QByteArray(10 << 20, 'b'))}),
            UnpackingOutcome::Unpacked);
  EXPECT_EQ(record_.percentages.front(), 0);
  EXPECT_EQ(record_.percentages.back(), 100);
  EXPECT_GT(record_.percentages.size(), 90U);
  EXPECT_TRUE(std::is_sorted(record_.percentages.begin(), record_.percentages.end()));
  // Every 64 KiB, and at the start and the end.
  EXPECT_EQ(record_.pauses, 320 + 2);
}

TEST_F(ArchiveUnpacking, PausesAmongManySmallFiles) {
  std::vector<MadeEntry> entries;
  for (int i = 0; i < 2000; ++i) entries.push_back(file("f" + QByteArray::number(i), ""));
  EXPECT_EQ(unpack(entries), UnpackingOutcome::Unpacked);
  EXPECT_EQ(tree().size(), 2000U);
  // Every 256 entries of the directory, every 16 files, and at the start and the end.
  EXPECT_EQ(record_.pauses, 7 + 125 + 2);
}

TEST_F(ArchiveUnpacking, StopsWhenAsked) {
  outer_.writeFile(u"target/b.txt"_qs, "old");
  archivePath_ = outer_.writeFile(u"lists.zip"_qs,
                                  archiveOf({file("a.txt", "aaa"), file("b.txt", QByteArray(1 << 20, 'b'))}));
  record_.onPause = [this] { record_.stops = record_.pauses == 4; };
  EXPECT_EQ(unpackFile(archivePath_, target_), UnpackingOutcome::Stopped);
  EXPECT_EQ(record_.pauses, 4);
  EXPECT_EQ(tree(), (Tree{{u"a.txt"_qs, "aaa"}, {u"b.txt"_qs, "old"}}));
  EXPECT_THAT(record_.codes, IsEmpty());
}

TEST_F(ArchiveUnpacking, ReplacesTheArchiveItselfWhenItHoldsOneOfThatName) {
  const QByteArray archive = archiveOf({file("lists.zip", "inner"), file("z.txt", "zz")});
  const QString path = outer_.writeFile(u"target/lists.zip"_qs, archive);
  EXPECT_EQ(unpackFile(path, target_), UnpackingOutcome::Unpacked);
  EXPECT_EQ(tree(), (Tree{{u"lists.zip"_qs, "inner"}, {u"z.txt"_qs, "zz"}}));
}

TEST_F(ArchiveUnpacking, KeepsNamesOfAllScripts) {
  MadeEntry flagged = file("\xC3\x84rger \xE2\x82\xAC.txt", "1");
  constexpr std::uint16_t kUtf8 = 1U << 11U;
  flagged.flags = kUtf8;
  // The older code page of DOS.
  EXPECT_EQ(unpack({flagged, file("\x8E.txt", "2")}), UnpackingOutcome::Unpacked);
  EXPECT_EQ(tree(), (Tree{{u"Ärger €.txt"_qs, "1"}, {u"Ä.txt"_qs, "2"}}));
}

TEST_F(ArchiveUnpacking, TakesLargeFormArchives) {
  MadeEntry large = file("a.txt", "aaa");
  large.isLarge = true;
  ArchiveForm form;
  form.largeEnd = true;
  EXPECT_EQ(unpack(archiveOf({large, file("b.txt", "b")}, form)), UnpackingOutcome::Unpacked);
  EXPECT_EQ(tree(), (Tree{{u"a.txt"_qs, "aaa"}, {u"b.txt"_qs, "b"}}));
}

TEST_F(ArchiveUnpacking, TakesTheArchiveAtTheFrontOfALongerEarlierOne) {
  const QByteArray earlier = archiveOf({file("old.txt", "old"), file("older.txt", "older content")});
  const QByteArray later = archiveOf("new.txt", "new");
  EXPECT_EQ(unpack(later + earlier.sliced(later.size())), UnpackingOutcome::Unpacked);
  EXPECT_EQ(tree(), (Tree{{u"new.txt"_qs, "new"}}));
}

TEST_F(ArchiveUnpacking, TakesOnlyAsMuchOfTheFileAsItIsTold) {
  // The earlier archive would make sense as a whole: its first entry is just the same.
  const QByteArray later = archiveOf("a.txt", "same");
  const QByteArray earlier = archiveOf({file("a.txt", "same"), file("b.txt", "stale content")});
  const QByteArray bytes = later + earlier.sliced(later.size());
  const QString path = outer_.writeFile(u"lists.zip"_qs, bytes);
  EXPECT_EQ(unpackFile(path, target_, {}, later.size()), UnpackingOutcome::Unpacked);
  EXPECT_EQ(tree(), (Tree{{u"a.txt"_qs, "same"}}));
}

TEST_F(ArchiveUnpacking, WritesNothingAsideThatStays) {
  MadeEntry damaged = file("b.txt", "bbb");
  damaged.toldChecksum = 1;
  EXPECT_EQ(unpack({file("a.txt", "a"), damaged, file("c.txt", "c")}), UnpackingOutcome::Failed);
  EXPECT_EQ(tree(), (Tree{{u"a.txt"_qs, "a"}}));
}

TEST_F(ArchiveUnpacking, WhatIsProtectedIsLeftOutAndNamed) {
  outer_.writeFile(u"target/mine.txt"_qs, "earlier");
  archivePath_ = outer_.writeFile(
      u"lists.zip"_qs, archiveOf({newer("mine.txt"), newer("sub/"), newer("sub/a.txt"), newer("b.txt")}));
  const auto isProtected = [](const QStringList& path) {
    return path.join(u'/') == u"mine.txt" || path.first() == u"sub";
  };
  const UnpackingResult result =
      unpackArchive(archivePath_, target_, record_.pause(), {.isProtected = isProtected});
  EXPECT_EQ(result.outcome, UnpackingOutcome::Unpacked);
  EXPECT_EQ(result.leftOut, QStringList({u"mine.txt"_qs, u"sub/a.txt"_qs}));
  EXPECT_EQ(tree(), (Tree{{u"b.txt"_qs, "newer"}, {u"mine.txt"_qs, "earlier"}, {u"sub/"_qs, {}}}));
  EXPECT_EQ(record_.percentages.back(), 100);
}

TEST_F(ArchiveUnpacking, WhatIsProtectedIsJudgedLikeTheRest) {
  MadeEntry encrypted = newer("mine.txt");
  encrypted.flags = 1;
  encrypted.packed = QByteArray(12, 'k') + "newer";
  archivePath_ = outer_.writeFile(u"lists.zip"_qs, archiveOf({newer("a.txt"), encrypted}));
  const UnpackingResult result =
      unpackArchive(archivePath_, target_, record_.pause(),
                    {.isProtected = [](const QStringList& path) { return path.first() == u"mine.txt"; }});
  EXPECT_EQ(result.errorCode, ArchiveErrorCode::Encrypted);
  EXPECT_EQ(tree(), Tree{});
}

}  // namespace
}  // namespace quorvin::test
