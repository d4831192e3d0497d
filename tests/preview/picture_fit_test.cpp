// SPDX-License-Identifier: GPL-2.0-or-later

// The fitting rule, to the number.
#include "preview/picture_fit.h"

#include <gtest/gtest.h>

#include <limits>
#include <ostream>

namespace quorvin {

void PrintTo(const PictureExtent& extent, std::ostream* out) {
  *out << extent.width << " x " << extent.height;
}

namespace {

using Extent = std::optional<PictureExtent>;

TEST(PictureFit, ATwoToOnePictureInASquareFrameIsFittedToItsWidth) {
  EXPECT_EQ(fitPicture({1000, 1000}, 2, 1), Extent({940, 440}));
}

TEST(PictureFit, AOneToTwoPictureInASquareFrameIsFittedToItsHeight) {
  EXPECT_EQ(fitPicture({1000, 1000}, 1, 2), Extent({440, 940}));
}

TEST(PictureFit, ASquarePictureInAWiderFrameIsFittedToItsHeight) {
  EXPECT_EQ(fitPicture({1200, 800}, 1, 1), Extent({740, 740}));
}

TEST(PictureFit, ASquarePictureInATallerFrameIsFittedToItsWidth) {
  EXPECT_EQ(fitPicture({800, 1200}, 1, 1), Extent({740, 740}));
}

TEST(PictureFit, TheSmallestFrameThatStillScalesIsOf121) {
  EXPECT_EQ(fitPicture({121, 121}, 1, 1), Extent({61, 61}));
  EXPECT_EQ(fitPicture({120, 500}, 1, 1), std::nullopt);
  EXPECT_EQ(fitPicture({500, 120}, 1, 1), std::nullopt);
  EXPECT_EQ(fitPicture({120, 120}, 1, 1), std::nullopt);
}

TEST(PictureFit, InAWideFrameAWiderPictureTakesTheWidth) {
  EXPECT_EQ(fitPicture({1000, 500}, 4, 1), Extent({940, 190}));
  EXPECT_EQ(fitPicture({1000, 500}, 3, 2), Extent({690, 440}));
}

TEST(PictureFit, InATallFrameATallerPictureTakesTheHeight) {
  EXPECT_EQ(fitPicture({500, 1000}, 1, 4), Extent({190, 940}));
  EXPECT_EQ(fitPicture({500, 1000}, 2, 3), Extent({440, 690}));
}

TEST(PictureFit, APictureOfTheFramesProportionsLosesTheMarginOnBothSides) {
  EXPECT_EQ(fitPicture({1200, 800}, 3, 2), Extent({1140, 740}));
  EXPECT_EQ(fitPicture({800, 1200}, 2, 3), Extent({740, 1140}));
}

TEST(PictureFit, TheMarginIsNotScaled) {
  // 60 less either way, though in proportion it would be 30 less in height.
  EXPECT_EQ(fitPicture({2000, 2000}, 2, 1), Extent({1940, 940}));
}

TEST(PictureFit, OnlyTheRatioOfThePictureCounts) {
  EXPECT_EQ(fitPicture({1000, 1000}, 16933, 8466.5), Extent({940, 440}));
  EXPECT_EQ(fitPicture({1000, 1000}, 0.002, 0.001), Extent({940, 440}));
}

TEST(PictureFit, TheResultIsInSinglePrecision) {
  // A third in double precision, times 1000, less 60, as a single: not what singles alone would give.
  EXPECT_EQ(fitPicture({1000, 1000}, 3, 1), Extent({940, 273.33334F}));
}

TEST(PictureFit, APictureFarLongerThanWideMayComeOutBelowZero) {
  EXPECT_EQ(fitPicture({1000, 1000}, 100, 1), Extent({940, -50}));
}

TEST(PictureFit, WithoutWidthOrHeightNothingIsFitted) {
  EXPECT_EQ(fitPicture({1000, 1000}, 0, 10), std::nullopt);
  EXPECT_EQ(fitPicture({1000, 1000}, 10, 0), std::nullopt);
  EXPECT_EQ(fitPicture({1000, 1000}, 0, 0), std::nullopt);
  EXPECT_EQ(fitPicture({1000, 1000}, std::numeric_limits<double>::quiet_NaN(), 1), std::nullopt);
}

TEST(PictureFit, WideFrames) {
  EXPECT_EQ(fitPicture({640, 480}, 1, 1), Extent({420, 420}));
  EXPECT_EQ(fitPicture({640, 480}, 4, 3), Extent({580, 420}));
  EXPECT_EQ(fitPicture({640, 480}, 5, 4), Extent({540, 420}));
  EXPECT_EQ(fitPicture({640, 480}, 8, 5), Extent({580, 340}));
  EXPECT_EQ(fitPicture({640, 480}, 5, 8), Extent({240, 420}));
  EXPECT_EQ(fitPicture({640, 480}, 16, 1), Extent({580, -20}));
  EXPECT_EQ(fitPicture({640, 480}, 1, 16), Extent({-30, 420}));
  EXPECT_EQ(fitPicture({9600, 7200}, 1920, 1080), Extent({9540, 5340}));
}

TEST(PictureFit, TallFrames) {
  EXPECT_EQ(fitPicture({480, 640}, 1, 1), Extent({420, 420}));
  EXPECT_EQ(fitPicture({480, 640}, 3, 4), Extent({420, 580}));
  EXPECT_EQ(fitPicture({480, 640}, 4, 5), Extent({420, 540}));
  EXPECT_EQ(fitPicture({480, 640}, 5, 8), Extent({340, 580}));
  EXPECT_EQ(fitPicture({480, 640}, 8, 5), Extent({420, 240}));
  EXPECT_EQ(fitPicture({480, 640}, 1, 16), Extent({-20, 580}));
  EXPECT_EQ(fitPicture({480, 640}, 16, 1), Extent({420, -30}));
  EXPECT_EQ(fitPicture({7200, 9600}, 1080, 1920), Extent({5340, 9540}));
}

TEST(PictureFit, SquareFrames) {
  EXPECT_EQ(fitPicture({800, 800}, 1, 1), Extent({740, 740}));
  EXPECT_EQ(fitPicture({800, 800}, 8, 7), Extent({740, 640}));
  EXPECT_EQ(fitPicture({800, 800}, 7, 8), Extent({640, 740}));
}

TEST(PictureFit, TheLeastDifferenceOfTheProportionsDecides) {
  // Of two pictures that differ by a hundred-thousandth, one takes the width, and the other the height.
  EXPECT_EQ(fitPicture({3000, 2000}, 300'001, 200'000)->width, 2940);
  EXPECT_EQ(fitPicture({3000, 2000}, 299'999, 200'000)->height, 1940);
  EXPECT_LT(fitPicture({3000, 2000}, 300'001, 200'000)->height, 1940);
  EXPECT_LT(fitPicture({3000, 2000}, 299'999, 200'000)->width, 2940);
  EXPECT_LT(fitPicture({2000, 3000}, 200'000, 300'001)->width, 1940);
  EXPECT_LT(fitPicture({2000, 3000}, 200'000, 299'999)->height, 2940);
}

TEST(PictureFit, FramesAround120Units) {
  EXPECT_EQ(fitPicture({121, 500}, 1, 1), Extent({61, 61}));
  EXPECT_EQ(fitPicture({500, 121}, 1, 1), Extent({61, 61}));
  EXPECT_EQ(fitPicture({120.5F, 120.5F}, 1, 1), Extent({60.5F, 60.5F}));
  EXPECT_EQ(fitPicture({120, 121}, 1, 1), std::nullopt);
  EXPECT_EQ(fitPicture({121, 120}, 1, 1), std::nullopt);
}

}  // namespace

}  // namespace quorvin
