// SPDX-License-Identifier: GPL-2.0-or-later
#include "metafile/metafile_writer.h"

namespace quorvin::test {

namespace {

constexpr int kWidth = 400;
constexpr int kHeight = 200;

QByteArray regionData(const QList<QRect>& parts) {
  ByteWriter data;
  data.u32(32).u32(1).u32(parts.size()).u32(16 * parts.size()).zeros(16);
  for (const QRect& part : parts) {
    data.u32(part.left()).u32(part.top()).u32(part.right() + 1).u32(part.bottom() + 1);
  }
  return data.bytes();
}

}  // namespace

std::uint32_t metafileColour(QRgb colour) {
  return static_cast<std::uint32_t>(qRed(colour) | qGreen(colour) << 8 | qBlue(colour) << 16);
}

EmfWriter& EmfWriter::record(std::uint32_t type, const QByteArray& content) {
  const qsizetype padding = (4 - content.size() % 4) % 4;
  ByteWriter bytes;
  bytes.u32(type).u32(8 + content.size() + padding).raw(content).zeros(padding);
  records_ += bytes.bytes();
  ++count_;
  return *this;
}

EmfWriter& EmfWriter::pen(int number, int style, int width, QRgb colour) {
  return record(38, ByteWriter().u32(number).u32(style).u32(width).u32(0).u32(metafileColour(colour)));
}

EmfWriter& EmfWriter::brush(int number, int style, QRgb colour, int hatch) {
  return record(39, ByteWriter().u32(number).u32(style).u32(metafileColour(colour)).u32(hatch));
}

EmfWriter& EmfWriter::font(int number, int height, const QString& family, int escapement) {
  ByteWriter font;
  font.u32(number).u32(height).u32(0).u32(escapement).u32(escapement).u32(400).zeros(8);
  for (qsizetype letter = 0; letter < 32; ++letter) {
    font.u16(letter < family.size() ? family[letter].unicode() : 0);
  }
  return record(82, font.zeros(320 - 92));
}

EmfWriter& EmfWriter::box(std::uint32_t type, int left, int top, int right, int bottom) {
  return record(type, ByteWriter().u32(left).u32(top).u32(right).u32(bottom));
}

EmfWriter& EmfWriter::points16(std::uint32_t type, const QList<QPoint>& points) {
  ByteWriter content;
  content.zeros(16).u32(points.size());
  for (const QPoint& point : points) content.u16(point.x()).u16(point.y());
  return record(type, content);
}

EmfWriter& EmfWriter::text(int x, int y, const QString& letters, int step, int options, const QRect& box) {
  constexpr int kLettersAt = 76;
  ByteWriter wide;
  for (const QChar letter : letters) wide.u16(letter.unicode());
  if (wide.size() % 4 != 0) wide.u16(0);
  const qsizetype steps = step == 0 ? 0 : kLettersAt + wide.size();
  ByteWriter content;
  content.zeros(16).u32(1).f32(1).f32(1).u32(x).u32(y).u32(letters.size()).u32(kLettersAt).u32(options);
  content.u32(box.left()).u32(box.top()).u32(box.right() + 1).u32(box.bottom() + 1);
  content.u32(steps).raw(wide.bytes());
  for (qsizetype letter = 0; step != 0 && letter < letters.size(); ++letter) content.u32(step);
  return record(84, content);
}

EmfWriter& EmfWriter::stretchDib(const QRect& target, const QSize& size, const QByteArray& header,
                                 const QByteArray& bits, std::uint32_t operation) {
  constexpr int kHeaderAt = 80;
  ByteWriter content;
  content.zeros(16).u32(target.x()).u32(target.y()).u32(0).u32(0).u32(size.width()).u32(size.height());
  content.u32(kHeaderAt).u32(header.size()).u32(kHeaderAt + header.size()).u32(bits.size()).u32(0);
  content.u32(operation).u32(target.width()).u32(target.height());
  return record(81, content.raw(header).raw(bits));
}

EmfWriter& EmfWriter::clipRegion(const QList<QRect>& parts, int mode) {
  const QByteArray data = regionData(parts);
  return record(75, ByteWriter().u32(data.size()).u32(mode).raw(data));
}

EmfWriter& EmfWriter::paintRegion(const QList<QRect>& parts) {
  const QByteArray data = regionData(parts);
  return record(74, ByteWriter().zeros(16).u32(data.size()).raw(data));
}

QByteArray EmfWriter::file() const {
  constexpr int kHeaderSize = 88;
  constexpr int kEndSize = 20;
  ByteWriter file;
  file.u32(1).u32(kHeaderSize).u32(0).u32(0).u32(kWidth - 1).u32(kHeight - 1);
  file.u32(0).u32(0).u32(kWidth * 25).u32(kHeight * 25).raw(" EMF").u32(0x10000);
  file.u32(kHeaderSize + records_.size() + kEndSize).u32(count_ + 1).u16(16).u16(0).u32(0).u32(0).u32(0);
  file.u32(1000).u32(1000).u32(250).u32(250);
  file.raw(records_);
  return file.u32(14).u32(kEndSize).u32(0).u32(0).u32(kEndSize).bytes();
}

WmfWriter::WmfWriter() {
  place(0x020B, 0, 0);
  place(0x020C, kWidth, kHeight);
}

WmfWriter& WmfWriter::record(std::uint16_t function, const QByteArray& parameters) {
  const qsizetype padding = parameters.size() % 2;
  ByteWriter bytes;
  bytes.u32((6 + parameters.size() + padding) / 2).u16(function).raw(parameters).zeros(padding);
  records_ += bytes.bytes();
  return *this;
}

WmfWriter& WmfWriter::pen(int style, int width, QRgb colour) {
  return record(0x02FA, ByteWriter().u16(style).u16(width).u16(0).u32(metafileColour(colour)));
}

WmfWriter& WmfWriter::brush(int style, QRgb colour, int hatch) {
  return record(0x02FC, ByteWriter().u16(style).u32(metafileColour(colour)).u16(hatch));
}

WmfWriter& WmfWriter::font(int height, const QByteArray& family, int escapement) {
  ByteWriter font;
  font.u16(height).u16(0).u16(escapement).u16(escapement).u16(400).zeros(8).raw(family);
  return record(0x02FB, font.zeros(32 - family.size()));
}

WmfWriter& WmfWriter::box(std::uint16_t function, int left, int top, int right, int bottom) {
  return record(function, ByteWriter().u16(bottom).u16(right).u16(top).u16(left));
}

WmfWriter& WmfWriter::polygon(const QList<QPoint>& points) {
  ByteWriter content;
  content.u16(points.size());
  for (const QPoint& point : points) content.u16(point.x()).u16(point.y());
  return record(0x0324, content);
}

WmfWriter& WmfWriter::text(int x, int y, const QByteArray& letters) {
  return record(0x0521,
                ByteWriter().u16(letters.size()).raw(letters).zeros(letters.size() % 2).u16(y).u16(x));
}

WmfWriter& WmfWriter::stretchDib(const QRect& target, const QSize& size, const QByteArray& dib,
                                 std::uint32_t operation) {
  ByteWriter content;
  content.u32(operation).u16(0).u16(size.height()).u16(size.width()).u16(0).u16(0);
  content.u16(target.height()).u16(target.width()).u16(target.y()).u16(target.x());
  return record(0x0F43, content.raw(dib));
}

WmfWriter& WmfWriter::region(const QRect& part) {
  ByteWriter content;
  content.u16(0).u16(6).u32(0).u16(0).u16(1).u16(2);
  content.u16(part.left()).u16(part.top()).u16(part.right() + 1).u16(part.bottom() + 1);
  content.u16(2).u16(part.top()).u16(part.bottom() + 1).u16(part.left()).u16(part.right() + 1).u16(2);
  return record(0x06FF, content);
}

QByteArray WmfWriter::file(bool isPlaceable) const {
  ByteWriter file;
  if (isPlaceable) {
    ByteWriter placeable;
    placeable.u32(0x9AC6CDD7).u16(0).u16(0).u16(0).u16(kWidth).u16(kHeight).u16(96).u32(0);
    std::uint16_t sum = 0;
    for (qsizetype at = 0; at < placeable.size(); at += 2) {
      sum = static_cast<std::uint16_t>(sum ^ qFromLittleEndian<std::uint16_t>(placeable.bytes().data() + at));
    }
    file.raw(placeable.bytes()).u16(sum);
  }
  constexpr int kHeaderWords = 9;
  constexpr int kEndWords = 3;
  file.u16(1).u16(kHeaderWords).u16(0x0300).u32(kHeaderWords + records_.size() / 2 + kEndWords);
  file.u16(16).u32(records_.size() / 2).u16(0);
  return file.raw(records_).u32(kEndWords).u16(0).bytes();
}

}  // namespace quorvin::test
