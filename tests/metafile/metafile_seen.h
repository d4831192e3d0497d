// Looking at drawn metafiles.
#pragma once

#include "metafile/metafile_corpus.h"
#include "metafile/metafile_play.h"

#include <QColor>
#include <QImage>
#include <gtest/gtest.h>

namespace quorvin::test {

/// The sheet of all the tests' metafiles, in their own units.
inline constexpr QSize kUnits(400, 200);

inline QRgb colourAt(const QImage& image, const QPoint& unit) {
  return image.pixel(unit.x() * image.width() / kUnits.width(), unit.y() * image.height() / kUnits.height());
}

inline void expectSeen(const QImage& image, const QList<SeenPoint>& points) {
  for (const SeenPoint& point : points) {
    EXPECT_EQ(QColor(colourAt(image, point.at)).name().toStdString(),
              QColor(point.colour).name().toStdString())
        << "at " << point.at.x() << ", " << point.at.y();
  }
}

inline void expectSeen(const QByteArray& metafile, const QList<SeenPoint>& points) {
  expectSeen(playMetafile(metafile).image, points);
}

/// How many units in `part` are of that colour.
inline int unitsOf(const QImage& image, QRgb colour, const QRect& part) {
  int units = 0;
  for (int y = part.top(); y <= part.bottom(); ++y) {
    for (int x = part.left(); x <= part.right(); ++x) units += colourAt(image, {x, y}) == colour ? 1 : 0;
  }
  return units;
}

}  // namespace quorvin::test
