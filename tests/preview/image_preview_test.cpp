// SPDX-License-Identifier: GPL-2.0-or-later

// Previewing pictures, as the main window does.
#include "preview/image_preview.h"

#include "metafile/dib_writer.h"
#include "metafile/metafile_corpus.h"
#include "metafile/metafile_writer.h"
#include "preview/corpus_picture.h"
#include "preview/picture_printing.h"
#include "support/eventually.h"
#include "support/processor_clock.h"
#include "support/temporary_folder.h"

#include <QApplication>
#include <QEvent>
#include <QEventLoop>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <sys/stat.h>

namespace quorvin::test {

namespace {

QImage plain(int width, int height, const QColor& colour) {
  QImage image(width, height, QImage::Format_RGB32);
  image.fill(colour);
  return image;
}

QByteArray bitmapOf(const QImage& image) {
  const QByteArray dib = dibOf(image, {});
  return ByteWriter().raw("BM").u32(14 + dib.size()).u32(0).u32(54).raw(dib).bytes();
}

class PreviewImageTest : public testing::Test {
 protected:
  struct Report {
    QString path;
    QString description;
  };

  QString write(const QString& name, const QByteArray& bytes) { return folder_.writeFile(name, bytes); }

  void preview(const QString& path) {
    preview_.PreviewImage(path);
    ASSERT_TRUE(eventually([this] { return !preview_.isLoading(); }));
    QCoreApplication::processEvents();
  }

  MetafileChild child() {
    if (!slowProgram_) return {QStringLiteral(QUORVIN_METAFILE_PROGRAM)};
    const QString path = write(QStringLiteral("slow"), "#!/bin/sh\nwhile :; do :; done\n");
    ::chmod(path.toLocal8Bit().constData(), 0700);
    return {path, std::chrono::seconds(2)};
  }

  QColor seenAt(int x, int y) { return preview_.window()->grab().toImage().pixelColor(x, y); }

  ImgPreLoading* box() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      auto* found = qobject_cast<ImgPreLoading*>(widget);
      if (found != nullptr && found->isVisible()) return found;
    }
    return nullptr;
  }

  explicit PreviewImageTest(bool slowProgram = false) : slowProgram_(slowProgram) {}

  bool slowProgram_;
  TemporaryFolder folder_;
  std::vector<Report> reports_;
  std::function<void()> whileReporting_;
  QWidget owner_;
  ImagePreview preview_{&owner_, child(), [this](const QString& path, const RuntimeFault& fault) {
                          reports_.push_back({path, fault.description()});
                          if (whileReporting_) whileReporting_();
                        }};
};

TEST_F(PreviewImageTest, ThePictureIsLoadedAndShown) {
  EXPECT_EQ(preview_.window(), nullptr) << "The window is made on first use.";
  preview(write(QStringLiteral("a.bmp"), bitmapOf(plain(20, 10, Qt::red))));
  ASSERT_NE(preview_.window(), nullptr);
  EXPECT_TRUE(preview_.window()->isVisible());
  EXPECT_FALSE(preview_.window()->isModal());
  EXPECT_EQ(seenAt(10, 10), QColor(Qt::red));
  EXPECT_TRUE(reports_.empty());
}

TEST_F(PreviewImageTest, TheWindowIsUsedAgain) {
  preview(write(QStringLiteral("a.bmp"), bitmapOf(plain(20, 10, Qt::red))));
  ImgPre* first = preview_.window();
  first->hide();
  preview(write(QStringLiteral("b.bmp"), bitmapOf(plain(20, 10, Qt::blue))));
  EXPECT_EQ(preview_.window(), first);
  EXPECT_TRUE(first->isVisible());
  EXPECT_EQ(seenAt(10, 10), QColor(Qt::blue));
}

TEST_F(PreviewImageTest, MetafilesAreDrawnByTheOtherProgram) {
  preview(write(QStringLiteral("a.emf"), enhancedMetafileCorpus().front().bytes));
  ASSERT_NE(preview_.window(), nullptr);
  // In the middle of the green square; the picture takes 636 by 316 pixels of the window.
  EXPECT_EQ(seenAt(636 / 4, 316 / 2), QColor(Qt::green));
}

TEST_F(PreviewImageTest, APictureThatCannotBeShownIsReportedByNameAndReason) {
  const QString path = write(QStringLiteral("a.jpg"), "no picture");
  preview(path);
  ASSERT_EQ(reports_.size(), 1U);
  EXPECT_EQ(reports_[0].path, path);
  EXPECT_EQ(
      reports_[0].description,
      path + QStringLiteral(" cannot be shown: it is not a bitmap, icon, metafile, JPEG or GIF picture."));
  EXPECT_EQ(preview_.window(), nullptr) << "Nothing is shown.";
}

