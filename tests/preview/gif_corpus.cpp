// SPDX-License-Identifier: GPL-2.0-or-later
#include "metafile/byte_writer.h"
#include "preview/corpus_picture.h"

#include <QColor>
#include <QPainter>

#include <optional>

namespace quorvin::test {

namespace {

constexpr QSize kScreen(20, 12);

/// One frame as it is in the file.
struct GifFrame {
  QRect place = QRect(QPoint(), kScreen);
  int disposal = 0;
  std::optional<int> transparent = {};
  int hundredths = 5;
  bool isInterlaced = false;
  QList<QRgb> ownPalette = {};
  /// The index of each pixel, by its place in the frame.
  int step = 1;
};

QList<QRgb> globalPalette() {
  return {qRgb(255, 0, 0),   qRgb(0, 255, 0),   qRgb(0, 0, 255),     qRgb(255, 255, 0),
          qRgb(255, 0, 255), qRgb(0, 255, 255), qRgb(255, 255, 255), qRgb(0, 0, 0)};
}

int indexAt(const GifFrame& frame, int x, int y) {
  return (x / 2 * frame.step + y / 3 + frame.step) % 8;
}

/// Codes of the fixed width of four bits, for eight colours: the table is emptied before it would grow.
QByteArray packedPixels(const QList<int>& indexes) {
  constexpr int kClear = 8;
  constexpr int kEnd = 9;
  constexpr int kBeforeGrowth = 5;
  QList<int> codes;
  for (qsizetype at = 0; at < indexes.size(); ++at) {
    if (at % kBeforeGrowth == 0) codes.append(kClear);
    codes.append(indexes[at]);
  }
  codes.append(kEnd);
  QByteArray bytes;
  for (qsizetype at = 0; at < codes.size(); at += 2) {
    bytes.append(static_cast<char>(codes[at] | (codes.value(at + 1) << 4)));
  }
  return bytes;
}

QList<int> rowOrder(int rows, bool isInterlaced) {
  QList<int> order;
  if (!isInterlaced) {
    for (int row = 0; row < rows; ++row) order.append(row);
    return order;
  }
  for (const auto& [first, step] : {std::pair(0, 8), std::pair(4, 8), std::pair(2, 4), std::pair(1, 2)}) {
    for (int row = first; row < rows; row += step) order.append(row);
  }
  return order;
}

void writePalette(ByteWriter& file, const QList<QRgb>& palette) {
  for (const QRgb colour : palette) file.u8(qRed(colour)).u8(qGreen(colour)).u8(qBlue(colour));
}

void writeFrame(ByteWriter& file, const GifFrame& frame) {
  file.raw("\x21\xF9\x04").u8(frame.disposal << 2 | (frame.transparent ? 1 : 0));
  file.u16(frame.hundredths).u8(frame.transparent.value_or(0)).u8(0);
  file.raw(",").u16(frame.place.x()).u16(frame.place.y()).u16(frame.place.width()).u16(frame.place.height());
  file.u8((frame.ownPalette.isEmpty() ? 0 : 0x82) | (frame.isInterlaced ? 0x40 : 0));
  writePalette(file, frame.ownPalette);
  QList<int> indexes;
  for (const int row : rowOrder(frame.place.height(), frame.isInterlaced)) {
    for (int x = 0; x < frame.place.width(); ++x) indexes.append(indexAt(frame, x, row));
  }
  const QByteArray packed = packedPixels(indexes);
  file.u8(3);
  for (qsizetype at = 0; at < packed.size(); at += 255) {
    const QByteArray block = packed.mid(at, 255);
    file.u8(block.size()).raw(block);
  }
  file.u8(0);
}

QByteArray gifFile(const QList<GifFrame>& frames, std::optional<int> loops) {
  ByteWriter file;
  file.raw("GIF89a").u16(kScreen.width()).u16(kScreen.height()).u8(0xF2).u8(0).u8(0);
  writePalette(file, globalPalette());
  if (loops) file.raw("\x21\xFF\x0BNETSCAPE2.0\x03\x01").u16(*loops).u8(0);
  for (const GifFrame& frame : frames) writeFrame(file, frame);
  return file.raw(";").bytes();
}

void paintFrame(QImage& screen, const GifFrame& frame) {
  const QList<QRgb> palette = frame.ownPalette.isEmpty() ? globalPalette() : frame.ownPalette;
  for (int y = 0; y < frame.place.height(); ++y) {
    for (int x = 0; x < frame.place.width(); ++x) {
      const int index = indexAt(frame, x, y);
      if (index != frame.transparent) screen.setPixel(frame.place.topLeft() + QPoint(x, y), palette[index]);
    }
  }
}

/// What is seen frame by frame: after one of disposal 2 its place is empty, after one of 3 as it was before.
QList<QImage> seenFrames(const QList<GifFrame>& frames) {
  constexpr int kEmpty = 2;
  constexpr int kAsBefore = 3;
  QImage screen(kScreen, QImage::Format_ARGB32);
  screen.fill(Qt::transparent);
  QList<QImage> seen;
  for (const GifFrame& frame : frames) {
    const QImage before = screen;
    paintFrame(screen, frame);
    seen.append(screen);
    if (frame.disposal == kAsBefore) screen = before;
    if (frame.disposal != kEmpty) continue;
    for (int y = frame.place.top(); y <= frame.place.bottom(); ++y) {
      for (int x = frame.place.left(); x <= frame.place.right(); ++x) screen.setPixel(x, y, 0);
    }
  }
  return seen;
}

CorpusPicture gif(const std::string& name, const QList<GifFrame>& frames, std::optional<int> loops = {}) {
  return {name, gifFile(frames, loops), seenFrames(frames), 0};
}

/// A whole frame, then two small ones of this disposal, with a colour that lets through.
CorpusPicture moving(const std::string& name, int disposal) {
  const GifFrame whole;
  const GifFrame first{QRect(2, 2, 9, 6), disposal, 3, 5, false, {}, 3};
  const GifFrame second{QRect(8, 5, 10, 6), disposal, std::nullopt, 5, false, {}, 5};
  const GifFrame third{QRect(0, 0, 4, 4), 0, 0, 5, false, {}, 7};
  return gif(name, {whole, first, second, third}, 0);
}

}  // namespace

std::vector<CorpusPicture> gifCorpus() {
  const QList<QRgb> others = {qRgb(10, 20, 30),    qRgb(40, 50, 60),   qRgb(70, 80, 90),
                              qRgb(100, 110, 120), qRgb(130, 140, 0),  qRgb(160, 170, 180),
                              qRgb(190, 200, 210), qRgb(220, 230, 240)};
  const QRect all(QPoint(), kScreen);
  return {
      gif("still", {GifFrame{}}),
      gif("interlaced", {GifFrame{all, 0, {}, 5, true, {}, 3}}),
      gif("transparent", {GifFrame{all, 0, 2, 5, false, {}, 1}}),
      gif("own palette", {GifFrame{all, 0, {}, 5, false, others, 1}}),
      gif("smaller than its screen", {GifFrame{QRect(3, 2, 8, 5), 0, 7, 5, false, {}, 1}}),
      moving("moving, disposal 0", 0),
      moving("moving, disposal 1", 1),
      moving("moving, disposal 2", 2),
      moving("moving, disposal 3", 3),
      gif("moving twice", {GifFrame{}, GifFrame{QRect(1, 1, 5, 5), 1, {}, 3, false, {}, 5}}, 1),
  };
}

}  // namespace quorvin::test
