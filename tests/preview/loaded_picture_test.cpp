// SPDX-License-Identifier: GPL-2.0-or-later

// Pictures that cannot be shown, and how long it takes to find out.
#include "preview/loaded_picture.h"

#include "faults/runtime_fault.h"
#include "metafile/dib_writer.h"
#include "metafile/metafile_writer.h"
#include "preview/corpus_picture.h"
#include "preview/picture_printing.h"
#include "support/processor_clock.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sys/stat.h>
#include <thread>

namespace quorvin::test {

namespace {

class PictureLoading : public testing::Test {
 protected:
  LoadedPicture load(const QByteArray& bytes) {
    return loadPicture(folder_.writeFile(QStringLiteral("a b.jpg"), bytes), {}, std::stop_source());
  }

  RuntimeFault faultOfPath(const QString& path) {
    try {
      loadPicture(path, {}, std::stop_source());
    } catch (const RuntimeFault& fault) {
      return fault;
    }
    ADD_FAILURE() << "no fault";
    return RuntimeFault(FaultNumber::Overflow);
  }

  /// Loads a picture of these bytes and expects the reason why it cannot be shown.
  void expectRefused(const QByteArray& bytes, const QString& why) {
    const QString path = folder_.writeFile(QStringLiteral("a b.jpg"), bytes);
    const RuntimeFault fault = faultOfPath(path);
    EXPECT_EQ(fault.number(), 5);
    EXPECT_EQ(fault.description(), path + QStringLiteral(" cannot be shown: ") + why + u'.');
  }

