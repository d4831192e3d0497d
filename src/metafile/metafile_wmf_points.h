// How the records of Windows metafiles hold places: y before x.
#pragma once

#include "metafile/metafile_bytes.h"

#include <QPointF>
#include <QRectF>
#include <QSizeF>

namespace quorvin {

inline QPointF wmfPoint(const MetafileBytes& parameters, std::int64_t at) {
  return {double(parameters.i16(at + 2)), double(parameters.i16(at))};
}

inline QSizeF wmfSize(const MetafileBytes& parameters, std::int64_t at) {
  return {double(parameters.i16(at + 2)), double(parameters.i16(at))};
}

/// Of the right lower corner and, behind it, the left upper one.
inline QRectF wmfCorners(const MetafileBytes& parameters, std::int64_t at) {
  return QRectF(wmfPoint(parameters, at + 4), wmfPoint(parameters, at)).normalized();
}

/// Of a size and, behind it, the left upper corner.
inline QRectF wmfSizeAndPlace(const MetafileBytes& parameters, std::int64_t at) {
  return {wmfPoint(parameters, at + 4), wmfSize(parameters, at)};
}

}  // namespace quorvin
