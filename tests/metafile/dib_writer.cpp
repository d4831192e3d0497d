// SPDX-License-Identifier: GPL-2.0-or-later
#include "metafile/dib_writer.h"

#include <bit>

namespace quorvin::test {

namespace {

constexpr int kOldHeader = 12;
constexpr int kUsualHeader = 40;
constexpr int kPixelsPerMetre = 2835;
constexpr QSize kSize(13, 7);

/// The channel's value in the bits of its mask.
std::uint32_t inMask(int value, std::uint32_t mask) {
  if (mask == 0) return 0;
  const int bits = std::popcount(mask);
  const auto scaled = static_cast<std::uint32_t>((value * ((1 << bits) - 1) + 127) / 255);
  return (scaled << std::countr_zero(mask)) & mask;
}

std::uint32_t packed(QRgb colour, const std::array<std::uint32_t, 4>& masks) {
  return inMask(qRed(colour), masks[0]) | inMask(qGreen(colour), masks[1]) | inMask(qBlue(colour), masks[2]) |
         inMask(qAlpha(colour), masks[3]);
}

std::array<std::uint32_t, 4> masksOf(const DibForm& form) {
  if (form.masks[0] != 0) return form.masks;
  if (form.depth == 16) return {0x7C00, 0x03E0, 0x001F, 0};
  return {0xFF0000, 0x00FF00, 0x0000FF, 0};
}

QByteArray paletteRow(const QImage& image, int y, int depth) {
  QByteArray row;
  int used = 0;
  for (int x = 0; x < image.width(); ++x) {
    if (used == 0) row.append('\0');
    used += depth;
    const int value = image.pixelIndex(x, y) << (8 - used);
    row.back() = static_cast<char>(row.back() | value);
    used %= 8;
  }
  return row;
}

QByteArray colourRow(const QImage& image, int y, const DibForm& form) {
  ByteWriter row;
  for (int x = 0; x < image.width(); ++x) {
    const std::uint32_t value = packed(image.pixel(x, y), masksOf(form));
    for (int byte = 0; byte < form.depth / 8; ++byte) row.u8((value >> (8 * byte)) & 0xFF);
  }
  return row.bytes();
}

}  // namespace

QByteArray dibBits(const QImage& image, const DibForm& form) {
  QByteArray bits;
  for (int line = 0; line < image.height(); ++line) {
    const int y = form.isTopDown ? line : image.height() - 1 - line;
    QByteArray row = form.depth <= 8 ? paletteRow(image, y, form.depth) : colourRow(image, y, form);
    row.append((4 - row.size() % 4) % 4, '\0');
    bits += row;
  }
  return bits;
}

QImage asStored(const QImage& image, const DibForm& form) {
  QImage stored = image;
  const std::array<std::uint32_t, 4> masks = masksOf(form);
  const auto value = [&](QRgb colour, std::size_t channel) {
    const std::uint32_t mask = masks.at(channel);
    return static_cast<int>((packed(colour, masks) & mask) * 255ULL / mask);
  };
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const QRgb colour = image.pixel(x, y);
      const int alpha = masks[3] != 0 ? value(colour, 3) : 255;
      stored.setPixel(x, y, qRgba(value(colour, 0), value(colour, 1), value(colour, 2), alpha));
    }
  }
  return stored;
}

QByteArray dibHeader(const QSize& size, const DibForm& form, qsizetype bitsLength) {
  ByteWriter header;
  const int height = form.toldHeight != 0 ? form.toldHeight : size.height();
  header.u32(form.headerSize);
  if (form.headerSize == kOldHeader) {
    header.u16(size.width()).u16(height).u16(1).u16(form.depth);
    for (const QRgb colour : form.palette) header.u8(qBlue(colour)).u8(qGreen(colour)).u8(qRed(colour));
    return header.bytes();
  }
  header.u32(size.width()).u32(form.isTopDown ? -height : height).u16(1).u16(form.depth);
  header.u32(form.compression).u32(bitsLength).u32(kPixelsPerMetre).u32(kPixelsPerMetre);
  header.u32(form.palette.size()).u32(0);
  const bool hasMasks = form.compression == 3 || form.compression == 6 || form.headerSize > 40;
  const int masks = form.compression == 6 || form.headerSize >= 56 ? 4 : 3;
  if (hasMasks && form.headerSize != 64) {
    for (int mask = 0; mask < masks; ++mask) header.u32(form.masks.at(static_cast<std::size_t>(mask)));
  }
  if (form.headerSize >= 108) header.raw("BGRs");
  if (form.headerSize > header.size()) header.zeros(form.headerSize - header.size());
  for (const QRgb colour : form.palette) {
    header.u8(qBlue(colour)).u8(qGreen(colour)).u8(qRed(colour)).u8(0);
  }
  static_assert(kUsualHeader == 40);
  return header.bytes();
}

QByteArray dibOf(const QImage& image, const DibForm& form) {
  const QByteArray bits = dibBits(image, form);
  return dibHeader(image.size(), form, bits.size()) + bits;
}

QList<QRgb> paletteOf(int count) {
  QList<QRgb> palette;
  for (int index = 0; index < count; ++index) {
    palette.append(qRgb(index * 37 % 256, 255 - index * 91 % 256, (index * 13 + 100) % 256));
  }
  return palette;
}

QImage indexedPicture(const QList<QRgb>& colours) {
  QImage image(kSize, QImage::Format_Indexed8);
  image.setColorTable(colours);
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const auto index = (y * image.width() + x * 3) % static_cast<int>(colours.size());
      image.setPixel(x, y, static_cast<uint>(index));
    }
  }
  return image;
}

QImage colouredPicture(bool isTransparent) {
  QImage image(kSize, QImage::Format_ARGB32);
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const int alpha = isTransparent && (x + y) % 3 == 0 ? 0 : 255;
      image.setPixel(x, y, qRgba(x * 19, y * 40, 255 - x * y * 2, alpha));
    }
  }
  return image;
}

}  // namespace quorvin::test
