// SPDX-License-Identifier: GPL-2.0-or-later

// The refresh when listings cannot be written.
#include "files/full_disk.h"
#include "index/refresh_fixture.h"
#include "support/descriptors.h"

#include <sys/stat.h>

namespace quorvin {
namespace {

class RefreshFaults : public test::RefreshTest {
 protected:
  // What a failure leaves: nothing is shown as if the refresh had come to its end.
  void expectEndedByFault() {
    ASSERT_EQ(messages.informed.size(), 1U);
    EXPECT_TRUE(messages.informed[0].startsWith(u"Error Refreshing Local Lists:"_qs));
    EXPECT_FALSE(state.RescanRunning);
    EXPECT_TRUE(view.titles.last().startsWith(u" Updating online file lists... "_qs));
    EXPECT_NE(view.status, u"Ver:2.5(64)"_qs);
    EXPECT_EQ(view.steps.last(), u"ended"_qs);
  }
};

TEST_F(RefreshFaults, AFullDiskLeavesTheOldListingAndNamesTheFile) {
  addSource(u"Small"_qs, u"song.mp3"_qs);
  addSource(u"Large"_qs, u"film.avi"_qs);
  addSource(u"Last"_qs, u"book.pdf"_qs);
  for (int i = 0; i < 2000; ++i) folders.writeFile(u"source 2/file %1"_qs.arg(i), "");
  for (const QString& name : {u"Small.txt"_qs, u"Large.txt"_qs, u"Last.txt"_qs}) data.writeFile(name, "old");
  {
    const FullDisk disk(100'000);
    refresh();
  }
  expectEndedByFault();
  EXPECT_EQ(messages.informed[0],
            u"Error Refreshing Local Lists:Disk full: "_qs + data.pathOf(u"Large.tmp"_qs));
  EXPECT_TRUE(isListed(u"Small.txt"_qs, "song.mp3"));
  EXPECT_EQ(data.readFile(u"Large.txt"_qs), "old");
  EXPECT_EQ(data.readFile(u"Last.txt"_qs), "old");
  EXPECT_TRUE(data.has(u"Large.tmp"_qs));
  EXPECT_TRUE(messages.askedOfFaults.empty());
}

TEST_F(RefreshFaults, ADiskThatIsFullAtTheLastBytesLeavesTheOldListingToo) {
  addSource(u"Music"_qs, u"song.mp3"_qs);
  data.writeFile(u"Music.txt"_qs, "old");
  {
    const FullDisk disk(10);
    refresh();
  }
  expectEndedByFault();
  EXPECT_EQ(data.readFile(u"Music.txt"_qs), "old");
}

TEST_F(RefreshFaults, AListingThatCannotBeMadeIsTold) {
  addSource(u"No/Such/Place"_qs, u"song.mp3"_qs);
  addSource(u"Films"_qs, u"film.avi"_qs);
  refresh();
  expectEndedByFault();
  EXPECT_EQ(messages.informed[0],
            u"Error Refreshing Local Lists:File not found: "_qs + data.pathOf(u"No/Such/Place.tmp"_qs));
  EXPECT_EQ(data.names(), QStringList());
}

TEST_F(RefreshFaults, AListingThatCannotBePutInPlaceIsToldAndTheTemporaryOneStays) {
  addSource(u"Music"_qs, u"song.mp3"_qs);
  data.makeFolder(u"Music.txt"_qs);
  refresh();
  expectEndedByFault();
  EXPECT_TRUE(messages.informed[0].endsWith(data.pathOf(u"Music.txt"_qs)))
      << messages.informed[0].toStdString();
  EXPECT_TRUE(isListed(u"Music.tmp"_qs, "song.mp3"));
}

TEST_F(RefreshFaults, TheErrorLogIsKeptForTheNextRefresh) {
  addSource(u"Music"_qs, u"what?"_qs);
  data.makeFolder(u"Music.txt"_qs);
  refresh();
  expectEndedByFault();
  EXPECT_TRUE(view.logs.isEmpty());
  EXPECT_TRUE(state.errorLog.contains(u"what?"_qs));
  QDir().rmdir(data.pathOf(u"Music.txt"_qs));
  refresh();
  EXPECT_EQ(view.logs.size(), 1);
  EXPECT_EQ(state.errorLog, QString());
}

TEST_F(RefreshFaults, TooFewDescriptorsEndItAndEveryListingStays) {
  addSource(u"Music"_qs, u"song.mp3"_qs);
  folders.writeFile(u"source 1/a/b/deep.mp3"_qs, "1");
  data.writeFile(u"Music.txt"_qs, "old");
  refresh();
  const QByteArray whole = data.readFile(u"Music.txt"_qs);
  ASSERT_TRUE(whole.contains("deep.mp3"));
  data.writeFile(u"Music.txt"_qs, "old");
  const rlim_t next = test::nextDescriptor();
  int refused = 0;
  for (rlim_t more = 0; data.readFile(u"Music.txt"_qs) == "old"; ++more) {
    messages.informed.clear();
    view.status.clear();
    {
      const test::FewDescriptors few(next + more);
      refresh();
    }
    if (messages.informed.empty()) break;
    ++refused;
    expectEndedByFault();
  }
  EXPECT_GT(refused, 2);
  EXPECT_EQ(data.readFile(u"Music.txt"_qs), whole);
  // What suffices for the walk may be too few to keep the earlier listing.
  for (const QString& log : view.logs) {
    EXPECT_TRUE(log.startsWith(u"The earlier listing of Music could not be kept"_qs)) << log.toStdString();
  }
}

TEST_F(RefreshFaults, AnotherRefreshCanFollow) {
  addSource(u"Music"_qs, u"song.mp3"_qs);
  {
    const FullDisk disk(10);
    refresh();
  }
  refresh();
  EXPECT_TRUE(isListed(u"Music.txt"_qs, "song.mp3"));
  EXPECT_EQ(data.names(), QStringList{u"Music.txt"_qs});
}

}  // namespace
}  // namespace quorvin
