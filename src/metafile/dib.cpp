// SPDX-License-Identifier: GPL-2.0-or-later
#include "metafile/dib.h"

#include "platform/bitmap_reading.h"

#include <QBuffer>
#include <QByteArray>
#include <QImageReader>

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace quorvin {

namespace {

constexpr std::int64_t kMostPixels = 64'000'000;
constexpr std::uint32_t kOldHeaderSize = 12;
constexpr std::uint32_t kUsualHeaderSize = 40;
constexpr std::uint32_t kMasks = 3;
constexpr std::uint32_t kJpeg = 4;
constexpr std::uint32_t kPng = 5;
constexpr qsizetype kFileHeaderSize = 14;

bool hasOldHeader(const MetafileBytes& dib) {
  return dib.u32(0) == kOldHeaderSize;
}

/// The size of the header with its masks and its palette.
std::int64_t headerSize(const MetafileBytes& dib) {
  const std::uint32_t size = dib.u32(0);
  if (hasOldHeader(dib)) {
    const std::uint16_t depth = dib.u16(10);
    return size + (depth <= 8 ? (3LL << depth) : 0);
  }
  if (size < kUsualHeaderSize) {
    throw MetafileFault(QT_TRANSLATE_NOOP("Texts", "a bitmap in it has an unknown header"));
  }
  const std::uint16_t depth = dib.u16(14);
  const std::int64_t masks = size == kUsualHeaderSize && dib.u32(16) == kMasks ? 12 : 0;
  std::int64_t colours = dib.u32(32);
  const std::int64_t mostColours = std::int64_t{1} << std::min<int>(depth, 8);
  if (depth <= 8 && (colours == 0 || colours > mostColours)) colours = mostColours;
  return size + masks + colours * 4;
}

/// Negative for a bitmap whose top row comes first.
std::int64_t signedRows(const MetafileBytes& dib) {
  return hasOldHeader(dib) ? dib.u16(6) : dib.i32(8);
}

void checkSize(const MetafileBytes& dib) {
  const std::int64_t width = hasOldHeader(dib) ? dib.u16(4) : dib.i32(4);
  const std::int64_t height = std::abs(signedRows(dib));
  if (width <= 0 || height <= 0) throw MetafileFault(QT_TRANSLATE_NOOP("Texts", "a bitmap in it is empty"));
  if (width > kMostPixels / height) {
    throw MetafileFault(QT_TRANSLATE_NOOP("Texts", "a bitmap in it is too large"));
  }
}

void append32(QByteArray& bytes, std::int64_t value) {
  const auto number = qToLittleEndian(static_cast<std::uint32_t>(value));
  bytes.append(reinterpret_cast<const char*>(&number), sizeof number);
}

}  // namespace

QImage imageOfDib(const MetafileBytes& header, const MetafileBytes& bits) {
  checkSize(header);
  const std::uint32_t compression = hasOldHeader(header) ? 0 : header.u32(16);
  if (compression == kJpeg || compression == kPng) {
    throw MetafileOmission(QT_TRANSLATE_NOOP("Texts", "JPEG and PNG pictures in it"));
  }
  const std::int64_t size = std::min<std::int64_t>(headerSize(header), header.size());
  QByteArray file("BM");
  append32(file, kFileHeaderSize + size + bits.size());
  append32(file, 0);
  append32(file, kFileHeaderSize + size);
  file += header.slice(0, size).all();
  file += bits.all();
  QBuffer buffer(&file);
  buffer.open(QIODevice::ReadOnly);
  QImageReader reader(&buffer, "bmp");
  const QImage image = readBitmap(reader);
  if (image.isNull()) throw MetafileFault(QT_TRANSLATE_NOOP("Texts", "a bitmap in it cannot be read"));
  return image;
}

QImage imageOfDibWithAlpha(const MetafileBytes& header, const MetafileBytes& bits) {
  constexpr std::uint16_t kDepth = 32;
  const QImage opaque = imageOfDib(header, bits);
  if (hasOldHeader(header) || header.u16(14) != kDepth) return opaque;
  QImage image(opaque.size(), QImage::Format_ARGB32_Premultiplied);
  const std::int64_t rowSize = 4LL * image.width();
  for (int row = 0; row < image.height(); ++row) {
    const int y = signedRows(header) < 0 ? row : image.height() - 1 - row;
    qFromLittleEndian<QRgb>(bits.slice(row * rowSize, rowSize).all().data(), image.width(),
                            image.scanLine(y));
  }
  return image;
}

QImage bitsOfDib(const MetafileBytes& header, const MetafileBytes& bits) {
  checkSize(header);
  const bool isOld = hasOldHeader(header);
  const bool isPlain = isOld ? header.u16(10) == 1 : header.u16(14) == 1 && header.u32(16) == 0;
  if (!isPlain) throw MetafileFault(QT_TRANSLATE_NOOP("Texts", "a bitmap in it is not monochrome"));
  const int width = isOld ? header.u16(4) : header.i32(4);
  const std::int64_t rows = signedRows(header);
  QImage image(width, static_cast<int>(std::abs(rows)), QImage::Format_Mono);
  if (image.isNull()) throw MetafileFault(QT_TRANSLATE_NOOP("Texts", "there is not enough memory for it"));
  // Rows are padded to four bytes in both.
  const std::int64_t rowSize = image.bytesPerLine();
  for (int row = 0; row < image.height(); ++row) {
    const int y = rows < 0 ? row : image.height() - 1 - row;
    const MetafileBytes stored = bits.slice(row * rowSize, rowSize);
    std::memcpy(image.scanLine(y), stored.all().data(), static_cast<std::size_t>(rowSize));
  }
  return image;
}

QRectF partFromTop(const MetafileBytes& header, QRectF part) {
  const std::int64_t rows = signedRows(header);
  if (rows > 0) part.moveTop(static_cast<double>(rows) - part.y() - part.height());
  return part;
}

QImage imageOfPackedDib(const MetafileBytes& dib) {
  const std::int64_t size = headerSize(dib);
  return imageOfDib(dib.slice(0, size), dib.from(size));
}

}  // namespace quorvin
