// SPDX-License-Identifier: GPL-2.0-or-later

// The walk when folders and names cannot be read.
#include "index/walk_fixture.h"
#include "support/fault_number.h"

#include <cerrno>
#include <unistd.h>

namespace quorvin {
namespace {

using test::fakeFile;
using test::FakeFolders;
using test::head;

class DirIOFaults : public test::WalkTest {
 protected:
  DirIOFaults() {
    folders.addFolder("D:\\a\\", {"one", "two"});
    folders.addFolder("D:\\a\\b\\", {"three"});
    folders.addFolder("D:\\a\\c\\");
  }

  QByteArray walk() { return WalkTest::walk(folders, u"D:\\a\\"_qs, kWindowsPaths); }
  void answer(std::deque<FaultAnswer> answers) { messages.faultAnswers = std::move(answers); }

  const QByteArray top = head("\\a\\") + "<DIR> b\r\n<DIR> c\r\n\r\n";
  const QByteArray unknown = fakeFile("one", "-1", "00:00:00");
  FakeFolders folders{'\\'};
};

TEST_F(DirIOFaults, AFileThatIsGoneHasSizeMinus1AndIsNotLogged) {
  folders.lookUpErrors["D:\\a\\one"] = {ENOENT};
  EXPECT_TRUE(walk().startsWith(top + unknown + fakeFile("two") + head("\\a\\b\\")));
  EXPECT_EQ(state.errorLog, QString());
  EXPECT_TRUE(messages.askedOfFaults.empty());
}

TEST_F(DirIOFaults, AFileThatIsNotAccessibleIsLoggedAndListed) {
  folders.lookUpErrors["D:\\a\\one"] = {EACCES};
  EXPECT_TRUE(walk().startsWith(top + unknown + fakeFile("two") + head("\\a\\b\\")));
  EXPECT_EQ(state.errorLog, u"In D:\\a\\:\r\none Access Error (invalid name or permission)\r\n"_qs);
  EXPECT_TRUE(messages.askedOfFaults.empty());
}

TEST_F(DirIOFaults, FilesOfOneFolderThatAreNotAccessibleHaveItAboveThemOnce) {
  folders.lookUpErrors["D:\\a\\one"] = {EACCES};
  folders.lookUpErrors["D:\\a\\two"] = {EACCES};
  folders.lookUpErrors["D:\\a\\b\\three"] = {EACCES};
  walk();
  EXPECT_EQ(state.errorLog,
            u"In D:\\a\\:\r\none Access Error (invalid name or permission)\r\n"
            "two Access Error (invalid name or permission)\r\n"
            "In D:\\a\\b\\:\r\nthree Access Error (invalid name or permission)\r\n"_qs);
}

TEST_F(DirIOFaults, AnotherLineBetweenAccessErrorsHasTheFolderNamedAgain) {
  folders.addName("D:\\a\\", "first", NameKind::Link);
  folders.addName("D:\\a\\", "gone", NameKind::Link);
  folders.addName("D:\\a\\", "last", NameKind::Link);
  folders.lookUpErrors["D:\\a\\first"] = {EACCES};
  folders.lookUpErrors["D:\\a\\gone"] = {ENOENT};
  folders.lookUpErrors["D:\\a\\last"] = {EACCES};
  walk();
  EXPECT_EQ(state.errorLog,
            u"In D:\\a\\:\r\nfirst Access Error (invalid name or permission)\r\n"
            "D:\\a\\gone File not found (invalid name)\r\n"
            "In D:\\a\\:\r\nlast Access Error (invalid name or permission)\r\n"_qs);
}

TEST_F(DirIOFaults, ABrokenLinkIsLoggedAndLeftOut) {
  folders.addName("D:\\a\\", "broken", NameKind::Link);
  folders.lookUpErrors["D:\\a\\broken"] = {ENOENT};
  EXPECT_TRUE(walk().startsWith(top + fakeFile("one") + fakeFile("two") + head("\\a\\b\\")));
  EXPECT_EQ(state.errorLog, u"D:\\a\\broken File not found (invalid name)\r\n"_qs);
}

TEST_F(DirIOFaults, AFolderThatIsGoneIsItsHeadAloneAndLogged) {
  folders.enterErrors["D:\\a\\b\\"] = {ENOENT};
  EXPECT_EQ(walk(), top + fakeFile("one") + fakeFile("two") + head("\\a\\b\\") + head("\\a\\c\\"));
  EXPECT_EQ(state.errorLog, u"D:\\a\\b\\ File not found (invalid name)\r\n"_qs);
}

TEST_F(DirIOFaults, AFolderThatHasBecomeAFileIsNotFoundEither) {
  folders.enterErrors["D:\\a\\b\\"] = {ENOTDIR};
  walk();
  EXPECT_EQ(state.errorLog, u"D:\\a\\b\\ File not found (invalid name)\r\n"_qs);
  EXPECT_TRUE(messages.askedOfFaults.empty());
}

TEST_F(DirIOFaults, AFolderWithoutPermissionIsNamedInTheLog) {
  folders.enterErrors["D:\\a\\b\\"] = {EPERM};
  EXPECT_TRUE(walk().endsWith(head("\\a\\b\\") + head("\\a\\c\\")));
  EXPECT_EQ(state.errorLog, u"D:\\a\\b\\ Access Error (invalid name or permission)\r\n"_qs);
}

TEST_F(DirIOFaults, AFolderThatVanishesWhileItIsReadKeepsWhatWasRead) {
  folders.nextErrors["D:\\a\\"] = {0, ENOENT};
  EXPECT_EQ(walk(), head("\\a\\") + fakeFile("one"));
  EXPECT_EQ(state.errorLog, u"D:\\a\\ File not found (invalid name)\r\n"_qs);
}

TEST_F(DirIOFaults, OtherFaultsAreAskedAbout) {
  folders.lookUpErrors["D:\\a\\one"] = {EIO};
  answer({FaultAnswer::Ignore});
  walk();
  ASSERT_EQ(messages.askedOfFaults.size(), 1U);
  EXPECT_EQ(messages.askedOfFaults[0],
            u"Error Number: 57 Device I/O error\r\nError reading:one Skipping."_qs);
}

TEST_F(DirIOFaults, AQuestionAboutAWholeFolderNamesIt) {
  folders.enterErrors["D:\\a\\b\\"] = {EIO};
  answer({FaultAnswer::Ignore});
  EXPECT_TRUE(walk().endsWith(head("\\a\\b\\") + head("\\a\\c\\")));
  ASSERT_EQ(messages.askedOfFaults.size(), 1U);
  EXPECT_EQ(messages.askedOfFaults[0],
            u"Error Number: 57 Device I/O error\r\nError reading:D:\\a\\b\\ Skipping."_qs);
}

TEST_F(DirIOFaults, RetryRepeatsTheStepThatFailed) {
  folders.lookUpErrors["D:\\a\\one"] = {EIO, EIO};
  folders.enterErrors["D:\\a\\b\\"] = {EIO};
  folders.nextErrors["D:\\a\\b\\"] = {EIO};
  answer({FaultAnswer::Retry, FaultAnswer::Retry, FaultAnswer::Retry, FaultAnswer::Retry});
  EXPECT_EQ(walk(), top + fakeFile("one") + fakeFile("two") + head("\\a\\b\\") + fakeFile("three") +
                        head("\\a\\c\\"));
  EXPECT_EQ(messages.askedOfFaults.size(), 4U);
  EXPECT_EQ(state.errorLog, QString());
}

TEST_F(DirIOFaults, IgnoreGoesOnWithTheNextStep) {
  folders.lookUpErrors["D:\\a\\one"] = {EIO};
  answer({FaultAnswer::Ignore});
  EXPECT_TRUE(walk().startsWith(top + unknown + fakeFile("two") + head("\\a\\b\\")));
  EXPECT_FALSE(state.AbortRequested);
}

TEST_F(DirIOFaults, AbortLeavesTheFolderAndTheWalkGoesOnBesideIt) {
  folders.addFolder("D:\\a\\b\\deep\\");
  folders.lookUpErrors["D:\\a\\b\\three"] = {EIO};
  answer({FaultAnswer::Abort});
  EXPECT_EQ(walk(), top + fakeFile("one") + fakeFile("two") + head("\\a\\b\\") + "<DIR> deep\r\n\r\n" +
                        head("\\a\\c\\"));
  EXPECT_FALSE(state.AbortRequested);
}

TEST_F(DirIOFaults, AbortWhileNamesAreReadLeavesTheHeadAlone) {
  folders.nextErrors["D:\\a\\b\\"] = {0, EIO};
  answer({FaultAnswer::Abort});
  EXPECT_TRUE(walk().endsWith(fakeFile("two") + head("\\a\\b\\") + head("\\a\\c\\")));
}

TEST_F(DirIOFaults, AnyOtherAnswerIsAStopRequest) {
  folders.lookUpErrors["D:\\a\\b\\three"] = {EIO};
  answer({FaultAnswer::Closed});
  EXPECT_EQ(walk(), top + fakeFile("one") + fakeFile("two") + head("\\a\\b\\"));
  EXPECT_TRUE(state.AbortRequested);
}

TEST_F(DirIOFaults, ATopThatCannotBeOpenedIsToldToTheCaller) {
  folders.enterErrors["D:\\a\\"] = {ENOENT};
  EXPECT_EQ(walk(), head("\\a\\"));
  EXPECT_FALSE(result.opened);
}

TEST_F(DirIOFaults, TooFewDescriptorsOrTooLittleMemoryEndTheWalk) {
  for (const int error : {EMFILE, ENFILE, ENOMEM}) {
    folders.enterErrors["D:\\a\\b\\"] = {error};
    EXPECT_FAULT(walk(), 75) << error;
    EXPECT_EQ(folders.depth(), 0U);
  }
  EXPECT_EQ(state.errorLog, QString());
  EXPECT_TRUE(messages.askedOfFaults.empty());
}

TEST_F(DirIOFaults, AWalkThatListedAllItCouldReadIsWhole) {
  folders.enterErrors["D:\\a\\b\\"] = {EACCES};
  walk();
  EXPECT_TRUE(result.isWhole);
  EXPECT_EQ(result.files, 2);
  EXPECT_EQ(result.leftOut, 0);
}

TEST_F(DirIOFaults, AFolderThatIsLeftMakesTheWalkIncomplete) {
  folders.lookUpErrors["D:\\a\\b\\three"] = {EIO};
  answer({FaultAnswer::Abort});
  walk();
  EXPECT_FALSE(result.isWhole);
  walk();
  EXPECT_TRUE(result.isWhole);
}

TEST_F(DirIOFaults, AStopRequestMakesTheWalkIncompleteOnlyWhereFoldersAreLeftOut) {
  state.AbortRequested = true;
  walk();
  EXPECT_FALSE(result.isWhole);
  FakeFolders single('\\');
  single.addFolder("D:\\a\\");
  single.addFolder("D:\\a\\b\\");
  single.addName("D:\\a\\", "link", NameKind::Link);
  single.targets["D:\\a\\link"] = {NameKind::Folder, 0, 0};
  WalkTest::walk(single, u"D:\\a\\"_qs, kWindowsPaths);
  EXPECT_TRUE(result.isWhole);
}

std::vector<std::string> numbered(std::size_t count) {
  std::vector<std::string> names;
  for (std::size_t i = 0; i < count; ++i) names.push_back(std::to_string(i));
  return names;
}

TEST_F(DirIOFaults, A31001FilesFitTheTable) {
  FakeFolders many('\\');
  many.addFolder("D:\\a\\", numbered(31'001));
  EXPECT_EQ(WalkTest::walk(many, u"D:\\a\\"_qs, kWindowsPaths).count(" bytes "), 31'001);
  EXPECT_TRUE(messages.askedOfFaults.empty());
}

TEST_F(DirIOFaults, MoreFilesAreAnOverflowAndIgnoreLeavesTheRestOut) {
  FakeFolders many('\\');
  many.addFolder("D:\\a\\", numbered(31'006));
  answer({FaultAnswer::Retry, FaultAnswer::Ignore});
  const QByteArray listing = WalkTest::walk(many, u"D:\\a\\"_qs, kWindowsPaths);
  EXPECT_EQ(listing.count(" bytes "), 31'001);
  EXPECT_TRUE(listing.endsWith(fakeFile("31000")));
  ASSERT_EQ(messages.askedOfFaults.size(), 2U);
  EXPECT_EQ(messages.askedOfFaults[1],
            u"Error Number: 9 Subscript out of range\r\nError reading:31001 Skipping."
            "\r\nLeft out: 5 of 31006 files in D:\\a\\"_qs);
  EXPECT_EQ(result.leftOut, 5);
  EXPECT_EQ(result.files, 31'001);
  EXPECT_EQ(state.errorLog, u"D:\\a\\ holds too many files; 5 names were left out\r\n"_qs);
}

TEST_F(DirIOFaults, AbortAtTooManyFilesWritesNone) {
  FakeFolders many('\\');
  many.addFolder("D:\\a\\", numbered(31'002));
  many.addFolder("D:\\a\\b\\");
  answer({FaultAnswer::Abort});
  EXPECT_EQ(WalkTest::walk(many, u"D:\\a\\"_qs, kWindowsPaths), head("\\a\\") + "<DIR> b\r\n\r\n");
  EXPECT_EQ(state.errorLog, QString());
}

TEST_F(DirIOFaults, MoreThan10001SubFoldersAreAnOverflowAndIgnoreLeavesTheRestOut) {
  FakeFolders many('\\');
  many.addFolder("D:\\a\\");
  for (const std::string& name : numbered(10'004)) many.addFolder("D:\\a\\" + name + '\\');
  many.addName("D:\\a\\", "file", NameKind::File);
  answer({FaultAnswer::Ignore});
  const QByteArray listing = WalkTest::walk(many, u"D:\\a\\"_qs, kWindowsPaths);
  EXPECT_EQ(listing.count("<DIR>"), 10'001);
  EXPECT_EQ(listing.count("Directory:"), 1 + 10'001);
  EXPECT_TRUE(listing.contains("<DIR> 10000\r\n\r\n" + fakeFile("file")));
  ASSERT_EQ(messages.askedOfFaults.size(), 1U);
  EXPECT_EQ(messages.askedOfFaults[0],
            u"Error Number: 9 Subscript out of range\r\nError reading:10001 Skipping."
            "\r\nLeft out: 3 of 10004 sub-folders in D:\\a\\"_qs);
  EXPECT_EQ(result.leftOut, 3);
  EXPECT_EQ(state.errorLog, u"D:\\a\\ holds too many sub-folders; 3 names were left out\r\n"_qs);
}

// The same on a real file system.
class DirIORealFaults : public test::WalkTest {};

TEST_F(DirIORealFaults, ABrokenLinkAndALinkLoopAreLogged) {
  ASSERT_EQ(::symlink("gone", (tree.path().toUtf8() + "broken").constData()), 0);
  EXPECT_EQ(walk(tree.path()), head(listed(tree.path())));
  EXPECT_EQ(state.errorLog, tree.path() + u"broken File not found (invalid name)\r\n"_qs);
  state.errorLog.clear();
  ASSERT_EQ(::unlink((tree.path().toUtf8() + "broken").constData()), 0);
  ASSERT_EQ(::symlink("loop", (tree.path().toUtf8() + "loop").constData()), 0);
  EXPECT_EQ(walk(tree.path()), head(listed(tree.path())));
  EXPECT_EQ(state.errorLog,
            u"In "_qs + tree.path() + u":\r\nloop Access Error (invalid name or permission)\r\n"_qs);
  EXPECT_TRUE(messages.askedOfFaults.empty());
}

TEST_F(DirIORealFaults, AFolderRemovedDuringTheWalkIsLogged) {
  tree.makeFolder(u"sub"_qs);
  view.onEvents = [this] {
    if (view.eventPasses == 2) QDir(tree.path()).rmdir(u"sub"_qs);
  };
  EXPECT_EQ(walk(tree.path()),
            head(listed(tree.path())) + "<DIR> sub\r\n\r\n" + head(listed(tree.path()) + "sub\\"));
  EXPECT_EQ(state.errorLog, tree.path() + u"sub/ File not found (invalid name)\r\n"_qs);
}

TEST_F(DirIORealFaults, AFileRemovedDuringTheWalkHasSizeMinus1) {
  tree.writeFile(u"a"_qs, "12345");
  for (int i = 0; i < 3; ++i) tree.writeFile(u"b%1"_qs.arg(i), "12345");
  // After the first file's line all others go.
  view.onEvents = [this] {
    if (view.shown.files == 0) return;
    for (const QString& name : tree.names()) QFile::remove(tree.pathOf(name));
  };
  const QByteArray listing = walk(tree.path());
  EXPECT_EQ(listing.count(" bytes "), 4);
  EXPECT_EQ(listing.count("-1 bytes 00:00:00\r\n"), 3);
  EXPECT_EQ(state.errorLog, QString());
}

// No folder is closed to the superuser, so that he becomes somebody else for the test.
class OrdinaryUser {
 public:
  OrdinaryUser() {
    constexpr uid_t kNobody = 65534;
    if (::geteuid() == 0 && ::seteuid(kNobody) != 0) throw std::runtime_error("seteuid");
  }
  ~OrdinaryUser() { EXPECT_EQ(::seteuid(::getuid()), 0); }
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;
};

class DirIOPermissions : private OrdinaryUser, public test::WalkTest {};

TEST_F(DirIOPermissions, AFolderWithoutPermissionIsLogged) {
  tree.writeFile(u"sub/inside"_qs, "");
  const QByteArray sub = tree.pathOf(u"sub"_qs).toUtf8();
  ASSERT_EQ(::chmod(sub.constData(), 0), 0);
  const QByteArray listing = walk(tree.path());
  ::chmod(sub.constData(), 0700);
  EXPECT_EQ(listing, head(listed(tree.path())) + "<DIR> sub\r\n\r\n" + head(listed(tree.path()) + "sub\\"));
  EXPECT_EQ(state.errorLog, tree.path() + u"sub/ Access Error (invalid name or permission)\r\n"_qs);
}

TEST_F(DirIOPermissions, FilesOfAFolderThatMayOnlyBeListedAreLogged) {
  tree.writeFile(u"sub/inside"_qs, "12345");
  const QByteArray sub = tree.pathOf(u"sub"_qs).toUtf8();
  ASSERT_EQ(::chmod(sub.constData(), 0400), 0);
  const QByteArray listing = walk(tree.path());
  ::chmod(sub.constData(), 0700);
  EXPECT_TRUE(listing.endsWith(head(listed(tree.path()) + "sub\\") + fakeFile("inside", "-1", "00:00:00")));
  EXPECT_EQ(state.errorLog,
            u"In "_qs + tree.path() + u"sub/:\r\ninside Access Error (invalid name or permission)\r\n"_qs);
}

}  // namespace
}  // namespace quorvin