  TemporaryFolder folder_;
};

CorpusPicture named(const std::vector<CorpusPicture>& corpus, const std::string& name) {
  return *std::ranges::find(corpus, name, &CorpusPicture::name);
}

const QString kDamaged = QStringLiteral("it is damaged, or of a kind that is not supported");
const QString kNoPicture = QStringLiteral("it is not a bitmap, icon, metafile, JPEG or GIF picture");

TEST_F(PictureLoading, AMissingFileIsFault53WithItsName) {
  const QString path = folder_.pathOf(QStringLiteral("gone.bmp"));
  const RuntimeFault fault = faultOfPath(path);
  EXPECT_EQ(fault.number(), 53);
  EXPECT_EQ(fault.description(), QStringLiteral("File not found: ") + path);
}

TEST_F(PictureLoading, AFolderIsNoPicture) {
  EXPECT_EQ(faultOfPath(folder_.makeFolder(QStringLiteral("pictures"))).number(), 75);
}

TEST_F(PictureLoading, APipeIsRefusedWithoutWaitingForIt) {
  const QString path = folder_.pathOf(QStringLiteral("pipe.gif"));
  ASSERT_EQ(::mkfifo(path.toLocal8Bit().constData(), 0600), 0);
  EXPECT_EQ(faultOfPath(path).number(), 75);
}

TEST_F(PictureLoading, WhatIsNoPictureIsRefusedWhateverItsName) {
  expectRefused("", kNoPicture);
  expectRefused("Dear Sir or Madam", kNoPicture);
  expectRefused("\x89PNG\r\n\x1A\n", kNoPicture);
}

TEST_F(PictureLoading, ADamagedPictureIsRefused) {
  expectRefused("BM", kDamaged);
  expectRefused("GIF89a", kDamaged);
  expectRefused("\xFF\xD8\xFF", kDamaged);
  expectRefused(QByteArray("\0\0\1\0\1\0", 6), kDamaged);
  expectRefused(gifCorpus().front().bytes.left(45), kDamaged);
}

TEST_F(PictureLoading, ACutBitmapShowsWhatThereIsAndBlackBelow) {
  const CorpusPicture whole = named(bitmapCorpus(), "24 bits from the top");
  const LoadedPicture cut = load(whole.bytes.chopped(40));
  EXPECT_EQ(cut.frame.image.pixel(3, 0), whole.expected().pixel(3, 0));
  EXPECT_EQ(cut.frame.image.pixel(3, 6), qRgb(0, 0, 0));
}

TEST_F(PictureLoading, BitmapsThatHoldOtherFormatsAreRefused) {
  const QImage image = colouredPicture();
  for (const int compression : {4, 5}) {
    DibForm form;
    form.compression = compression;
    const QByteArray dib = dibOf(image, form);
    expectRefused(ByteWriter().raw("BM").u32(14 + dib.size()).u32(0).u32(54).raw(dib).bytes(), kDamaged);
  }
}

QByteArray bitmapHeader(int width, int height) {
  return ByteWriter()
      .raw("BM")
      .u32(54)
      .u32(0)
      .u32(54)
      .u32(40)
      .u32(width)
      .u32(height)
      .u16(1)
      .u16(1)
      .u32(0)
      .zeros(20)
      .bytes();
}

TEST_F(PictureLoading, MoreThan256MegapixelsAreRefused) {
  const QString why = QStringLiteral("with %1 by %2 pixels it is larger than 256 megapixels");
  expectRefused(bitmapHeader(16000, 16001), why.arg(16000).arg(16001));
  expectRefused(bitmapHeader(2'000'000'000, 2'000'000'000), why.arg(2'000'000'000).arg(2'000'000'000));
  expectRefused(bitmapHeader(16001, -16000), why.arg(16001).arg(16000));
  expectRefused(
      ByteWriter().raw("GIF89a").u16(65535).u16(65535).u8(0).u16(0).raw(gifCorpus()[0].bytes.mid(13)).bytes(),
      why.arg(65535).arg(65535));
}

TEST_F(PictureLoading, Exactly256MegapixelsAreNotTooMany) {
  // Without any pixels behind the header, so that nothing is decoded.
  expectRefused(bitmapHeader(16'000, 16'000), QStringLiteral("it is damaged or cut short"));
  expectRefused(bitmapHeader(16'000, -16'000), QStringLiteral("it is damaged or cut short"));
  // The next larger ones: one row or one column more.
  const QString why = QStringLiteral("with %1 by %2 pixels it is larger than 256 megapixels");
  expectRefused(bitmapHeader(256'000'001, 1), why.arg(256'000'001).arg(1));
  expectRefused(bitmapHeader(1, -256'000'001), why.arg(1).arg(256'000'001));
}

TEST_F(PictureLoading, AHundredMegapixelsAreShownButKeptSmaller) {
  // One bit each: twelve megabytes of file.
  const LoadedPicture picture = load(bitmapHeader(10'000, 10'000) + QByteArray(12'520'000, '\x55'));
  EXPECT_EQ(picture.size, QSizeF(10'000, 10'000));
  EXPECT_EQ(picture.frame.image.size(), QSize(4000, 4000));
}

TEST_F(PictureLoading, ALargeBitmapWithAnOldHeaderIsShown) {
  // 5,000 by 4,000 pixels of one bit, two colours.
  const QByteArray header = ByteWriter()
                                .raw("BM")
                                .u32(0)
                                .u32(0)
                                .u32(32)
                                .u32(12)
                                .u16(5000)
                                .u16(4000)
                                .u16(1)
                                .u16(1)
                                .u8(0)
                                .u8(0)
                                .u8(255)
                                .zeros(3)
                                .bytes();
  const LoadedPicture picture = load(header + QByteArray(4000 * 628, '\0'));
  EXPECT_EQ(picture.size, QSizeF(5000, 4000));
  EXPECT_EQ(picture.frame.image.pixel(100, 100), qRgb(255, 0, 0));
}

TEST_F(PictureLoading, ALargeBitmapWithHardlyAnyPixelsIsRefused) {
  expectRefused(bitmapHeader(10'000, 10'000) + QByteArray(5'000'000, '\x55'),
                QStringLiteral("it is damaged or cut short"));
}

TEST_F(PictureLoading, AStoppedLoadEndsAtOnce) {
  const QString path =
      folder_.writeFile(QStringLiteral("a.bmp"), bitmapHeader(16'000, 16'000) + QByteArray(33'000'000, 'x'));
  std::stop_source stop;
  std::thread stopper([&stop] {
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    stop.request_stop();
  });
  ProcessorClock clock;
  clock.start();
  try {
    loadPicture(path, {}, stop);
  } catch (const RuntimeFault&) {
    // It may be too late to stop.
  }
  EXPECT_LT(clock.elapsed(), 2000);
  stopper.join();
}

/// A progressive JPEG picture of 15,000 pixels each way in 40 kB: each of its 150 scans says with some 230
/// bytes that nothing is to be changed in any of its 3.5 million blocks.
QByteArray endlessJpeg() {
  constexpr int kSide = 15'000;
  constexpr int kScans = 150;
  constexpr int kRuns = 108;
  QByteArray scan("\xFF\xDA\0\x08\1\1\0\1\x3F\0", 10);
  QByteArray bits;
  // Each run is a code of one bit, 0, and fourteen bits of length.
  for (int run = 0; run < kRuns; ++run) bits += '0' + QByteArray(14, '1');
  for (qsizetype at = 0; at + 8 <= bits.size(); at += 8) {
    const auto byte = static_cast<char>(bits.mid(at, 8).toInt(nullptr, 2));
    scan += byte;
    if (byte == '\xFF') scan += '\0';
  }
  QByteArray jpeg("\xFF\xD8\xFF\xDB\0\x43\0", 7);
  jpeg += QByteArray(64, '\1');
  jpeg += QByteArray("\xFF\xC2\0\x0B\x08", 5);
  for (int side = 0; side < 2; ++side) jpeg.append(char(kSide >> 8)).append(char(kSide & 0xFF));
  jpeg += QByteArray("\1\1\x11\0\xFF\xC4\0\x14\x10\1", 10) + QByteArray(15, '\0') + '\xE0';
  return jpeg + scan.repeated(kScans) + QByteArray("\xFF\xD9", 2);
}

TEST_F(PictureLoading, AJpegThatAsksForPassAfterPassCanBeStopped) {
  const QString path = folder_.writeFile(QStringLiteral("a.jpg"), endlessJpeg());
  std::stop_source stop;
  ProcessorClock clock;
  std::thread stopper([&] {
    std::this_thread::sleep_for(std::chrono::milliseconds(500));
    stop.request_stop();
    clock.start();
  });
  try {
    loadPicture(path, {}, stop);
  } catch (const RuntimeFault&) {
    // What had been read by then may count as a picture or not.
  }
  stopper.join();
  EXPECT_LT(clock.elapsed(), 2000);
}

TEST_F(PictureLoading, AnAnimationGoesOnAsOftenAsItAsksFor) {
  const CorpusPicture twice = named(gifCorpus(), "moving twice");
  const LoadedPicture picture = load(twice.bytes);
  EXPECT_EQ(picture.frame.milliseconds, 50);
  // One frame has been seen; three are left in two rounds.
  QList<int> times;
  while (const auto frame = picture.decoder->next()) times.append(frame->milliseconds);
  EXPECT_EQ(times, QList<int>({30, 50, 30}));
}

TEST_F(PictureLoading, AnEndlessAnimationBeginsAgain) {
  const CorpusPicture moving = named(gifCorpus(), "moving, disposal 1");
  const LoadedPicture picture = load(moving.bytes);
  for (int round = 0; round < 3; ++round) {
    for (qsizetype frame = 1; frame <= moving.frames.size(); ++frame) {
      const auto next = picture.decoder->next();
      ASSERT_TRUE(next);
      EXPECT_EQ(largestDifference(next->image, moving.frames[frame % moving.frames.size()]), 0);
    }
  }
}

TEST_F(PictureLoading, AStillPictureHasNoNextFrame) {
  EXPECT_FALSE(load(gifCorpus().front().bytes).decoder->next());
  EXPECT_FALSE(load(bitmapCorpus().front().bytes).decoder->next());
}

}  // namespace

}  // namespace quorvin::test