TEST_F(PreviewImageTest, AMissingPictureIsReported) {
  const QString path = folder_.pathOf(QStringLiteral("gone.gif"));
  preview(path);
  ASSERT_EQ(reports_.size(), 1U);
  EXPECT_EQ(reports_[0].description, QStringLiteral("File not found: ") + path);
}

TEST_F(PreviewImageTest, AFaultLeavesTheWindowAsItWas) {
  preview(write(QStringLiteral("a.bmp"), bitmapOf(plain(20, 10, Qt::red))));
  preview(write(QStringLiteral("b.bmp"), "BM"));
  EXPECT_EQ(reports_.size(), 1U);
  EXPECT_TRUE(preview_.window()->isVisible());
  EXPECT_EQ(seenAt(10, 10), QColor(Qt::red));
}

TEST_F(PreviewImageTest, NoBoxAppearsOverTheMessageOfAFault) {
  bool wasSeen = false;
  // A message runs an event loop of its own, which is longer here than the box stays unseen.
  whileReporting_ = [&] {
    QEventLoop message;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&] { wasSeen = wasSeen || box() != nullptr; });
    watch.start(5);
    QTimer::singleShot(900, &message, &QEventLoop::quit);
    message.exec();
  };
  QEventLoop program;
  QTimer::singleShot(1500, &program, &QEventLoop::quit);
  preview_.PreviewImage(write(QStringLiteral("a.jpg"), "no picture"));
  program.exec();
  EXPECT_EQ(reports_.size(), 1U);
  EXPECT_FALSE(wasSeen);
  EXPECT_EQ(box(), nullptr);
}

/// Does something as soon as pending events are let run after the picture was put into the window, which
/// has the tooltip changed.
class OnceInPicture : public QObject {
 public:
  OnceInPicture(QWidget* picture, std::function<void()> action) : action_(std::move(action)) {
    picture->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::ToolTipChange) {
      QMetaObject::invokeMethod(
          this, [this] { action_(); }, Qt::QueuedConnection);
    }
    return false;
  }

 private:
  std::function<void()> action_;
};

TEST_F(PreviewImageTest, PendingEventsRunBeforeTheWindowIsShown) {
  preview(write(QStringLiteral("a.bmp"), bitmapOf(plain(20, 10, Qt::red))));
  preview_.window()->hide();
  QList<bool> visible;
  OnceInPicture look(preview_.window()->findChild<QWidget*>(QStringLiteral("Pic")),
                     [&] { visible.append(preview_.window()->isVisible()); });
  preview(write(QStringLiteral("b.bmp"), bitmapOf(plain(20, 10, Qt::blue))));
  EXPECT_EQ(visible, QList<bool>{false});
  EXPECT_TRUE(preview_.window()->isVisible());
}

TEST_F(PreviewImageTest, TheProgramMayBeClosedByAPendingEvent) {
  preview(write(QStringLiteral("a.bmp"), bitmapOf(plain(20, 10, Qt::red))));
  OnceInPicture close(preview_.window()->findChild<QWidget*>(QStringLiteral("Pic")),
                      [this] { preview_.unload(); });
  preview(write(QStringLiteral("b.bmp"), bitmapOf(plain(20, 10, Qt::blue))));
  EXPECT_EQ(preview_.window(), nullptr);
  EXPECT_TRUE(reports_.empty());
}

TEST_F(PreviewImageTest, TheLastPictureAskedForIsTheOneShown) {
  const QString red = write(QStringLiteral("a.bmp"), bitmapOf(plain(2000, 2000, Qt::red)));
  const QString blue = write(QStringLiteral("b.bmp"), bitmapOf(plain(20, 10, Qt::blue)));
  for (int time = 0; time < 20; ++time) preview_.PreviewImage(red);
  preview(blue);
  QTest::qWait(300);
  EXPECT_EQ(seenAt(10, 10), QColor(Qt::blue));
  EXPECT_TRUE(reports_.empty());
}

TEST_F(PreviewImageTest, AnimatedPicturesMove) {
  const CorpusPicture* moving = nullptr;
  const std::vector<CorpusPicture> corpus = gifCorpus();
  for (const CorpusPicture& picture : corpus) {
    if (picture.name == "moving, disposal 1") moving = &picture;
  }
  ASSERT_NE(moving, nullptr);
  preview(write(QStringLiteral("a.gif"), moving->bytes));
  QSet<QRgb> seen;
  // The third frame changes that point, the first restores it.
  const auto look = [&] {
    seen.insert(seenAt(636 * 25 / 40, 380 * 17 / 24).rgb());
    return seen.size() > 1;
  };
  EXPECT_TRUE(eventually(look));
}

/// Whether this process has the file open.
bool isOpen(const QString& path) {
  const QFileInfoList descriptors =
      QDir(QStringLiteral("/proc/self/fd")).entryInfoList(QDir::AllEntries | QDir::System);
  return std::ranges::any_of(descriptors, [&](const QFileInfo& one) { return one.symLinkTarget() == path; });
}

