// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/volumes/treemap.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <random>

namespace quorvin {
namespace {

double areaOf(const QRectF& rect) {
  return rect.width() * rect.height();
}

double aspectOf(const QRectF& rect) {
  return std::max(rect.width() / rect.height(), rect.height() / rect.width());
}

std::vector<double> someSizes(unsigned seed, int count) {
  std::mt19937 random(seed);
  std::lognormal_distribution<double> sizes(8, 2);
  std::vector<double> made;
  for (int i = 0; i < count; ++i) made.push_back(std::floor(sizes(random)) + 1);
  std::ranges::sort(made, std::ranges::greater());
  return made;
}

TEST(Squarified, LaysTheKnownExample) {
  const std::vector<QRectF> laid = squarified({6, 6, 4, 3, 2, 2, 1}, QRectF(0, 0, 6, 4));
  ASSERT_EQ(laid.size(), 7U);
  EXPECT_EQ(laid[0], QRectF(0, 0, 3, 2));
  EXPECT_EQ(laid[1], QRectF(0, 2, 3, 2));
  EXPECT_NEAR(laid[2].width(), 12.0 / 7, 1e-9);
  EXPECT_NEAR(laid[2].height(), 7.0 / 3, 1e-9);
  EXPECT_NEAR(laid[3].left(), 3 + 12.0 / 7, 1e-9);
  EXPECT_NEAR(laid[3].width(), 9.0 / 7, 1e-9);
}

TEST(Squarified, GivesEachItsShareInsideAndNothingOverlaps) {
  const QRectF area(10, 20, 640, 400);
  for (unsigned seed = 1; seed <= 30; ++seed) {
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    const std::vector<double> sizes = someSizes(seed, 1 + static_cast<int>(seed) * 7);
    const double sum = std::accumulate(sizes.begin(), sizes.end(), 0.0);
    const std::vector<QRectF> laid = squarified(sizes, area);
    ASSERT_EQ(laid.size(), sizes.size());
    for (std::size_t i = 0; i < laid.size(); ++i) {
      EXPECT_NEAR(areaOf(laid[i]), areaOf(area) * sizes[i] / sum, 1e-3) << i;
      EXPECT_TRUE(area.adjusted(-1e-6, -1e-6, 1e-6, 1e-6).contains(laid[i])) << i;
      for (std::size_t j = 0; j < i; ++j) {
        EXPECT_LT(areaOf(laid[i].intersected(laid[j])), 1e-3) << i << " and " << j;
      }
    }
  }
}

TEST(Squarified, IsNearerToSquaresThanSlicesAre) {
  const QRectF area(0, 0, 600, 600);
  const std::vector<double> sizes(100, 1);
  for (const QRectF& rect : squarified(sizes, area)) EXPECT_LT(aspectOf(rect), 1.5);
}

TEST(Squarified, TakesWhatIsHardToDivide) {
  EXPECT_TRUE(squarified({}, QRectF(0, 0, 6, 4)).empty());
  EXPECT_TRUE(squarified({1, 2}, QRectF()).empty());
  EXPECT_EQ(squarified({5}, QRectF(1, 2, 3, 4)), std::vector{QRectF(1, 2, 3, 4)});
  std::vector<double> uneven(2'000, 1);
  uneven.front() = 1e18;
  for (const QRectF& rect : squarified(uneven, QRectF(0, 0, 640, 400))) {
    EXPECT_TRUE(std::isfinite(rect.x()) && std::isfinite(rect.y())) << rect.x() << ' ' << rect.y();
    EXPECT_TRUE(std::isfinite(rect.width()) && std::isfinite(rect.height()));
  }
}

}  // namespace
}  // namespace quorvin
