// The preview window and what opens it.
#include "preview/img_pre.h"

#include "metafile/dib_writer.h"
#include "metafile/metafile_corpus.h"
#include "metafile/metafile_writer.h"
#include "preview/corpus_picture.h"
#include "preview/img_pre_opener.h"
#include "preview/picture_printing.h"
#include "support/temporary_folder.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

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

LoadedPicture still(int width, int height, const QColor& colour = Qt::red) {
  return {QSizeF(width, height), {plain(width, height, colour), 0}, {}};
}

class ImgPreWindow : public testing::Test {
 protected:
  void show(int width, int height) {
    window_.show();
    window_.resize(width, height);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window_));
    QCoreApplication::processEvents();
  }
  QWidget* PicBox() { return window_.findChild<QWidget*>(QStringLiteral("PicBox")); }
  QWidget* Pic() { return window_.findChild<QWidget*>(QStringLiteral("Pic")); }

  QThreadPool pool_;
  ImgPre window_{pool_, nullptr};
};

TEST_F(ImgPreWindow, CarriesItsNamesAndCaption) {
  EXPECT_EQ(window_.objectName(), QStringLiteral("ImgPre"));
  EXPECT_EQ(window_.windowTitle(), QStringLiteral("Image Preview"));
  ASSERT_NE(PicBox(), nullptr);
  ASSERT_NE(Pic(), nullptr);
  EXPECT_EQ(Pic()->parentWidget(), PicBox());
  EXPECT_FALSE(window_.isModal());
}

TEST_F(ImgPreWindow, PicBoxFillsTheWindow) {
  show(500, 300);
  EXPECT_EQ(PicBox()->geometry(), QRect(0, 0, 500, 300));
  window_.resize(333, 444);
  EXPECT_EQ(PicBox()->geometry(), QRect(0, 0, 333, 444));
}

TEST_F(ImgPreWindow, ThePictureIsFittedInTwipsAndStaysInTheUpperLeftCorner) {
  window_.setPicture(still(200, 100), QStringLiteral("/m/a.bmp"));
  show(400, 400);
  // 6000 by 6000 twips: 5940 by 2940.
  EXPECT_EQ(Pic()->geometry(), QRect(0, 0, 396, 196));
}

TEST_F(ImgPreWindow, EveryResizeFitsAgain) {
  window_.setPicture(still(100, 100), QStringLiteral("/m/a.bmp"));
  show(400, 400);
  EXPECT_EQ(Pic()->size(), QSize(396, 396));
  window_.resize(800, 600);
  EXPECT_EQ(Pic()->size(), QSize(596, 596));
  window_.resize(300, 600);
  EXPECT_EQ(Pic()->size(), QSize(296, 296));
}

TEST_F(ImgPreWindow, EveryActivationFitsAgain) {
  window_.setPicture(still(100, 100), QStringLiteral("/m/a.bmp"));
  show(400, 400);
  Pic()->resize(10, 10);
  QEvent activation(QEvent::WindowActivate);
  QCoreApplication::sendEvent(&window_, &activation);
  EXPECT_EQ(Pic()->size(), QSize(396, 396));
}

TEST_F(ImgPreWindow, AnotherPictureIsFittedWithoutAnyResize) {
  window_.setPicture(still(100, 100), QStringLiteral("/m/a.bmp"));
  show(400, 400);
  window_.setPicture(still(100, 200), QStringLiteral("/m/b.bmp"));
  EXPECT_EQ(Pic()->size(), QSize(196, 396));
}

TEST_F(ImgPreWindow, AFrameOf120TwipsLeavesThePictureAsItWas) {
  window_.setPicture(still(100, 100), QStringLiteral("/m/a.bmp"));
  show(400, 400);
  window_.resize(8, 400);
  EXPECT_EQ(PicBox()->size(), QSize(8, 400));
  EXPECT_EQ(Pic()->size(), QSize(396, 396));
}

TEST_F(ImgPreWindow, WithoutPictureTheResizeStopsAfterTheFrame) {
  show(400, 300);
  EXPECT_EQ(PicBox()->size(), QSize(400, 300));
  EXPECT_EQ(Pic()->size(), QSize(1, 1));
}

