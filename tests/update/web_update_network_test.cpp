// SPDX-License-Identifier: GPL-2.0-or-later

// Whole updates: the real window `Progress`, real transfers, and a real server that means well or harm.
#include "archive/archive_maker.h"
#include "support/processor_clock.h"
#include "support/qt_printing.h"
#include "support/recording_message_boxes.h"
#include "support/temporary_folder.h"
#include "update/http_transfer.h"
#include "update/scripted_web_server.h"
#include "update/web_update.h"
#include "work/progress.h"

#include <QPushButton>
#include <QTimer>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>

namespace quorvin::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// How long the event loop has been kept waiting at most.
class EventLoopWatch {
 public:
  EventLoopWatch() {
    QObject::connect(&timer_, &QTimer::timeout, &timer_,
                     [this] { longest_ = std::max(longest_, time_.restart()); });
    time_.start();
    timer_.start(kMilliseconds);
  }
  qint64 longestWait() const { return std::max(longest_, time_.elapsed()); }

 private:
  static constexpr int kMilliseconds = 5;
  QTimer timer_;
  ProcessorClock time_;
  qint64 longest_ = 0;
};

class WebUpdateNetwork : public testing::Test {
 protected:
  WebUpdateNetwork() {
    state_.LocalFolder = data_.path();
    state_.ArchiveFile = QStringLiteral("main.zip");
    data_.writeFile(u"main.txt"_qs, "earlier");
    boxes_.answers = {true};
  }

  /// For servers that fall silent; a busy machine may be as slow without any fault.
  void losePatienceSoon() {
    limits_.silence = std::chrono::milliseconds(500);
    limits_.headers = std::chrono::milliseconds(1000);
  }

  void update(std::vector<WebAnswer> answers) {
    server_.emplace(std::move(answers));
    state_.WebServer = server_->host();
    HttpNetworkTransfer web(limits_);
    const EventLoopWatch watch;
    work_.run(JobKind::Update, [&](Job& job) {
      const auto enable = [this](bool enabled) { webUpdate_.setEnabled(enabled); };
      WebUpdate(state_, job, boxes_, web, QLocale::c(), enable, {}).WebUpdate_Click();
    });
    EXPECT_LT(watch.longestWait(), 300) << "the window did not answer";
  }

  /// The user presses the button this long after `Progress` is there; gives how long the update went on then.
  qint64 updateCancelledAfter(int milliseconds, std::vector<WebAnswer> answers) {
    ProcessorClock sinceCancel;
    QTimer look;
    int waited = 0;
    constexpr int kStep = 10;
    QObject::connect(&look, &QTimer::timeout, &look, [&] {
      if (!progress_.isVisible() || sinceCancel.isValid()) return;
      waited += kStep;
      if (waited < milliseconds) return;
      sinceCancel.start();
      progress_.findChild<QPushButton*>(u"CancelButton"_qs)->click();
    });
    look.start(kStep);
    update(std::move(answers));
    EXPECT_TRUE(sinceCancel.isValid()) << "the update ended before it was cancelled";
    return sinceCancel.elapsed();
  }

  void expectNothingUnpacked() const {
    EXPECT_EQ(data_.readFile(u"main.txt"_qs), QByteArray("earlier"));
    for (const QString& name : data_.names()) EXPECT_TRUE(name == u"main.txt"_qs || name == u"main.zip"_qs);
  }

  void expectCancelled() const {
    EXPECT_EQ(data_.names(), QStringList{u"main.txt"_qs});
    EXPECT_FALSE(webUpdate_.isEnabled());
    EXPECT_FALSE(progress_.isVisible());
    EXPECT_FALSE(state_.AbortRequested);
    EXPECT_THAT(boxes_.informed, IsEmpty());
  }

  void expectFailure(int number) const {
    EXPECT_THAT(boxes_.informed, ElementsAre(QStringLiteral("%1: Could not get an update.").arg(number)));
    EXPECT_TRUE(webUpdate_.isEnabled());
    expectNothingUnpacked();
  }

  void expectArchiveError() const {
    EXPECT_THAT(boxes_.informed, ElementsAre(u"Archive Error: \"main.zip\" is no zip archive, or its end is "
                                             u"missing. Nothing was unpacked."_qs));
    EXPECT_TRUE(webUpdate_.isEnabled());
    EXPECT_FALSE(progress_.isVisible());
    expectNothingUnpacked();
  }

