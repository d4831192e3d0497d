// Metafiles of every kind of drawing, and what must be seen of them.
#pragma once

#include <QByteArray>
#include <QColor>
#include <QList>
#include <QPoint>

#include <string>
#include <vector>

namespace quorvin::test {

/// A point of the drawing, in its own units, that lies well inside of an area, and the colour there.
struct SeenPoint {
  QPoint at;
  QRgb colour;
};

/// `points` tell what is seen, worked out from the records' meaning. `isForSecondDecoder`: the second decoder
/// draws such records as well.
struct CorpusMetafile {
  std::string name;
  QByteArray bytes;
  QList<SeenPoint> points;
  bool isForSecondDecoder = true;
};

std::vector<CorpusMetafile> enhancedMetafileCorpus();
std::vector<CorpusMetafile> windowsMetafileCorpus();

}  // namespace quorvin::test
