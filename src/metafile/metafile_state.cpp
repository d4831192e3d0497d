// SPDX-License-Identifier: GPL-2.0-or-later
#include "metafile/metafile_state.h"

#include "platform/text_encoding.h"

#include <QStringConverter>

#include <algorithm>
#include <array>
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

constexpr std::uint32_t kHollow = 1;
constexpr std::uint32_t kHatched = 2;
constexpr std::uint32_t kNullPen = 5;

/// The encoding of a charset of fonts; null where it is the one of the system or has none.
const char* codecOf(std::uint8_t charset) {
  switch (charset) {
    case 128:
      return "Shift_JIS";
    case 129:
      return "windows-949";
    case 134:
      return "GBK";
    case 136:
      return "Big5";
    case 161:
      return "windows-1253";
    case 162:
      return "windows-1254";
    case 163:
      return "windows-1258";
    case 177:
      return "windows-1255";
    case 178:
      return "windows-1256";
    case 186:
      return "windows-1257";
    case 204:
      return "windows-1251";
    case 222:
      return "windows-874";
    case 238:
      return "windows-1250";
    default:
      return nullptr;
  }
}

MetafileBrush solid(const QColor& colour) {
  return {Qt::SolidPattern, colour, {}};
}

Qt::BrushStyle hatchStyle(std::uint32_t hatch) {
  constexpr std::array kStyles = {Qt::HorPattern,   Qt::VerPattern,   Qt::FDiagPattern,
                                  Qt::BDiagPattern, Qt::CrossPattern, Qt::DiagCrossPattern};
  return hatch < kStyles.size() ? kStyles.at(hatch) : Qt::SolidPattern;
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

QString MetafileFont::textOf(QByteArrayView bytes) const {
  const char* codec = codecOf(charset);
  if (codec == nullptr) return decodeSystemText(bytes);
  // The toolkit may have been built without the tables.
  QStringDecoder decoder(codec, QStringConverter::Flag::Stateless);
  return decoder.isValid() ? QString(decoder.decode(bytes)) : decodeSystemText(bytes);
}

int wholeWithin(double value, int least, int most) {
  if (std::isnan(value)) return least;
  return static_cast<int>(std::clamp<double>(value, least, most));
}

QColor colourOf(std::uint32_t value) {
  const auto byteAt = [value](int shift) { return static_cast<int>((value >> shift) & 0xFF); };
  return {byteAt(0), byteAt(8), byteAt(16)};
}

MetafileBrush plainBrush(std::uint32_t style, std::uint32_t colour, std::uint32_t hatch) {
  if (style == kHollow) return {Qt::NoBrush, {}, {}};
  if (style == kHatched) return {hatchStyle(hatch), colourOf(colour), {}};
  return solid(colourOf(colour));
}

MetafileObject stockObject(std::uint32_t number) {
  switch (number) {
    case 0:
    case 18:
      return solid(Qt::white);
    case 1:
      return solid(QColor(192, 192, 192));
    case 2:
      return solid(QColor(128, 128, 128));
    case 3:
      return solid(QColor(64, 64, 64));
    case 4:
      return solid(Qt::black);
    case 5:
      return MetafileBrush{Qt::NoBrush, {}, {}};
    case 6:
      return MetafilePen{0, 0, Qt::white};
    case 7:
    case 19:
      return MetafilePen{};
    case 8:
      return MetafilePen{kNullPen, 0, Qt::black};
    default:
      return number >= 10 && number <= 17 ? MetafileObject(MetafileFont{}) : MetafileObject();
  }
}

}  // namespace quorvin
