// SPDX-License-Identifier: GPL-2.0-or-later
#include "faults/runtime_fault.h"
#include "files/file_lock.h"
#include "index/refresh_fixture.h"
#include "support/many_files.h"

namespace quorvin {
namespace {

class LocalListRefresh : public test::RefreshTest {};

TEST_F(LocalListRefresh, WritesTheListingOfEachSourceUnderItsDescription) {
  addSource(u"Music"_qs, u"song.mp3"_qs);
  addSource(u"My Films"_qs, u"film.avi"_qs);
  refresh();
  EXPECT_EQ(data.names(), (QStringList{u"Music.txt"_qs, u"My Films.txt"_qs}));
  const QByteArray folder = listedFolder(state.OnlineSources.path(1), nativePathStyle()).toUtf8();
  EXPECT_TRUE(data.readFile(u"Music.txt"_qs)
                  .startsWith("\r\nVolume:    Music\r\nDirectory: " + folder + "\r\n\r\nsong.mp3 "));
  EXPECT_TRUE(isListed(u"My Films.txt"_qs, "film.avi"));
  EXPECT_FALSE(state.RescanRunning);
  EXPECT_TRUE(messages.informed.empty());
}

TEST_F(LocalListRefresh, ReplacesTheOldListing) {
  data.writeFile(u"Music.txt"_qs, "old");
  data.writeFile(u"Music.tmp"_qs, "left over and longer than the listing " + QByteArray(10'000, 'x'));
  addSource(u"Music"_qs, u"song.mp3"_qs);
  refresh();
  EXPECT_EQ(data.names(), (QStringList{u"Music.txt"_qs, u"history"_qs}));
  EXPECT_TRUE(isListed(u"Music.txt"_qs, "song.mp3"));
  EXPECT_FALSE(data.readFile(u"Music.txt"_qs).contains("xxx"));
}

TEST_F(LocalListRefresh, SaysWhatIsNewAndWhatIsGone) {
  addSource(u"Music"_qs, u"song.mp3"_qs);
  addSource(u"Films"_qs, u"film.avi"_qs);
  refresh();
  EXPECT_EQ(refreshed.made, 2);
  EXPECT_EQ(refreshed.entries, 2);
  EXPECT_EQ(refreshed.changes, (ListingChanges{2, 0}));
  const QString music = state.OnlineSources.path(1);
  QFile::rename(music + u"/song.mp3"_qs, music + u"/tune.mp3"_qs);
  QFile::copy(music + u"/tune.mp3"_qs, music + u"/more.mp3"_qs);
  refresh();
  EXPECT_EQ(refreshed.entries, 3);
  EXPECT_EQ(refreshed.changes, (ListingChanges{2, 1}));
  EXPECT_EQ(refreshed.missing, 0);
  refresh();
  EXPECT_EQ(refreshed.changes, ListingChanges{});
  EXPECT_TRUE(refreshed.areChangesKnown);
}

TEST_F(LocalListRefresh, CountsFoldersThatAreNotThere) {
  addSource(u"Music"_qs, u"song.mp3"_qs);
  addSourceAt(u"Gone"_qs, u"/nowhere/at/all"_qs);
  refresh();
  EXPECT_EQ(refreshed.made, 1);
  EXPECT_EQ(refreshed.missing, 1);
  EXPECT_EQ(refreshed.entries, 1);
}

TEST_F(LocalListRefresh, ShowsTitlesSourcesAndTheVersion) {
  addSource(u"Music"_qs, u"song.mp3"_qs);
  addSource(u"Films"_qs, u"film.avi"_qs);
  view.shownTitle = u"Downloading"_qs;
  refresh();
  EXPECT_EQ(view.titles, (QStringList{u" Updating online file lists... 1 of 2"_qs,
                                      u" Updating online file lists... 2 of 2"_qs, u"Downloading"_qs}));
  EXPECT_EQ(view.steps, (QStringList{u"begins"_qs, u"source 1 of 2"_qs, u"source 2 of 2"_qs, u"ended"_qs,
                                     u"pointer"_qs}));
  EXPECT_TRUE(view.statuses.front().startsWith(u"Indexing: \\"_qs)) << view.statuses.front().toStdString();
  EXPECT_EQ(view.status, u"Ver:2.5(64)"_qs);
}

TEST_F(LocalListRefresh, CountsGoOnFromSourceToSource) {
  addSource(u"Music"_qs, u"song.mp3"_qs);
  addSource(u"Films"_qs, u"film.avi"_qs);
  refresh();
  EXPECT_EQ(view.shown.folders, 2);
  EXPECT_EQ(view.shown.files, 2);
}

TEST_F(LocalListRefresh, IsRunningWhileItRuns) {
  addSource(u"Music"_qs, u"song.mp3"_qs);
  view.onEvents = [this] { EXPECT_TRUE(state.RescanRunning); };
  refresh();
  EXPECT_GT(view.eventPasses, 0);
  EXPECT_FALSE(state.RescanRunning);
}

TEST_F(LocalListRefresh, ASecondOneDoesNothingWhileOneIsRunning) {
  addSource(u"Music"_qs, u"song.mp3"_qs);
  view.onEvents = [this] {
    const qsizetype titles = view.titles.size();
    refresh();
    EXPECT_EQ(view.titles.size(), titles);
    EXPECT_TRUE(state.RescanRunning);
  };
  refresh();
  EXPECT_EQ(view.titles.size(), 2);
}

TEST_F(LocalListRefresh, WithoutSourcesItOnlyRestoresTitlesAndShowsTheLog) {
  state.errorLog = u"told before\r\n"_qs;
  refresh();
  EXPECT_EQ(view.titles, QStringList{u"Progress"_qs});
  EXPECT_EQ(view.statuses, QStringList{u"Ver:2.5(64)"_qs});
  EXPECT_EQ(view.steps, (QStringList{u"begins"_qs, u"ended"_qs, u"pointer"_qs, u"log"_qs}));
  EXPECT_EQ(view.logs, QStringList{u"told before\r\n"_qs});
  EXPECT_EQ(state.errorLog, QString());
  EXPECT_EQ(data.names(), QStringList());
}

TEST_F(LocalListRefresh, DescriptionsThatDifferByBlanksShareAListingAndTheLaterWins) {
  addSource(u"Music"_qs, u"first.mp3"_qs);
  addSource(u"  Music "_qs, u"second.mp3"_qs);
  refresh();
  EXPECT_EQ(data.names(), QStringList{u"Music.txt"_qs});
  EXPECT_TRUE(isListed(u"Music.txt"_qs, "second.mp3"));
  // The volume text is the description as it is.
  EXPECT_TRUE(data.readFile(u"Music.txt"_qs).startsWith("\r\nVolume:      Music \r\n"));
}

TEST_F(LocalListRefresh, ClosingDuringTheSecondOfFiveLeavesTheRestAsItWas) {
  for (int i = 1; i <= 5; ++i) {
    addSource(u"S%1"_qs.arg(i), u"new%1"_qs.arg(i));
    data.writeFile(u"S%1.txt"_qs.arg(i), "old");
  }
  view.onEvents = [this] {
    if (view.steps.last() == u"source 2 of 5"_qs) state.RescanAbort = true;
  };
  refresh();
  EXPECT_TRUE(isListed(u"S1.txt"_qs, "new1"));
  EXPECT_EQ(data.readFile(u"S2.txt"_qs), "old");
  EXPECT_TRUE(isListed(u"S2.tmp"_qs, "new2"));
  for (int i = 3; i <= 5; ++i) EXPECT_EQ(data.readFile(u"S%1.txt"_qs.arg(i)), "old");
  // The six files, and what S1 was.
  EXPECT_EQ(data.names().size(), 7);
  EXPECT_TRUE(data.has(u"history"_qs));
  EXPECT_FALSE(state.RescanAbort);
  EXPECT_FALSE(state.RescanRunning);
  EXPECT_EQ(view.titles.last(), u"Progress"_qs);
  EXPECT_EQ(view.status, u"Ver:2.5(64)"_qs);
}

TEST_F(LocalListRefresh, AStopRequestShortensThisAndEveryLaterSourceAndIsKept) {
  for (const QString& source : {u"A"_qs, u"B"_qs}) {
    const QString folder = folders.makeFolder(source);
    for (const QString& sub : {u"x"_qs, u"y"_qs, u"z"_qs})
      folders.makeFolder(source + u'/' + sub + u"/deep"_qs);
    addSourceAt(source, folder);
  }
  view.onEvents = [this] { state.AbortRequested = true; };
  refresh();
  for (const QString& listing : {u"A.txt"_qs, u"B.txt"_qs}) {
    // The top with all its sub-folder lines, its first sub-folder, and that one's first.
    const QByteArray bytes = data.readFile(listing);
    EXPECT_EQ(bytes.count("Directory: "), 3) << listing.toStdString();
    EXPECT_EQ(bytes.count("<DIR> "), 4) << listing.toStdString();
  }
  EXPECT_TRUE(state.AbortRequested);
}

TEST_F(LocalListRefresh, AStopRequestLeftFromBeforeShortensTheListingsToo) {
  const QString folder = folders.makeFolder(u"A"_qs);
  folders.makeFolder(u"A/x"_qs);
  folders.makeFolder(u"A/y"_qs);
  addSourceAt(u"A"_qs, folder);
  state.AbortRequested = true;
  refresh();
  EXPECT_EQ(data.readFile(u"A.txt"_qs).count("Directory: "), 2);
  EXPECT_TRUE(state.AbortRequested);
}

TEST_F(LocalListRefresh, ASourceWhoseFolderIsNotThereKeepsItsListing) {
  addSource(u"Music"_qs, u"song.mp3"_qs);
  addSourceAt(u"Drive"_qs, folders.pathOf(u"not connected/"_qs));
  addSource(u"Films"_qs, u"film.avi"_qs);
  data.writeFile(u"Drive.txt"_qs, "the catalogue of the drive");
  refresh();
  EXPECT_EQ(data.readFile(u"Drive.txt"_qs), "the catalogue of the drive");
  EXPECT_EQ(data.names(), (QStringList{u"Drive.txt"_qs, u"Films.txt"_qs, u"Music.txt"_qs}));
  EXPECT_TRUE(isListed(u"Films.txt"_qs, "film.avi"));
  EXPECT_EQ(view.logs, QStringList{folders.pathOf(u"not connected/"_qs) +
                                   u" not found; the listing of Drive was kept\r\n"_qs});
  EXPECT_TRUE(messages.informed.empty());
}

TEST_F(LocalListRefresh, WhatIsNoFolderKeepsTheListingToo) {
  addSourceAt(u"File"_qs, folders.writeFile(u"file"_qs, ""));
  addSourceAt(u"Empty"_qs, QString());
  data.writeFile(u"File.txt"_qs, "old");
  data.writeFile(u"Empty.txt"_qs, "old");
  refresh();
  EXPECT_EQ(data.readFile(u"File.txt"_qs), "old");
  EXPECT_EQ(data.readFile(u"Empty.txt"_qs), "old");
  EXPECT_EQ(view.logs.value(0).count(u"\r\n"_qs), 2);
}

TEST_F(LocalListRefresh, ADrivePulledDuringTheWalkKeepsItsListing) {
  addSource(u"Drive"_qs, u"film.avi"_qs);
  folders.makeFolder(u"source 1/sub"_qs);
  data.writeFile(u"Drive.txt"_qs, "the catalogue of the drive");
  view.onEvents = [this] { QDir().rename(folders.pathOf(u"source 1"_qs), folders.pathOf(u"pulled"_qs)); };
  refresh();
  EXPECT_EQ(data.readFile(u"Drive.txt"_qs), "the catalogue of the drive");
  EXPECT_EQ(data.names(), QStringList{u"Drive.txt"_qs});
  EXPECT_TRUE(view.logs.value(0).endsWith(u" not found; the listing of Drive was kept\r\n"_qs));
}

TEST_F(LocalListRefresh, AnotherFolderInThePlaceOfAPulledDriveKeepsTheListingToo) {
  addSource(u"Drive"_qs, u"film.avi"_qs);
  data.writeFile(u"Drive.txt"_qs, "the catalogue of the drive");
  view.onEvents = [this] {
    // The folder is open by the time of its first file.
    if (view.shown.files == 0 || folders.has(u"pulled"_qs)) return;
    QDir().rename(folders.pathOf(u"source 1"_qs), folders.pathOf(u"pulled"_qs));
    folders.makeFolder(u"source 1"_qs);
  };
  refresh();
  EXPECT_EQ(data.readFile(u"Drive.txt"_qs), "the catalogue of the drive");
}

TEST_F(LocalListRefresh, NamesThatCouldNotBeReadAreShownAndTheLogIsEmptied) {
  addSource(u"Music"_qs, u"what?"_qs);
  refresh();
  EXPECT_EQ(view.logs, QStringList{folders.pathOf(u"source 1/"_qs) +
                                   u"what? Contains unsuported characters represented by the ?\r\n"_qs});
  EXPECT_EQ(state.errorLog, QString());
}

TEST_F(LocalListRefresh, SaysHowManyListingsWereMadeAndHowManyKept) {
  addSource(u"Music"_qs, u"song.mp3"_qs);
  addSourceAt(u"Drive"_qs, folders.pathOf(u"not connected/"_qs));
  addSource(u"Films"_qs, u"film.avi"_qs);
  refresh();
  EXPECT_EQ(refreshed.made, 2);
  EXPECT_EQ(refreshed.kept, 1);
  EXPECT_FALSE(refreshed.isStopped);
  EXPECT_EQ(refreshed.fault, QString());
  view.onEvents = [this] {
    if (view.steps.last() == u"source 3 of 3"_qs) state.RescanAbort = true;
  };
  refresh();
  EXPECT_EQ(refreshed.made, 1);
  EXPECT_EQ(refreshed.kept, 1);
  EXPECT_TRUE(refreshed.isStopped);
}

TEST_F(LocalListRefresh, DoesNothingWhileAnotherProgramRefreshesTheSameFolder) {
  addSource(u"Music"_qs, u"song.mp3"_qs);
  data.writeFile(u"Music.txt"_qs, "old");
  {
    const auto another = FolderLock::take(data.path());
    refresh();
  }
  EXPECT_EQ(messages.informed,
            std::vector{u"The local lists cannot be refreshed now: another refresh is running."_qs});
  EXPECT_EQ(data.readFile(u"Music.txt"_qs), "old");
  EXPECT_EQ(view.steps, QStringList());
  EXPECT_EQ(view.titles, QStringList());
  EXPECT_FALSE(state.RescanRunning);
  refresh();
  EXPECT_TRUE(isListed(u"Music.txt"_qs, "song.mp3"));
}

TEST_F(LocalListRefresh, KeepsOthersOutUntilItsEnd) {
  addSource(u"Music"_qs, u"song.mp3"_qs);
  view.onEvents = [this] { EXPECT_FALSE(FolderLock::take(data.path())); };
  refresh();
  EXPECT_GT(view.eventPasses, 0);
  EXPECT_TRUE(FolderLock::take(data.path()));
}

TEST_F(LocalListRefresh, AListingThatTwoSourcesShareIsLogged) {
  addSource(u"Music"_qs, u"first.mp3"_qs);
  addSource(u"Films"_qs, u"film.avi"_qs);
  addSource(u"Music "_qs, u"second.mp3"_qs);
  refresh();
  EXPECT_TRUE(isListed(u"Music.txt"_qs, "second.mp3"));
  EXPECT_EQ(view.logs, QStringList{u"The listing of Music  from "_qs + state.OnlineSources.path(1) +
                                   u" was replaced by that from "_qs + state.OnlineSources.path(3) +
                                   u", which has the same description; please give one of them another "
                                   "description\r\n"_qs});
}

TEST_F(LocalListRefresh, SaysHowManyNamesHadNoPlaceInTheListings) {
  addSource(u"Music"_qs, u"song.mp3"_qs);
  test::makeManyFiles(folders.makeFolder(u"Many"_qs).toUtf8(), 31'003);
  addSourceAt(u"Many"_qs, folders.pathOf(u"Many/"_qs));
  messages.faultAnswers = {FaultAnswer::Ignore};
  refresh();
  EXPECT_EQ(refreshed.leftOut, 2);
  EXPECT_EQ(refreshed.made, 2);
}

TEST_F(LocalListRefresh, SourcesTakenOutMeanwhileAreNotRefreshed) {
  addSource(u"A"_qs, u"a"_qs);
  addSource(u"B"_qs, u"b"_qs);
  view.onEvents = [this] { state.OnlineSourceCount = 1; };
  refresh();
  EXPECT_EQ(data.names(), QStringList{u"A.txt"_qs});
}

TEST_F(LocalListRefresh, WhatWasLeftOfRemovedSourcesIsRemoved) {
  addSource(u"Music"_qs, u"a.mp3"_qs);
  addSource(u"Gone"_qs, u"b.mp3"_qs);
  addSourceAt(u"Absent"_qs, folders.pathOf(u"absent/"_qs));
  refresh();
  ASSERT_TRUE(QFile::copy(data.pathOf(u"Gone.txt"_qs), data.pathOf(u"Gone.tmp"_qs)));
  data.writeFile(u"Absent.tmp"_qs, "\r\nVolume:    Absent\r\n");
  state.OnlineSources.set(2, u"Absent"_qs, folders.pathOf(u"absent/"_qs));
  state.OnlineSourceCount = 2;
  refresh();
  // A source that is still in the table keeps its one until its next listing is made.
  EXPECT_EQ(data.names(), QStringList({u"Absent.tmp"_qs, u"Gone.txt"_qs, u"Music.txt"_qs}));
}

TEST_F(LocalListRefresh, TemporaryFilesOfOthersStay) {
  addSource(u"Music"_qs, u"a.mp3"_qs);
  data.writeFile(u"notes.tmp"_qs, "my notes");
  data.writeFile(u"Films.tmp"_qs, "\r\nVolume:    Music\r\nDirectory: \\\r\n\r\n");
  data.writeFile(u"empty.tmp"_qs, "");
  refresh();
  EXPECT_EQ(data.names(), QStringList({u"Films.tmp"_qs, u"Music.txt"_qs, u"empty.tmp"_qs, u"notes.tmp"_qs}));
}

}  // namespace
}  // namespace quorvin
