// SPDX-License-Identifier: GPL-2.0-or-later

// Metafiles are drawn by a process that can do no harm.
#include "preview/metafile_child.h"

#include "metafile/metafile_corpus.h"
#include "metafile/metafile_writer.h"
#include "metafile/play_metafile.h"
#include "preview/second_decoder.h"
#include "support/eventually.h"
#include "support/temporary_folder.h"

#include <QElapsedTimer>
#include <QProcess>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/stat.h>
#include <thread>

namespace quorvin::test {

namespace {

const QString kProgram = QStringLiteral(QUORVIN_METAFILE_PROGRAM);

class MetafileChildTest : public testing::Test {
 protected:
  /// A program that does this instead of drawing.
  MetafileChild fake(const QByteArray& script, int milliseconds = 10'000) {
    const QString path =
        folder_.writeFile(QStringLiteral("fake"),
                          "#!/bin/sh\necho $$ > " + folder_.pathOf(QStringLiteral("process")).toLocal8Bit() +
                              "\n" + script + "\n");
    ::chmod(path.toLocal8Bit().constData(), 0700);
    return {path, std::chrono::milliseconds(milliseconds)};
  }

  std::string faultOf(const MetafileChild& child, const std::stop_source& stop = {},
                      const QByteArray& metafile = EmfWriter().file()) {
    clock_.start();
    try {
      drawInChild(child, metafile, stop.get_token());
    } catch (const MetafileFault& fault) {
      return fault.what();
    }
    return "none";
  }

  /// Whether the process of the fake program is still there.
  bool isFakeRunning() {
    const int process = folder_.readFile(QStringLiteral("process")).trimmed().toInt();
    return process <= 0 || ::kill(process, 0) == 0;
  }