TEST_F(PreviewImageTest, AClosedWindowLetsGoOfTheFileOfAMovingPicture) {
  const auto isForEver = [](const CorpusPicture& picture) { return picture.name == "moving, disposal 2"; };
  const std::vector<CorpusPicture> corpus = gifCorpus();
  const auto moving = std::ranges::find_if(corpus, isForEver);
  ASSERT_NE(moving, corpus.end());
  const QString path = write(QStringLiteral("a.gif"), moving->bytes);
  preview(path);
  EXPECT_TRUE(isOpen(path));
  preview_.window()->close();
  EXPECT_EVENTUALLY(!isOpen(path));
}

TEST_F(PreviewImageTest, AStillPictureCausesNoBoxToAppear) {
  bool wasSeen = false;
  QTimer watch;
  QObject::connect(&watch, &QTimer::timeout, [&] { wasSeen = wasSeen || box() != nullptr; });
  watch.start(5);
  preview(write(QStringLiteral("a.bmp"), bitmapOf(plain(20, 10, Qt::red))));
  QTest::qWait(700);
  EXPECT_FALSE(wasSeen);
}

TEST_F(PreviewImageTest, UnloadTakesTheWindowAwayAndEndsTheLoading) {
  preview(write(QStringLiteral("a.bmp"), bitmapOf(plain(20, 10, Qt::red))));
  preview_.PreviewImage(write(QStringLiteral("b.bmp"), bitmapOf(plain(20, 10, Qt::red))));
  preview_.unload();
  QTest::qWait(200);
  EXPECT_EQ(preview_.window(), nullptr);
  EXPECT_FALSE(preview_.isLoading());
  EXPECT_TRUE(reports_.empty());
}

/// With a program that never answers in place of the one that draws.
class SlowPreviewTest : public PreviewImageTest {
 protected:
  SlowPreviewTest() : PreviewImageTest(true) {}
  void start() { preview_.PreviewImage(write(QStringLiteral("a.emf"), EmfWriter().file())); }
};

TEST_F(SlowPreviewTest, ABoxWithACancelButtonAppearsAndTheProgramGoesOn) {
  ProcessorClock sinceLast;
  qint64 longestPause = 0;
  QTimer beat;
  QObject::connect(&beat, &QTimer::timeout,
                   [&] { longestPause = std::max(longestPause, sinceLast.restart()); });
  sinceLast.start();
  beat.start(10);
  start();
  ASSERT_TRUE(eventually([this] { return box() != nullptr; }));
  EXPECT_EQ(box()->labelText(), QStringLiteral("Loading a.emf..."));
  EXPECT_NE(box()->findChild<QProgressBar*>(QStringLiteral("bar")), nullptr);
  ASSERT_TRUE(eventually([this] { return !preview_.isLoading(); }));
  EXPECT_LT(longestPause, 2000);
  ASSERT_EQ(reports_.size(), 1U);
  EXPECT_TRUE(
      reports_[0].description.endsWith(QStringLiteral("a.emf cannot be shown: drawing it takes too long.")));
  EXPECT_EQ(box(), nullptr);
}

TEST_F(SlowPreviewTest, CancelEndsItWithoutAnyMessage) {
  start();
  ASSERT_TRUE(eventually([this] { return box() != nullptr; }));
  QTest::mouseClick(box()->findChild<QPushButton*>(QStringLiteral("CancelButton")), Qt::LeftButton);
  EXPECT_FALSE(preview_.isLoading());
  QTest::qWait(300);
  EXPECT_TRUE(reports_.empty());
  EXPECT_EQ(box(), nullptr);
}

TEST_F(SlowPreviewTest, EscapeInTheBoxCancels) {
  start();
  ASSERT_TRUE(eventually([this] { return box() != nullptr; }));
  QTest::keyClick(box(), Qt::Key_Escape);
  EXPECT_FALSE(preview_.isLoading());
}

TEST_F(SlowPreviewTest, AnotherPictureNeedNotWaitForASlowOne) {
  start();
  const QString path = write(QStringLiteral("b.bmp"), bitmapOf(plain(20, 10, Qt::blue)));
  ProcessorClock clock;
  clock.start();
  preview(path);
  EXPECT_LT(clock.elapsed(), 1000);
  EXPECT_EQ(seenAt(10, 10), QColor(Qt::blue));
}

TEST_F(SlowPreviewTest, UnloadDuringALoadIsQuick) {
  start();
  QTest::qWait(100);
  ProcessorClock clock;
  clock.start();
  preview_.unload();
  EXPECT_LT(clock.elapsed(), 1000);
}

}  // namespace

}  // namespace quorvin::test
