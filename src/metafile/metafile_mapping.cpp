#include "metafile/metafile_mapping.h"

#include <algorithm>
#include <cmath>

namespace quorvin {

namespace {

constexpr double kMillimetresPerInch = 25.4;

double nonZero(double extent) {
  return extent == 0 ? 1 : extent;
}

/// Millimetres to the unit of a measuring mode; 0 for the other modes.
double millimetresPerUnit(int mode) {
  switch (mode) {
    case MetafileMapping::TenthMillimetres:
      return 0.1;
    case MetafileMapping::HundredthMillimetres:
      return 0.01;
    case MetafileMapping::HundredthInches:
      return kMillimetresPerInch / 100;
    case MetafileMapping::ThousandthInches:
      return kMillimetresPerInch / 1000;
    case MetafileMapping::Twips:
      return kMillimetresPerInch / 1440;
    default:
      return 0;
  }
}

QSizeF scaleOf(const MetafileMapping& mapping) {
  if (const double millimetres = millimetresPerUnit(mapping.mode); millimetres > 0) {
    // These modes count upwards.
    return {mapping.deviceUnitsPerMillimetre.width() * millimetres,
            -mapping.deviceUnitsPerMillimetre.height() * millimetres};
  }
  if (mapping.mode != MetafileMapping::Isotropic && mapping.mode != MetafileMapping::Anisotropic) {
    return {1, 1};
  }
  const double x = mapping.viewportExtent.width() / nonZero(mapping.windowExtent.width());
  const double y = mapping.viewportExtent.height() / nonZero(mapping.windowExtent.height());
  if (mapping.mode == MetafileMapping::Anisotropic) return {x, y};
  const double least = std::min(std::abs(x), std::abs(y));
  return {std::copysign(least, x), std::copysign(least, y)};
}

}  // namespace

QTransform MetafileMapping::toDevice() const {
  const QSizeF scale = scaleOf(*this);
  const QTransform page(scale.width(), 0, 0, scale.height(),
                        viewportOrigin.x() - windowOrigin.x() * scale.width(),
                        viewportOrigin.y() - windowOrigin.y() * scale.height());
  return world * page;
}

bool isUsable(const QTransform& transform) {
  const double determinant = transform.determinant();
  return std::isfinite(determinant) && determinant != 0 && std::isfinite(transform.dx()) &&
         std::isfinite(transform.dy());
}

}  // namespace quorvin