  TemporaryFolder data_;
  ProgramState state_;
  RecordingMessageBoxes boxes_;
  QWidget mainWindow_;
  QPushButton webUpdate_{&mainWindow_};
  Progress progress_{state_, &mainWindow_};
  Work work_{state_, progress_};
  HttpLimits limits_;
  std::optional<ScriptedWebServer> server_;
};

const QByteArray kHtml = "<html><head><title>Sign in</title></head><body>Please sign in.</body></html>";

TEST_F(WebUpdateNetwork, DownloadsAndUnpacks) {
  const QByteArray content = madeNoise(3 << 20);
  update({sends(goodAnswer(archiveOf("main.txt", content)))});
  EXPECT_EQ(data_.readFile(u"main.txt"_qs), content);
  EXPECT_EQ(data_.readFile(u"main.zip"_qs), archiveOf("main.txt", content));
  EXPECT_THAT(boxes_.informed, IsEmpty());
  EXPECT_EQ(boxes_.asked[0], u"An updated data file is avaliable at http://"_qs + server_->host() +
                                 u"/main.zip do you want to download the update?"_qs);
  EXPECT_EQ(server_->requests.size(), 2U);
  EXPECT_TRUE(webUpdate_.isEnabled());
  EXPECT_FALSE(progress_.isVisible());
}

TEST_F(WebUpdateNetwork, AsksASecondTimeAndIsUpToDate) {
  update({sends(goodAnswer(archiveOf("main.txt", "new")))});
  EXPECT_EQ(data_.readFile(u"main.txt"_qs), QByteArray("new"));
  update({sends(goodAnswer(archiveOf("main.txt", "new")))});
  EXPECT_THAT(boxes_.informed, ElementsAre(u"Your data file is up to date."_qs));
  EXPECT_EQ(server_->requests.size(), 1U);
}

