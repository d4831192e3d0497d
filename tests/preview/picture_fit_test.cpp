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

/// The rule in the words of its description, with the comparison of sizes alone where both are told.
Extent describedFit(float BW, float BH, double width, double height) {
  const double AspectWH = width / height;
  const double AspectHW = height / width;
  if (BW <= 120 || BH <= 120) return std::nullopt;
  const Extent byWidth({BW - 60, static_cast<float>(BW * AspectHW - 60)});
  const Extent byHeight({static_cast<float>(BH * AspectWH - 60), BH - 60});
  if (BH <= BW) return BW <= BH * AspectWH ? byWidth : byHeight;
  return BH <= BW * AspectHW ? byHeight : byWidth;
}

TEST(PictureFit, AgreesWithItsDescriptionForAllSmallFramesAndPictures) {
  for (float width = 100; width < 400; width += 7) {
    for (float height = 100; height < 400; height += 7) {
      for (int picture = 0; picture < 64; ++picture) {
        const double pictureWidth = 1 + picture % 8;
        const double pictureHeight = 1 + picture / 8;
        ASSERT_EQ(fitPicture({width, height}, pictureWidth, pictureHeight),
                  describedFit(width, height, pictureWidth, pictureHeight))
            << width << " x " << height << ", " << pictureWidth << " : " << pictureHeight;
      }
    }
  }
}

}  // namespace

}  // namespace quorvin
