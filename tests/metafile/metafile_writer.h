// SPDX-License-Identifier: GPL-2.0-or-later

// Building metafiles record by record.
#pragma once

#include "metafile/byte_writer.h"

#include <QByteArray>
#include <QColor>
#include <QPoint>
#include <QRect>
#include <QString>

#include <cstdint>

namespace quorvin::test {

/// A colour as metafiles hold it.
std::uint32_t metafileColour(QRgb colour);

/// An enhanced metafile of 400 by 200 units, which are 100 by 50 millimetres.
class EmfWriter {
 public:
  EmfWriter& record(std::uint32_t type, const QByteArray& content = {});
  EmfWriter& record(std::uint32_t type, const ByteWriter& content) { return record(type, content.bytes()); }

  EmfWriter& pen(int number, int style, int width, QRgb colour);
  EmfWriter& brush(int number, int style, QRgb colour, int hatch = 0);
  EmfWriter& font(int number, int height, const QString& family, int escapement = 0);
  EmfWriter& select(std::uint32_t number) { return record(37, ByteWriter().u32(number)); }
  EmfWriter& box(std::uint32_t type, int left, int top, int right, int bottom);
  EmfWriter& rectangle(int left, int top, int right, int bottom) { return box(43, left, top, right, bottom); }
  EmfWriter& ellipse(int left, int top, int right, int bottom) { return box(42, left, top, right, bottom); }
  EmfWriter& place(std::uint32_t type, int x, int y) { return record(type, ByteWriter().u32(x).u32(y)); }
  EmfWriter& moveTo(int x, int y) { return place(27, x, y); }
  EmfWriter& lineTo(int x, int y) { return place(54, x, y); }
  EmfWriter& points16(std::uint32_t type, const QList<QPoint>& points);
  /// `step` from each letter to the next, 0 as the font has it; `options` and `box` as the record has them.
  EmfWriter& text(int x, int y, const QString& letters, int step = 0, int options = 0,
                  const QRect& box = QRect());
  /// `bitmap` is a header with palette, and the pixels; drawn into `target` whole.
  EmfWriter& stretchDib(const QRect& target, const QSize& size, const QByteArray& header,
                        const QByteArray& bits, std::uint32_t operation = 0x00CC0020);
  EmfWriter& clipRegion(const QList<QRect>& parts, int mode);
  EmfWriter& paintRegion(const QList<QRect>& parts);

  /// The whole file.
  QByteArray file() const;

 private:
  QByteArray records_;
  int count_ = 1;
};

/// A Windows metafile of 400 by 200 units, 96 to the inch, with a placeable header.
class WmfWriter {
 public:
  WmfWriter();

  WmfWriter& record(std::uint16_t function, const QByteArray& parameters = {});
  WmfWriter& record(std::uint16_t function, const ByteWriter& parameters) {
    return record(function, parameters.bytes());
  }

  WmfWriter& pen(int style, int width, QRgb colour);
  WmfWriter& brush(int style, QRgb colour, int hatch = 0);
  WmfWriter& font(int height, const QByteArray& family, int escapement = 0);
  WmfWriter& select(int number) { return record(0x012D, ByteWriter().u16(number)); }
  WmfWriter& box(std::uint16_t function, int left, int top, int right, int bottom);
  WmfWriter& rectangle(int left, int top, int right, int bottom) {
    return box(0x041B, left, top, right, bottom);
  }
  WmfWriter& ellipse(int left, int top, int right, int bottom) {
    return box(0x0418, left, top, right, bottom);
  }
  WmfWriter& place(std::uint16_t function, int x, int y) {
    return record(function, ByteWriter().u16(y).u16(x));
  }
  WmfWriter& moveTo(int x, int y) { return place(0x0214, x, y); }
  WmfWriter& lineTo(int x, int y) { return place(0x0213, x, y); }
  WmfWriter& polygon(const QList<QPoint>& points);
  WmfWriter& text(int x, int y, const QByteArray& letters);
  WmfWriter& stretchDib(const QRect& target, const QSize& size, const QByteArray& dib,
                        std::uint32_t operation = 0x00CC0020);
  WmfWriter& region(const QRect& part);

  QByteArray file(bool isPlaceable = true) const;

 private:
  QByteArray records_;
};

}  // namespace quorvin::test
