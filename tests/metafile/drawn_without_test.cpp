// SPDX-License-Identifier: GPL-2.0-or-later

// What of a metafile is not drawn is said; and what is drawn of the rarer records.
#include "metafile/dib_writer.h"
#include "metafile/metafile_corpus.h"
#include "metafile/metafile_writer.h"
#include "metafile/play_metafile.h"
#include "preview/picture_printing.h"

#include <QFont>
#include <QRawFont>
#include <gtest/gtest.h>

namespace quorvin::test {

namespace {

std::string leftOutOf(const QByteArray& metafile) {
  return playMetafile(metafile).leftOut.toStdString();
}

/// The sheet has 400 by 200 units and 600 by 300 pixels.
QRgb colourAt(const QByteArray& metafile, int x, int y) {
  return playMetafile(metafile).image.pixel(x * 3 / 2, y * 3 / 2);
}

TEST(DrawnWithout, NothingIsMissingFromWhatIsDrawnWhole) {
  for (const auto& corpus : {enhancedMetafileCorpus(), windowsMetafileCorpus()}) {
    ASSERT_FALSE(corpus.empty());
    for (const CorpusMetafile& metafile : corpus) EXPECT_EQ(leftOutOf(metafile.bytes), "") << metafile.name;
  }
  EXPECT_EQ(leftOutOf(maskedEmf(0xAACC0020)), "");
  EXPECT_EQ(leftOutOf(leaningEmf(true)), "");
}

TEST(DrawnWithout, FloodFills) {
  EXPECT_EQ(leftOutOf(EmfWriter().record(53, ByteWriter().zeros(16)).file()), "flood fills");
  EXPECT_EQ(leftOutOf(WmfWriter().record(0x0419, ByteWriter().zeros(8)).file()), "flood fills");
  EXPECT_EQ(leftOutOf(WmfWriter().record(0x0548, ByteWriter().zeros(10)).file()), "flood fills");
}

TEST(DrawnWithout, MirroringAndOpenGl) {
  EXPECT_EQ(leftOutOf(EmfWriter().record(115, ByteWriter().u32(1)).file()), "mirroring");
  EXPECT_EQ(leftOutOf(EmfWriter().record(115, ByteWriter().u32(0)).file()), "");
  EXPECT_EQ(leftOutOf(WmfWriter().record(0x0149, ByteWriter().u16(1).u16(0)).file()), "mirroring");
  EXPECT_EQ(leftOutOf(EmfWriter().record(102, ByteWriter().zeros(8)).file()), "OpenGL drawings");
}

/// A comment that starts extended records.
QByteArray extendedEmf(int flags) {
  ByteWriter comment;
  comment.u32(32).raw("EMF+").u16(0x4001).u16(flags).u32(28).u32(16).zeros(16);
  return EmfWriter().record(70, comment).file();
}

TEST(DrawnWithout, ExtendedRecordsUnlessThePlainOnesDrawTheSame) {
  EXPECT_EQ(leftOutOf(extendedEmf(0)), "EMF+ drawings");
  EXPECT_EQ(leftOutOf(extendedEmf(1)), "");
  EXPECT_EQ(leftOutOf(EmfWriter().record(70, ByteWriter().u32(4).raw("note")).file()), "");
}

TEST(DrawnWithout, DamagedParts) {
  EXPECT_EQ(leftOutOf(EmfWriter().record(43).file()), "damaged parts");
  EXPECT_EQ(leftOutOf(WmfWriter().record(0x041B).file()), "damaged parts");
}

TEST(DrawnWithout, EachKindIsNamedOnceInTheOrderOfTheDrawing) {
  EmfWriter emf;
  emf.record(53).record(43).record(53).record(115, ByteWriter().u32(1)).record(43);
  EXPECT_EQ(leftOutOf(emf.file()), "flood fills, damaged parts, mirroring");
}

TEST(DrawnWithout, WhatIsInTheFormOfADevice) {
  EXPECT_EQ(leftOutOf(WmfWriter().record(0x01F9, ByteWriter().zeros(40)).file()),
            "patterns in the form of a device");
  EXPECT_EQ(leftOutOf(WmfWriter().record(0x0922, ByteWriter().zeros(40)).file()),
            "bitmaps in the form of a device");
  EXPECT_EQ(leftOutOf(WmfWriter().record(0x0B23, ByteWriter().zeros(44)).file()),
            "bitmaps in the form of a device");
}

TEST(DrawnWithout, PicturesInRareForms) {
  const QImage image = fourColours();
  const QByteArray bits = dibBits(image, {});
  const auto drawn = [&](const QByteArray& header, std::uint32_t operation) {
    return EmfWriter().stretchDib(QRect(100, 50, 100, 100), image.size(), header, bits, operation).file();
  };
  const QByteArray header = dibHeader(image.size(), {}, 0);
  QByteArray jpeg = header;
  EXPECT_EQ(leftOutOf(drawn(jpeg.replace(16, 1, "\4"), 0x00CC0020)), "JPEG and PNG pictures in it");
  EXPECT_EQ(leftOutOf(drawn(jpeg.replace(16, 1, "\5"), 0x00CC0020)), "JPEG and PNG pictures in it");
  EXPECT_EQ(leftOutOf(maskedEmf(0x66CC0020)), "bitmaps mixed through masks");

  // A brush through the picture: the picture alone is copied.
  const QByteArray mixed = drawn(header, 0x00C000CA);
  EXPECT_EQ(leftOutOf(mixed), "rare raster operations");
  EXPECT_EQ(colourAt(mixed, 125, 75), kBlue);

  // The last field but one before the operation says that the palette is a list of places.
  QByteArray palette = drawn(header, 0x00CC0020);
  palette[88 + 64] = 1;
  EXPECT_EQ(leftOutOf(palette), "colours of palettes");
}

TEST(PlayMetafile, AnOperationWithoutPictureFillsThoughThereIsOne) {
  const QImage image = fourColours();
  EmfWriter emf = filledEmf(kRed);
  emf.stretchDib(QRect(0, 0, 100, 100), image.size(), dibHeader(image.size(), {}, 0), dibBits(image, {}),
                 0x00000042);
  emf.stretchDib(QRect(100, 0, 100, 100), image.size(), dibHeader(image.size(), {}, 0), dibBits(image, {}),
                 0x00F00021);
  EXPECT_EQ(colourAt(emf.file(), 50, 50), kBlack);
  EXPECT_EQ(colourAt(emf.file(), 150, 50), kRed);
  EXPECT_EQ(leftOutOf(emf.file()), "");
}

TEST(PlayMetafile, ACopyWithoutABitmapFills) {
  for (const int function : {0x0922, 0x0940}) {
    ByteWriter content;
    content.u32(0x00000042).zeros(6).u16(100).u16(200).u16(50).u16(100);
    const QByteArray wmf = WmfWriter().record(static_cast<std::uint16_t>(function), content).file();
    EXPECT_EQ(colourAt(wmf, 110, 60), kBlack);
    EXPECT_EQ(colourAt(wmf, 290, 140), kBlack);
    EXPECT_EQ(colourAt(wmf, 90, 60), kWhite);
    EXPECT_EQ(leftOutOf(wmf), "");
  }
}

/// The glyphs of "Ab" or the letters, in one font.
QByteArray numberedText(const QString& family, int step) {
  const QRawFont font = QRawFont::fromFont(QFont(QStringLiteral("DejaVu Sans")));
  QString glyphs;
  for (const quint32 glyph : font.glyphIndexesForString(QStringLiteral("Ab"))) {
    glyphs += QChar(static_cast<char16_t>(glyph));
  }
  constexpr int kGlyphNumbers = 0x10;
  return EmfWriter().font(1, -60, family).select(1).text(20, 40, glyphs, step, kGlyphNumbers).file();
}

QByteArray letteredText(int step) {
  return EmfWriter()
      .font(1, -60, QStringLiteral("DejaVu Sans"))
      .select(1)
      .text(20, 40, QStringLiteral("Ab"), step)
      .file();
}

TEST(PlayMetafile, GlyphsByNumberAreThoseOfTheInstalledFont) {
  for (const int step : {0, 90}) {
    const MetafilePicture numbered = playMetafile(numberedText(QStringLiteral("DejaVu Sans"), step));
    EXPECT_EQ(numbered.image, playMetafile(letteredText(step)).image) << step;
    EXPECT_EQ(numbered.leftOut, QString());
    EXPECT_NE(numbered.image, playMetafile(EmfWriter().file()).image);
  }
}

TEST(DrawnWithout, GlyphsByNumberOfAFontThatIsNotInstalled) {
  const MetafilePicture picture = playMetafile(numberedText(QStringLiteral("No Such Font"), 0));
  EXPECT_EQ(picture.leftOut, QStringLiteral("text by glyph numbers"));
  EXPECT_EQ(picture.image, playMetafile(EmfWriter().file()).image);
}

TEST(DrawnWithout, GlyphsByNumberOfWindowsMetafiles) {
  const auto drawn = [](int options) {
    return playMetafile(
        WmfWriter().record(0x0A32, ByteWriter().u16(40).u16(20).u16(2).u16(options).raw("Ab")).file());
  };
  EXPECT_EQ(drawn(0).leftOut, QString());
  EXPECT_NE(drawn(0).image, playMetafile(WmfWriter().file()).image);
  EXPECT_EQ(drawn(0x10).leftOut, QStringLiteral("text by glyph numbers"));
  EXPECT_EQ(drawn(0x10).image, playMetafile(WmfWriter().file()).image);
}

TEST(DrawnWithout, GlyphNumbersThatNoFontHasDoNoHarm) {
  EmfWriter emf;
  emf.font(1, -60, QStringLiteral("DejaVu Sans")).select(1);
  emf.text(20, 40, QString(3, QChar(0xFFF0)), 0, 0x10).text(20, 140, QString(), 0, 0x10);
  EXPECT_EQ(leftOutOf(emf.file()), "");
}

TEST(DrawnWithout, LettersOfSymbolFontsThatAreNotInstalled) {
  const auto drawn = [](const char* family) {
    ByteWriter font;
    font.u16(-60).u16(0).u16(0).u16(0).u16(400).u8(0).u8(0).u8(0).u8(2).zeros(4).raw(family);
    WmfWriter wmf;
    return wmf.record(0x02FB, font.zeros(21)).select(0).text(20, 40, "A").file();
  };
  EXPECT_EQ(leftOutOf(drawn("Curious Signs")), "letters of symbol fonts");
  EXPECT_EQ(leftOutOf(drawn("DejaVu Sans")), "");
}

/// A region record's data: from 100, 50 to 300, 150.
QByteArray regionData() {
  return ByteWriter().u32(32).u32(1).u32(1).u32(16).zeros(16).u32(100).u32(50).u32(300).u32(150).bytes();
}

/// That region as object 3 of a Windows metafile, after three others.
WmfWriter wmfWithRegion() {
  WmfWriter wmf = filledWmf(kRed);
  return wmf.region(QRect(100, 50, 200, 100));
}

void expectFrame(const QByteArray& metafile) {
  // Ten units wide at the sides, five at the top and the bottom.
  EXPECT_EQ(colourAt(metafile, 105, 100), kRed);
  EXPECT_EQ(colourAt(metafile, 295, 100), kRed);
  EXPECT_EQ(colourAt(metafile, 200, 52), kRed);
  EXPECT_EQ(colourAt(metafile, 200, 147), kRed);
  EXPECT_EQ(colourAt(metafile, 115, 100), kWhite);
  EXPECT_EQ(colourAt(metafile, 200, 58), kWhite);
  EXPECT_EQ(colourAt(metafile, 200, 100), kWhite);
  EXPECT_EQ(colourAt(metafile, 95, 100), kWhite);
  EXPECT_EQ(leftOutOf(metafile), "");
}

TEST(PlayMetafile, RegionsAreFramed) {
  EmfWriter emf = filledEmf(kRed);
  emf.record(72, ByteWriter().zeros(16).u32(48).u32(1).u32(10).u32(5).raw(regionData()));
  expectFrame(emf.file());
  expectFrame(wmfWithRegion().record(0x0429, ByteWriter().u16(3).u16(2).u16(5).u16(10)).file());
}

TEST(PlayMetafile, RegionsAreInverted) {
  EmfWriter emf = filledEmf(kRed);
  emf.rectangle(0, 0, 200, 200).record(73, ByteWriter().zeros(16).u32(48).raw(regionData()));
  const QByteArray wmf = wmfWithRegion().rectangle(0, 0, 200, 200).record(0x012A, ByteWriter().u16(3)).file();
  for (const QByteArray& metafile : {emf.file(), wmf}) {
    EXPECT_EQ(colourAt(metafile, 150, 100), qRgb(0, 255, 255));
    EXPECT_EQ(colourAt(metafile, 250, 100), kBlack);
    EXPECT_EQ(colourAt(metafile, 50, 100), kRed);
    EXPECT_EQ(colourAt(metafile, 350, 100), kWhite);
    EXPECT_EQ(leftOutOf(metafile), "");
  }
}

TEST(PlayMetafile, AWidenedPathIsTheAreaOfItsLine) {
  EmfWriter emf = filledEmf(kGreen);
  emf.pen(2, 0, 40, kRed).select(2).record(59).moveTo(100, 100).lineTo(300, 100).record(60).record(66);
  emf.box(62, 0, 0, 0, 0);
  EXPECT_EQ(colourAt(emf.file(), 200, 85), kGreen);
  EXPECT_EQ(colourAt(emf.file(), 200, 115), kGreen);
  EXPECT_EQ(colourAt(emf.file(), 200, 75), kWhite);
  EXPECT_EQ(leftOutOf(emf.file()), "");
}

TEST(PlayMetafile, APathThatIsWidenedAgainAndAgainStaysAsItIsInTheEnd) {
  EmfWriter emf = filledEmf(kGreen);
  emf.pen(2, 0, 4, kRed).select(2).record(59).moveTo(100, 100).lineTo(300, 100).record(60);
  for (int i = 0; i < 60; ++i) emf.record(66);
  emf.record(68).rectangle(0, 0, 50, 50);
  EXPECT_EQ(colourAt(emf.file(), 25, 25), kGreen);
  EXPECT_EQ(leftOutOf(emf.file()), "very long outlines");
}

}  // namespace

}  // namespace quorvin::test
