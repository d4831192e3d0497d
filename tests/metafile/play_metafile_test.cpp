// SPDX-License-Identifier: GPL-2.0-or-later

// Metafiles look as their records say, and as other people's programs draw them.
#include "metafile/play_metafile.h"

#include "metafile/dib_writer.h"
#include "metafile/metafile_corpus.h"
#include "metafile/metafile_writer.h"
#include "preview/picture_printing.h"
#include "preview/second_decoder.h"
#include "support/temporary_folder.h"

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorvin::test {

namespace {

/// The sheet of all the tests' metafiles, in their own units.
constexpr QSize kUnits(400, 200);

QRgb colourAt(const QImage& image, const QPoint& unit) {
  return image.pixel(unit.x() * image.width() / kUnits.width(), unit.y() * image.height() / kUnits.height());
}

void expectSeen(const QImage& image, const QList<SeenPoint>& points) {
  for (const SeenPoint& point : points) {
    EXPECT_EQ(QColor(colourAt(image, point.at)).name().toStdString(),
              QColor(point.colour).name().toStdString())
        << "at " << point.at.x() << ", " << point.at.y();
  }
}

void expectAllSeen(const std::vector<CorpusMetafile>& corpus) {
  ASSERT_FALSE(corpus.empty());
  for (const CorpusMetafile& metafile : corpus) {
    SCOPED_TRACE(metafile.name);
    const QImage image = playMetafile(metafile.bytes).image;
    ASSERT_EQ(image.size(), QSize(600, 300));
    expectSeen(image, metafile.points);
  }
}

/// The share of points, of every third each way, whose colours differ clearly.
double differingShare(const QImage& one, const QImage& other) {
  constexpr int kClearly = 64;
  int differing = 0;
  int compared = 0;
  for (int y = 1; y < kUnits.height(); y += 3) {
    for (int x = 1; x < kUnits.width(); x += 3) {
      const QRgb a = colourAt(one, {x, y});
      const QRgb b = colourAt(other, {x, y});
      const bool differs = std::abs(qRed(a) - qRed(b)) > kClearly ||
                           std::abs(qGreen(a) - qGreen(b)) > kClearly ||
                           std::abs(qBlue(a) - qBlue(b)) > kClearly;
      differing += differs ? 1 : 0;
      ++compared;
    }
  }
  return double(differing) / compared;
}

QImage drawnByEmf2svg(const QByteArray& metafile) {
  const TemporaryFolder folder;
  const QString input = folder.writeFile(QStringLiteral("a.emf"), metafile);
  outputOf(QStringLiteral(QUORVIN_EMF2SVG),
           {QStringLiteral("-i"), input, QStringLiteral("-o"), folder.pathOf(QStringLiteral("a.svg"))});
  QSvgRenderer svg(folder.readFile(QStringLiteral("a.svg")));
  QImage image(600, 300, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  // It leaves the last column and row out.
  svg.setViewBox(QRectF(0, 0, 400, 200));
  svg.render(&painter);
  return image;
}

QImage drawnByLibwmf(const QByteArray& metafile) {
  const TemporaryFolder folder;
  const QString input = folder.writeFile(QStringLiteral("a.wmf"), metafile);
  outputOf(QStringLiteral(QUORVIN_WMF2GD), {QStringLiteral("-t"), QStringLiteral("png"), QStringLiteral("-o"),
                                            folder.pathOf(QStringLiteral("a.png")), input});
  QImage image(600, 300, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.drawImage(image.rect(), QImage(folder.pathOf(QStringLiteral("a.png"))));
  return image;
}

/// Edges fall on other pixels, and no more.
constexpr double kTolerance = 0.03;

TEST(PlayMetafile, EnhancedMetafilesLookAsTheirRecordsSay) {
  expectAllSeen(enhancedMetafileCorpus());
}

TEST(PlayMetafile, WindowsMetafilesLookAsTheirRecordsSay) {
  expectAllSeen(windowsMetafileCorpus());
}

TEST(PlayMetafile, EnhancedMetafilesLookAsTheSecondDecoderDrawsThem) {
  int compared = 0;
  for (const CorpusMetafile& metafile : enhancedMetafileCorpus()) {
    if (!metafile.isForSecondDecoder) continue;
    ++compared;
    EXPECT_LE(differingShare(playMetafile(metafile.bytes).image, drawnByEmf2svg(metafile.bytes)), kTolerance)
        << metafile.name;
  }
  EXPECT_GE(compared, 5);
}

TEST(PlayMetafile, WindowsMetafilesLookAsTheSecondDecoderDrawsThem) {
  int compared = 0;
  for (const CorpusMetafile& metafile : windowsMetafileCorpus()) {
    if (!metafile.isForSecondDecoder) continue;
    ++compared;
    EXPECT_LE(differingShare(playMetafile(metafile.bytes).image, drawnByLibwmf(metafile.bytes)), kTolerance)
        << metafile.name;
  }
  EXPECT_GE(compared, 5);
}

TEST(PlayMetafile, TheOwnSizeIsInHundredthMillimetres) {
  EXPECT_EQ(playMetafile(EmfWriter().file()).ownSize, QSize(10000, 5000));
  EXPECT_EQ(playMetafile(WmfWriter().file()).ownSize, QSize(10583, 5291));
}

TEST(PlayMetafile, WithoutPlaceableHeaderTheFirstWindowTellsTheSize) {
  WmfWriter wmf;
  // The first records of the writer are the origin 0, 0 and the extent 400 by 200.
  wmf.rectangle(0, 0, 10, 10).place(0x020B, 10, 10).place(0x020C, 800, 400);
  EXPECT_EQ(playMetafile(wmf.file(false)).ownSize, QSize(10583, 5291));
}

TEST(PlayMetafile, AnOwnSizeBeyondAllNumbersIsCutToAKilometre) {
  QByteArray emf = EmfWriter().file();
  // The bounds end at nearly the largest number, and the frame is empty: then the bounds count.
  emf.replace(16, 4, QByteArray("\xFF\xFF\xFF\x7F", 4)).replace(24, 16, QByteArray(16, '\0'));
  EXPECT_EQ(playMetafile(emf).ownSize.width(), 100'000'000);
}

TEST(PlayMetafile, LettersStretchedVeryWideAreDrawn) {
  constexpr int kHeight = 10;
  constexpr int kWidth = 400;
  WmfWriter wmf;
  wmf.record(0x02FB, ByteWriter().u16(kHeight).u16(kWidth).zeros(4).u16(400).zeros(40)).select(0);
  const QImage image = playMetafile(wmf.text(0, 100, "H").file()).image;
  int darkPoints = 0;
  for (int x = 0; x < kUnits.width(); ++x) {
    for (int y = 0; y < kUnits.height(); ++y) darkPoints += qGray(colourAt(image, {x, y})) < 128 ? 1 : 0;
  }
  EXPECT_GT(darkPoints, kWidth / 2);
}

TEST(PlayMetafile, ARecordThatMakesNoSenseDoesNotSpoilTheOthers) {
  EmfWriter emf;
  emf.select(0x80000008).brush(1, 0, qRgb(255, 0, 0)).select(1);
  emf.record(43).record(86, ByteWriter().zeros(16).u32(0xFFFFFFFF)).record(4711).rectangle(0, 0, 400, 200);
  EXPECT_EQ(colourAt(playMetafile(emf.file()).image, {200, 100}), qRgb(255, 0, 0));
}

TEST(PlayMetafile, AMonochromePatternHasTheColoursOfTextAndBackground) {
  constexpr int kHeaderAt = 32;
  // 32 by 32 pixels; the left half is 0, the right half 1. There is no palette.
  ByteWriter header;
  header.u32(40).u32(32).u32(32).u16(1).u16(1).zeros(24);
  ByteWriter brush;
  brush.u32(1).u32(2).u32(kHeaderAt).u32(header.size()).u32(kHeaderAt + header.size()).u32(128);
  brush.raw(header.bytes());
  for (int row = 0; row < 32; ++row) brush.u16(0).u16(0xFFFF);
  EmfWriter emf;
  emf.record(93, brush).select(0x80000008).select(1);
  emf.record(24, ByteWriter().u32(metafileColour(kRed)));
  emf.record(25, ByteWriter().u32(metafileColour(kYellow)));
  emf.rectangle(0, 0, 200, 200);
  // The colours count that are set when it is painted.
  emf.record(24, ByteWriter().u32(metafileColour(kBlue))).rectangle(200, 0, 400, 200);
  const QImage image = playMetafile(emf.file()).image;
  // The bitmap's pixels count at 96 to the inch: 32 of them are 33.9 units.
  expectSeen(image, {{{8, 8}, kRed}, {{25, 8}, kYellow}, {{42, 100}, kRed}, {{59, 100}, kYellow}});
  expectSeen(image, {{{212, 8}, kBlue}, {{229, 8}, kYellow}});
}

TEST(PlayMetafile, LinesOfASmallDrawingAreAsThinAsTheirPens) {
  // 40 by 20 pixels, which are drawn fifteen times as large.
  WmfWriter wmf;
  wmf.pen(0, 0, kRed).select(0).moveTo(0, 5).lineTo(40, 5);
  wmf.pen(0, 2, kBlue).select(1).moveTo(0, 15).lineTo(40, 15);
  QByteArray file = wmf.file();
  file.replace(10, 4, ByteWriter().u16(40).u16(20).bytes());
  // The extent of the window, in the second record.
  file.replace(22 + 18 + 10 + 6, 4, ByteWriter().u16(20).u16(40).bytes());
  const QImage image = playMetafile(file).image;
  ASSERT_EQ(image.size(), QSize(600, 300));
  int redRows = 0;
  int blueRows = 0;
  for (int y = 0; y < image.height(); ++y) {
    const QColor colour = image.pixelColor(300, y);
    redRows += colour.red() > 127 && colour.blue() < 255 ? 1 : 0;
    blueRows += colour == QColor(kBlue) ? 1 : 0;
  }
  EXPECT_GE(redRows, 1);
  EXPECT_LE(redRows, 2) << "One row, or two for a line between them.";
  EXPECT_GE(blueRows, 29);
  EXPECT_LE(blueRows, 30);
}

void expectNear(const QImage& image, const QList<SeenPoint>& points) {
  constexpr int kNearly = 4;
  for (const SeenPoint& point : points) {
    const QColor seen(colourAt(image, point.at));
    const QColor expected(point.colour);
    EXPECT_NEAR(seen.red(), expected.red(), kNearly) << "at " << point.at.x() << ", " << point.at.y();
    EXPECT_NEAR(seen.green(), expected.green(), kNearly) << "at " << point.at.x() << ", " << point.at.y();
    EXPECT_NEAR(seen.blue(), expected.blue(), kNearly) << "at " << point.at.x() << ", " << point.at.y();
  }
}

TEST(PlayMetafile, RectanglesAreFilledWithGradients) {
  const QList<SeenPoint> corners = {{{100, 50}, kRed}, {{300, 150}, kBlue}};
  const QRgb quarter = qRgb(191, 0, 64);
  const QRgb half = qRgb(128, 0, 128);
  const QRgb threeQuarters = qRgb(64, 0, 191);
  expectNear(playMetafile(gradientEmf(0, corners, {0, 1}).file()).image, {{{150, 60}, quarter},
                                                                          {{200, 60}, half},
                                                                          {{200, 140}, half},
                                                                          {{250, 100}, threeQuarters},
                                                                          {{90, 100}, kWhite},
                                                                          {{310, 100}, kWhite},
                                                                          {{200, 40}, kWhite}});
  expectNear(playMetafile(gradientEmf(1, corners, {0, 1}).file()).image, {{{110, 75}, quarter},
                                                                          {{110, 100}, half},
                                                                          {{290, 100}, half},
                                                                          {{200, 125}, threeQuarters},
                                                                          {{200, 160}, kWhite}});
  // The corners in the other order.
  expectNear(playMetafile(gradientEmf(0, corners, {1, 0}).file()).image,
             {{{150, 60}, quarter}, {{250, 100}, threeQuarters}});
}

TEST(PlayMetafile, TrianglesAreFilledWithGradients) {
  const QList<SeenPoint> corners = {
      {{0, 0}, kRed}, {{400, 0}, kGreen}, {{0, 200}, kBlue}, {{400, 200}, kRed}};
  expectNear(playMetafile(gradientEmf(2, corners, {0, 1, 2}).file()).image, {{{2, 1}, kRed},
                                                                             {{200, 0}, qRgb(128, 128, 0)},
                                                                             {{100, 50}, qRgb(128, 64, 64)},
                                                                             {{0, 100}, qRgb(128, 0, 128)},
                                                                             {{300, 150}, kWhite}});
  expectNear(playMetafile(gradientEmf(2, corners, {0, 1, 2, 3, 1, 2}).file()).image,
             {{{100, 50}, qRgb(128, 64, 64)}, {{300, 150}, qRgb(128, 64, 64)}});
}

TEST(PlayMetafile, AGradientBetweenCornersThatAreNotThereIsLeftOut) {
  EmfWriter emf = gradientEmf(0, {{{0, 0}, kRed}, {{400, 200}, kRed}}, {0, 7});
  EXPECT_EQ(colourAt(playMetafile(emf.file()).image, {200, 100}), kWhite);
}

TEST(PlayMetafile, ABitmapIsDrawnThroughAMask) {
  const SeenPoint blue = {{125, 75}, kBlue};
  const SeenPoint yellow = {{175, 75}, kYellow};
  const SeenPoint red = {{125, 125}, kRed};
  const SeenPoint green = {{175, 125}, kGreen};
  const auto none = [](const SeenPoint& point) { return SeenPoint{point.at, kWhite}; };
  // Copied where the mask is set, and left as it is elsewhere; the other way round; both; without a mask.
  expectSeen(playMetafile(maskedEmf(0xAACC0020)).image, {blue, none(yellow), red, none(green)});
  expectSeen(playMetafile(maskedEmf(0xCCAA0029)).image, {none(blue), yellow, none(red), green});
  expectSeen(playMetafile(maskedEmf(0xCCCC0020)).image, {blue, yellow, red, green});
  expectSeen(playMetafile(maskedEmf(0xAACC0020, false)).image, {blue, yellow, red, green});
  // Exclusive or elsewhere: the whole record is left out.
  expectSeen(playMetafile(maskedEmf(0x66CC0020)).image, {none(blue), none(yellow), none(red), none(green)});
}

TEST(PlayMetafile, ABitmapIsDrawnIntoAParallelogram) {
  expectSeen(playMetafile(leaningEmf(false)).image, {{{137, 75}, kBlue},
                                                     {{187, 75}, kYellow},
                                                     {{162, 125}, kRed},
                                                     {{212, 125}, kGreen},
                                                     {{105, 140}, kWhite},
                                                     {{245, 60}, kWhite}});
  expectSeen(playMetafile(leaningEmf(true)).image,
             {{{137, 75}, kBlue}, {{187, 75}, kWhite}, {{162, 125}, kRed}, {{212, 125}, kWhite}});
}

/// Text of a font of that charset, as it is stored.
QImage textInCharset(int charset, const QByteArray& letters) {
  WmfWriter wmf;
  ByteWriter font;
  font.u16(-60).u16(0).u16(0).u16(0).u16(400).u8(0).u8(0).u8(0).u8(charset).zeros(4).raw("DejaVu Sans");
  wmf.record(0x02FB, font.zeros(21)).select(0);
  return playMetafile(wmf.text(20, 40, letters).file()).image;
}

TEST(PlayMetafile, BytesOfTextAreInTheCharsetOfTheirFont) {
  // The system code page of the tests is UTF-8.
  const auto expected = [](const char16_t* text) {
    return textInCharset(0, QString::fromUtf16(text).toUtf8());
  };
  EXPECT_EQ(textInCharset(204, "\xCF\xF0"), expected(u"\u041F\u0440"));
  EXPECT_EQ(textInCharset(161, "\xC1\xF9"), expected(u"\u0391\u03C9"));
  EXPECT_EQ(textInCharset(238, "\xC8\xF8"), expected(u"\u010C\u0159"));
  EXPECT_EQ(textInCharset(162, "\xDD\xFE"), expected(u"\u0130\u015F"));
  EXPECT_EQ(textInCharset(0, "\xCF\xF0"), expected(u"\u00CF\u00F0"));
  EXPECT_NE(textInCharset(204, "\xCF\xF0"), textInCharset(0, "\xCF\xF0"));
}

TEST(PlayMetafile, NarrowTextOfEnhancedMetafilesIsInTheCharsetOfItsFont) {
  const auto drawn = [](int charset, const QByteArray& letters) {
    EmfWriter emf;
    ByteWriter font;
    font.u32(1).u32(-60).u32(0).u32(0).u32(0).u32(400).u8(0).u8(0).u8(0).u8(charset).zeros(4);
    for (const QChar letter : QStringLiteral("DejaVu Sans")) font.u16(letter.unicode());
    emf.record(82, font.zeros(320 - font.size())).select(1);
    ByteWriter text;
    text.zeros(16).u32(1).f32(1).f32(1).u32(20).u32(40).u32(letters.size()).u32(76).zeros(24).raw(letters);
    return playMetafile(emf.record(83, text).file()).image;
  };
  EXPECT_EQ(drawn(204, "\xCF\xF0"), drawn(0, "\xD0\x9F\xD1\x80"));
  EXPECT_NE(drawn(204, "\xCF\xF0"), drawn(0, "\xCF\xF0"));
}

std::string faultOf(const QByteArray& metafile) {
  try {
    playMetafile(metafile);
  } catch (const MetafileFault& fault) {
    return fault.what();
  }
  return "none";
}

TEST(PlayMetafile, AFileThatEndsBeforeItsLastRecordIsRefused) {
  const QByteArray emf = EmfWriter().rectangle(0, 0, 10, 10).file();
  const QByteArray wmf = WmfWriter().rectangle(0, 0, 10, 10).file();
  EXPECT_EQ(faultOf(emf.chopped(20)), "it is damaged or cut short");
  EXPECT_EQ(faultOf(emf.chopped(1)), "it is damaged or cut short");
  EXPECT_EQ(faultOf(wmf.chopped(6)), "it is damaged or cut short");
  EXPECT_EQ(faultOf(wmf.chopped(1)), "it is damaged or cut short");
}

TEST(PlayMetafile, ARecordWithoutLengthIsNotAnEndlessLoop) {
  QByteArray emf = EmfWriter().record(43).file();
  emf[88 + 4] = '\0';
  EXPECT_EQ(faultOf(emf), "it is damaged or cut short");
}

TEST(PlayMetafile, WithoutSizeItIsRefused) {
  QByteArray wmf = WmfWriter().file();
  // Right is left, and bottom is top.
  wmf.replace(10, 4, QByteArray(4, '\0'));
  EXPECT_EQ(faultOf(wmf), "it has no size");
  QByteArray bare = WmfWriter().file(false);
  EXPECT_EQ(faultOf(bare.left(18) + QByteArray("\x03\0\0\0\0\0", 6)), "it does not say how large it is");
}

}  // namespace

}  // namespace quorvin::test
