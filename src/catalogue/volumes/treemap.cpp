// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/volumes/treemap.h"

#include <algorithm>
#include <numeric>
#include <span>

namespace quorvin {

namespace {

/// By rounding, nothing may be left for what is very small.
double shorterSide(const QRectF& rest) {
  constexpr double kLeast = 1e-9;
  return std::max(std::min(rest.width(), rest.height()), kLeast);
}

/// How far from a square the worst one of a row is, whose sizes add up to `sum` and that is laid along
/// `side`; 1 for squares.
double worstOf(std::span<const double> row, double sum, double side) {
  const double squares = side * side / (sum * sum);
  return std::max(squares * row.front(), 1 / (squares * row.back()));
}

/// How many of `sizes` the next row takes.
std::size_t lengthOfRow(std::span<const double> sizes, double side) {
  double sum = sizes.front();
  std::size_t length = 1;
  while (length < sizes.size()) {
    const double longer = sum + sizes[length];
    if (worstOf(sizes.first(length + 1), longer, side) > worstOf(sizes.first(length), sum, side)) break;
    sum = longer;
    ++length;
  }
  return length;
}

/// Lays a row along the shorter side of `rest`, which loses it.
void layRow(std::span<const double> row, QRectF& rest, std::vector<QRectF>& laid) {
  const double sum = std::accumulate(row.begin(), row.end(), 0.0);
  const bool isColumn = rest.width() >= rest.height();
  const double side = shorterSide(rest);
  const double depth = sum / side;
  double at = 0;
  for (const double size : row) {
    const double length = size / depth;
    laid.push_back(isColumn ? QRectF(rest.left(), rest.top() + at, depth, length)
                            : QRectF(rest.left() + at, rest.top(), length, depth));
    at += length;
  }
  if (isColumn) {
    rest.setLeft(rest.left() + depth);
  } else {
    rest.setTop(rest.top() + depth);
  }
}

}  // namespace

std::vector<QRectF> squarified(const std::vector<double>& sizes, const QRectF& area) {
  std::vector<QRectF> laid;
  const double sum = std::accumulate(sizes.begin(), sizes.end(), 0.0);
  if (sizes.empty() || area.isEmpty() || sum <= 0) return laid;
  std::vector<double> scaled = sizes;
  for (double& size : scaled) size *= area.width() * area.height() / sum;
  laid.reserve(sizes.size());
  QRectF rest = area;
  for (std::span<const double> left = scaled; !left.empty();) {
    const std::size_t length = lengthOfRow(left, shorterSide(rest));
    layRow(left.first(length), rest, laid);
    left = left.subspan(length);
  }
  return laid;
}

}  // namespace quorvin
