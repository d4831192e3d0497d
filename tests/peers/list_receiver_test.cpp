// SPDX-License-Identifier: GPL-2.0-or-later

// The receiving end of a conversation: what of it becomes files.
#include "peers/client/list_receiver.h"

#include "support/fault_number.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace quorvin::test {
namespace {

class ListReceiverTest : public testing::Test {
 protected:
  void receive(const QByteArray& bytes) {
    receiver_.archiveAnnounced("cd", "announced:x");
    receiver_.archiveBytes(bytes);
  }

  /// Everything in the folder, what is written aside too.
  QStringList files() const { return QDir(folder_.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name); }

  TemporaryFolder folder_;
  SendQueue queue_;
  ListReceiver receiver_{queue_, folder_.path(), 10};
};

TEST_F(ListReceiverTest, AWholeArchiveIsKeptUnderItsName) {
  receive("abc");
  receiver_.archiveBytes("def");
  receiver_.archiveWhole();
  EXPECT_EQ(files(), QStringList{u"cd.zip"_qs});
  EXPECT_EQ(folder_.readFile(u"cd.zip"_qs), QByteArray("abcdef"));
  const std::vector<ReceivedList> expected{{u"cd"_qs, folder_.pathOf(u"cd.zip"_qs)}};
  EXPECT_TRUE(receiver_.received() == expected);
}

TEST_F(ListReceiverTest, HalfAnArchiveOfAKilledProgramIsRemovedByTheNextConversation) {
  // No process has so large a number.
  const QString left = folder_.writeFile(u".quorvin-999999999-0123456789abcdef.part"_qs, "half of one");
  const ListReceiver next(queue_, folder_.path(), 10);
  EXPECT_EQ(files(), QStringList());
}

TEST_F(ListReceiverTest, NoFileIsReplaced) {
  folder_.writeFile(u"cd.zip"_qs, "old");
  receive("new");
  receiver_.archiveWhole();
  EXPECT_EQ(files().size(), 2);
  EXPECT_EQ(folder_.readFile(u"cd.zip"_qs), QByteArray("old"));
  ASSERT_EQ(receiver_.received().size(), 1U);
  EXPECT_EQ(receiver_.received()[0].archivePath, folder_.pathOf(u"cd (2).zip"_qs));
}

TEST_F(ListReceiverTest, TheSameArchiveIsKeptOnce) {
  folder_.writeFile(u"cd.zip"_qs, "same");
  receive("same");
  receiver_.archiveWhole();
  EXPECT_EQ(files(), QStringList{u"cd.zip"_qs});
  ASSERT_EQ(receiver_.received().size(), 1U);
  EXPECT_EQ(receiver_.received()[0].archivePath, folder_.pathOf(u"cd.zip"_qs));
}

TEST_F(ListReceiverTest, AnArchiveThatGrowsTooLongIsAFaultAndLeavesNothing) {
  receive("0123456789");
  EXPECT_FAULT(receiver_.archiveBytes("x"), 6);
  EXPECT_EQ(files(), QStringList());
}

TEST_F(ListReceiverTest, WhatFollowsACutArchiveCanBeReadAgain) {
  receive("abcREST");
  receiver_.archiveCut(3);
  ASSERT_TRUE(receiver_.hasRest());
  const ListReceiver::Rest rest = receiver_.takeRest();
  EXPECT_EQ(rest.from, 3);
  EXPECT_EQ(rest.to, 7);
  QFile file(rest.path);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.readAll(), QByteArray("abcREST"));
  EXPECT_FALSE(receiver_.hasRest());
  EXPECT_TRUE(receiver_.received().empty());
  EXPECT_EQ(receiver_.problems(),
            QStringList{u"The archive of \"cd\" did not arrive complete, and was not kept."_qs});
}

TEST_F(ListReceiverTest, ALostRequestIsRepeatedOnce) {
  EXPECT_TRUE(receiver_.requestLost("cd", true));
  EXPECT_EQ(queue_.SendQueueCount(), 1);
  EXPECT_TRUE(receiver_.problems().isEmpty());
  EXPECT_FALSE(receiver_.requestLost("cd", false));
  EXPECT_EQ(queue_.SendQueueCount(), 1);
  EXPECT_EQ(receiver_.problems(), QStringList{u"The peer sent no archive of \"cd\"."_qs});
}

TEST_F(ListReceiverTest, AFullQueueIsReportedOnce) {
  for (int i = 0; i < 1000; ++i) EXPECT_TRUE(receiver_.listNamed("cd"));
  EXPECT_FALSE(receiver_.listNamed("cd"));
  EXPECT_FALSE(receiver_.listNamed("cd"));
  EXPECT_EQ(receiver_.figures().listCount, 1000);
  EXPECT_EQ(receiver_.problems().size(), 1);
}

}  // namespace
}  // namespace quorvin::test
