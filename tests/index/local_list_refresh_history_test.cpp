// SPDX-License-Identifier: GPL-2.0-or-later

// What a refresh keeps of the listings that it replaces, and what it says of them.
#include "history/listing_history.h"
#include "index/refresh_fixture.h"
#include "support/listing_lines.h"

namespace quorvin {
namespace {

using test::blockHead;
using test::entryLine;

class RefreshHistory : public test::RefreshTest {
 protected:
  static QByteArray oldListing(int entries) {
    QByteArray listing = blockHead("Music", "\\old\\");
    for (int entry = 0; entry < entries; ++entry) listing += entryLine("old " + QByteArray::number(entry));
    return listing;
  }
  QByteArray textOf(const QString& listing, int number) const {
    const auto text = history.text(listing, number);
    QByteArray bytes(1'000'000, '\0');
    const std::span buffer(bytes.data(), static_cast<std::size_t>(bytes.size()));
    return bytes.first(static_cast<qsizetype>(text->read(buffer)));
  }
  /// The log's lines of the last refresh.
  QStringList logged() const { return refreshed.errorLog.split(u"\r\n"_qs, Qt::SkipEmptyParts); }
  QString made(const QString& listing) const {
    const qint64 moment = history.versions(listing).front().made;
    return QLocale::c().toString(QDateTime::fromMSecsSinceEpoch(moment), QLocale::ShortFormat);
  }

