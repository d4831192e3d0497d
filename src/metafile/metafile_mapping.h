// From the units in which a metafile draws to the device that it was recorded for.
#pragma once

#include <QPointF>
#include <QSizeF>
#include <QTransform>

namespace quorvin {

/// The window of the drawing's own units and the viewport of device units that it fills.
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

/// Whether every number of `transform` is finite and the whole can be undone.
bool isUsable(const QTransform& transform);

}  // namespace quorvin
