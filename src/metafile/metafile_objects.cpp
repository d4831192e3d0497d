#include "metafile/metafile_objects.h"

#include <array>

namespace quorvin {

namespace {

constexpr std::uint32_t kHollow = 1;
constexpr std::uint32_t kHatched = 2;
constexpr std::uint32_t kNullPen = 5;

MetafileBrush solid(const QColor& colour) {
  return {Qt::SolidPattern, colour, {}};
}

Qt::BrushStyle hatchStyle(std::uint32_t hatch) {
  constexpr std::array kStyles = {Qt::HorPattern,   Qt::VerPattern,   Qt::FDiagPattern,
                                  Qt::BDiagPattern, Qt::CrossPattern, Qt::DiagCrossPattern};
  return hatch < kStyles.size() ? kStyles.at(hatch) : Qt::SolidPattern;
}

}  // namespace

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
