// SPDX-License-Identifier: GPL-2.0-or-later

// Updates that the user ends, or that the closing of the window ends.
#include "archive/archive_maker.h"
#include "update/web_update_fixture.h"

namespace quorvin::test {
namespace {

using testing::IsEmpty;

class WebUpdateCancel : public WebUpdateTest {
 protected:
  WebUpdateCancel() {
    haveArchive("the earlier archive", utc(2001, 1, 1, 0, 0));
    serve(kDate, archiveOf("main.txt", "content") + QByteArray(5000, 'x'));
    boxes_.answers = {true};
  }

  /// The user presses `CancelButton` while the events run for the `pass`th time.
  void cancelInPass(int pass) {
    view_.onEvents = [this, pass] {
      state_.AbortRequested = state_.AbortRequested || view_.eventPasses == pass;
    };
  }

  void expectCancelled() const {
    expectStoppedAndDisabled();
    EXPECT_EQ(data_.names(), QStringList());
  }

  void expectCancelledWithTheEarlierArchiveKept() const {
    expectStoppedAndDisabled();
    EXPECT_EQ(data_.names(), QStringList{u"main.zip"_qs});
    EXPECT_EQ(data_.readFile(u"main.zip"_qs), QByteArray("the earlier archive"));
    EXPECT_EQ(modified(), utc(2001, 1, 1, 0, 0));
  }

  void expectStoppedAndDisabled() const {
    EXPECT_FALSE(webUpdateEnabled_);
    EXPECT_FALSE(view_.isShown);
    EXPECT_FALSE(state_.AbortRequested);
    EXPECT_EQ(log_.mid(log_.size() - 2), QStringList({u"cancel"_qs, u"progress unloaded"_qs}));
    EXPECT_THAT(boxes_.informed, IsEmpty());
  }
};

TEST_F(WebUpdateCancel, DeletesThePartialArchiveAndLeavesTheCommandDisabled) {
  cancelInPass(3);
  click();
  expectCancelled();
  EXPECT_EQ(view_.eventPasses, 3);
}

TEST_F(WebUpdateCancel, ActsInTheVeryFirstPass) {
  cancelInPass(1);
  click();
  expectCancelled();
}

TEST_F(WebUpdateCancel, ActsAfterTheLastChunkToo) {
  cancelInPass(5);
  click();
  expectCancelled();
}

TEST_F(WebUpdateCancel, WhileHeadersAreAwaitedKeepsTheEarlierArchive) {
  web_.answers[1].pollsUntilHeaders = 1'000'000;
  view_.onWait = [this] { state_.AbortRequested = view_.waits == 10; };
  click();
  expectCancelledWithTheEarlierArchiveKept();
  EXPECT_EQ(view_.waits, 10);
}

TEST_F(WebUpdateCancel, WhileTheFirstChunkIsAwaitedKeepsTheEarlierArchive) {
  web_.answers[1].pollsUntilChunk = 1'000'000;
  view_.onWait = [this] { state_.AbortRequested = view_.waits == 10; };
  click();
  expectCancelledWithTheEarlierArchiveKept();
}

TEST_F(WebUpdateCancel, WhileTheSecondChunkIsAwaitedKeepsTheEarlierArchive) {
  web_.answers[1].stallsAt = 1024;
  view_.onWait = [this] { state_.AbortRequested = view_.waits == 10; };
  click();
  expectCancelledWithTheEarlierArchiveKept();
}

TEST_F(WebUpdateCancel, WhileTheThirdChunkIsAwaitedDeletesWhatWasWritten) {
  web_.answers[1].stallsAt = 2048;
  view_.onWait = [this] { state_.AbortRequested = view_.waits == 10; };
  click();
  expectCancelled();
}

TEST_F(WebUpdateCancel, LeavesNoEmptyFileWhereThereWasNone) {
  ASSERT_TRUE(QFile::remove(data_.pathOf(u"main.zip"_qs)));
  web_.answers[1].stallsAt = 1024;
  view_.onWait = [this] { state_.AbortRequested = view_.waits == 10; };
  click();
  expectCancelled();
}

TEST_F(WebUpdateCancel, OfTheUnpackingEndsItAndEnablesTheCommand) {
  data_.writeFile(u"main.txt"_qs, "earlier");
  serve(kDate, archiveOf("main.txt", QByteArray(1 << 20, 'x')));
  view_.onEvents = [this] { state_.AbortRequested = log_.contains(u"status Decompressing..."_qs); };
  click();
  EXPECT_TRUE(webUpdateEnabled_);
  EXPECT_FALSE(view_.isShown);
  EXPECT_FALSE(state_.AbortRequested);
  EXPECT_EQ(data_.readFile(u"main.txt"_qs), QByteArray("earlier"));
  EXPECT_EQ(data_.names(), QStringList({u"main.txt"_qs, u"main.zip"_qs}));
  EXPECT_THAT(boxes_.informed, IsEmpty());
  // What was not unpacked is offered again.
  EXPECT_EQ(modified(), k1980);
}

TEST_F(WebUpdateCancel, ClosingTheWindowWhileHeadersAreAwaitedEndsQuietly) {
  web_.answers[0].pollsUntilHeaders = 1'000'000;
  view_.onWait = [this] { state_.QuitPending = view_.waits == 10; };
  click();
  EXPECT_EQ(view_.waits, 10);
  EXPECT_THAT(boxes_.informed, IsEmpty());
  EXPECT_THAT(boxes_.asked, IsEmpty());
  EXPECT_EQ(data_.readFile(u"main.zip"_qs), QByteArray("the earlier archive"));
}

TEST_F(WebUpdateCancel, ClosingTheWindowDuringTheDownloadCancelsIt) {
  view_.onEvents = [this] {
    state_.AbortRequested = true;
    state_.QuitPending = true;
  };
  click();
  EXPECT_EQ(view_.eventPasses, 1);
  EXPECT_EQ(data_.names(), QStringList());
  EXPECT_THAT(boxes_.informed, IsEmpty());
  // Others who have to stop must still find the request.
  EXPECT_TRUE(state_.AbortRequested);
}

}  // namespace
}  // namespace quorvin::test
