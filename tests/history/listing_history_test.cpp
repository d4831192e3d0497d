// SPDX-License-Identifier: GPL-2.0-or-later
#include "faults/runtime_fault.h"
#include "files/file_lock.h"
#include "files/full_disk.h"
#include "history/history_fixture.h"
#include "support/fault_number.h"
#include "support/system_call_watch.h"

#include <csignal>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quorvin {
namespace {

using test::listingOf;

class History : public test::HistoryTest {};

TEST_F(History, AFirstListingLeavesNothingToKeep) {
  const KeptListing kept = put(listingOf(3));
  EXPECT_EQ(kept.entries, 0U);
  EXPECT_EQ(kept.fault, QString());
  EXPECT_EQ(data.names(), QStringList{kMusic});
  EXPECT_EQ(history.listings(), QStringList());
  EXPECT_TRUE(history.versions(kMusic).empty());
}

TEST_F(History, WhatIsReplacedIsKept) {
  put(listingOf(3));
  const qint64 made = QFileInfo(data.pathOf(kMusic)).lastModified().toMSecsSinceEpoch();
  const KeptListing kept = put(listingOf(5));
  EXPECT_EQ(kept.entries, 3U);
  EXPECT_EQ(kept.fault, QString());
  EXPECT_EQ(history.listings(), QStringList{kMusic});
  const std::vector<ListingVersion> versions = history.versions(kMusic);
  ASSERT_EQ(versions.size(), 1U);
  EXPECT_EQ(versions[0].number, 1);
  EXPECT_EQ(versions[0].made, made);
  EXPECT_EQ(versions[0].entries, 3U);
  EXPECT_EQ(versions[0].size, static_cast<std::uint64_t>(listingOf(3).size()));
  EXPECT_TRUE(versions[0].isComplete);
  EXPECT_TRUE(versions[0].isReadable);
  EXPECT_EQ(textOf(1), listingOf(3));
  EXPECT_EQ(data.readFile(kMusic), listingOf(5));
}

TEST_F(History, ATextThatDoesNotChangeIsNotKept) {
  put(listingOf(3));
  const KeptListing kept = put(listingOf(3));
  EXPECT_EQ(kept.entries, 0U);
  EXPECT_EQ(data.names(), QStringList{kMusic});
}

TEST_F(History, ATextThatTheNewestVersionHoldsIsNotKeptTwice) {
  put(listingOf(3));
  put(listingOf(5));
  // As after a refresh that was killed before it replaced the listing.
  data.writeFile(kMusic, listingOf(3));
  const KeptListing kept = put(listingOf(4));
  EXPECT_EQ(kept.entries, 3U);
  EXPECT_EQ(numbers(), std::vector{1});
}

TEST_F(History, EveryVersionComesBackAsItWas) {
  for (int entries = 1; entries <= 8; ++entries) put(listingOf(entries, "track"));
  EXPECT_EQ(numbers(), (std::vector{7, 6, 5, 4, 3, 2, 1}));
  for (int number = 1; number <= 7; ++number) EXPECT_EQ(textOf(number), listingOf(number, "track")) << number;
}

TEST_F(History, OlderVersionsAreWhatDiffers) {
  for (int round = 1; round <= 4; ++round) {
    put(listingOf(5000) + listingOf(round, "new " + QByteArray::number(round)));
  }
  const qint64 whole = QFileInfo(data.pathOf(fileOf(3))).size();
  for (const int number : {1, 2})
    EXPECT_LT(QFileInfo(data.pathOf(fileOf(number))).size(), whole / 20) << number;
  EXPECT_EQ(textOf(1), listingOf(5000) + listingOf(1, "new 1"));
}

TEST_F(History, AListingOfManyMegabytesComesBackWhenLinesWereAddedInFront) {
  const QByteArray large = listingOf(220'000);
  ASSERT_GT(large.size(), 3 * (8 << 20) - (4 << 20));
  put(large);
  put(listingOf(30'000, "in front") + large);
  put(listingOf(100, "later") + large);
  put(listingOf(1));
  EXPECT_EQ(textOf(1), large);
  EXPECT_EQ(textOf(2), listingOf(30'000, "in front") + large);
  EXPECT_EQ(textOf(3), listingOf(100, "later") + large);
  EXPECT_LT(QFileInfo(data.pathOf(fileOf(1))).size(), QFileInfo(data.pathOf(fileOf(3))).size() / 2);
}

TEST_F(History, AListingThatIsIncompleteIsKnownAsThatLater) {
  put(listingOf(3));
  put(listingOf(1), false);
  EXPECT_FALSE(history.present(kMusic)->isComplete);
  put(listingOf(4));
  EXPECT_TRUE(history.present(kMusic)->isComplete);
  const std::vector<ListingVersion> versions = history.versions(kMusic);
  ASSERT_EQ(versions.size(), 2U);
  EXPECT_FALSE(versions[0].isComplete);
  EXPECT_TRUE(versions[1].isComplete);
  EXPECT_EQ(history.newestComplete(kMusic)->number, versions[1].number);
}

TEST_F(History, AnEmptyListingIsNotTheNewestCompleteOne) {
  put(listingOf(3));
  put(listingOf(0));
  put(listingOf(2));
  EXPECT_EQ(history.versions(kMusic).size(), 2U);
  EXPECT_EQ(history.newestComplete(kMusic)->entries, 3U);
}

TEST_F(History, ThePresentListingIsCountedAsItIs) {
  EXPECT_FALSE(history.present(kMusic));
  put("\r\nVolume:    A\r\nDirectory: \\a\\\r\n\r\n<DIR> "
      "sub\r\n\r\none\r\ntwo\nthree");
  const auto present = history.present(kMusic);
  ASSERT_TRUE(present);
  EXPECT_EQ(present->entries, 3U);
  EXPECT_EQ(present->number, 0);
  EXPECT_EQ(present->size, 61U);
}

TEST_F(History, ARestoredVersionIsTheListingAndTheOneBeforeItIsAVersion) {
  put(listingOf(3));
  put(listingOf(5));
  put(listingOf(1));
  history.restore(kMusic, 1);
  EXPECT_EQ(data.readFile(kMusic), listingOf(3));
  EXPECT_EQ(numbers(), (std::vector{3, 2, 1}));
  EXPECT_EQ(textOf(3), listingOf(1));
  history.restore(kMusic, 3);
  EXPECT_EQ(data.readFile(kMusic), listingOf(1));
  EXPECT_EQ(textOf(4), listingOf(3));
}

TEST_F(History, ARestoredVersionThatIsIncompleteIsKnownAsThat) {
  put(listingOf(3));
  put(listingOf(1), false);
  put(listingOf(4));
  history.restore(kMusic, 2);
  EXPECT_EQ(data.readFile(kMusic), listingOf(1));
  EXPECT_FALSE(history.present(kMusic)->isComplete);
}

TEST_F(History, AVersionComesBackWhereTheListingIsGone) {
  put(listingOf(3));
  put(listingOf(5));
  QFile::remove(data.pathOf(kMusic));
  history.restore(kMusic, 1);
  EXPECT_EQ(data.readFile(kMusic), listingOf(3));
}

TEST_F(History, NothingIsRestoredWhileARefreshRuns) {
  put(listingOf(3));
  put(listingOf(5));
  const auto refresh = FolderLock::take(data.path());
  EXPECT_FAULT(history.restore(kMusic, 1), 75);
  EXPECT_EQ(data.readFile(kMusic), listingOf(5));
}

TEST_F(History, AVersionThatIsNotThereIsAFault) {
  put(listingOf(3));
  EXPECT_FAULT(history.restore(kMusic, 1), 53);
  EXPECT_FAULT(textOf(7), 53);
}

TEST_F(History, OneProgramAtATimeChangesIt) {
  put(listingOf(3));
  put(listingOf(4));
  const auto another = FolderLock::take(data.pathOf(u"history"_qs));
  const KeptListing kept = put(listingOf(5));
  EXPECT_TRUE(kept.fault.endsWith(data.pathOf(u"history"_qs))) << kept.fault.toStdString();
  EXPECT_EQ(numbers(), std::vector{1});
}

TEST_F(History, ANameThatLeadsOutOfTheFolderHasNone) {
  TemporaryFolder outside;
  data.makeFolder(u"inner"_qs);
  ListingHistory inner(data.pathOf(u"inner/"_qs));
  data.writeFile(u"outer.txt"_qs, listingOf(3));
  const QString made = data.writeFile(u"made"_qs, listingOf(4));
  EXPECT_NE(inner.keep(u"../outer.txt"_qs, made, true).fault, QString());
  EXPECT_FAULT(inner.restore(u"../outer.txt"_qs, 1), 52);
  EXPECT_FAULT(inner.versions(QString()), 52);
  EXPECT_EQ(data.names(), (QStringList{u"inner"_qs, u"made"_qs, u"outer.txt"_qs}));
  EXPECT_TRUE(QDir(data.pathOf(u"inner"_qs)).isEmpty());
}

TEST_F(History, AListingInASubFolderHasOneToo) {
  const QString name = u"sub/disk.txt"_qs;
  data.writeFile(name, listingOf(3));
  EXPECT_EQ(history.keep(name, data.writeFile(u"made"_qs, listingOf(4)), true).entries, 3U);
  EXPECT_EQ(history.listings(), QStringList{name});
  EXPECT_EQ(test::allOf(*history.text(name, 1)), listingOf(3));
}

TEST_F(History, IsForTheUserAlone) {
  put(listingOf(3));
  put(listingOf(4));
  struct stat found {};
  ASSERT_EQ(::stat(data.pathOf(u"history"_qs).toUtf8().constData(), &found), 0);
  EXPECT_EQ(found.st_mode & 0777U, 0700U);
}

TEST_F(History, AFullDiskIsReportedAndNothingOfTheListingIsLost) {
  put(listingOf(3));
  put(listingOf(20'000));
  const QString made = data.writeFile(u"made"_qs, listingOf(2));
  KeptListing kept;
  {
    const FullDisk disk(1000);
    kept = history.keep(kMusic, made, true);
  }
  EXPECT_TRUE(kept.fault.startsWith(u"Disk full: "_qs)) << kept.fault.toStdString();
  EXPECT_EQ(kept.entries, 20'000U);
  EXPECT_EQ(data.readFile(kMusic), listingOf(20'000));
  EXPECT_EQ(textOf(1), listingOf(3));
  EXPECT_EQ(numbers(), std::vector{1});
}

TEST_F(History, ARestoreThatCannotKeepThePresentListingChangesNothing) {
  put(listingOf(3));
  put(listingOf(20'000));
  {
    const FullDisk disk(1000);
    EXPECT_FAULT(history.restore(kMusic, 1), 75);
  }
  EXPECT_EQ(data.readFile(kMusic), listingOf(20'000));
}

TEST_F(History, WhatAKilledProgramLeftIsRemoved) {
  put(listingOf(3));
  put(listingOf(4));
  const QString left = u"history/Music.txt/.quorvin-99999999-0123456789abcdef.part"_qs;
  data.writeFile(left, "half");
  put(listingOf(5));
  EXPECT_FALSE(data.has(left));
  EXPECT_EQ(numbers(), (std::vector{2, 1}));
}

TEST_F(History, LetsOthersRunMeanwhile) {
  int pauses = 0;
  ListingHistory patient(data.path(), [&pauses] { ++pauses; });
  put(listingOf(100'000));
  patient.keep(kMusic, data.writeFile(u"made"_qs, listingOf(3)), true);
  EXPECT_GT(pauses, 10);
}

TEST_F(History, KilledAtAnyMomentEveryVersionIsWholeAndTheNextGoesOn) {
  put(listingOf(300));
  put(listingOf(400));
  put(listingOf(500));
  const QString made = data.writeFile(u"made"_qs, listingOf(600));
  bool wasKilled = true;
  int number = 0;
  for (; wasKilled; ++number) {
    const pid_t child = ::fork();
    if (child == 0) {
      int moment = 0;
      test::systemCallWatcher() = [&](const std::string&) {
        if (moment++ == number) ::raise(SIGKILL);
      };
      ::_exit(history.keep(kMusic, made, true).fault.isEmpty() ? 0 : 1);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    wasKilled = WIFSIGNALED(status);
    if (!wasKilled) {
      ASSERT_EQ(WEXITSTATUS(status), 0);
    }
    EXPECT_EQ(data.readFile(kMusic), listingOf(500));
    EXPECT_EQ(textOf(1), listingOf(300)) << number;
    EXPECT_EQ(textOf(2), listingOf(400)) << number;
    for (const ListingVersion& version : history.versions(kMusic)) {
      ASSERT_LE(version.number, 3) << number;
      if (version.number == 3) {
        EXPECT_EQ(textOf(3), listingOf(500)) << number;
      }
    }
    if (wasKilled) QFile::remove(data.pathOf(fileOf(3)));
  }
  EXPECT_GT(number, 15);
  EXPECT_EQ(numbers(), (std::vector{3, 2, 1}));
}

TEST_F(History, AFolderThatCannotBeReadIsNotTakenForAnEmptyOne) {
  put(listingOf(3));
  put(listingOf(4));
  const QString folder = data.pathOf(u"history/Music.txt"_qs);
  ASSERT_TRUE(QDir(folder).removeRecursively());
  // A link to itself leads nowhere, and neither to nothing.
  ASSERT_TRUE(QFile::link(folder, folder));
  EXPECT_FAULT(history.versions(kMusic), 75);
  EXPECT_FAULT(history.newestComplete(kMusic), 75);
  EXPECT_FAULT(history.restore(kMusic, 1), 75);
  EXPECT_EQ(data.readFile(kMusic), listingOf(4));
  EXPECT_NE(put(listingOf(5)).fault, QString());
}

TEST_F(History, AHistoryThatCannotBeReadIsNotTakenForNone) {
  const QString folder = data.pathOf(u"history"_qs);
  ASSERT_TRUE(QFile::link(folder, folder));
  EXPECT_FAULT(history.listings(), 75);
}

}  // namespace
}  // namespace quorvin
