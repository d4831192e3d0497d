// Reading numbers out of a metafile, whose bytes nobody has checked.
#pragma once

#include <QByteArrayView>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QtEndian>

#include <bit>
#include <cstdint>
#include <stdexcept>

namespace quorvin {

/// Thrown for a metafile, or a record of it, that does not hold what it says it holds. what() is English and
/// continues the words "because".
class MetafileFault : public std::runtime_error {
 public:
  explicit MetafileFault(const char* why) : std::runtime_error(why) {}
};

/// A stretch of a metafile. Numbers are little-endian and stand at any offset, counted from the start of the
/// stretch. Every function throws MetafileFault when the stretch ends before what was asked for.
class MetafileBytes {
 public:
  explicit MetafileBytes(QByteArrayView bytes) : bytes_(bytes) {}

  qsizetype size() const { return bytes_.size(); }
  QByteArrayView all() const { return bytes_; }

  /// `offset` and `length` come from the file as they are: negative ones and ends beyond the stretch throw.
  MetafileBytes slice(std::int64_t offset, std::int64_t length) const {
    if (offset < 0 || length < 0 || offset > bytes_.size() || length > bytes_.size() - offset) {
      throw MetafileFault("it is damaged or cut short");
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
