// SPDX-License-Identifier: GPL-2.0-or-later
#include "metafile/boundary.h"

#include "metafile/metafile_bytes.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace quorvin {

namespace {

constexpr std::uint32_t kMark = 0x4D465151;
constexpr std::uint32_t kVersion = 2;
constexpr std::uint32_t kLargestOwnSize = 0x7FFFFFFF;
constexpr std::uint32_t kLongestSide = 2000;
constexpr std::int64_t kLongestReason = 200;

QByteArray headerOf(const QSize& ownSize, const QSize& pixels, qsizetype textLength) {
  const std::array<qint64, 8> numbers = {kMark,          kVersion,        ownSize.width(), ownSize.height(),
                                         pixels.width(), pixels.height(), textLength,      0};
  QByteArray bytes;
  for (const qint64 number : numbers) {
    const auto little = qToLittleEndian(static_cast<std::uint32_t>(number));
    bytes.append(reinterpret_cast<const char*>(&little), sizeof little);
  }
  return bytes;
}

/// The start of a text, in characters that do no harm in a message box.
QByteArray cleanText(QByteArrayView text, std::int64_t longest) {
  QByteArray clean = text.first(std::min<qsizetype>(text.size(), longest)).toByteArray();
  for (char& letter : clean) {
    if (letter < ' ' || letter > '~') letter = '?';
  }
  return clean;
}

QImage imageOf(const MetafileBytes& rows, std::uint32_t width, std::uint32_t height) {
  QImage image(static_cast<int>(width), static_cast<int>(height), QImage::Format_RGB32);
  if (image.isNull()) throw MetafileFault(QT_TRANSLATE_NOOP("Texts", "there is not enough memory for it"));
  const std::size_t rowSize = std::size_t{4} * width;
  for (int y = 0; y < image.height(); ++y) {
    std::memcpy(image.scanLine(y), rows.all().data() + static_cast<std::size_t>(y) * rowSize, rowSize);
  }
  // The way there and back sets the unused bytes, which are not trusted either.
  return image.convertToFormat(QImage::Format_RGB888).convertToFormat(QImage::Format_RGB32);
}

}  // namespace

bool isEnhancedMetafile(QByteArrayView bytes) {
  return bytes.size() >= 44 && bytes.startsWith(QByteArrayView("\x01\0\0\0", 4)) &&
         bytes.sliced(40, 4) == QByteArrayView(" EMF");
}

bool isWindowsMetafile(QByteArrayView bytes) {
  if (bytes.startsWith(QByteArrayView("\xD7\xCD\xC6\x9A", 4))) return true;
  if (bytes.size() < 6) return false;
  const MetafileBytes header(bytes);
  return (header.u16(0) == 1 || header.u16(0) == 2) && header.u16(2) == 9 &&
         (header.u16(4) == 0x0100 || header.u16(4) == 0x0300);
}

QByteArray metafileAnswer(const MetafilePicture& picture) {
  const QImage image = picture.image.convertToFormat(QImage::Format_RGB32);
  const QByteArray leftOut = cleanText(picture.leftOut.toLatin1(), kLongestLeftOut);
  QByteArray answer = headerOf(picture.ownSize, image.size(), leftOut.size());
  for (int y = 0; y < image.height(); ++y) {
    answer.append(reinterpret_cast<const char*>(image.constScanLine(y)), 4LL * image.width());
  }
  return answer + leftOut;
}

QByteArray metafileRefusal(QByteArrayView why) {
  return headerOf({}, {0, 0}, why.size()) + why.toByteArray();
}

MetafilePicture pictureOfMetafileAnswer(QByteArrayView answer) {
  const MetafileBytes bytes(answer);
  constexpr auto kNoAnswer =
      QT_TRANSLATE_NOOP("Texts", "the program that draws metafiles has not answered as it should");
  if (answer.size() < kMetafileHeaderSize || bytes.u32(0) != kMark || bytes.u32(4) != kVersion) {
    throw MetafileFault(kNoAnswer);
  }
  const std::uint32_t width = bytes.u32(16);
  const std::uint32_t height = bytes.u32(20);
  const MetafileBytes body = bytes.from(kMetafileHeaderSize);
  if (width == 0 && height == 0) throw MetafileFault(cleanText(body.all(), kLongestReason).constData());
  const std::uint32_t textLength = bytes.u32(24);
  const bool isAllowed = width > 0 && height > 0 && width <= kLongestSide && height <= kLongestSide &&
                         textLength <= kLongestLeftOut && body.size() == 4LL * width * height + textLength;
  const std::uint32_t ownWidth = bytes.u32(8);
  const std::uint32_t ownHeight = bytes.u32(12);
  const auto isSize = [](std::uint32_t side) { return side > 0 && side <= kLargestOwnSize; };
  if (!isAllowed || !isSize(ownWidth) || !isSize(ownHeight)) throw MetafileFault(kNoAnswer);
  return {QSize(static_cast<int>(ownWidth), static_cast<int>(ownHeight)), imageOf(body, width, height),
          QString::fromLatin1(cleanText(body.all().last(textLength), kLongestLeftOut))};
}

}  // namespace quorvin
