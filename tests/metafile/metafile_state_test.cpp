// SPDX-License-Identifier: GPL-2.0-or-later

// What a metafile sets before it draws.
#include "metafile/metafile_state.h"

#include "support/qt_printing.h"

#include <gtest/gtest.h>

#include <limits>

namespace quorvin {
namespace {

constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinite = std::numeric_limits<double>::infinity();

MetafileMapping windowOf100By50On200By200(MetafileMapping::Mode mode) {
  MetafileMapping mapping;
  mapping.mode = mode;
  mapping.windowExtent = {100, 50};
  mapping.viewportExtent = {200, 200};
  return mapping;
}

TEST(MetafileMapping, TextUnitsArePixelsFromTheOrigins) {
  MetafileMapping mapping;
  mapping.windowOrigin = {10, 20};
  mapping.viewportOrigin = {5, 6};
  EXPECT_EQ(mapping.toDevice().map(QPointF(13, 24)), QPointF(8, 10));
}

TEST(MetafileMapping, TheWindowFillsTheViewport) {
  const MetafileMapping mapping = windowOf100By50On200By200(MetafileMapping::Anisotropic);
  EXPECT_EQ(mapping.toDevice().map(QPointF(10, 10)), QPointF(20, 40));
}

TEST(MetafileMapping, IsotropicUnitsAreSquareAndKeepTheirDirections) {
  MetafileMapping mapping = windowOf100By50On200By200(MetafileMapping::Isotropic);
  EXPECT_EQ(mapping.toDevice().map(QPointF(10, 10)), QPointF(20, 20));
  mapping.windowExtent = {100, -50};
  EXPECT_EQ(mapping.toDevice().map(QPointF(10, 10)), QPointF(20, -20));
}

TEST(MetafileMapping, AnExtentOfZeroCountsAsOne) {
  MetafileMapping mapping = windowOf100By50On200By200(MetafileMapping::Anisotropic);
  mapping.windowExtent = {0, 0};
  EXPECT_EQ(mapping.toDevice().map(QPointF(1, 1)), QPointF(200, 200));
}

TEST(MetafileMapping, UnitsOfMeasureCountUpwards) {
  MetafileMapping mapping;
  mapping.mode = MetafileMapping::TenthMillimetres;
  EXPECT_EQ(mapping.toDevice().map(QPointF(10, 10)), QPointF(4, -4));
  mapping.mode = MetafileMapping::HundredthMillimetres;
  EXPECT_EQ(mapping.toDevice().map(QPointF(100, 100)), QPointF(4, -4));
  mapping.mode = MetafileMapping::Twips;
  EXPECT_EQ(mapping.toDevice().map(QPointF(1440, 1440)), QPointF(101.6, -101.6));
}

TEST(MetafileMapping, TheWorldIsTransformedBeforeThePage) {
  MetafileMapping mapping;
  mapping.windowOrigin = {10, 10};
  mapping.world = QTransform::fromScale(3, 2);
  EXPECT_EQ(mapping.toDevice().map(QPointF(10, 10)), QPointF(20, 10));
}

TEST(MetafileNumbers, ATransformIsUsableIfItCanBeInverted) {
  EXPECT_TRUE(isUsable(QTransform()));
  EXPECT_FALSE(isUsable(QTransform(0, 0, 0, 1, 0, 0)));
  EXPECT_FALSE(isUsable(QTransform(kNoNumber, 0, 0, 1, 0, 0)));
  EXPECT_FALSE(isUsable(QTransform(1, 0, 0, 1, kInfinite, 0)));
}

TEST(MetafileNumbers, WholeNumbersStayWithinTheirBounds) {
  EXPECT_EQ(wholeWithin(2.9, -5, 5), 2);
  EXPECT_EQ(wholeWithin(1e300, -5, 5), 5);
  EXPECT_EQ(wholeWithin(-kInfinite, -5, 5), -5);
  EXPECT_EQ(wholeWithin(kNoNumber, -5, 5), -5);
}

TEST(MetafileTools, TheLowestByteOfAColourIsRed) {
  EXPECT_EQ(colourOf(0x00332211).name(), QStringLiteral("#112233"));
}

TEST(MetafileTools, BrushesAreSolidHollowOrHatched) {
  EXPECT_EQ(plainBrush(0, 0x0000FF, 4).style, Qt::SolidPattern);
  EXPECT_TRUE(plainBrush(1, 0x0000FF, 4).isNull());
  EXPECT_EQ(plainBrush(2, 0x0000FF, 4).style, Qt::CrossPattern);
  EXPECT_EQ(plainBrush(2, 0x0000FF, 4).colour.name(), QStringLiteral("#ff0000"));
  EXPECT_EQ(plainBrush(2, 0x0000FF, 6).style, Qt::SolidPattern) << "there is no such hatch";
}

TEST(MetafileTools, StockObjectsAreKnownByNumber) {
  EXPECT_EQ(std::get<MetafileBrush>(stockObject(1)).colour.name(), QStringLiteral("#c0c0c0"));
  EXPECT_TRUE(std::get<MetafileBrush>(stockObject(5)).isNull());
  EXPECT_EQ(std::get<MetafilePen>(stockObject(6)).colour.name(), QStringLiteral("#ffffff"));
  EXPECT_TRUE(std::get<MetafilePen>(stockObject(8)).isNull());
  EXPECT_TRUE(std::holds_alternative<MetafileFont>(stockObject(13)));
  EXPECT_TRUE(std::holds_alternative<std::monostate>(stockObject(9)));
  EXPECT_TRUE(std::holds_alternative<std::monostate>(stockObject(20)));
}

TEST(MetafileTools, BytesAreReadInTheCharsetOfTheFont) {
  MetafileFont font;
  font.charset = 204;
  EXPECT_EQ(font.textOf("\xC0\xFF"), QStringLiteral("\u0410\u044F"));
  font.charset = 161;
  EXPECT_EQ(font.textOf("\xC1"), QStringLiteral("\u0391"));
}

}  // namespace
}  // namespace quorvin
