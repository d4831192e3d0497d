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

/// How many characters stay in front of the ellipsis, and how many behind it.
struct Kept {
  qsizetype head;
  qsizetype tail;
};

Kept keptOf(qsizetype length, Cut cut) {
  const qsizetype tail = cut == Cut::Middle ? length / 2 : 0;
  return {length - tail, tail};
}

/// Half of a pair is no character.
Kept withoutHalves(Kept kept, const QString& text) {
  if (kept.head > 0 && text[kept.head - 1].isHighSurrogate()) --kept.head;
  if (kept.tail > 0 && text[text.size() - kept.tail].isLowSurrogate()) --kept.tail;
  return kept;
}

/// What is kept of the line, with the ellipsis.
MarkedText partsOf(const MarkedText& line, const Kept& kept) {
  MarkedText parts{line.text.first(kept.head) + kEllipsis + line.text.last(kept.tail), {}};
  const qsizetype tailStart = line.text.size() - kept.tail;
  for (const TextRange& range : line.bold) {
    const qsizetype end = range.start + range.length;
    const qsizetype inHead = std::min(end, kept.head) - range.start;
    if (inHead > 0) parts.bold.push_back({range.start, inHead});
    const qsizetype start = std::max(range.start, tailStart);
    if (start < end) parts.bold.push_back({start - tailStart + kept.head + 1, end - start});
  }
  return parts;
}

/// Whether each character is to the right of the one before, so that a part is as wide as the
/// places where it starts and ends are apart.
bool runsToTheRight(const QString& text) {
  constexpr char16_t kFirstOfOtherDirections = 0x0590;
  return std::ranges::all_of(text, [](QChar sign) { return sign.unicode() < kFirstOfOtherDirections; });
}

/// The largest length that fits; those before it fit too.
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

MarkedText cutToWidth(const MarkedText& line, const QFont& font, qreal width, Cut cut) {
  QTextLayout layout(line.text, font);
  layOut(layout, line, {}, kWithoutLimit);
  if (layout.lineCount() == 0 || layout.lineAt(0).naturalTextWidth() <= width) return line;
  const QTextLine whole = layout.lineAt(0);
  const qreal forText = width - QFontMetricsF(font).horizontalAdvance(kEllipsis);
  const auto placeOf = [&whole](qsizetype character) { return whole.cursorToX(static_cast<int>(character)); };
  const auto fitsByPlace = [&](qsizetype length) {
    const auto [head, tail] = keptOf(length, cut);
    return placeOf(head) + whole.naturalTextWidth() - placeOf(line.text.size() - tail) <= forText;
  };
  const auto fits = [&](qsizetype length) {
    return widthOf(partsOf(line, keptOf(length, cut)), font) <= width;
  };
  const qsizetype length = runsToTheRight(line.text) ? longestThat(line.text.size(), fitsByPlace)
                                                     : longestThat(line.text.size(), fits);
  return partsOf(line, withoutHalves(keptOf(length, cut), line.text));
}

void drawLine(QPainter& painter, const MarkedText& line, const QFont& font, const QRect& place,
              const QTextOption& option, Cut cut) {
  QTextLayout layout(line.text, font);
  layOut(layout, line, option, place.width());
  if (layout.lineCount() == 0) return;
  // Most lines fit, and laying one out is most of the work.
  if (layout.lineAt(0).naturalTextWidth() > place.width()) {
    const MarkedText fitting = cutToWidth(line, font, place.width(), cut);
    layout.setText(fitting.text);
    layOut(layout, fitting, option, place.width());
  }
  const qreal height = layout.lineAt(0).height();
  layout.draw(&painter, QPointF(place.x(), place.y() + (place.height() - height) / 2));
}

}  // namespace quorvin
