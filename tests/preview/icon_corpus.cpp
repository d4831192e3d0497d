// SPDX-License-Identifier: GPL-2.0-or-later
#include "metafile/dib_writer.h"
#include "preview/corpus_picture.h"

#include <QBuffer>

namespace quorvin::test {

namespace {

/// One picture of an icon file as it is in it.
struct IconPart {
  QSize size;
  int depth = 0;
  QByteArray bytes;
  QImage seen;
};

QByteArray iconFile(const QList<IconPart>& parts, int type = 1) {
  ByteWriter file;
  file.u16(0).u16(type).u16(parts.size());
  qsizetype offset = 6 + 16 * parts.size();
  for (const IconPart& part : parts) {
    const int colours = part.depth < 8 ? 1 << part.depth : 0;
    file.u8(part.size.width() % 256).u8(part.size.height() % 256).u8(colours).u8(0);
    // A pointer has its hot spot there.
    file.u16(1).u16(type == 2 ? 2 : part.depth).u32(part.bytes.size()).u32(offset);
    offset += part.bytes.size();
  }
  for (const IconPart& part : parts) file.raw(part.bytes);
  return file.bytes();
}

bool isTransparentAt(int x, int y) {
  return (x / 4 + y / 4) % 3 == 0;
}

QImage maskOf(int side) {
  QImage mask(side, side, QImage::Format_Indexed8);
  mask.setColorTable({qRgb(0, 0, 0), qRgb(255, 255, 255)});
  for (int y = 0; y < side; ++y) {
    for (int x = 0; x < side; ++x) mask.setPixel(x, y, isTransparentAt(x, y) ? 1U : 0U);
  }
  return mask;
}

QImage seenThrough(const QImage& colours) {
  QImage seen = colours.convertToFormat(QImage::Format_ARGB32);
  for (int y = 0; y < seen.height(); ++y) {
    for (int x = 0; x < seen.width(); ++x) {
      if (isTransparentAt(x, y)) seen.setPixel(x, y, 0);
    }
  }
  return seen;
}

IconPart palettePart(int side, int depth) {
  const QList<QRgb> palette = paletteOf(1 << depth);
  QImage image(side, side, QImage::Format_Indexed8);
  image.setColorTable(palette);
  for (int y = 0; y < side; ++y) {
    for (int x = 0; x < side; ++x) {
      const auto index = isTransparentAt(x, y) ? 0 : (x * 5 + y * 11) % static_cast<int>(palette.size());
      image.setPixel(x, y, static_cast<uint>(index));
    }
  }
  const DibForm form{40, depth, 0, false, {}, palette, 2 * side};
  const QByteArray mask = dibBits(maskOf(side), {40, 1});
  return {{side, side}, depth, dibOf(image, form) + mask, seenThrough(image)};
}

QImage wash(int side) {
  QImage image(side, side, QImage::Format_ARGB32);
  for (int y = 0; y < side; ++y) {
    for (int x = 0; x < side; ++x) {
      image.setPixel(x, y, isTransparentAt(x, y) ? 0 : qRgb(x * 255 / side, y * 255 / side, 90));
    }
  }
  return image;
}

IconPart colourPart(int side, int depth) {
  DibForm form{40, depth, 0, false, {}, {}, 2 * side};
  // In icons the fourth byte is the alpha.
  if (depth == 32) form.masks = {0xFF0000, 0xFF00, 0xFF, 0xFF000000};
  const QByteArray mask = dibBits(maskOf(side), {40, 1});
  return {{side, side}, depth, dibOf(wash(side), form) + mask, seenThrough(wash(side))};
}

IconPart compressedPart(int side) {
  QBuffer png;
  png.open(QIODevice::WriteOnly);
  wash(side).save(&png, "PNG");
  return {{side, side}, 32, png.data(), wash(side)};
}

CorpusPicture single(const std::string& name, const IconPart& part, int type = 1) {
  return {name, iconFile({part}, type), {part.seen}, 0};
}

}  // namespace

std::vector<CorpusPicture> iconCorpus() {
  std::vector<CorpusPicture> corpus = {
      single("1 bit", palettePart(32, 1)),      single("4 bits", palettePart(32, 4)),
      single("8 bits", palettePart(32, 8)),     single("24 bits", colourPart(32, 24)),
      single("32 bits", colourPart(32, 32)),    single("compressed", compressedPart(256)),
      single("pointer", palettePart(32, 4), 2),
  };
  for (const int side : {16, 24, 48, 64, 128, 256}) {
    corpus.push_back(single("32 bits, side of " + std::to_string(side), colourPart(side, 32)));
  }
  const QList<IconPart> sizes = {palettePart(16, 4), compressedPart(256), colourPart(48, 32)};
  corpus.push_back({"several sizes", iconFile(sizes), {sizes[1].seen}, 0});
  const QList<IconPart> depths = {palettePart(32, 1), palettePart(32, 8), colourPart(32, 32),
                                  palettePart(32, 4)};
  corpus.push_back({"several depths", iconFile(depths), {depths[2].seen}, 0});
  return corpus;
}

}  // namespace quorvin::test
