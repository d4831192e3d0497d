// SPDX-License-Identifier: GPL-2.0-or-later

// What is cut off far beyond the sheet, and what stays as it is.
#include "metafile/near_path.h"

#include "metafile/metafile_corpus.h"
#include "metafile/metafile_writer.h"
#include "metafile/play_metafile.h"
#include "preview/picture_printing.h"
#include "support/processor_clock.h"

#include <gtest/gtest.h>

#include <vector>

namespace quorvin::test {

namespace {

QPainterPath lineThrough(const std::vector<QPointF>& points) {
  QPainterPath path(points.front());
  for (std::size_t at = 1; at < points.size(); ++at) path.lineTo(points[at]);
  return path;
}

TEST(NearPath, WhatIsNearStaysAsItIs) {
  QPainterPath path = lineThrough({{0, 0}, {15'000, -15'000}, {3, 4}});
  path.cubicTo(1, 2, 3, 4, 5, 6);
  EXPECT_EQ(nearLine(path), path);
  EXPECT_EQ(nearArea(path), path);
  EXPECT_EQ(nearLine(QPainterPath()), QPainterPath());
}

TEST(NearPath, ALineIsCutWhereItLeaves) {
  EXPECT_EQ(nearLine(lineThrough({{0, 0}, {60'000, 30'000}})), lineThrough({{0, 0}, {15'000, 7500}}));
  EXPECT_EQ(nearLine(lineThrough({{-30'000, 100}, {30'000, 100}})),
            lineThrough({{-15'000, 100}, {15'000, 100}}));
  EXPECT_EQ(nearLine(lineThrough({{-30'000, 16'000}, {30'000, 16'000}})), QPainterPath());
}

TEST(NearPath, ALineThatComesBackGoesOnWhereItComesIn) {
  QPainterPath expected = lineThrough({{0, 0}, {10, 0}, {15'000, 0}});
  expected.moveTo(15'000, 50);
  expected.lineTo(0, 50);
  expected.lineTo(0, 60);
  EXPECT_EQ(nearLine(lineThrough({{0, 0}, {10, 0}, {20'000, 0}, {20'000, 50}, {0, 50}, {0, 60}})), expected);
}

TEST(NearPath, AnAreaIsTheSameNearTheSheet) {
  QPainterPath area = lineThrough({{-1e9, -1e9}, {1e9, -1e9}, {1e9, 1e9}, {-1e9, 1e9}});
  area.closeSubpath();
  area.addRect(100, 100, 200, 200);
  area.setFillRule(Qt::WindingFill);
  const QPainterPath cut = nearArea(area);
  EXPECT_EQ(cut.fillRule(), Qt::WindingFill);
  EXPECT_NEAR(cut.boundingRect().left(), -15'000, 0.001);
  EXPECT_NEAR(cut.boundingRect().bottom(), 15'000, 0.001);
  area.setFillRule(Qt::OddEvenFill);
  const QPainterPath holed = nearArea(area);
  EXPECT_TRUE(holed.contains(QPointF(50, 50)));
  EXPECT_FALSE(holed.contains(QPointF(200, 200)));
}

TEST(PlayMetafile, LinesAndAreasThatEndFarBeyondTheSheetAreDrawnInNoTime) {
  EmfWriter emf;
  emf.pen(1, 0, 4, kRed).select(1).brush(2, 0, kBlue).select(2);
  // A line to and fro with many corners, and a triangle that covers the lower left half of the sheet and
  // more.
  ByteWriter line;
  line.zeros(16).u32(14);
  for (int turn = 0; turn < 7; ++turn) line.u32(0).u32(20).u32(1'000'000).u32(20 + turn);
  emf.record(4, line);
  ByteWriter triangle;
  triangle.zeros(16).u32(3).u32(-400'000'000).u32(-200'000'000).u32(400'000'000).u32(200'000'000);
  triangle.u32(-400'000'000).u32(200'000'000);
  emf.record(3, triangle);
  ProcessorClock clock;
  clock.start();
  const QImage image = playMetafile(emf.file()).image;
  EXPECT_LT(clock.elapsed(), 1000);
  EXPECT_EQ(image.pixel(300, 30), kRed);
  EXPECT_EQ(image.pixel(150, 250), kBlue);
  EXPECT_EQ(image.pixel(450, 60), kWhite);
}

TEST(PlayMetafile, AClipThatReachesFarBeyondTheSheetIsMadeInNoTime) {
  EmfWriter emf = filledEmf(kRed);
  // Below the diagonal of the sheet, and that many times.
  for (int time = 0; time < 5; ++time) {
    emf.record(59).moveTo(-400'000, -200'000).lineTo(400'000, 200'000).lineTo(-400'000, 200'000).record(61);
    emf.record(60).record(67, ByteWriter().u32(1));
  }
  emf.rectangle(0, 0, 400, 200);
  ProcessorClock clock;
  clock.start();
  const QImage image = playMetafile(emf.file()).image;
  EXPECT_LT(clock.elapsed(), 1000);
  EXPECT_EQ(image.pixel(150, 250), kRed);
  EXPECT_EQ(image.pixel(450, 60), kWhite);
}

TEST(PlayMetafile, LettersThatTheUnitsOfTheDrawingStretchAreDrawn) {
  // A font of one unit, and units that are 4000 times as wide as high.
  EmfWriter emf;
  emf.record(18, ByteWriter().u32(1)).font(1, -1, QStringLiteral("DejaVu Sans Mono")).select(1);
  emf.record(35, ByteWriter().f32(4000).f32(0).f32(0).f32(1).f32(0).f32(0));
  // A full block is as wide as the sheet and more.
  emf.text(0, 100, QString(QChar(0x2588)));
  const QImage image = playMetafile(emf.file()).image;
  EXPECT_LT(qGray(image.pixel(300, 151)), 64);
  EXPECT_EQ(image.pixel(300, 100), kWhite);
}

TEST(PlayMetafile, LettersThatAreNearlyWithoutWidthDoNoHarm) {
  EmfWriter emf;
  emf.font(1, -20, QStringLiteral("DejaVu Sans")).select(1).record(18, ByteWriter().u32(1));
  emf.record(35, ByteWriter().f32(1).f32(-720).f32(1e30F).f32(359).f32(1'000'000).f32(1e-6F));
  emf.text(66, 156, QStringLiteral("letters"));
  EXPECT_EQ(playMetafile(emf.file()).image, playMetafile(EmfWriter().file()).image);
}

TEST(PlayMetafile, APenThatIsWiderThanTheSheetIsDrawnInNoTime) {
  EmfWriter emf;
  emf.pen(1, 0, 0x7FFFFFFF, kRed).select(1).moveTo(0, 0).lineTo(1'000'000, 500'000).lineTo(0, 200);
  ProcessorClock clock;
  clock.start();
  const QImage image = playMetafile(emf.file()).image;
  EXPECT_LT(clock.elapsed(), 1000);
  EXPECT_EQ(image.pixel(300, 150), kRed);
}

}  // namespace

}  // namespace quorvin::test