TEST_F(ImgPreWindow, APictureFarLongerThanWideStaysVisible) {
  window_.setPicture(still(4000, 1), QStringLiteral("/m/a.bmp"));
  show(400, 400);
  EXPECT_EQ(Pic()->size(), QSize(396, 1));
}

TEST_F(ImgPreWindow, ThePictureIsStretchedOverPic) {
  QImage halves = plain(2, 1, Qt::red);
  halves.setPixelColor(1, 0, Qt::blue);
  window_.setPicture({halves.size(), {halves, 0}, {}}, QStringLiteral("/m/a.bmp"));
  show(404, 404);
  const QImage seen = window_.grab().toImage();
  EXPECT_EQ(seen.pixelColor(5, 5), QColor(Qt::red));
  EXPECT_EQ(seen.pixelColor(195, 190), QColor(Qt::red));
  EXPECT_EQ(seen.pixelColor(205, 190), QColor(Qt::blue));
  EXPECT_EQ(seen.pixelColor(395, 190), QColor(Qt::blue));
  EXPECT_EQ(seen.pixelColor(395, 300), window_.palette().color(QPalette::Window));
}

TEST_F(ImgPreWindow, EscapeHidesIt) {
  show(400, 400);
  QTest::keyClick(&window_, Qt::Key_Escape);
  EXPECT_FALSE(window_.isVisible());
}

TEST_F(ImgPreWindow, ScreenReadersHearWhichPictureItIs) {
  window_.setPicture(still(10, 10), QStringLiteral("/m/a & <b>.bmp"));
  EXPECT_EQ(Pic()->accessibleName(), QStringLiteral("Picture a & <b>.bmp"));
  EXPECT_EQ(PicBox()->accessibleName(), QStringLiteral("Picture frame"));
  EXPECT_EQ(Pic()->toolTip(), QStringLiteral("/m/a &amp; &lt;b&gt;.bmp"));
}

/// Opens pictures as the main window does.
class PreviewImageTest : public testing::Test {
 protected:
  struct Report {
    QString path;
    QString description;
  };

  QString write(const QString& name, const QByteArray& bytes) { return folder_.writeFile(name, bytes); }

  void preview(const QString& path) {
    opener_.PreviewImage(path);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !opener_.isLoading(); }, 12'000));
    QCoreApplication::processEvents();
  }

  MetafileChild child() {
    if (!slowProgram_) return {QStringLiteral(QUORVIN_METAFILE_PROGRAM)};
    const QString path = write(QStringLiteral("slow"), "#!/bin/sh\nwhile :; do :; done\n");
    ::chmod(path.toLocal8Bit().constData(), 0700);
    return {path, std::chrono::seconds(2)};
  }

  QColor seenAt(int x, int y) { return opener_.window()->grab().toImage().pixelColor(x, y); }

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
  QWidget owner_;
  ImgPreOpener opener_{&owner_, child(), [this](const QString& path, const RuntimeFault& fault) {
                         reports_.push_back({path, fault.description()});
                       }};
};

TEST_F(PreviewImageTest, ThePictureIsLoadedAndShown) {
  EXPECT_EQ(opener_.window(), nullptr) << "The window is made on first use.";
  preview(write(QStringLiteral("a.bmp"), bitmapOf(plain(20, 10, Qt::red))));
  ASSERT_NE(opener_.window(), nullptr);
  EXPECT_TRUE(opener_.window()->isVisible());
  EXPECT_FALSE(opener_.window()->isModal());
  EXPECT_EQ(seenAt(10, 10), QColor(Qt::red));
  EXPECT_TRUE(reports_.empty());
}

TEST_F(PreviewImageTest, TheWindowIsUsedAgain) {
  preview(write(QStringLiteral("a.bmp"), bitmapOf(plain(20, 10, Qt::red))));
  ImgPre* first = opener_.window();
  first->hide();
  preview(write(QStringLiteral("b.bmp"), bitmapOf(plain(20, 10, Qt::blue))));
  EXPECT_EQ(opener_.window(), first);
  EXPECT_TRUE(first->isVisible());
  EXPECT_EQ(seenAt(10, 10), QColor(Qt::blue));
}

