// Whole numbers of what a metafile asks for.
#pragma once

#include <QPoint>
#include <QPointF>
#include <QPolygon>
#include <QPolygonF>
#include <QSize>
#include <QSizeF>

#include <algorithm>
#include <cmath>

namespace quorvin {

/// `value` as a whole number from `least` to `most`; `least` for what is no number. The numbers of a file may
/// be larger than any int, and what is calculated from them no number at all.
inline int wholeWithin(double value, int least, int most) {
  if (std::isnan(value)) return least;
  return static_cast<int>(std::clamp<double>(value, least, most));
}

/// A place on the sheet as a pixel. What is far outside is moved nearer, where it is outside still.
inline QPoint pixelAt(const QPointF& place) {
  constexpr int kFarthest = 100'000;
  return {wholeWithin(std::round(place.x()), -kFarthest, kFarthest),
          wholeWithin(std::round(place.y()), -kFarthest, kFarthest)};
}

inline QPolygon pixelsAt(const QPolygonF& places) {
  QPolygon pixels;
  pixels.reserve(places.size());
  for (const QPointF& place : places) pixels += pixelAt(place);
  return pixels;
}

/// A size that a file asks for, in whole hundredths of a millimetre: 1 to a kilometre.
inline QSize wholeHundredths(const QSizeF& size) {
  constexpr int kLongest = 100'000'000;
  return {wholeWithin(size.width(), 1, kLongest), wholeWithin(size.height(), 1, kLongest)};
}

}  // namespace quorvin
