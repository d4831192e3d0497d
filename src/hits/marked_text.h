// SPDX-License-Identifier: GPL-2.0-or-later

// Lines of text with bold words: how wide they are, how they are cut and drawn.
#pragma once

#include "search/word_places.h"

#include <QFont>
#include <QPainter>
#include <QRect>
#include <QString>
#include <QTextOption>

namespace quorvin {

/// A line of text with some of its characters bold.
struct MarkedText {
  QString text;
  /// From left to right, apart from each other.
  TextRanges bold;

  bool operator==(const MarkedText&) const = default;
};

/// The width of `line` in pixels.
qreal widthOf(const MarkedText& line, const QFont& font);

/// Where a line that is too long is cut.
enum class Cut { End, Middle };

/// The line as it is where it fits into `width` pixels, otherwise as many of its first characters as fit with
/// an ellipsis behind them; or, cut in the middle, of its first and last ones with the ellipsis between.
MarkedText cutToWidth(const MarkedText& line, const QFont& font, qreal width, Cut cut = Cut::End);

/// Draws the line in the painter's pen, cut to the width of `place` and in the middle of its height;
/// direction and alignment are those of `option`.
void drawLine(QPainter& painter, const MarkedText& line, const QFont& font, const QRect& place,
              const QTextOption& option, Cut cut = Cut::End);

}  // namespace quorvin
