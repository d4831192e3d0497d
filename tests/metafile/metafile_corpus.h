// SPDX-License-Identifier: GPL-2.0-or-later

// Metafiles of every kind of drawing, and what must be seen of them.
#pragma once

#include "metafile/metafile_writer.h"

#include <QByteArray>
#include <QColor>
#include <QImage>
#include <QList>
#include <QPoint>
#include <QRect>

#include <string>
#include <vector>

namespace quorvin::test {

/// A point of the drawing, in its own units, that lies well inside of an area, and the colour there.
struct SeenPoint {
  QPoint at;
  QRgb colour;
};

/// `points` are what must be seen, worked out from the meaning of the records. `isForSecondDecoder`: the
/// second decoder draws such records as well.
struct CorpusMetafile {
  std::string name;
  QByteArray bytes;
  QList<SeenPoint> points;
  bool isForSecondDecoder = true;
};

inline constexpr QRgb kWhite = qRgb(255, 255, 255);
inline constexpr QRgb kRed = qRgb(255, 0, 0);
inline constexpr QRgb kGreen = qRgb(0, 255, 0);
inline constexpr QRgb kBlue = qRgb(0, 0, 255);
inline constexpr QRgb kYellow = qRgb(255, 255, 0);
inline constexpr QRgb kBlack = qRgb(0, 0, 0);

/// A hundred pixels each way: blue and yellow over red and green.
QImage fourColours();
/// What is seen of it, or of another of these four colours, in `place`.
QList<SeenPoint> fourColoursIn(const QRect& place);

/// A metafile without a pen and with a brush of that colour.
EmfWriter filledEmf(QRgb colour);
/// The same on a white sheet: the second decoder enlarges what is drawn until it fills the picture. Its pen
/// (none) is object 0, its white brush object 1 and the other brush object 2.
WmfWriter filledWmf(QRgb colour);

/// A record that fills with gradients, alone: `mode` is 0 from left to right, 1 from top to bottom, 2 for
/// triangles; `areas` are numbers of corners.
EmfWriter gradientEmf(int mode, const QList<SeenPoint>& corners, const QList<int>& areas);
/// The four colours, a unit for each pixel, at 100, 50, by these operations where a mask is set and where it
/// is not. The mask is set on the left half.
QByteArray maskedEmf(std::uint32_t operations, bool hasMask = true);
/// The four colours in a parallelogram that leans to the right: from 100, 50 and 200, 50 to 150, 150.
QByteArray leaningEmf(bool hasMask);

std::vector<CorpusMetafile> enhancedMetafileCorpus();
std::vector<CorpusMetafile> windowsMetafileCorpus();

}  // namespace quorvin::test
