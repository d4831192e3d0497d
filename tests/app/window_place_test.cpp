// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/window_place.h"

#include "support/qt_printing.h"

#include <gtest/gtest.h>

namespace quorvin {
namespace {

const QRect kFirst(0, 30, 1280, 994);
const QRect kSecond(1280, 0, 1920, 1080);
const QList<QRect> kScreens{kFirst, kSecond};

TEST(WindowPlace, AWindowOnAScreenStays) {
  EXPECT_EQ(placeOnScreens(QRect(100, 100, 800, 600), kScreens), QRect(100, 100, 800, 600));
  EXPECT_EQ(placeOnScreens(QRect(1900, 0, 800, 600), kScreens), QRect(1900, 0, 800, 600));
}

TEST(WindowPlace, AWindowThatGoesPastAnEdgeStaysWhereItsTitleBarCanBeTakenHoldOf) {
  for (const QRect& window : {QRect(-700, 100, 800, 600), QRect(3100, 100, 800, 600),
                              QRect(100, 1004, 800, 600), QRect(1000, 30, 800, 600)}) {
    EXPECT_EQ(placeOnScreens(window, kScreens), window);
  }
}

TEST(WindowPlace, ATitleBarThatCannotBeTakenHoldOfComesBack) {
  // By a pixel too far left, down and up.
  EXPECT_EQ(placeOnScreens(QRect(-701, 100, 800, 600), kScreens), QRect(0, 100, 800, 600));
  EXPECT_EQ(placeOnScreens(QRect(100, 1005, 800, 600), kScreens), QRect(100, 424, 800, 600));
  EXPECT_EQ(placeOnScreens(QRect(100, 29, 800, 600), kScreens), QRect(100, 30, 800, 600));
  // Nearly all above the screen, and far away from all.
  EXPECT_EQ(placeOnScreens(QRect(100, -560, 800, 600), kScreens), QRect(100, 30, 800, 600));
  EXPECT_EQ(placeOnScreens(QRect(9000, 9000, 800, 600), kScreens), QRect(480, 424, 800, 600));
}

TEST(WindowPlace, AWindowIsNoLargerThanItsScreen) {
  EXPECT_EQ(placeOnScreens(QRect(100, 100, 33333, 600), {kFirst}), QRect(0, 100, 1280, 600));
  EXPECT_EQ(placeOnScreens(QRect(1400, 100, 1920, 2000), kScreens), QRect(1280, 0, 1920, 1080));
}

TEST(WindowPlace, ANarrowWindowNeedsItsWholeWidth) {
  EXPECT_EQ(placeOnScreens(QRect(-1, 100, 80, 100), {kFirst}), QRect(0, 100, 80, 100));
  EXPECT_EQ(placeOnScreens(QRect(0, 100, 80, 100), {kFirst}), QRect(0, 100, 80, 100));
}

TEST(WindowPlace, WithoutAScreenNothingIsKnown) {
  EXPECT_EQ(placeOnScreens(QRect(9000, 9000, 800, 600), {}), QRect(9000, 9000, 800, 600));
}

}  // namespace
}  // namespace quorvin
