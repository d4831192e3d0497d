// Windows metafiles: objects, bitmaps and text.
#include "metafile/metafile_dib.h"
#include "metafile/metafile_wmf.h"
#include "metafile/metafile_wmf_points.h"
#include "platform/text_encoding.h"

#include <algorithm>

namespace quorvin {

namespace {

constexpr std::size_t kMostObjects = 0x10000;

MetafileFont fontOf(const MetafileBytes& parameters) {
  MetafileFont font;
  font.height = parameters.i16(0);
  font.width = parameters.i16(2);
  font.escapement = parameters.i16(4);
  font.weight = parameters.i16(8);
  font.isItalic = parameters.u8(10) != 0;
  font.isUnderlined = parameters.u8(11) != 0;
  font.isStruckOut = parameters.u8(12) != 0;
  font.charset = parameters.u8(13);
  const QByteArrayView name = parameters.from(18).all();
  const qsizetype end = name.indexOf('\0');
  font.family = decodeSystemText(end < 0 ? name : name.first(end));
  return font;
}

/// A region is listed in bands: each with its count of numbers, its top and bottom, and pairs of left and
/// right.
QRegion regionOf(const MetafileBytes& parameters) {
  const std::uint16_t bands = parameters.u16(10);
  std::int64_t at = 22;
  QRegion region;
  for (int band = 0; band < bands; ++band) {
    const std::uint16_t count = parameters.u16(at);
    const int top = parameters.i16(at + 2);
    const int bottom = parameters.i16(at + 4);
    for (std::int64_t pair = at + 6; pair < at + 6 + 2LL * count; pair += 4) {
      region |= QRect(QPoint(parameters.i16(pair), top), QPoint(parameters.i16(pair + 2) - 1, bottom - 1));
    }
    at += 8 + 2LL * count;
  }
  return region;
}

}  // namespace

bool WmfPlayer::playObject(std::uint16_t function, const MetafileBytes& parameters) {
  enum { Palette = 0x00F7, DibPattern = 0x0142, Select = 0x012D, Delete = 0x01F0, Pattern = 0x01F9 };
  enum { Pen = 0x02FA, Font = 0x02FB, Brush = 0x02FC, Region = 0x06FF };
  switch (function) {
    case Select:
      canvas_->select(object(parameters.u16(0)));
      return true;
    case Delete:
      if (parameters.u16(0) < objects_.size()) objects_[parameters.u16(0)] = {};
      return true;
    case Pen:
      store(MetafilePen{parameters.u16(0), std::abs(double(parameters.i16(2))), colourOf(parameters.u32(6))});
      return true;
    case Font:
      store(fontOf(parameters));
      return true;
    case Brush:
      store(plainBrush(parameters.u16(0), parameters.u32(2), parameters.u16(6)));
      return true;
    case Region:
      store(regionOf(parameters));
      return true;
    case DibPattern:
      store(MetafileBrush{Qt::TexturePattern, {}, imageOfPackedDib(parameters.from(4))});
      return true;
    case Palette:
    case Pattern:
      store(MetafilePlaceholder{});
      return true;
    default:
      return false;
  }
}

void WmfPlayer::store(MetafileObject object) {
  const auto isFree = [](const MetafileObject& each) { return std::holds_alternative<std::monostate>(each); };
  const auto place = std::ranges::find_if(objects_, isFree);
  if (place != objects_.end()) {
    *place = std::move(object);
  } else if (objects_.size() < kMostObjects) {
    objects_.push_back(std::move(object));
  }
}

const MetafileObject& WmfPlayer::object(std::uint16_t number) const {
  if (number >= objects_.size()) throw MetafileFault("it uses an object that it has not made");
  return objects_[number];
}

bool WmfPlayer::playBitmap(std::uint16_t function, const MetafileBytes& parameters) {
  enum {
    PatternFill = 0x061D,
    DibBitBlt = 0x0940,
    DibStretch = 0x0B41,
    SetDib = 0x0D33,
    StretchDib = 0x0F43
  };
  // A copy without a bitmap is as short as its numbers: it fills.
  constexpr qsizetype kBareCopy = 18;
  constexpr qsizetype kBareStretch = 22;
  switch (function) {
    case PatternFill:
      canvas_->fill(wmfSizeAndPlace(parameters, 4), parameters.u32(0));
      return true;
    case DibBitBlt: {
      if (parameters.size() <= kBareCopy) {
        canvas_->fill(wmfSizeAndPlace(parameters, 10), parameters.u32(0));
        return true;
      }
      const QRectF target = wmfSizeAndPlace(parameters, 8);
      canvas_->drawImage(target, imageOfPackedDib(parameters.from(16)),
                         {wmfPoint(parameters, 4), target.size()}, parameters.u32(0));
      return true;
    }
    case DibStretch:
      if (parameters.size() <= kBareStretch) {
        canvas_->fill(wmfSizeAndPlace(parameters, 14), parameters.u32(0));
        return true;
      }
      canvas_->drawImage(wmfSizeAndPlace(parameters, 12), imageOfPackedDib(parameters.from(20)),
                         wmfSizeAndPlace(parameters, 4), parameters.u32(0));
      return true;
    case SetDib: {
      const QSizeF size = wmfSize(parameters, 10);
      drawStored(parameters.from(18), {wmfPoint(parameters, 14), size}, {wmfPoint(parameters, 6), size},
                 kCopyOperation);
      return true;
    }
    case StretchDib:
      drawStored(parameters.from(22), wmfSizeAndPlace(parameters, 14), wmfSizeAndPlace(parameters, 6),
                 parameters.u32(0));
      return true;
    default:
      return false;
  }
}

void WmfPlayer::drawStored(const MetafileBytes& dib, const QRectF& target, const QRectF& source,
                           std::uint32_t operation) {
  canvas_->drawImage(target, imageOfPackedDib(dib), partFromTop(dib, source), operation);
}

bool WmfPlayer::playText(std::uint16_t function, const MetafileBytes& parameters) {
  enum { TextOut = 0x0521, ExtTextOut = 0x0A32 };
  if (function == TextOut) {
    textOut(parameters);
  } else if (function == ExtTextOut) {
    extTextOut(parameters);
  }
  return function == TextOut || function == ExtTextOut;
}

void WmfPlayer::textOut(const MetafileBytes& parameters) {
  const std::uint16_t count = parameters.u16(0);
  const QByteArrayView letters = parameters.slice(2, count).all();
  canvas_->drawText({wmfPoint(parameters, 2 + count + count % 2), decodeSystemText(letters), {}, {}, {}});
}

void WmfPlayer::extTextOut(const MetafileBytes& parameters) {
  constexpr int kOpaque = 2;
  constexpr int kClipped = 4;
  const std::uint16_t count = parameters.u16(4);
  const std::uint16_t options = parameters.u16(6);
  const bool hasBox = (options & (kOpaque | kClipped)) != 0;
  const std::int64_t at = hasBox ? 16 : 8;
  MetafileText text{wmfPoint(parameters, 0), decodeSystemText(parameters.slice(at, count).all()), {}, {}, {}};
  if ((options & kOpaque) != 0) text.opaque = QRectF(parameters.point16(8), parameters.point16(12));
  if ((options & kClipped) != 0) text.clip = QRectF(parameters.point16(8), parameters.point16(12));
  const std::int64_t steps = at + count + count % 2;
  if (text.text.size() == count && parameters.size() >= steps + 2LL * count) {
    for (std::int64_t letter = 0; letter < count; ++letter) {
      text.steps.push_back(parameters.i16(steps + 2 * letter));
    }
  }
  canvas_->drawText(text);
}

}  // namespace quorvin
