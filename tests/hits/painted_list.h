// SPDX-License-Identifier: GPL-2.0-or-later

// Hit lists that are painted, and what can be seen of them.
#pragma once

#include "hits/hit_list.h"
#include "hits/hit_list_model.h"

#include <QColor>
#include <QImage>
#include <QTest>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace quorvin::test {

inline const QColor kLight(255, 255, 255);
inline const QColor kDark(30, 30, 30);

inline double luminance(const QColor& colour) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

inline double contrast(const QColor& one, const QColor& other) {
  const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
  return (lighter + 0.05) / (darker + 0.05);
}

/// Whether anything in the picture is drawn about in `colour`; text is smoothed against its background.
inline bool holds(const QImage& picture, const QColor& colour) {
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      const QColor pixel = picture.pixelColor(x, y);
      const int distance = std::abs(pixel.red() - colour.red()) + std::abs(pixel.green() - colour.green()) +
                           std::abs(pixel.blue() - colour.blue());
      if (distance < 40) return true;
    }
  }
  return false;
}

/// Shows the list with `model`, in the front.
inline void show(HitListView& view, HitListModel& model) {
  view.setModel(&model);
  view.resize(700, 100);
  view.show();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&view));
}

}  // namespace quorvin::test
