// SPDX-License-Identifier: GPL-2.0-or-later

// The walk over folders that hold no surprises.
#include "index/walk_fixture.h"
#include "support/fault_number.h"

#include <unistd.h>

namespace quorvin {
namespace {

using test::fakeFile;
using test::FakeFolders;
using test::head;

class DirIOWalk : public test::WalkTest {
 protected:
  FakeFolders windows{'\\'};
  FakeFolders linux_{'/'};
};

TEST_F(DirIOWalk, WritesABlockForEachFolderBeforeThoseOfItsSubFolders) {
  windows.addFolder("D:\\Music\\", {"one.mp3", "two.mp3"});
  windows.addFolder("D:\\Music\\Rock\\", {"three.mp3"});
  windows.addFolder("D:\\Music\\Rock\\Live\\");
  windows.addFolder("D:\\Music\\Jazz\\");
  EXPECT_EQ(walk(windows, u"D:\\Music\\"_qs, kWindowsPaths),
            head("\\Music\\") + "<DIR> Rock\r\n<DIR> Jazz\r\n\r\n" + fakeFile("one.mp3") +
                fakeFile("two.mp3") + head("\\Music\\Rock\\") + "<DIR> Live\r\n\r\n" + fakeFile("three.mp3") +
                head("\\Music\\Rock\\Live\\") + head("\\Music\\Jazz\\"));
  EXPECT_TRUE(result.opened);
  EXPECT_EQ(counts.folders, 4);
  EXPECT_EQ(counts.files, 3);
  EXPECT_EQ(windows.depth(), 0U);
}

TEST_F(DirIOWalk, ListsLinuxPathsWithBackslashes) {
  linux_.addFolder("/home/ann/", {"a"});
  linux_.addFolder("/home/ann/b c/");
  EXPECT_EQ(walk(linux_, u"/home/ann/"_qs, kUnixPaths),
            head("\\home\\ann\\") + "<DIR> b c\r\n\r\n" + fakeFile("a") + head("\\home\\ann\\b c\\"));
}

TEST_F(DirIOWalk, ADriveRootIsASingleBackslash) {
  windows.addFolder("D:\\", {"a"});
  EXPECT_EQ(walk(windows, u"D:\\"_qs, kWindowsPaths), head("\\") + fakeFile("a"));
  linux_.addFolder("/", {"a"});
  EXPECT_EQ(walk(linux_, u"/"_qs, kUnixPaths), head("\\") + fakeFile("a"));
}

TEST_F(DirIOWalk, ADriveAloneIsIndexedAsItsRootAndTheCallersPathIsCompleted) {
  windows.addFolder("D:\\", {"a"});
  EXPECT_EQ(walk(windows, u"D:"_qs, kWindowsPaths), head("\\") + fakeFile("a"));
  EXPECT_EQ(pathAfterwards, u"D:\\"_qs);
  linux_.addFolder("/music/", {"a"});
  EXPECT_EQ(walk(linux_, u"/music"_qs, kUnixPaths), head("\\music\\") + fakeFile("a"));
  EXPECT_EQ(pathAfterwards, u"/music/"_qs);
}

TEST_F(DirIOWalk, APathTooShortToNameAFolderWritesNothing) {
  for (const QString& path : {u""_qs, u"\\"_qs, u"D"_qs}) {
    EXPECT_EQ(walk(windows, path, kWindowsPaths), "") << path.toStdString();
    EXPECT_FALSE(result.opened);
  }
  // No path at all must not become the system's top folder.
  linux_.addFolder("/", {"a"});
  EXPECT_EQ(walk(linux_, QString(), kUnixPaths), "");
  EXPECT_EQ(view.eventPasses, 0);
  EXPECT_EQ(state.errorLog, QString());
}

TEST_F(DirIOWalk, AnEmptyFolderIsItsHeadAlone) {
  EXPECT_EQ(walk(tree.path()), "\r\nVolume:    DATA1\r\nDirectory: " + listed(tree.path()) + "\r\n\r\n");
}

TEST_F(DirIOWalk, SubFoldersAloneAreFollowedByAnEmptyLine) {
  tree.makeFolder(u"sub"_qs);
  EXPECT_EQ(walk(tree.path()),
            head(listed(tree.path())) + "<DIR> sub\r\n\r\n" + head(listed(tree.path()) + "sub\\"));
}

TEST_F(DirIOWalk, ListsRealFilesWithSizeAndDate) {
  test::setModified(tree.writeFile(u"Live.mp3"_qs, QByteArray(131'072, 'x')), test::kMoment);
  EXPECT_EQ(walk(tree.path()),
            head(listed(tree.path())) + fakeFile("Live.mp3", "131,072", "15 Jan 2004 10:20:30"));
}

TEST_F(DirIOWalk, PagefileSysIsListedNeitherAsFileNorAsFolder) {
  windows.addFolder("C:\\", {"pagefile.sys", "Pagefile.sys", "pagefile.sys.txt"});
  windows.addFolder("C:\\a\\");
  windows.addFolder("C:\\a\\pagefile.sys\\", {"inside"});
  EXPECT_EQ(walk(windows, u"C:\\"_qs, kWindowsPaths), head("\\") + "<DIR> a\r\n\r\n" +
                                                          fakeFile("Pagefile.sys") +
                                                          fakeFile("pagefile.sys.txt") + head("\\a\\"));
}

TEST_F(DirIOWalk, AFolderWithAQuestionMarkIsLoggedAndLeftOut) {
  windows.addFolder("D:\\a\\");
  windows.addFolder("D:\\a\\b?c\\", {"inside"});
  EXPECT_EQ(walk(windows, u"D:\\a\\"_qs, kWindowsPaths), head("\\a\\"));
  EXPECT_EQ(state.errorLog, u"D:\\a\\b?c Contains unsuported characters represented by the ?\r\n"_qs);
}

TEST_F(DirIOWalk, AFileWithAQuestionMarkIsLoggedAndListedWithSizeMinus1AndTheZeroDate) {
  windows.addFolder("D:\\a\\", {"b?c"});
  EXPECT_EQ(walk(windows, u"D:\\a\\"_qs, kWindowsPaths), head("\\a\\") + fakeFile("b?c", "-1", "00:00:00"));
  EXPECT_EQ(state.errorLog, u"D:\\a\\b?c Contains unsuported characters represented by the ?\r\n"_qs);
  EXPECT_TRUE(windows.lookUps.empty());
}

TEST_F(DirIOWalk, WithFlag2ThereAreHeadsAndSubFolderLinesOnly) {
  windows.addFolder("D:\\Music\\", {"one.mp3"});
  windows.addFolder("D:\\Music\\Rock\\", {"two.mp3"});
  EXPECT_EQ(walk(windows, u"D:\\Music\\"_qs, kWindowsPaths, kToOutput1 | kFoldersOnly),
            head("\\Music\\") + "<DIR> Rock\r\n\r\n" + head("\\Music\\Rock\\"));
  EXPECT_TRUE(windows.lookUps.empty());
  EXPECT_EQ(counts.files, 0);
}

TEST_F(DirIOWalk, FilesMustFitThePattern) {
  windows.addFolder("D:\\Music\\", {"one.mp3", "cover.jpg", "two.mp3", "noextension"});
  EXPECT_EQ(walk(windows, u"D:\\Music\\"_qs, kWindowsPaths, kToOutput1, u"*.mp3"_qs),
            head("\\Music\\") + fakeFile("one.mp3") + fakeFile("two.mp3"));
  EXPECT_EQ(walk(windows, u"D:\\Music\\"_qs, kWindowsPaths, kToOutput1, u"*.*"_qs).count(" bytes "), 4);
}

TEST_F(DirIOWalk, HiddenNamesDevicesAndPipesAreNotListed) {
  tree.writeFile(u".hidden"_qs, "");
  tree.writeFile(u".hidden folder/inside"_qs, "");
  ASSERT_EQ(::mkfifo(tree.pathOf(u"pipe"_qs).toUtf8().constData(), 0600), 0);
  EXPECT_EQ(walk(tree.path()), head(listed(tree.path())));
  EXPECT_EQ(state.errorLog, QString());
}

TEST_F(DirIOWalk, ALinkToAFileIsListedAsItsTargetAndOneToAFolderIsNotWalked) {
  const TemporaryFolder elsewhere;
  test::setModified(elsewhere.writeFile(u"target"_qs, "12345"), test::kMoment);
  const auto link = [&](const QString& target, const char* name) {
    return ::symlink(target.toUtf8().constData(), (tree.path().toUtf8() + name).constData());
  };
  ASSERT_EQ(link(elsewhere.pathOf(u"target"_qs), "file"), 0);
  ASSERT_EQ(link(elsewhere.path(), "folder"), 0);
  ASSERT_EQ(link(u"."_qs, "here"), 0);
  const QByteArray listing = walk(tree.path());
  EXPECT_TRUE(listing.startsWith(head(listed(tree.path())) + "<DIR> "));
  EXPECT_TRUE(listing.contains("<DIR> folder\r\n"));
  EXPECT_TRUE(listing.contains("<DIR> here\r\n"));
  EXPECT_TRUE(listing.endsWith("\r\n\r\n" + fakeFile("file", "5", "15 Jan 2004 10:20:30")));
  EXPECT_EQ(listing.count("Directory:"), 1);
}

TEST_F(DirIOWalk, ShowsEachFolderAndLetsEventsRun) {
  windows.addFolder("D:\\Music\\", {"one.mp3"});
  windows.addFolder("D:\\Music\\Rock\\");
  walk(windows, u"D:\\Music\\"_qs, kWindowsPaths);
  EXPECT_EQ(view.statuses, (QStringList{u"Indexing: \\Music\\"_qs, u"Indexing: \\Music\\Rock\\"_qs}));
  // The top, its first file, the sub-folder, and after the sub-folder.
  EXPECT_EQ(view.eventPasses, 4);
  EXPECT_EQ(view.shownAtEvents.front().folders, 1);
  EXPECT_EQ(view.shownAtEvents[1].files, 1);
  EXPECT_EQ(view.shown.folders, 2);
}

TEST_F(DirIOWalk, EventsRunAtTheFirstFileAndAtEvery50thAfterIt) {
  for (const auto& [files, passes] : {std::pair(0, 1), {1, 2}, {50, 2}, {51, 3}, {100, 3}, {101, 4}}) {
    FakeFolders folders('\\');
    folders.addFolder("D:\\a\\", std::vector<std::string>(static_cast<std::size_t>(files), "file"));
    view.eventPasses = 0;
    walk(folders, u"D:\\a\\"_qs, kWindowsPaths);
    EXPECT_EQ(view.eventPasses, passes) << files;
  }
}

TEST_F(DirIOWalk, AStopRequestEndsAtTheNextSubFolderAndStartedBlocksAreFinished) {
  windows.addFolder("D:\\a\\", {"one"});
  windows.addFolder("D:\\a\\first\\", {"two"});
  windows.addFolder("D:\\a\\first\\deep\\", {"three"});
  windows.addFolder("D:\\a\\first\\other\\", {"four"});
  windows.addFolder("D:\\a\\second\\", {"five"});
  view.onEvents = [this] { state.AbortRequested = true; };
  EXPECT_EQ(walk(windows, u"D:\\a\\"_qs, kWindowsPaths),
            head("\\a\\") + "<DIR> first\r\n<DIR> second\r\n\r\n" + fakeFile("one") + head("\\a\\first\\") +
                "<DIR> deep\r\n<DIR> other\r\n\r\n" + fakeFile("two") + head("\\a\\first\\deep\\") +
                fakeFile("three"));
  EXPECT_TRUE(state.AbortRequested);
  EXPECT_EQ(windows.depth(), 0U);
}

TEST_F(DirIOWalk, AStopRequestMadeRightAfterASubFolderIsHeardBeforeTheNext) {
  windows.addFolder("D:\\a\\");
  windows.addFolder("D:\\a\\first\\");
  windows.addFolder("D:\\a\\second\\");
  // The top, the sub-folder, and after the sub-folder.
  view.onEvents = [this] { state.AbortRequested = view.eventPasses == 3; };
  EXPECT_EQ(walk(windows, u"D:\\a\\"_qs, kWindowsPaths),
            head("\\a\\") + "<DIR> first\r\n<DIR> second\r\n\r\n" + head("\\a\\first\\"));
}

TEST_F(DirIOWalk, AnOutputThatCannotBeWrittenEndsTheWalkWithItsFault) {
  windows.addFolder("D:\\a\\", {"one"});
  windows.addFolder("D:\\a\\b\\");
  std::optional<Job> job = work.start(JobKind::Refresh);
  IndexProgress progress(*job, QLocale::c());
  DirIO dirIO(state, windows, progress, messages, QLocale::c(), kWindowsPaths);
  QString path = u"D:\\a\\"_qs;
  EXPECT_FAULT(dirIO.walk(path, u"*.*"_qs, {nullptr, nullptr}, u"DATA1"_qs, kToOutput1), 52);
  EXPECT_TRUE(messages.askedOfFaults.empty());
  // The folders are left, so that another walk can follow.
  EXPECT_EQ(windows.depth(), 0U);
}

TEST_F(DirIOWalk, TheLabelStandsInEveryBlockButCannotBreakALine) {
  windows.addFolder("D:\\a\\");
  std::optional<Job> job = work.start(JobKind::Refresh);
  IndexProgress progress(*job, QLocale::c());
  DirIO dirIO(state, windows, progress, messages, QLocale::c(), kWindowsPaths);
  FileAside listing(tree.pathOf(u"listing"_qs));
  QString path = u"D:\\a\\"_qs;
  dirIO.walk(path, u"*.*"_qs, {&listing.writer(), nullptr}, u" two\r\nlines "_qs, kToOutput1);
  listing.commit();
  EXPECT_EQ(tree.readFile(u"listing"_qs), "\r\nVolume:     two??lines \r\nDirectory: \\a\\\r\n\r\n");
}

}  // namespace
}  // namespace quorvin