TEST_F(WebUpdateNetwork, OfAShortBodyFails) {
  const QByteArray archive = archiveOf("main.txt", madeNoise(100'000));
  QByteArray cut = goodAnswer(archive);
  cut.chop(5000);
  update({sends(goodAnswer(archive)), sends(cut)});
  expectFailure(62);
}

TEST_F(WebUpdateNetwork, OfABodyWithoutLengthThatIsResetIsNotUnpacked) {
  const QByteArray archive = archiveOf("main.txt", madeNoise(100'000));
  update({sends(goodAnswer(archive)), sendsAndResets(headersOf("") + archive.first(50'000))});
  expectNothingUnpacked();
  ASSERT_EQ(boxes_.informed.size(), 1U);
  EXPECT_TRUE(webUpdate_.isEnabled());
}

TEST_F(WebUpdateNetwork, OfBadChunksIsNotUnpacked) {
  losePatienceSoon();
  const QByteArray archive = archiveOf("main.txt", madeNoise(10'000));
  const QByteArray chunked = headersOf("Transfer-Encoding: chunked\r\n");
  for (const QByteArray& body :
       {"1000\r\n" + archive.first(4096) + "\r\nzz\r\n" + archive.sliced(4096),
        "1000\r\n" + archive.first(4096) + archive.sliced(4096), QByteArray("-1\r\n") + archive,
        "FFFFFFFFFFFFFFFF\r\n" + archive.first(2000), "1000\r\n" + archive.first(1000)}) {
    boxes_.informed.clear();
    boxes_.answers = {true};
    QFile::remove(data_.pathOf(u"main.zip"_qs));
    update({sends(goodAnswer(archive)), sends(chunked + body)});
    expectNothingUnpacked();
    EXPECT_EQ(boxes_.informed.size(), 1U);
    EXPECT_TRUE(webUpdate_.isEnabled());
  }
}

TEST_F(WebUpdateNetwork, OfARedirectLoopFails) {
  update({sends(redirectTo("/main.zip"))});
  expectFailure(57);
}

TEST_F(WebUpdateNetwork, OfARedirectToAFileFails) {
  const QString secret = data_.writeFile(u"main.zip"_qs, archiveOf("main.txt", "secret"));
  update({sends(redirectTo("file://" + QFile::encodeName(secret)))});
  expectFailure(70);
}

TEST_F(WebUpdateNetwork, OfASecondRequestThatIsRedirectedToAFileFails) {
  TemporaryFolder other;
  const QString file = other.writeFile(u"evil.zip"_qs, archiveOf("main.txt", "evil"));
  update({sends(goodAnswer("x")), sends(redirectTo("file://" + QFile::encodeName(file)))});
  expectFailure(70);
}

TEST_F(WebUpdateNetwork, OfAPageWithStatus200IsNotUnpacked) {
  update({sends(goodAnswer(kHtml))});
  expectArchiveError();
}

TEST_F(WebUpdateNetwork, OfAPageWithoutADateFails) {
  update({sends("HTTP/1.1 200 OK\r\nContent-Length: 4\r\nConnection: close\r\n\r\nhtml")});
  expectFailure(5);
}

TEST_F(WebUpdateNetwork, OfWrongDatesFails) {
  for (const QByteArray& date :
       {QByteArray("yesterday, at noon"), QByteArray("Mon, 99 Nov 2004 10:20:30 GMT"),
        QByteArray("1100514030"), QByteArray(100'000, '1')}) {
    boxes_.informed.clear();
    update({sends("HTTP/1.1 200 OK\r\nLast-Modified: " + date + "\r\nContent-Length: 1\r\n\r\nx")});
    ASSERT_EQ(boxes_.informed.size(), 1U);
    EXPECT_TRUE(boxes_.informed[0].endsWith(u": Could not get an update."_qs));
    expectNothingUnpacked();
  }
}

TEST_F(WebUpdateNetwork, OfABodyThatNeverEndsStopsAtTheAnnouncedSize) {
  update({sends(goodAnswer(QByteArray(100'000, 'x'))), sendsForEver(headersOf(""), QByteArray(10'000, 'x'))});
  expectFailure(5);
  EXPECT_LE(data_.readFile(u"main.zip"_qs).size(), 102'400);
}

TEST_F(WebUpdateNetwork, OfASilentServerFails) {
  losePatienceSoon();
  update({isSilent()});
  expectFailure(57);
}

TEST_F(WebUpdateNetwork, OfHeadersThatDripFails) {
  losePatienceSoon();
  update({sendsForEver("HTTP/1.1 200 OK\r\nX: ", "x", 20)});
  expectFailure(57);
}

TEST_F(WebUpdateNetwork, LeavesProgressThatCanThenBeClosed) {
  const QByteArray archive = archiveOf("main.txt", madeNoise(100'000));
  update({sends(goodAnswer(archive)), sends(goodAnswer(archive).chopped(5000))});
  expectFailure(62);
  EXPECT_TRUE(progress_.isVisible());
  progress_.findChild<QPushButton*>(u"CancelButton"_qs)->click();
  EXPECT_FALSE(progress_.isVisible());
  EXPECT_FALSE(state_.AbortRequested);
}

TEST_F(WebUpdateNetwork, IsCancelledWithinASecondWhileHeadersAreAwaited) {
  EXPECT_LT(updateCancelledAfter(200, {sends(goodAnswer("x")), isSilent()}), 1000);
  expectCancelled();
}

TEST_F(WebUpdateNetwork, IsCancelledWithinASecondWhileHeadersDrip) {
  EXPECT_LT(
      updateCancelledAfter(200, {sends(goodAnswer("x")), sendsForEver("HTTP/1.1 200 OK\r\nX: ", "x", 20)}),
      1000);
  expectCancelled();
}

TEST_F(WebUpdateNetwork, IsCancelledWithinASecondWhileTheBodyStandsStill) {
  const QByteArray begin = goodAnswer(madeNoise(100'000)).first(50'000);
  EXPECT_LT(updateCancelledAfter(200, {sends(goodAnswer(madeNoise(100'000))), sendsAndWaits(begin)}), 1000);
  expectCancelled();
}

TEST_F(WebUpdateNetwork, IsCancelledWithinASecondWhileTheBodyPoursIn) {
  const QByteArray headers = headersOf("Content-Length: 2000000000\r\n");
  EXPECT_LT(
      updateCancelledAfter(200, {sendsAndWaits(headers), sendsForEver(headers, QByteArray(100'000, 'x'))}),
      1000);
  expectCancelled();
}

TEST_F(WebUpdateNetwork, ShowsItsProgress) {
  const QByteArray archive = archiveOf("main.txt", madeNoise(1 << 20));
  auto* bar = progress_.findChild<QProgressBar*>(u"bar"_qs);
  std::vector<int> values;
  QObject::connect(bar, &QProgressBar::valueChanged, bar, [&](int value) { values.push_back(value); });
  update({sends(goodAnswer(archive))});
  // Once up for the download, once for the unpacking.
  EXPECT_THAT(values, testing::Contains(50).Times(2));
  EXPECT_EQ(values.back(), 100);
}

}  // namespace
}  // namespace quorvin::test
