// SPDX-License-Identifier: GPL-2.0-or-later
#include "fuzz/record_maker.h"

#include <QtEndian>

#include <bit>
#include <limits>

namespace quorvin::fuzz {
namespace {

/// Header with palette, and the pixels.
struct MadeBitmap {
  QByteArray header;
  QByteArray bits;
};

MadeBitmap madeBitmap(Choices& choices, bool isMonochrome) {
  constexpr int kDepths[] = {24, 32, 1, 4, 8, 16};
  constexpr int kCompressions[] = {0, 0, 0, 0, 0, 1, 2, 3, 4, 5, 6, 99};
  const int depth = isMonochrome && !choices.oneIn(12) ? 1 : choices.of(kDepths);
  const int width = 1 + choices.below(40);
  const int height = 1 + choices.below(20);
  const int rowSize = (width * depth + 31) / 32 * 4;
  MadeBitmap bitmap;
  test::ByteWriter header;
  int colours = depth <= 8 ? 1 << depth : 0;
  const bool isOld = choices.oneIn(6);
  if (isOld) {
    header.u32(12).u16(width).u16(height).u16(1).u16(depth);
  } else {
    const int compression = choices.of(kCompressions);
    const int used = choices.oneIn(4) ? choices.below(8) : 0;
    header.u32(40).u32(width).u32(choices.oneIn(4) ? -height : height).u16(1).u16(depth).u32(compression);
    header.u32(choices.oneIn(4) ? choices.number() : 0).u32(0).u32(0).u32(used).u32(0);
    if (compression == 3) header.u32(0xFF0000).u32(0xFF00).u32(0xFF);
    if (depth <= 8 && used != 0) colours = std::min(colours, used);
  }
  for (int colour = 0; colour < colours; ++colour) {
    header.u8(colour * 37).u8(colour * 91).u8(255 - colour);
    if (!isOld) header.u8(0);
  }
  bitmap.header = header.bytes();
  const QByteArray piece = choices.bytes(choices.below(16));
  while (!piece.isEmpty() && bitmap.bits.size() < qsizetype{rowSize} * height) bitmap.bits += piece;
  bitmap.bits.resize(qsizetype{rowSize} * height - (choices.oneIn(16) ? 1 : 0));
  return bitmap;
}

std::uint32_t ternaryOperation(Choices& choices) {
  constexpr std::uint32_t kOperations[] = {
      0x00CC0020, 0x00EE0086, 0x008800C6, 0x00660046, 0x00440328, 0x00330008, 0x001100A6, 0x00BB0226,
      0x00C000CA, 0x00F00021, 0x00FB0A09, 0x005A0049, 0x00550009, 0x00000042, 0x00FF0062, 0x00AA0029};
  return choices.oneIn(16) ? choices.number() : choices.of(kOperations);
}

std::uint32_t maskOperations(Choices& choices) {
  constexpr std::uint32_t kOperations[] = {0xAACC0020, 0xCCAA0029, 0xCCCC0020, 0x66CC0020};
  return choices.of(kOperations);
}

std::uint32_t blending(Choices& choices) {
  return static_cast<std::uint32_t>(choices.byte()) << 16 | static_cast<std::uint32_t>(choices.below(2))
                                                                << 24;
}

float fraction(Choices& choices) {
  constexpr float kFractions[] = {1,
                                  0,
                                  -1,
                                  0.5F,
                                  2,
                                  0.1F,
                                  10,
                                  45,
                                  90,
                                  359,
                                  -720,
                                  1e-6F,
                                  1e6F,
                                  1e30F,
                                  std::numeric_limits<float>::infinity(),
                                  std::numeric_limits<float>::quiet_NaN()};
  return choices.oneIn(12) ? std::bit_cast<float>(choices.number()) : choices.of(kFractions);
}

}  // namespace

QByteArray RecordMaker::made(const char* parameters) {
  for (const char* parameter = parameters; *parameter != '\0'; ++parameter) add(*parameter);
  QByteArray content = content_.bytes();
  const auto put = [&content](qsizetype field, qsizetype value) {
    qToLittleEndian(static_cast<std::uint32_t>(value), content.data() + field);
  };
  for (const Behind& behind : behind_) {
    content.append((4 - content.size() % 4) % 4, '\0');
    put(behind.field, head_ + content.size());
    if (behind.hasLength) put(behind.field + 4, behind.bytes.size());
    content += behind.bytes;
  }
  return content;
}

void RecordMaker::add(char parameter) {
  if (!addNumber(parameter) && !addPoints(parameter) && !addText(parameter)) addRest(parameter);
}

std::int32_t RecordMaker::measure() {
  constexpr std::int32_t kUnusual[] = {0,      1,     -1,        -50,        1000,       32767,
                                       -32768, 65535, 1'000'000, -1'000'000, 0x7FFFFFFF, -0x7FFFFFFF - 1};
  constexpr int kUsual = 230;
  const int choice = choices_.byte();
  return choice < kUsual ? choice * 2 - 30 : choices_.of(kUnusual);
}

std::uint32_t RecordMaker::small() {
  return choices_.oneIn(24) ? choices_.number() : static_cast<std::uint32_t>(choices_.below(17));
}

bool RecordMaker::addNumber(char parameter) {
  constexpr std::uint32_t kStock = 0x80000000;
  constexpr int kObjects = 10;
  switch (parameter) {
    case 'n':
      content_.u32(measure());
      return true;
    case 'u':
      content_.u32(small());
      return true;
    case 'c':
      content_.u32(choices_.number());
      return true;
    case 'f':
      content_.f32(fraction(choices_));
      return true;
    case 'i':
      content_.u32(1 + choices_.below(kObjects));
      return true;
    case 'o':
      content_.u32(choices_.oneIn(3) ? kStock + static_cast<std::uint32_t>(choices_.below(20))
                                     : 1 + static_cast<std::uint32_t>(choices_.below(kObjects)));
      return true;
    case 't':
      content_.u32(ternaryOperation(choices_));
      return true;
    case 'm':
      content_.u32(maskOperations(choices_));
      return true;
    case 'a':
      content_.u32(blending(choices_));
      return true;
    case 's':
      content_.u32(choices_.below(6) - 3);
      return true;
    case 'b':
      content_.zeros(16);
      return true;
    case 'w':
      content_.u16(measure());
      return true;
    case 'v':
      content_.u16(small());
      return true;
    case 'j':
      content_.u16(choices_.below(kObjects));
      return true;
    case 'e':
      content_.u16(choices_.below(6) - 3);
      return true;
    default:
      return false;
  }
}

void RecordMaker::point(bool isShort) {
  for (int axis = 0; axis < 2; ++axis) {
    if (isShort) {
      content_.u16(measure());
    } else {
      content_.u32(measure());
    }
  }
}

void RecordMaker::points(int count, bool isShort) {
  for (int index = 0; index < count; ++index) point(isShort);
}

void RecordMaker::listsOfPoints(bool isShort) {
  const QByteArray counts = choices_.bytes(choices_.below(5));
  int all = 0;
  for (const char count : counts) all += count & 7;
  content_.u32(counts.size()).u32(all);
  for (const char count : counts) content_.u32(count & 7);
  points(all, isShort);
}

bool RecordMaker::addPoints(char parameter) {
  constexpr int kMostPoints = 14;
  const bool isShort = parameter == 'p' || parameter == 'q' || parameter == 'd';
  switch (parameter) {
    case 'P':
    case 'p': {
      const int count = choices_.below(kMostPoints);
      content_.u32(count);
      points(count, isShort);
      return true;
    }
    case 'V': {
      const int count = choices_.below(kMostPoints);
      content_.u16(count);
      points(count, true);
      return true;
    }
    case 'Q':
    case 'q':
      listsOfPoints(isShort);
      return true;
    case 'W': {
      const QByteArray counts = choices_.bytes(choices_.below(5));
      content_.u16(counts.size());
      for (const char count : counts) content_.u16(count & 7);
      for (const char count : counts) points(count & 7, true);
      return true;
    }
    case 'D':
    case 'd': {
      constexpr char kKinds[] = {6, 2, 4, 4, 4, 3, 5, 7, 0};
      const int count = choices_.below(kMostPoints);
      content_.u32(count);
      points(count, isShort);
      for (int index = 0; index < count; ++index) content_.u8(choices_.of(kKinds));
      return true;
    }
    default:
      return false;
  }
}

void RecordMaker::placeOfBitmap(bool isMonochrome) {
  if (choices_.oneIn(12)) {
    content_.zeros(16);
    return;
  }
  const MadeBitmap bitmap = madeBitmap(choices_, isMonochrome);
  behind_.push_back({content_.size(), true, bitmap.header});
  content_.zeros(8);
  behind_.push_back({content_.size(), true, bitmap.bits});
  content_.zeros(8);
}

void RecordMaker::gradients() {
  const int vertices = choices_.below(6);
  const int areas = choices_.below(4);
  const int mode = choices_.below(4);
  content_.u32(vertices).u32(areas).u32(mode);
  for (int vertex = 0; vertex < vertices; ++vertex) {
    point(false);
    content_.u32(choices_.number()).u32(choices_.number());
  }
  for (int corner = 0; corner < areas * (mode == 2 ? 3 : 2); ++corner) content_.u32(choices_.below(6));
}

QByteArray RecordMaker::region() {
  const int count = choices_.below(5);
  test::ByteWriter data;
  data.u32(32).u32(1).u32(count).u32(16 * count).zeros(16);
  for (int part = 0; part < count; ++part) {
    for (int side = 0; side < 4; ++side) data.u32(measure());
  }
  return data.bytes();
}

void RecordMaker::windowsRegion() {
  const int bands = choices_.below(4);
  content_.u16(0).u16(6).u32(0).u16(0).u16(bands).u16(2).zeros(8);
  for (int band = 0; band < bands; ++band) {
    const int pairs = choices_.below(4);
    content_.u16(2 * pairs);
    points(1 + pairs, true);
    content_.u16(2 * pairs);
  }
}

void RecordMaker::comment() {
  constexpr int kFlags[] = {0, 1};
  content_.u32(32).raw(choices_.oneIn(4) ? "EMF-" : "EMF+");
  content_.u16(0x4001).u16(choices_.of(kFlags)).u32(28).u32(16).zeros(16);
}

void RecordMaker::addRest(char parameter) {
  constexpr int kMostBytes = 40;
  switch (parameter) {
    case 'B':
    case 'K':
      return placeOfBitmap(parameter == 'K');
    case 'E': {
      const MadeBitmap bitmap = madeBitmap(choices_, false);
      content_.raw(bitmap.header).raw(bitmap.bits);
      return;
    }
    case 'l':
      region_ = choices_.oneIn(8) ? QByteArray() : region();
      content_.u32(region_.size());
      return;
    case 'R':
      content_.raw(region_);
      return;
    case 'Z':
      return windowsRegion();
    case 'F':
    case 'f':
      return font(parameter == 'F');
    case 'G':
      return gradients();
    case 'C':
      return comment();
    case 'h': {
      const QByteArray bytes = choices_.bytes(choices_.below(kMostBytes));
      content_.u32(bytes.size()).raw(bytes);
      return;
    }
    default:
      content_.raw(choices_.bytes(choices_.below(kMostBytes)));
  }
}

}  // namespace quorvin::fuzz