  ListingHistory history{data.path()};
};

TEST_F(RefreshHistory, KeepsWhatAListingHeldBefore) {
  addSource(u"Music"_qs, u"song.mp3"_qs);
  addSource(u"New"_qs, u"new.mp3"_qs);
  data.writeFile(u"Music.txt"_qs, oldListing(3));
  refresh();
  EXPECT_TRUE(isListed(u"Music.txt"_qs, "song.mp3"));
  EXPECT_EQ(history.listings(), QStringList{u"Music.txt"_qs});
  ASSERT_EQ(history.versions(u"Music.txt"_qs).size(), 1U);
  EXPECT_EQ(textOf(u"Music.txt"_qs, 1), oldListing(3));
  EXPECT_EQ(refreshed.errorLog, QString());
}

TEST_F(RefreshHistory, AListingThatDidNotChangeIsNotKept) {
  addSource(u"Music"_qs, u"song.mp3"_qs);
  refresh();
  refresh();
  EXPECT_EQ(data.names(), QStringList{u"Music.txt"_qs});
}

TEST_F(RefreshHistory, AfterAStopRequestTheLogNamesTheIncompleteListingsAndTheEarlierOnes) {
  for (const QString& source : {u"A"_qs, u"B"_qs, u"C"_qs}) {
    for (const QString& sub : {u"x"_qs, u"y"_qs}) folders.writeFile(source + u'/' + sub + u"/file"_qs, "1");
    if (source == u"C") QDir(folders.pathOf(u"C/y"_qs)).removeRecursively();
    addSourceAt(source, folders.pathOf(source));
  }
  data.writeFile(u"A.txt"_qs, oldListing(1234));
  state.AbortRequested = true;
  refresh();
  EXPECT_EQ(data.readFile(u"A.txt"_qs).count("Directory: "), 2);
  EXPECT_EQ(
      logged(),
      (QStringList{u"The listing of A is incomplete, since the rescan was stopped; File, Listing History "
                   "brings back the one of %1 with 1234 entries"_qs.arg(made(u"A.txt"_qs)),
                   u"The listing of B is incomplete, since the rescan was stopped"_qs}));
  EXPECT_EQ(textOf(u"A.txt"_qs, 1), oldListing(1234));
  EXPECT_FALSE(history.present(u"A.txt"_qs)->isComplete);
  EXPECT_TRUE(history.present(u"C.txt"_qs)->isComplete);
}

TEST_F(RefreshHistory, TheEarlierListingIsNamedHoweverManyIncompleteOnesCameAfterIt) {
  for (const QString& sub : {u"x"_qs, u"y"_qs}) folders.writeFile(u"A/"_qs + sub + u"/file"_qs, "1");
  addSourceAt(u"A"_qs, folders.pathOf(u"A"_qs));
  data.writeFile(u"A.txt"_qs, oldListing(1234));
  state.AbortRequested = true;
  for (int round = 1; round <= 15; ++round) {
    folders.writeFile(u"A/new %1"_qs.arg(round), "1");
    refresh();
    EXPECT_TRUE(refreshed.errorLog.contains(u" with 1234 entries"_qs)) << round;
  }
  history.restore(u"A.txt"_qs, 1);
  EXPECT_EQ(data.readFile(u"A.txt"_qs), oldListing(1234));
}

TEST_F(RefreshHistory, AFolderThatHadFilesAndHasNoneNowIsLoggedOnce) {
  addSourceAt(u"Disk"_qs, folders.makeFolder(u"Disk"_qs));
  data.writeFile(u"Disk.txt"_qs, oldListing(3));
  refresh();
  EXPECT_EQ(data.readFile(u"Disk.txt"_qs).count(" bytes "), 0);
  EXPECT_EQ(logged(),
            QStringList{folders.pathOf(u"Disk/"_qs) +
                        u" holds no files any more; if its drive is not connected, connect it and "
                        "rescan. The listing of Disk is empty now; File, Listing History brings back "
                        "the one of %1 with 3 entries"_qs.arg(made(u"Disk.txt"_qs))});
  refresh();
  EXPECT_EQ(refreshed.errorLog, QString());
  history.restore(u"Disk.txt"_qs, 1);
  EXPECT_EQ(data.readFile(u"Disk.txt"_qs), oldListing(3));
}

TEST_F(RefreshHistory, AFolderThatWasEmptyBeforeIsNot) {
  addSourceAt(u"Disk"_qs, folders.makeFolder(u"Disk"_qs));
  data.writeFile(u"Disk.txt"_qs, oldListing(0));
  refresh();
  EXPECT_EQ(refreshed.errorLog, QString());
}

TEST_F(RefreshHistory, AHistoryThatCannotBeWrittenIsLoggedAndStopsNothing) {
  addSource(u"Music"_qs, u"song.mp3"_qs);
  addSource(u"Films"_qs, u"film.avi"_qs);
  data.writeFile(u"Music.txt"_qs, oldListing(3));
  data.writeFile(u"history"_qs, "a file in its place");
  refresh();
  EXPECT_TRUE(isListed(u"Music.txt"_qs, "song.mp3"));
  EXPECT_TRUE(isListed(u"Films.txt"_qs, "film.avi"));
  EXPECT_EQ(refreshed.made, 2);
  EXPECT_EQ(refreshed.fault, QString());
  ASSERT_EQ(logged().size(), 1);
  EXPECT_TRUE(
      logged()[0].startsWith(u"The earlier listing of Music could not be kept in the listing history: "_qs))
      << logged()[0].toStdString();
}

TEST_F(RefreshHistory, ClosingWhileTheEarlierListingIsKeptLeavesIt) {
  addSource(u"Music"_qs, u"song.mp3"_qs);
  data.writeFile(u"Music.txt"_qs, oldListing(3));
  view.onEvents = [this] { state.RescanAbort = data.has(u"history"_qs); };
  refresh();
  EXPECT_TRUE(refreshed.isStopped);
  EXPECT_EQ(data.readFile(u"Music.txt"_qs), oldListing(3));
  EXPECT_FALSE(state.RescanAbort);
}

TEST_F(RefreshHistory, TwoSourcesOfOneDescriptionDoNotFillIt) {
  addSource(u"Music"_qs, u"first.mp3"_qs);
  addSource(u"Music"_qs, u"second.mp3"_qs);
  for (int round = 0; round < 4; ++round) refresh();
  EXPECT_LE(history.versions(u"Music.txt"_qs).size(), 2U);
}

}  // namespace
}  // namespace quorvin