  TemporaryFolder folder_;
  QElapsedTimer clock_;
};

TEST_F(MetafileChildTest, DrawsAsThePlayerDoes) {
  for (const CorpusMetafile& metafile : {enhancedMetafileCorpus().front(), windowsMetafileCorpus().front()}) {
    const MetafilePicture drawn = drawInChild({kProgram}, metafile.bytes, {});
    const MetafilePicture expected = playMetafile(metafile.bytes);
    EXPECT_EQ(drawn.ownSize, expected.ownSize);
    EXPECT_EQ(drawn.image, expected.image);
  }
}

TEST_F(MetafileChildTest, TellsWhatItHasLeftOut) {
  EXPECT_EQ(drawInChild({kProgram}, EmfWriter().file(), {}).leftOut, QString());
  EXPECT_EQ(drawInChild({kProgram}, EmfWriter().record(53).record(43).file(), {}).leftOut,
            QStringLiteral("flood fills, damaged parts"));
}

TEST_F(MetafileChildTest, TellsWhyAMetafileCannotBeDrawn) {
  EXPECT_EQ(faultOf({kProgram}, {}, EmfWriter().file().chopped(3)), "it is damaged or cut short");
  EXPECT_EQ(faultOf({kProgram}, {}, "text"), "it is not a metafile");
  EXPECT_EQ(faultOf({kProgram}, {}, ""), "it is not a metafile");
}

TEST_F(MetafileChildTest, AProgramThatLoopsIsEnded) {
  EXPECT_EQ(faultOf(fake("while :; do :; done", 300)), "drawing it takes too long");
  EXPECT_LT(clock_.elapsed(), 9000);
  EXPECT_FALSE(isFakeRunning());
}

TEST_F(MetafileChildTest, AProgramThatIsDeafToRequestsIsEnded) {
  EXPECT_EQ(faultOf(fake("trap '' TERM INT HUP; while :; do :; done", 300)), "drawing it takes too long");
  EXPECT_LT(clock_.elapsed(), 9000);
  EXPECT_FALSE(isFakeRunning());
}

TEST_F(MetafileChildTest, TheUsualPatienceIsTenSeconds) {
  EXPECT_EQ(usualMetafileChild().patience, std::chrono::seconds(10));
}

TEST_F(MetafileChildTest, CancellingEndsItAtOnce) {
  std::stop_source stop;
  std::thread canceller([&stop] {
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
    stop.request_stop();
  });
  EXPECT_EQ(faultOf(fake("while :; do :; done"), stop), "its loading was cancelled");
  EXPECT_LT(clock_.elapsed(), 9000);
  EXPECT_FALSE(isFakeRunning());
  canceller.join();
}

TEST_F(MetafileChildTest, AProgramThatNeverStopsWritingIsEnded) {
  EXPECT_EQ(faultOf(fake("cat /dev/zero")), "the program that draws metafiles has not answered as it should");
  EXPECT_LT(clock_.elapsed(), 9000);
}

TEST_F(MetafileChildTest, OtherAnswersAreRefused) {
  const std::string noAnswer = "the program that draws metafiles has not answered as it should";
  EXPECT_EQ(faultOf(fake("echo hello")), noAnswer);
  EXPECT_EQ(faultOf(fake("exit 0")), noAnswer);
  EXPECT_EQ(faultOf(fake("exec 1>&-; cat >/dev/null")), noAnswer);
}

TEST_F(MetafileChildTest, AProgramThatCrashesIsNoPicture) {
  EXPECT_EQ(faultOf(fake("kill -SEGV $$")), "it is damaged, or drawing it needs too much memory or time");
}

TEST_F(MetafileChildTest, AMissingProgramIsTold) {
  EXPECT_EQ(faultOf({folder_.pathOf(QStringLiteral("none"))}),
            "the program that draws metafiles cannot be started");
}

TEST_F(MetafileChildTest, AProgramThatDoesNotReadIsNoHindrance) {
  const QByteArray large = EmfWriter().record(70, QByteArray(8'000'000, 'x')).file();
  EXPECT_EQ(faultOf(fake("exec sleep 60", 300), {}, large), "drawing it takes too long");
  EXPECT_LT(clock_.elapsed(), 9000);
}

TEST_F(MetafileChildTest, TheLimitsHoldBeforeAnythingIsRead) {
  QProcess process;
  process.start(kProgram, {});
  ASSERT_TRUE(process.waitForStarted());
  // Nothing has been written to it, and nothing will be. It sets one limit after the other.
  const QString path = QStringLiteral("/proc/%1/limits").arg(process.processId());
  QByteArray limits;
  ASSERT_EVENTUALLY(
      (limits = outputOf(QStringLiteral("cat"), {path})).contains("Max open files            64") &&
      limits.contains("Max file size             0") && limits.contains("Max core file size        0") &&
      limits.contains("Max cpu time              5"));
  const std::string text = limits.toStdString();
  EXPECT_THAT(text, testing::ContainsRegex("Max cpu time +5 +5 +seconds"));
  EXPECT_THAT(text, testing::ContainsRegex("Max open files +64 +64 +files"));
  EXPECT_THAT(text, testing::ContainsRegex("Max file size +0 +0 +bytes"));
  EXPECT_THAT(text, testing::ContainsRegex("Max core file size +0 +0 +bytes"));
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
  EXPECT_THAT(text, testing::ContainsRegex("Max address space +536870912 +536870912 +bytes"));
#endif
  process.kill();
  process.waitForFinished();
}

/// Much work with few bytes: each record paints the whole sheet in dashes.
QByteArray endlessMetafile() {
  EmfWriter emf;
  emf.pen(1, 1, 3, qRgb(1, 2, 3)).select(1);
  for (int ellipse = 0; ellipse < 60'000; ++ellipse) emf.ellipse(0, 0, 400, 200);
  return emf.file();
}

TEST_F(MetafileChildTest, ADrawingThatTakesTooLongIsEnded) {
  // On a busy machine the time on the clock may run out first.
  EXPECT_THAT(faultOf({kProgram}, {}, endlessMetafile()),
              testing::AnyOf("it is damaged, or drawing it needs too much memory or time",
                             "drawing it takes too long"));
  EXPECT_LT(clock_.elapsed(), 100'000);
}

TEST_F(MetafileChildTest, ItUsesNoWindows) {
  EXPECT_THAT(
      outputOf(QStringLiteral("ldd"), {kProgram}).toStdString(),
      testing::AllOf(testing::HasSubstr("libQt6Gui"), testing::Not(testing::HasSubstr("libQt6Widgets"))));
}

}  // namespace

}  // namespace quorvin::test
