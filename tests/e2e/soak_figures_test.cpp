// SPDX-License-Identifier: GPL-2.0-or-later

// The measure by which a soak finds that a program grows.
#include "e2e/soak_figures.h"

#include "support/qt_printing.h"

#include <gtest/gtest.h>

#include <array>
#include <unistd.h>

namespace quorvin::test {

namespace {

constexpr qint64 kMegabyte = 1'048'576;
constexpr int kStepsBetween = 40;

/// What a program that takes up 50 MB and goes up and down by a few of them has at its settled moments, with
/// so many bytes a step that it does not give back.
FiguresOverTime figuresOf(int moments, qint64 lostAStep) {
  constexpr std::array<qint64, 7> kUpsAndDowns = {0, 3, 1, 4, 0, 2, 3};
  FiguresOverTime figures;
  for (int moment = 0; moment < moments; ++moment) {
    const int step = moment * kStepsBetween;
    ProcessFigures now;
    now.ownBytes = (10 + kUpsAndDowns[static_cast<std::size_t>(moment) % kUpsAndDowns.size()]) * kMegabyte +
                   lostAStep * step;
    now.residentBytes = now.ownBytes + 40 * kMegabyte;
    figures.addSettled(now, step);
  }
  return figures;
}

TEST(SoakFigures, UpsAndDownsAreNoDrift) {
  const FiguresOverTime figures = figuresOf(84, 0);
  EXPECT_DOUBLE_EQ(figures.driftInPercent(), 0);
  EXPECT_DOUBLE_EQ(figures.ownBytesAStep(), 0);
}

TEST(SoakFigures, ALeakOfAFewKilobytesAStepIsOne) {
  const FiguresOverTime tenMinutes = figuresOf(21, 4096);
  EXPECT_GT(tenMinutes.driftInPercent(), 5);
  const FiguresOverTime anHour = figuresOf(126, 1024);
  EXPECT_GT(anHour.driftInPercent(), 5);
  EXPECT_NEAR(anHour.ownBytesAStep(), 1024, 30);
}

TEST(SoakFigures, APeakAtTheEndIsNoDrift) {
  FiguresOverTime figures = figuresOf(84, 0);
  ProcessFigures peak;
  peak.ownBytes = 100 * kMegabyte;
  peak.residentBytes = 140 * kMegabyte;
  figures.addSettled(peak, 84 * kStepsBetween);
  EXPECT_LT(figures.driftInPercent(), 5);
}

TEST(SoakFigures, MomentsThatAreNotSettledDoNotCount) {
  FiguresOverTime figures = figuresOf(84, 0);
  ProcessFigures unsettled;
  unsettled.residentBytes = 500 * kMegabyte;
  for (int moment = 0; moment < 84; ++moment) figures.add(unsettled);
  EXPECT_DOUBLE_EQ(figures.driftInPercent(), 0);
  EXPECT_EQ(figures.count(), 168U);
  EXPECT_EQ(figures.settledCount(), 84U);
}

TEST(SoakFigures, AFewMomentsTellNothing) {
  EXPECT_FALSE(figuresOf(8, 0).isMemoryKnown());
  EXPECT_TRUE(figuresOf(9, 0).isMemoryKnown());
}

TEST(SoakFigures, ADescriptorThatStaysOpenIsNamed) {
  FiguresOverTime figures;
  ProcessFigures now;
  now.threads = 2;
  now.descriptors = {QStringLiteral("/a"), QStringLiteral("/b")};
  figures.add(now);
  EXPECT_EQ(figures.descriptorsThatDiffer(), QString());
  now.descriptors = {QStringLiteral("/a"), QStringLiteral("/b"), QStringLiteral("/c")};
  figures.add(now);
  EXPECT_EQ(figures.descriptorsThatDiffer(), QStringLiteral("missing: \nsurplus: /c"));
}

TEST(SoakFigures, WhereThreadsAreNamesEachOfThem) {
  const QString text = whereThreadsAre(::getpid());
  EXPECT_TRUE(text.contains(QStringLiteral("hread "))) << text.toStdString();
}

}  // namespace

}  // namespace quorvin::test
