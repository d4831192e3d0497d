// SPDX-License-Identifier: GPL-2.0-or-later

// The bytes of an input, taken as choices.
#pragma once

#include <QByteArray>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>

namespace quorvin::fuzz {

/// Whatever is made from an input asks for one choice after another, so that every input makes something, and
/// a small change of the input a small change of what is made. When the bytes are used up every choice is the
/// first one. The bytes must outlive the object.
class Choices {
 public:
  Choices(const std::uint8_t* bytes, std::size_t count) : next_(bytes), end_(bytes + count) {}

  bool atEnd() const { return next_ == end_; }

  std::uint8_t byte() { return atEnd() ? std::uint8_t{0} : *next_++; }
  std::uint32_t number() {
    std::uint32_t number = 0;
    for (int shift = 0; shift < 32; shift += 8) number |= std::uint32_t{byte()} << shift;
    return number;
  }

  /// From 0 to `count` - 1; `count` is 1 to 256.
  int below(int count) { return byte() % count; }
  /// Yes for one of so many bytes; no when there are none left.
  bool oneIn(int count) { return below(count) == count - 1; }

  template <typename Row>
  auto of(const Row& row) {
    return *(std::begin(row) + below(static_cast<int>(std::size(row))));
  }

  /// The next `count` bytes, fewer where they end.
  QByteArray bytes(int count) {
    const auto taken = std::min<std::ptrdiff_t>(count, end_ - next_);
    const QByteArray bytes(reinterpret_cast<const char*>(next_), static_cast<qsizetype>(taken));
    next_ += taken;
    return bytes;
  }

 private:
  const std::uint8_t* next_;
  const std::uint8_t* end_;
};

}  // namespace quorvin::fuzz
