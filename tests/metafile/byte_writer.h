// SPDX-License-Identifier: GPL-2.0-or-later

// Building files number by number.
#pragma once

#include <QByteArray>
#include <QtEndian>

#include <cstdint>

namespace quorvin::test {

/// Little-endian numbers, one after another.
class ByteWriter {
 public:
  ByteWriter& u8(std::int64_t value) { return number(static_cast<std::uint8_t>(value)); }
  ByteWriter& u16(std::int64_t value) { return number(static_cast<std::uint16_t>(value)); }
  ByteWriter& u32(std::int64_t value) { return number(static_cast<std::uint32_t>(value)); }
  ByteWriter& f32(float value) { return number(value); }
  ByteWriter& raw(const QByteArray& more) {
    bytes_ += more;
    return *this;
  }
  ByteWriter& zeros(qsizetype count) { return raw(QByteArray(count, '\0')); }

  const QByteArray& bytes() const { return bytes_; }
  qsizetype size() const { return bytes_.size(); }

 private:
  template <typename Number>
  ByteWriter& number(Number value) {
    const Number little = qToLittleEndian(value);
    bytes_.append(reinterpret_cast<const char*>(&little), sizeof little);
    return *this;
  }

  QByteArray bytes_;
};

}  // namespace quorvin::test
