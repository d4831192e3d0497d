// SPDX-License-Identifier: GPL-2.0-or-later
#include "hits/marked_text.h"

#include <QFontMetricsF>
#include <QList>
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

/// Whether each character is to the right of the one before, and mostly as wide as it is alone.
bool runsToTheRight(const QString& text) {
  constexpr char16_t kFirstOfOtherDirections = 0x0590;
  return std::ranges::all_of(text, [](QChar sign) {
    // Accents that follow their letter, and soft hyphens, have a width only when they are alone.
    const bool standsAlone = !sign.isMark() && sign.category() != QChar::Other_Format;
    return sign.unicode() < kFirstOfOtherDirections && standsAlone;
  });
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

/// Where the characters of a line would be if none was moved closer to another. Adding up widths takes a
/// tenth of laying the line out.
class GuessedPlaces {
 public:
  GuessedPlaces(const MarkedText& line, const QFont& font) : places_(line.text.size() + 1) {
    QFont boldFont = font;
    boldFont.setBold(true);
    const QFontMetricsF plain(font);
    const QFontMetricsF bold(boldFont);
    auto range = line.bold.begin();
    for (qsizetype i = 0; i < line.text.size(); ++i) {
      while (range != line.bold.end() && range->start + range->length <= i) ++range;
      const bool isBold = range != line.bold.end() && range->start <= i;
      places_[i + 1] = places_[i] + (isBold ? bold : plain).horizontalAdvance(line.text[i]);
    }
  }

  qreal width() const { return places_.last(); }
  /// Of the parts, without what stands between them.
  qreal width(const Kept& kept) const {
    return places_[kept.head] + width() - places_[places_.size() - 1 - kept.tail];
  }

 private:
  QList<qreal> places_;
};

qreal naturalWidth(const QTextLayout& layout) {
  return layout.lineCount() == 0 ? 0 : layout.lineAt(0).naturalTextWidth();
}

/// Lays out lines that have to fit into a width, cut where they do not.
class FittingLayout {
 public:
  FittingLayout(QTextLayout& layout, const MarkedText& whole, const QTextOption& option, qreal width, Cut cut)
      : layout_(layout), whole_(whole), option_(option), width_(width), cut_(cut) {}

  /// Returns what is laid out in the end.
  MarkedText layOutWhatFits() {
    if (!runsToTheRight(whole_.text)) return fits(whole_) ? whole_ : cutByTrying();
    const GuessedPlaces places(whole_, layout_.font());
    // Characters that are drawn closer together than they are wide save less than this.
    const bool mayFit = places.width() <= width_ * 1.2;
    if (mayFit && fits(whole_)) return whole_;
    return cutByGuess(places);
  }

 private:
  bool fits(const MarkedText& line) {
    layout_.setText(line.text);
    layOut(layout_, line, option_, width_);
    return naturalWidth(layout_) <= width_;
  }

  bool fits(qsizetype length) { return fits(partsOf(whole_, keptOf(length, cut_))); }

  MarkedText cutByTrying() {
    const qsizetype length = longestThat(whole_.text.size(), [this](qsizetype it) { return fits(it); });
    MarkedText parts = partsOf(whole_, withoutHalves(keptOf(length, cut_), whole_.text));
    fits(parts);
    return parts;
  }

  MarkedText cutByGuess(const GuessedPlaces& places) {
    const qreal forText = width_ - QFontMetricsF(layout_.font()).horizontalAdvance(kEllipsis);
    const auto guess = [&](qsizetype length) { return places.width(keptOf(length, cut_)); };
    const qsizetype most = whole_.text.size();
    qsizetype length = longestThat(most, [&](qsizetype it) { return guess(it) <= forText; });
    while (!fits(length) && length > 0) --length;
    // One more, as long as there is room for it.
    while (length < most && naturalWidth(layout_) + guess(length + 1) - guess(length) <= width_)
      fits(++length);
    return partsOf(whole_, keptOf(length, cut_));
  }

  QTextLayout& layout_;
  const MarkedText& whole_;
  const QTextOption& option_;
  qreal width_;
  Cut cut_;
};

}  // namespace

qreal widthOf(const MarkedText& line, const QFont& font) {
  QTextLayout layout(line.text, font);
  layOut(layout, line, {}, kWithoutLimit);
  return naturalWidth(layout);
}

MarkedText cutToWidth(const MarkedText& line, const QFont& font, qreal width, Cut cut) {
  QTextLayout layout(line.text, font);
  return FittingLayout(layout, line, {}, width, cut).layOutWhatFits();
}

void drawLine(QPainter& painter, const MarkedText& line, const QFont& font, const QRect& place,
              const QTextOption& option, Cut cut) {
  QTextLayout layout(line.text, font);
  FittingLayout(layout, line, option, place.width(), cut).layOutWhatFits();
  if (layout.lineCount() == 0) return;
  const qreal height = layout.lineAt(0).height();
  layout.draw(&painter, QPointF(place.x(), place.y() + (place.height() - height) / 2));
}

}  // namespace quorvin
