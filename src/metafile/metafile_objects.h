// The drawing tools that a metafile makes and selects.
#pragma once

#include <QColor>
#include <QImage>
#include <QRegion>
#include <QString>

#include <cstdint>
#include <variant>

namespace quorvin {

/// `width` is in the drawing's own units; 0 is the thinnest line that can be seen. Style and caps have the
/// values of the file formats.
struct MetafilePen {
  std::uint32_t style = 0;
  double width = 0;
  QColor colour = Qt::black;

  bool isNull() const { return (style & 0xF) == 5; }
};

/// A pattern, where there is one, is laid side by side from the picture's corner.
struct MetafileBrush {
  Qt::BrushStyle style = Qt::SolidPattern;
  QColor colour = Qt::white;
  QImage pattern;

  bool isNull() const { return style == Qt::NoBrush; }
};

/// `height` below zero is the height of the letters, above zero that of the line, zero the usual size; all in
/// the drawing's own units. `width` is that of an average letter, 0 as the font has it. `escapement` is in
/// tenths of a degree against the clock.
struct MetafileFont {
  int height = 0;
  int width = 0;
  int escapement = 0;
  int weight = 400;
  bool isItalic = false;
  bool isUnderlined = false;
  bool isStruckOut = false;
  std::uint8_t charset = 0;
  QString family;
};

/// An object that is only counted, so that the ones after it keep their numbers.
struct MetafilePlaceholder {};

/// Of a region, in device units.
using MetafileObject =
    std::variant<std::monostate, MetafilePen, MetafileBrush, MetafileFont, QRegion, MetafilePlaceholder>;

/// The colour of a file's 32-bit value: red in the lowest byte.
QColor colourOf(std::uint32_t value);

/// The brush of the file formats' style (0 solid, 1 none, 2 hatched) and hatch (0 to 5) numbers.
MetafileBrush plainBrush(std::uint32_t style, std::uint32_t colour, std::uint32_t hatch);

/// One of the objects that exist without being made; `number` is without the mark in its highest bit.
MetafileObject stockObject(std::uint32_t number);

}  // namespace quorvin
