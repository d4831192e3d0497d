// SPDX-License-Identifier: GPL-2.0-or-later
#include "preview/picture_icon.h"

#include <QtEndian>

#include <algorithm>
#include <utility>

namespace quorvin {

namespace {

constexpr qsizetype kHeaderSize = 6;
constexpr qsizetype kEntrySize = 16;

/// A side of 256 pixels is written as 0.
int side(char byte) {
  const auto value = static_cast<unsigned char>(byte);
  return value == 0 ? 256 : value;
}

qint64 rowSize(qint64 width, int depth) {
  return (width * depth + 31) / 32 * 4;
}

/// The bits of a pixel as the picture itself gives them; 0 where it does not.
int depthOfPart(const QByteArray& start) {
  constexpr qsizetype kDepthPlace = 14;
  constexpr int kCompressedDepth = 32;
  if (start.startsWith("\x89PNG")) return kCompressedDepth;
  return start.size() < kDepthPlace + 2 ? 0 : qFromLittleEndian<quint16>(start.data() + kDepthPlace);
}

/// Files of pointers have the hot spot where others have the depth.
int depthInEntry(QByteArrayView directory, QByteArrayView entry) {
  constexpr quint16 kPointers = 2;
  const bool isPointer = qFromLittleEndian<quint16>(directory.data() + 2) == kPointers;
  return isPointer ? 0 : qFromLittleEndian<quint16>(entry.data() + 6);
}

}  // namespace

int bestIcon(QByteArrayView directory, const IconBytes& bytes) {
  constexpr qsizetype kPartStart = 16;
  if (directory.size() < kHeaderSize) return 0;
  const int count = qFromLittleEndian<quint16>(directory.data() + 4);
  const auto held = static_cast<int>((directory.size() - kHeaderSize) / kEntrySize);
  int best = 0;
  std::pair<int, int> bestWorth;
  for (int number = 0; number < std::min(count, held); ++number) {
    const QByteArrayView entry = directory.sliced(kHeaderSize + number * kEntrySize, kEntrySize);
    int depth = depthInEntry(directory, entry);
    if (depth == 0) depth = depthOfPart(bytes(iconPlace(directory, number).offset, kPartStart));
    const std::pair<int, int> worth(side(entry[0]) * side(entry[1]), depth);
    if (worth <= bestWorth) continue;
    best = number;
    bestWorth = worth;
  }
  return best;
}

IconPlace iconPlace(QByteArrayView directory, int number) {
  const qsizetype at = kHeaderSize + number * kEntrySize;
  if (directory.size() < at + kEntrySize) return {};
  return {qFromLittleEndian<quint32>(directory.data() + at + 12),
          qFromLittleEndian<quint32>(directory.data() + at + 8)};
}

void hideMaskedPixels(QImage& image, QByteArrayView part) {
  constexpr qint64 kHeader = 40;
  constexpr qsizetype kDepthPlace = 14;
  constexpr int kDepth = 24;
  if (part.size() < kHeader || qFromLittleEndian<quint32>(part.data()) != kHeader) return;
  if (qFromLittleEndian<quint16>(part.data() + kDepthPlace) != kDepth) return;
  const qint64 mask = kHeader + rowSize(image.width(), kDepth) * image.height();
  const qint64 maskRow = rowSize(image.width(), 1);
  if (part.size() < mask + maskRow * image.height()) return;
  image = image.convertToFormat(QImage::Format_ARGB32);
  for (int y = 0; y < image.height(); ++y) {
    // The last row comes first.
    const char* row = part.data() + mask + maskRow * (image.height() - 1 - y);
    for (int x = 0; x < image.width(); ++x) {
      if ((row[x / 8] & (0x80 >> x % 8)) != 0) image.setPixel(x, y, 0);
    }
  }
}

}  // namespace quorvin
