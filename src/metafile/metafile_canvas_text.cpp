// SPDX-License-Identifier: GPL-2.0-or-later

// The canvas: text.
#include "metafile/metafile_canvas.h"
#include "metafile/near_path.h"

#include <QFont>
#include <QFontMetricsF>
#include <QGlyphRun>
#include <QRawFont>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>

namespace quorvin {

namespace {

constexpr int kUpdatePosition = 1;
constexpr int kRight = 2;
constexpr int kCentre = 6;
constexpr int kBottom = 8;
constexpr int kBaseline = 24;
constexpr int kUsualHeight = 16;
/// A charset of fonts whose letters are pictures.
constexpr std::uint8_t kSymbols = 2;
/// Letters that are larger than any picture only cost time.
constexpr int kTallestLetters = 4000;
constexpr int kMostStretch = 4000;

/// The size in pixels of the letters when the whole line is to be `lineHeight` pixels high.
double letterHeight(const QFont& family, double lineHeight) {
  QFont sample(family);
  sample.setPixelSize(100);
  const QFontMetricsF metrics(sample);
  return lineHeight * 100 / std::max(metrics.ascent() + metrics.descent(), 1.0);
}

QFont fontOf(const MetafileFont& wanted, double pixelsPerUnit, double usualHeight) {
  QFont font(wanted.family);
  font.setStyleHint(QFont::SansSerif);
  font.setItalic(wanted.isItalic);
  font.setUnderline(wanted.isUnderlined);
  font.setStrikeOut(wanted.isStruckOut);
  font.setWeight(static_cast<QFont::Weight>(std::clamp(wanted.weight == 0 ? 400 : wanted.weight, 1, 1000)));
  font.setHintingPreference(QFont::PreferNoHinting);
  const double height = wanted.height == 0 ? usualHeight : std::abs(wanted.height) * pixelsPerUnit;
  const double letters = wanted.height > 0 ? letterHeight(font, height) : height;
  font.setPixelSize(wholeWithin(std::round(letters), 1, kTallestLetters));
  if (wanted.width == 0) return font;
  const double usualWidth = std::max(QFontMetricsF(font).averageCharWidth(), 1.0);
  const double stretch = std::abs(wanted.width) * pixelsPerUnit / usualWidth * 100;
  font.setStretch(wholeWithin(stretch, 1, kMostStretch));
  return font;
}

/// Whether that very font is installed, and not only one that is like it.
bool isInstalled(const QRawFont& found, const QString& wanted) {
  return found.isValid() && found.familyName().compare(wanted, Qt::CaseInsensitive) == 0;
}

double widthOf(const MetafileText& text, const QFontMetricsF& metrics, double pixelsPerUnit) {
  if (text.steps.empty()) return metrics.horizontalAdvance(text.text);
  return std::accumulate(text.steps.begin(), text.steps.end(), 0.0) * pixelsPerUnit;
}

/// The places of the glyphs on the base line, and last the end of the line; in pixels.
QList<QPointF> placesOfGlyphs(const MetafileText& text, const QRawFont& font, double pixelsPerUnit) {
  const QList<QPointF> usual = font.advancesForGlyphIndexes(text.glyphs);
  QList<QPointF> places{QPointF()};
  for (qsizetype glyph = 0; glyph < text.glyphs.size(); ++glyph) {
    const auto index = static_cast<std::size_t>(glyph);
    const double step = index < text.steps.size() ? text.steps[index] * pixelsPerUnit
                        : glyph < usual.size()    ? usual[glyph].x()
                                                  : 0;
    places += places.last() + QPointF(step, 0);
  }
  return places;
}

/// From the reference point to the start of the base line, in pixels.
QPointF startOfLine(std::uint32_t align, double width, const QFontMetricsF& metrics) {
  double x = 0;
  if ((align & kCentre) == kCentre) {
    x = -width / 2;
  } else if ((align & kRight) != 0) {
    x = -width;
  }
  if ((align & kBaseline) == kBaseline) return {x, 0};
  return {x, (align & kBottom) != 0 ? -metrics.descent() : metrics.ascent()};
}

/// The toolkit does not draw letters that are stretched very wide, by their font or by the units of the
/// drawing, and crashes when it draws some that are pressed to nearly nothing; but it gives their outlines.
bool needsOutlines(const QPainter& painter) {
  constexpr double kLeastDrawnStretch = 1;
  constexpr double kMostDrawnStretch = 400;
  const QTransform& transform = painter.worldTransform();
  const double stretch = painter.font().stretch() * std::hypot(transform.m11(), transform.m12());
  return !(stretch >= kLeastDrawnStretch && stretch <= kMostDrawnStretch);
}

void fillOutlines(QPainter& painter, const QPainterPath& outlines) {
  const QTransform transform = painter.worldTransform();
  painter.resetTransform();
  painter.fillPath(nearArea(transform.map(outlines)), painter.pen().color());
  painter.setWorldTransform(transform);
}

void drawPiece(QPainter& painter, const QPointF& start, const QString& letters) {
  if (!needsOutlines(painter)) return painter.drawText(start, letters);
  QPainterPath outlines;
  outlines.addText(start, painter.font(), letters);
  fillOutlines(painter, outlines);
}

void drawLetters(QPainter& painter, const QPointF& start, const MetafileText& text, double pixelsPerUnit) {
  if (text.steps.empty()) return drawPiece(painter, start, text.text);
  double x = start.x();
  for (qsizetype at = 0; at < text.text.size();) {
    const bool isPair = text.text.at(at).isHighSurrogate() && at + 1 < text.text.size();
    const qsizetype count = isPair ? 2 : 1;
    drawPiece(painter, QPointF(x, start.y()), text.text.sliced(at, count));
    for (qsizetype unit = at; unit < at + count; ++unit) {
      const auto index = static_cast<std::size_t>(unit);
      if (index < text.steps.size()) x += text.steps[index] * pixelsPerUnit;
    }
    at += count;
  }
}

void drawGlyphs(QPainter& painter, const QPointF& start, const QList<quint32>& glyphs, QList<QPointF> places,
                const QRawFont& font) {
  if (needsOutlines(painter)) {
    QPainterPath outlines;
    for (qsizetype at = 0; at < glyphs.size(); ++at) {
      outlines.addPath(font.pathForGlyph(glyphs[at]).translated(start + places[at]));
    }
    return fillOutlines(painter, outlines);
  }
  places.removeLast();
  QGlyphRun run;
  run.setRawFont(font);
  run.setGlyphIndexes(glyphs);
  run.setPositions(places);
  run.setUnderline(painter.font().underline());
  run.setStrikeOut(painter.font().strikeOut());
  painter.drawGlyphRun(start, run);
}

QPainterPath boxPath(const QRectF& box) {
  QPainterPath path;
  path.addRect(box.normalized());
  return path;
}

}  // namespace

void MetafileCanvas::drawText(const MetafileText& text) {
  const QTransform transform = toImage();
  beginPainting();
  if (text.opaque) painter_.fillPath(transform.map(boxPath(*text.opaque)), state.backColour);
  const QRegion textClip = text.clip ? regionInImage(*text.clip) : QRegion(image_.rect());
  painter_.setClipRegion(textClip, state.clip ? Qt::IntersectClip : Qt::ReplaceClip);

  // Letters stay upright in a drawing that counts upwards: only the scale and the turn are taken over.
  const double xScale = std::hypot(transform.m11(), transform.m12());
  const double yScale = std::hypot(transform.m21(), transform.m22());
  const QFont font = fontOf(state.font, yScale, kUsualHeight * scale_);
  const QFontMetricsF metrics(font);
  const double pixelsPerUnit = yScale;
  const QRawFont glyphFont = QRawFont::fromFont(font);
  const bool isOwnFont = isInstalled(glyphFont, state.font.family);
  const bool hasGlyphs = !text.glyphs.isEmpty() && isOwnFont;
  if (!text.glyphs.isEmpty() && !isOwnFont) leaveOut(QT_TRANSLATE_NOOP("Texts", "text by glyph numbers"));
  if (!text.text.isEmpty() && state.font.charset == kSymbols && !isOwnFont) {
    leaveOut(QT_TRANSLATE_NOOP("Texts", "letters of symbol fonts"));
  }
  const QList<QPointF> places =
      hasGlyphs ? placesOfGlyphs(text, glyphFont, pixelsPerUnit) : QList<QPointF>{QPointF()};
  const double width = hasGlyphs ? places.last().x() : widthOf(text, metrics, pixelsPerUnit);
  const bool usesPosition = (state.textAlign & kUpdatePosition) != 0;
  const QPointF reference = usesPosition ? state.position : text.at;
  const QPointF start = startOfLine(state.textAlign, width, metrics);

  painter_.save();
  painter_.setFont(font);
  painter_.translate(transform.map(reference));
  const QPointF baseLine =
      QTransform(state.mapping.world).map(QPointF(1, 0)) - QTransform(state.mapping.world).map(QPointF());
  painter_.rotate(std::atan2(baseLine.y(), baseLine.x()) * 180 / std::numbers::pi);
  painter_.rotate(-state.font.escapement / 10.0);
  painter_.scale(yScale > 0 ? xScale / yScale : 1, 1);
  if (state.isBackOpaque && !text.opaque) {
    const QRectF line(start.x(), start.y() - metrics.ascent(), width, metrics.ascent() + metrics.descent());
    painter_.fillRect(line, state.backColour);
  }
  painter_.setPen(state.textColour);
  if (hasGlyphs) drawGlyphs(painter_, start, text.glyphs, places, glyphFont);
  drawLetters(painter_, start, text, pixelsPerUnit);
  painter_.restore();
  if (usesPosition) state.position += QPointF(width / std::max(pixelsPerUnit, 1e-6), 0);
}

}  // namespace quorvin
