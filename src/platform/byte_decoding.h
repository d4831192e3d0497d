// SPDX-License-Identifier: GPL-2.0-or-later

// Text in the encodings of other systems, as the system's own converter reads them.
#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace quorvin {

/// Turns bytes of one encoding into UTF-8, piece by piece. For one thread at a time.
class ByteDecoder {
 public:
  /// Of an encoding by its usual name, such as "cp437". Throws RuntimeFault (5) where the system does not
  /// know it, and as faultOfSystemError maps the error where it cannot be had now.
  explicit ByteDecoder(const std::string& encoding);
  ~ByteDecoder();

  /// Appends what `bytes` hold to `text`. A character that is not complete waits for the next piece. A byte
  /// that is none of a character stays as it is, so that the text is no UTF-8 at that place.
  void append(std::string& text, std::string_view bytes);
  /// There are no more bytes: appends those of a character that is not complete as they are.
  void finish(std::string& text);

 private:
  struct Converter;

  std::unique_ptr<Converter> converter_;
  /// The start of a character.
  std::string waiting_;
};

}  // namespace quorvin
