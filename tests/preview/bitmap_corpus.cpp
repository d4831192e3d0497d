// SPDX-License-Identifier: GPL-2.0-or-later
#include "metafile/dib_writer.h"
#include "preview/corpus_picture.h"

#include <algorithm>
#include <cmath>

namespace quorvin::test {

namespace {

constexpr std::array<std::uint32_t, 4> k565 = {0xF800, 0x07E0, 0x001F, 0};
constexpr std::array<std::uint32_t, 4> kAlpha = {0x00FF0000, 0x0000FF00, 0x000000FF, 0xFF000000};

/// Five bits become eight in more than one way.
constexpr int kRounding = 7;

QByteArray bitmapFile(const QByteArray& header, const QByteArray& bits) {
  ByteWriter file;
  file.raw("BM").u32(14 + header.size() + bits.size()).u32(0).u32(14 + header.size());
  return file.raw(header).raw(bits).bytes();
}

QByteArray bitmapFile(const QImage& image, const DibForm& form) {
  const QByteArray bits = dibBits(image, form);
  return bitmapFile(dibHeader(image.size(), form, bits.size()), bits);
}

CorpusPicture palettePicture(const std::string& name, DibForm form, int colours) {
  form.palette = paletteOf(colours);
  const QImage image = indexedPicture(form.palette);
  return {name, bitmapFile(image, form), {image}, 0};
}

CorpusPicture colourPicture(const std::string& name, const DibForm& form, int tolerance = 0) {
  const bool isTransparent = form.masks[3] != 0 && form.headerSize > 56;
  const QImage image = colouredPicture(isTransparent);
  return {name, bitmapFile(image, form), {asStored(image, form)}, tolerance};
}

/// Runs of 1 to 3 pixels, absolute stretches, a jump over pixels (which stay 0), ends of lines and of the
/// picture; 9 by 3 pixels.
QByteArray runsOf8() {
  ByteWriter bits;
  bits.u8(3).u8(1).u8(0).u8(5).u8(2).u8(3).u8(4).u8(5).u8(6).u8(0).u8(1).u8(7).u8(0).u8(0);
  bits.u8(2).u8(1).u8(0).u8(2).u8(4).u8(0).u8(3).u8(2).u8(0).u8(0);
  bits.u8(9).u8(5).u8(0).u8(1);
  return bits.bytes();
}

QByteArray runsOf4() {
  ByteWriter bits;
  bits.u8(3).u8(0x12).u8(0).u8(5).u8(0x34).u8(0x56).u8(0x70).u8(0).u8(1).u8(0x70).u8(0).u8(0);
  bits.u8(2).u8(0x11).u8(0).u8(2).u8(4).u8(0).u8(3).u8(0x22).u8(0).u8(0);
  bits.u8(9).u8(0x55).u8(0).u8(1);
  return bits.bytes();
}

CorpusPicture runPicture(const std::string& name, int depth, const QByteArray& bits,
                         const QList<QList<int>>& rows) {
  DibForm form{40, depth, depth == 8 ? 1 : 2, false, {}, paletteOf(depth == 8 ? 256 : 16), 0};
  QImage image(9, 3, QImage::Format_Indexed8);
  image.setColorTable(form.palette);
  for (int y = 0; y < 3; ++y) {
    for (int x = 0; x < 9; ++x) image.setPixel(x, y, static_cast<uint>(rows[y][x]));
  }
  return {name, bitmapFile(dibHeader(image.size(), form, bits.size()), bits), {image}, 0};
}

}  // namespace

std::vector<CorpusPicture> bitmapCorpus() {
  const QList<int> top = {5, 5, 5, 5, 5, 5, 5, 5, 5};
  const QList<int> middle8 = {1, 1, 0, 0, 0, 0, 2, 2, 2};
  const QList<int> bottom8 = {1, 1, 1, 2, 3, 4, 5, 6, 7};
  const QList<int> bottom4 = {1, 2, 1, 3, 4, 5, 6, 7, 7};
  return {
      palettePicture("1 bit", {40, 1}, 2),
      palettePicture("4 bits", {40, 4}, 16),
      palettePicture("4 bits of 5 colours", {40, 4}, 5),
      palettePicture("8 bits", {40, 8}, 256),
      palettePicture("8 bits of 7 colours", {40, 8}, 7),
      palettePicture("8 bits from the top", {40, 8, 0, true}, 256),
      palettePicture("1 bit, old header", {12, 1}, 2),
      palettePicture("4 bits, old header", {12, 4}, 16),
      palettePicture("8 bits, old header", {12, 8}, 256),
      palettePicture("8 bits, header of 64 bytes", {64, 8}, 256),
      palettePicture("8 bits, header of 108 bytes", {108, 8}, 256),
      colourPicture("16 bits", {40, 16}, kRounding),
      colourPicture("16 bits by masks", {40, 16, 3, false, k565}, kRounding),
      colourPicture("16 bits of 4 each", {40, 16, 3, false, {0x0F00, 0x00F0, 0x000F, 0}}, 15),
      colourPicture("24 bits", {40, 24}),
      colourPicture("24 bits from the top", {40, 24, 0, true}),
      colourPicture("24 bits, old header", {12, 24}),
      colourPicture("32 bits", {40, 32}),
      colourPicture("32 bits by masks", {40, 32, 3, false, {0x000000FF, 0x0000FF00, 0x00FF0000, 0}}),
      colourPicture("32 bits of 11, 11 and 10", {40, 32, 3, false, {0xFFE00000, 0x001FFC00, 0x000003FF, 0}},
                    1),
      colourPicture("32 bits of 10 each, header of 108 bytes",
                    {108, 32, 3, false, {0x3FF00000, 0x000FFC00, 0x000003FF, 0}}, 1),
      colourPicture("32 bits, header of 52 bytes", {52, 32, 3, false, {0xFF000000, 0xFF0000, 0xFF00, 0}}),
      colourPicture("32 bits, header of 56 bytes", {56, 32, 3, false, {0xFF000000, 0xFF0000, 0xFF00, 0}}),
      colourPicture("32 bits with alpha, header of 108 bytes", {108, 32, 3, false, kAlpha}),
      colourPicture("32 bits with alpha, header of 124 bytes", {124, 32, 3, false, kAlpha}),
      runPicture("8 bits in runs", 8, runsOf8(), {top, middle8, bottom8}),
      runPicture("4 bits in runs", 4, runsOf4(), {top, middle8, bottom4}),
  };
}

int largestDifference(const QImage& one, const QImage& other) {
  if (one.size() != other.size()) return 256;
  int largest = 0;
  for (int y = 0; y < one.height(); ++y) {
    for (int x = 0; x < one.width(); ++x) {
      const QRgb a = one.pixel(x, y);
      const QRgb b = other.pixel(x, y);
      largest = std::max(largest, std::abs(qAlpha(a) - qAlpha(b)));
      // Where nothing is seen the colour does not matter.
      if (qAlpha(a) == 0 && qAlpha(b) == 0) continue;
      largest = std::max({largest, std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                          std::abs(qBlue(a) - qBlue(b))});
    }
  }
  return largest;
}

}  // namespace quorvin::test
