// SPDX-License-Identifier: GPL-2.0-or-later

// Updates that fail.
#include "archive/archive_maker.h"
#include "update/web_update_fixture.h"

#include <QFile>

namespace quorvin::test {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

class WebUpdateFailure : public WebUpdateTest {
 protected:
  WebUpdateFailure() {
    serve(kDate, archiveOf("main.txt", "content"));
    boxes_.answers = {true};
  }

  void setHeader(const QString& name, const QString& value) { web_.answers[0].headers[name] = value; }

  /// The failure's message has been shown, and nothing else; the command can be used again.
  void expectFailure(int number) const {
    EXPECT_THAT(boxes_.informed, ElementsAre(QStringLiteral("%1: Could not get an update.").arg(number)));
    EXPECT_TRUE(webUpdateEnabled_);
    EXPECT_FALSE(view_.pointerIsBusy);
    EXPECT_EQ(log_.last(), u"WebUpdate on"_qs);
  }
};

TEST_F(WebUpdateFailure, WithoutAConnection) {
  web_.answers[0].failure = FaultNumber::DeviceError;
  click();
  expectFailure(57);
  EXPECT_THAT(boxes_.asked, IsEmpty());
}

TEST_F(WebUpdateFailure, OfTheDownloadLeavesThePartialArchiveAndProgress) {
  web_.answers[1].body = QByteArray(5000, 'x');
  web_.answers[0].headers[u"Content-Length"_qs] = u"5000"_qs;
  web_.answers[1].failsAt = 3072;
  click();
  expectFailure(62);
  EXPECT_TRUE(view_.isShown);
  EXPECT_TRUE(log_.contains(u"progress left"_qs));
  EXPECT_EQ(data_.names(), QStringList{u"main.zip"_qs});
}

TEST_F(WebUpdateFailure, OfTheDownloadIsFollowedByAnotherTry) {
  const QByteArray archive = archiveOf("main.txt", "content") + QByteArray(200'000, 'x');
  for (const qsizetype place : {1024, 102'400}) {
    haveArchive(QByteArray(300'000, 'y'), utc(2001, 1, 1, 0, 0));
    serve(kDate, archive);
    web_.answers[1].failsAt = place;
    boxes_.answers = {true};
    click();
    serve(kDate, archiveOf("main.txt", "content"));
    boxes_.answers = {true};
    click();
    EXPECT_EQ(data_.readFile(u"main.txt"_qs), QByteArray("content")) << place;
    ASSERT_TRUE(QFile::remove(data_.pathOf(u"main.txt"_qs)));
  }
  EXPECT_THAT(boxes_.informed, Each(u"62: Could not get an update."_qs));
}

TEST_F(WebUpdateFailure, OfTheFirstDownloadIsFollowedByAnotherTry) {
  web_.answers[1].failsAt = 1024;
  web_.answers[1].body = QByteArray(5000, 'x');
  click();
  expectFailure(62);
  EXPECT_EQ(modified(), k1980);
}

TEST_F(WebUpdateFailure, OfTheUnpackingIsFollowedByAnotherTry) {
  serve(kDate, "<html>Not here</html>");
  click();
  ASSERT_EQ(boxes_.informed.size(), 1U);
  EXPECT_TRUE(boxes_.informed[0].startsWith(u"Archive Error: "_qs));
  EXPECT_EQ(modified(), k1980);
  serve(kDate, archiveOf("main.txt", "content"));
  boxes_.answers = {true};
  click();
  EXPECT_EQ(data_.readFile(u"main.txt"_qs), QByteArray("content"));
  EXPECT_EQ(boxes_.informed.size(), 1U);
}

TEST_F(WebUpdateFailure, OfFindingTheArchiveAfterTheDownloadIsReported) {
  web_.atCancel = [this] { QFile::remove(data_.pathOf(u"main.zip"_qs)); };
  click();
  EXPECT_THAT(boxes_.informed,
              ElementsAre(QStringLiteral("The update was downloaded, but %1 cannot be found now. Nothing was "
                                         "unpacked.")
                              .arg(data_.pathOf(u"main.zip"_qs))));
  EXPECT_FALSE(view_.isShown);
  EXPECT_TRUE(webUpdateEnabled_);
}

TEST_F(WebUpdateFailure, OfTheSecondRequestLeavesTheEarlierArchive) {
  haveArchive("earlier", utc(2001, 1, 1, 0, 0));
  web_.answers[1].failure = FaultNumber::FileNotFound;
  click();
  expectFailure(53);
  EXPECT_EQ(data_.readFile(u"main.zip"_qs), QByteArray("earlier"));
}

TEST_F(WebUpdateFailure, OfADateShorterThanNineCharacters) {
  for (const QString& value : {QString(), u"15 Nov"_qs, u"12345678"_qs}) {
    boxes_.informed.clear();
    serve(kDate, "x");
    setHeader(u"Last-Modified"_qs, value);
    click();
    expectFailure(5);
  }
}

TEST_F(WebUpdateFailure, OfADateThatIsNone) {
  for (const QString& value : {u"123456789"_qs, u"Mon, soon GMT"_qs, u"Mon, 31 Feb 2004 10:20:30 GMT"_qs,
                               u"Mon, 15 Nov 2004 25:20:30 GMT"_qs, u"Mon, 15 Nov 99999 10:20:30 GMT"_qs,
                               u"Mon, -1 Nov 2004 10:20:30 GMT"_qs,
                               u"Mon, 15 Nov 2004 10:20:30 GMT, Mon, 15 Nov 2004 10:20:30 GMT"_qs}) {
    boxes_.informed.clear();
    serve(kDate, "x");
    setHeader(u"Last-Modified"_qs, value);
    click();
    expectFailure(13);
  }
}

TEST_F(WebUpdateFailure, OfALengthThatIsNone) {
  for (const QString& value : {QString(), u"many"_qs, u"-5"_qs, u"12, 12"_qs, u"0x10"_qs, u"1 000"_qs}) {
    boxes_.informed.clear();
    serve(kDate, "x");
    setHeader(u"Content-Length"_qs, value);
    click();
    expectFailure(13);
  }
}

TEST_F(WebUpdateFailure, OfALengthThatIsTooLarge) {
  for (const QString& value : {u"2147483648"_qs, u"99999999999999999999999"_qs}) {
    boxes_.informed.clear();
    serve(kDate, "x");
    setHeader(u"Content-Length"_qs, value);
    click();
    expectFailure(6);
  }
}

TEST_F(WebUpdateFailure, OfADocumentLongerThanAnnounced) {
  web_.answers[1].body = QByteArray(1 << 20, 'x');
  setHeader(u"Content-Length"_qs, u"3000"_qs);
  click();
  expectFailure(5);
  // 1024 bytes uncounted, 2048 counted, and the chunk that is too much is not written.
  EXPECT_LE(data_.readFile(u"main.zip"_qs).size(), 4096);
  EXPECT_FALSE(log_.contains(u"status Decompressing..."_qs));
}

TEST_F(WebUpdateFailure, OfAServerNameThatIsNone) {
  for (const QString& server : {u""_qs, u"ftp://lists.example.org"_qs, u"file:///etc"_qs, u"http://"_qs,
                                u"a b c"_qs, u"host:port"_qs, u"javascript://x"_qs}) {
    boxes_.informed.clear();
    state_.WebServer = server;
    click();
    expectFailure(52);
  }
}

TEST_F(WebUpdateFailure, OfAFolderThatIsNotThere) {
  state_.LocalFolder = data_.pathOf(u"gone/"_qs);
  click();
  expectFailure(53);
}

TEST_F(WebUpdateFailure, OfAFolderInTheArchivesPlace) {
  data_.makeFolder(u"main.zip"_qs);
  click();
  expectFailure(75);
}

TEST_F(WebUpdateFailure, OfTheUnpackingsFilesIsToldByItsNumber) {
  data_.writeFile(u"main.txt/inside.txt"_qs, "mine");
  click();
  expectFailure(75);
  EXPECT_EQ(data_.readFile(u"main.txt/inside.txt"_qs), QByteArray("mine"));
  EXPECT_EQ(modified(), k1980);
}

TEST_F(WebUpdateFailure, IsNotToldWhenTheWindowIsClosed) {
  web_.answers[0].failure = FaultNumber::DeviceError;
  click([this] { state_.QuitPending = true; });
  EXPECT_THAT(boxes_.informed, IsEmpty());
}

}  // namespace
}  // namespace quorvin::test
