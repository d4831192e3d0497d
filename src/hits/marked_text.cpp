#include "hits/marked_text.h"

#include <QTextCharFormat>
#include <QTextLayout>

#include <algorithm>
#include <functional>

namespace quorvin {

namespace {

constexpr QChar kEllipsis = u'\u2026';

/// Lays out the line without any limit.
void layOut(QTextLayout& layout, const MarkedText& line, QTextOption option, qreal width) {
  option.setWrapMode(QTextOption::NoWrap);
  layout.setTextOption(option);
  QTextCharFormat bold;
  bold.setFontWeight(QFont::Bold);
  QList<QTextLayout::FormatRange> formats;
  for (const TextRange& range : line.bold) {
    formats.append({static_cast<int>(range.start), static_cast<int>(range.length), bold});
  }
  layout.setFormats(formats);
  layout.beginLayout();
  QTextLine laidOut = layout.createLine();
  if (laidOut.isValid()) laidOut.setLineWidth(width);
  layout.endLayout();
}

constexpr qreal kWithoutLimit = 1e6;

/// The first `length` characters of the line, and the ellipsis.
MarkedText headOf(const MarkedText& line, qsizetype length) {
  MarkedText head{line.text.left(length) + kEllipsis, {}};
  for (const TextRange& range : line.bold) {
    const qsizetype inside = std::min(range.length, length - range.start);
    if (inside > 0) head.bold.push_back({range.start, inside});
  }
  return head;
}

/// Whether each character stands to the right of the one before, so that a head is as wide as the place
/// where it ends.
bool runsToTheRight(const QString& text) {
  constexpr char16_t kFirstOfOtherDirections = 0x0590;
  return std::ranges::all_of(text, [](QChar sign) { return sign.unicode() < kFirstOfOtherDirections; });
}

/// The largest length whose head fits; those before it fit too.
qsizetype longestThat(qsizetype most, const std::function<bool(qsizetype)>& fits) {
  qsizetype fitting = 0;
  while (fitting < most) {
    const qsizetype middle = (fitting + most + 1) / 2;
    if (fits(middle)) {
      fitting = middle;
    } else {
      most = middle - 1;
    }
  }
  return fitting;
}

}  // namespace

qreal widthOf(const MarkedText& line, const QFont& font) {
  QTextLayout layout(line.text, font);
  layOut(layout, line, {}, kWithoutLimit);
  return layout.lineCount() == 0 ? 0 : layout.lineAt(0).naturalTextWidth();
}

MarkedText cutToWidth(const MarkedText& line, const QFont& font, qreal width) {
  QTextLayout layout(line.text, font);
  layOut(layout, line, {}, kWithoutLimit);
  if (layout.lineCount() == 0 || layout.lineAt(0).naturalTextWidth() <= width) return line;
  const QTextLine whole = layout.lineAt(0);
  qsizetype length = 0;
  if (runsToTheRight(line.text)) {
    const qreal forHead = width - QFontMetricsF(font).horizontalAdvance(kEllipsis);
    length = longestThat(line.text.size(),
                         [&](qsizetype end) { return whole.cursorToX(static_cast<int>(end)) <= forHead; });
  } else {
    length = longestThat(line.text.size(),
                         [&](qsizetype end) { return widthOf(headOf(line, end), font) <= width; });
  }
  // Half of a pair is no character.
  if (length > 0 && line.text[length - 1].isHighSurrogate()) --length;
  return headOf(line, length);
}

void drawLine(QPainter& painter, const MarkedText& line, const QFont& font, const QRect& place,
              const QTextOption& option) {
  QTextLayout layout(line.text, font);
  layOut(layout, line, option, place.width());
  if (layout.lineCount() == 0) return;
  const qreal height = layout.lineAt(0).height();
  layout.draw(&painter, QPointF(place.x(), place.y() + (place.height() - height) / 2));
}

}  // namespace quorvin
