// SPDX-License-Identifier: GPL-2.0-or-later

// Reading numbers out of a metafile, whose bytes nobody has checked before.
#pragma once

#include "metafile/boundary.h"

#include <QByteArrayView>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QtEndian>

#include <bit>
#include <cstdint>

namespace quorvin {

/// Thrown for a record of a kind that is not drawn. what() continues the words "Drawn without:".
class MetafileOmission : public MetafileFault {
 public:
  using MetafileFault::MetafileFault;
};

/// Part of a metafile: the whole file, a record, or a piece of one. Does not own its bytes. Numbers are
/// little-endian; offsets are counted from the start of the part and need not be aligned. Every function
/// throws MetafileFault where the part ends before what was asked for.
class MetafileBytes {
 public:
  explicit MetafileBytes(QByteArrayView bytes) : bytes_(bytes) {}

  qsizetype size() const { return bytes_.size(); }
  QByteArrayView all() const { return bytes_; }

  /// `offset` and `length` may come straight from the file: negative ones, and ends outside of the part,
  /// throw.
  MetafileBytes slice(std::int64_t offset, std::int64_t length) const {
    if (offset < 0 || length < 0 || offset > bytes_.size() || length > bytes_.size() - offset) {
      throw MetafileFault(QT_TRANSLATE_NOOP("Texts", "it is damaged or cut short"));
    }
    return MetafileBytes(bytes_.sliced(offset, length));
  }
  MetafileBytes from(std::int64_t offset) const { return slice(offset, bytes_.size() - offset); }

  std::uint8_t u8(std::int64_t offset) const { return number<std::uint8_t>(offset); }
  std::uint16_t u16(std::int64_t offset) const { return number<std::uint16_t>(offset); }
  std::int16_t i16(std::int64_t offset) const { return number<std::int16_t>(offset); }
  std::uint32_t u32(std::int64_t offset) const { return number<std::uint32_t>(offset); }
  std::int32_t i32(std::int64_t offset) const { return number<std::int32_t>(offset); }
  float f32(std::int64_t offset) const { return std::bit_cast<float>(u32(offset)); }

  /// A point of two 32-bit or two 16-bit numbers, x first.
  QPointF point32(std::int64_t offset) const { return {double(i32(offset)), double(i32(offset + 4))}; }
  QPointF point16(std::int64_t offset) const { return {double(i16(offset)), double(i16(offset + 2))}; }

  /// A width and a height of two 32-bit numbers.
  QSizeF size32(std::int64_t offset) const { return {double(i32(offset)), double(i32(offset + 4))}; }

  /// A rectangle of four 32-bit numbers: left, top, right, bottom.
  QRectF rect32(std::int64_t offset) const { return {point32(offset), point32(offset + 8)}; }

 private:
  template <typename Number>
  Number number(std::int64_t offset) const {
    return qFromLittleEndian<Number>(slice(offset, sizeof(Number)).bytes_.data());
  }

  QByteArrayView bytes_;
};

}  // namespace quorvin