TEST_F(PreviewImageTest, MetafilesAreDrawnByTheOtherProgram) {
  preview(write(QStringLiteral("a.emf"), enhancedMetafileCorpus().front().bytes));
  ASSERT_NE(opener_.window(), nullptr);
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
  EXPECT_EQ(opener_.window(), nullptr) << "Nothing is shown.";
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
  EXPECT_TRUE(opener_.window()->isVisible());
  EXPECT_EQ(seenAt(10, 10), QColor(Qt::red));
}

TEST_F(PreviewImageTest, TheLastPictureAskedForIsTheOneShown) {
  const QString red = write(QStringLiteral("a.bmp"), bitmapOf(plain(2000, 2000, Qt::red)));
  const QString blue = write(QStringLiteral("b.bmp"), bitmapOf(plain(20, 10, Qt::blue)));
  for (int time = 0; time < 20; ++time) opener_.PreviewImage(red);
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
  EXPECT_TRUE(QTest::qWaitFor(look, 5000));
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
  opener_.PreviewImage(write(QStringLiteral("b.bmp"), bitmapOf(plain(20, 10, Qt::red))));
  opener_.unload();
  QTest::qWait(200);
  EXPECT_EQ(opener_.window(), nullptr);
  EXPECT_FALSE(opener_.isLoading());
  EXPECT_TRUE(reports_.empty());
}

/// With a program that never answers in place of the one that draws.
class SlowPreviewTest : public PreviewImageTest {
 protected:
  SlowPreviewTest() : PreviewImageTest(true) {}
  void begin() { opener_.PreviewImage(write(QStringLiteral("a.emf"), EmfWriter().file())); }
};

TEST_F(SlowPreviewTest, ABoxWithACancelButtonAppearsAndTheProgramGoesOn) {
  QElapsedTimer sinceLast;
  qint64 longestPause = 0;
  QTimer beat;
  QObject::connect(&beat, &QTimer::timeout,
                   [&] { longestPause = std::max(longestPause, sinceLast.restart()); });
  sinceLast.start();
  beat.start(10);
  begin();
  ASSERT_TRUE(QTest::qWaitFor([this] { return box() != nullptr; }, 2000));
  EXPECT_EQ(box()->labelText(), QStringLiteral("Loading a.emf..."));
  EXPECT_NE(box()->findChild<QProgressBar*>(QStringLiteral("bar")), nullptr);
  ASSERT_TRUE(QTest::qWaitFor([this] { return !opener_.isLoading(); }, 5000));
  EXPECT_LT(longestPause, 2000);
  ASSERT_EQ(reports_.size(), 1U);
  EXPECT_TRUE(
      reports_[0].description.endsWith(QStringLiteral("a.emf cannot be shown: drawing it takes too long.")));
  EXPECT_EQ(box(), nullptr);
}

TEST_F(SlowPreviewTest, CancelEndsItWithoutAnyMessage) {
  begin();
  ASSERT_TRUE(QTest::qWaitFor([this] { return box() != nullptr; }, 2000));
  QTest::mouseClick(box()->findChild<QPushButton*>(QStringLiteral("CancelButton")), Qt::LeftButton);
  EXPECT_FALSE(opener_.isLoading());
  QTest::qWait(300);
  EXPECT_TRUE(reports_.empty());
  EXPECT_EQ(box(), nullptr);
}

TEST_F(SlowPreviewTest, EscapeInTheBoxCancels) {
  begin();
  ASSERT_TRUE(QTest::qWaitFor([this] { return box() != nullptr; }, 2000));
  QTest::keyClick(box(), Qt::Key_Escape);
  EXPECT_FALSE(opener_.isLoading());
}

TEST_F(SlowPreviewTest, AnotherPictureNeedNotWaitForASlowOne) {
  begin();
  const QString path = write(QStringLiteral("b.bmp"), bitmapOf(plain(20, 10, Qt::blue)));
  QElapsedTimer clock;
  clock.start();
  preview(path);
  EXPECT_LT(clock.elapsed(), 1000);
  EXPECT_EQ(seenAt(10, 10), QColor(Qt::blue));
}

TEST_F(SlowPreviewTest, UnloadDuringALoadIsQuick) {
  begin();
  QTest::qWait(100);
  QElapsedTimer clock;
  clock.start();
  opener_.unload();
  EXPECT_LT(clock.elapsed(), 1000);
}

}  // namespace

}  // namespace quorvin::test
