// SPDX-License-Identifier: GPL-2.0-or-later

// What a metafile sets before it draws: its units, its tools and its colours.
#pragma once

#include <QByteArrayView>
#include <QColor>
#include <QImage>
#include <QPointF>
#include <QRegion>
#include <QSizeF>
#include <QString>
#include <QTransform>

#include <cstdint>
#include <optional>
#include <variant>

namespace quorvin {

/// How the units in which a metafile draws become those of the device that it was recorded for: the window,
/// in page units, fills the viewport, in device units.
struct MetafileMapping {
  /// How the window and the viewport are used. The values are those of the file formats.
  enum Mode {
    Text = 1,
    TenthMillimetres,
    HundredthMillimetres,
    HundredthInches,
    ThousandthInches,
    Twips,
    Isotropic,
    Anisotropic
  };

  /// Page units to device units. Extents of zero count as one.
  QTransform toDevice() const;

  int mode = Text;
  QTransform world;
  QPointF windowOrigin;
  QPointF viewportOrigin;
  QSizeF windowExtent{1, 1};
  QSizeF viewportExtent{1, 1};
  /// For the modes that measure in millimetres and inches: device units to the millimetre.
  QSizeF deviceUnitsPerMillimetre{4, 4};
};

/// `width` is in the drawing's own units; 0 means the thinnest line that can be seen. `style` holds dashes,
/// caps and joins with the values of the file formats.
struct MetafilePen {
  std::uint32_t style = 0;
  double width = 0;
  QColor colour = Qt::black;

  bool isNull() const { return (style & 0xF) == 5; }
};

/// A pattern, where there is one, is repeated side by side from the corner of the picture. A pattern of one
/// bit to the pixel (QImage::Format_Mono) has no colours of its own: 0 is painted in the text colour, and 1
/// in the background colour, that the state has at the time.
struct MetafileBrush {
  Qt::BrushStyle style = Qt::SolidPattern;
  QColor colour = Qt::white;
  QImage pattern;

  bool isNull() const { return style == Qt::NoBrush; }
};

/// A negative `height` is the height of the letters, a positive one that of the line, and zero means the
/// usual size; all in the drawing's own units. `width` is that of an average letter; 0 leaves it to the font.
/// `escapement` is in tenths of a degree, counter-clockwise.
struct MetafileFont {
  int height = 0;
  int width = 0;
  int escapement = 0;
  int weight = 400;
  bool isItalic = false;
  bool isUnderlined = false;
  bool isStruckOut = false;
  /// The script of text that is stored as bytes.
  std::uint8_t charset = 0;
  QString family;

  /// The text that these bytes mean in the font's charset. Where the charset is the usual one, or is not
  /// known, they are in the system code page.
  QString textOf(QByteArrayView bytes) const;
};

/// An object that only takes up a number.
struct MetafilePlaceholder {};

/// A region is in device units.
using MetafileObject =
    std::variant<std::monostate, MetafilePen, MetafileBrush, MetafileFont, QRegion, MetafilePlaceholder>;

/// Everything that a metafile sets before it draws, and that it can save and restore. Numbers have the values
/// of the file formats.
struct MetafileState {
  MetafilePen pen;
  MetafileBrush brush;
  MetafileFont font;
  QColor textColour = Qt::black;
  QColor backColour = Qt::white;
  bool isBackOpaque = true;
  Qt::FillRule fillRule = Qt::OddEvenFill;
  std::uint32_t textAlign = 0;
  int rasterOperation = 13;
  bool arcsRunClockwise = false;
  QPointF position;
  MetafileMapping mapping;
  /// In pixels of the image; nothing means the whole sheet.
  std::optional<QRegion> clip;
};

/// Whether every number of `transform` is finite and the transform can be inverted.
bool isUsable(const QTransform& transform);

/// `value` as a whole number from `least` to `most`; `least` for NaN. The numbers of a file may be larger
/// than any int, and what is calculated from them need not be a number at all.
int wholeWithin(double value, int least, int most);

/// The colour of a 32-bit value of a file, whose lowest byte is red.
QColor colourOf(std::uint32_t value);

/// A brush without a pattern. `style` is 0 for solid, 1 for none, 2 for hatched; `hatch` goes from 0 to 5.
MetafileBrush plainBrush(std::uint32_t style, std::uint32_t colour, std::uint32_t hatch);

/// One of the objects that every metafile can select without making it; `number` is without the mark in its
/// highest bit.
MetafileObject stockObject(std::uint32_t number);

}  // namespace quorvin
