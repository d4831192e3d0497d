// SPDX-License-Identifier: GPL-2.0-or-later
#include "console/json_text.h"

#include "dates/eight_bytes.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace quorvin {

namespace {

/// The ASCII characters that are in a string as they are.
constexpr std::array<bool, 256> kIsPlain = [] {
  std::array<bool, 256> isPlain{};
  for (std::size_t byte = 0x20; byte < 0x7F; ++byte) isPlain[byte] = byte != '"' && byte != '\\';
  return isPlain;
}();

/// Not 0 where some of eight ASCII characters or other bytes cannot stay. A byte below another one makes the
/// subtraction borrow, which its uppermost bit shows; an unequal one is told from 0 in the same way.
constexpr std::uint64_t notPlainAmong(std::uint64_t bytes) {
  const auto below = [](std::uint64_t eight, char sign) { return (eight - eightTimes(sign)) & ~eight; };
  const auto equal = [below](std::uint64_t eight, char sign) {
    return below(eight ^ eightTimes(sign), '\x01');
  };
  return (bytes | below(bytes, ' ') | equal(bytes, '"') | equal(bytes, '\\') | equal(bytes, '\x7F')) &
         eightTimes('\x80');
}

/// Whether `text` is in a string as it is, as nearly all names are: for few bytes that is not asked.
bool isPlain(std::string_view text) {
  constexpr std::size_t kStep = sizeof(std::uint64_t);
  if (text.size() < kStep) return false;
  std::uint64_t notPlain = notPlainAmong(eightBytesAt(text.data() + text.size() - kStep));
  for (std::size_t at = 0; at + kStep <= text.size(); at += kStep) {
    notPlain |= notPlainAmong(eightBytesAt(text.data() + at));
  }
  return notPlain == 0;
}

void addEscaped(std::string& text, unsigned char number) {
  constexpr char kDigits[] = "0123456789abcdef";
  text += "\\u00";
  text += kDigits[number / 16];
  text += kDigits[number % 16];
}

/// What is in a string in place of `character`, a single one.
void addCharacter(std::string& text, std::string_view character) {
  const auto first = static_cast<unsigned char>(character.front());
  if (isHighControl(character)) {
    addEscaped(text, static_cast<unsigned char>(character[1]));
  } else if (first >= 0x80) {
    text += "\\ufffd";
  } else if (first < 0x20 || first == 0x7F) {
    addEscaped(text, first);
  } else {
    text += '\\';
    text += character;
  }
}

}  // namespace

std::size_t characterLength(std::string_view text) {
  const auto byteAt = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned char first = byteAt(0);
  const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
  if (first < 0xC2 || first > 0xF4 || text.size() < length) return 0;
  for (std::size_t i = 1; i < length; ++i) {
    if (byteAt(i) < 0x80 || byteAt(i) > 0xBF) return 0;
  }
  const unsigned char second = byteAt(1);
  const bool isTooLong = (first == 0xE0 && second < 0xA0) || (first == 0xF0 && second < 0x90);
  const bool isSurrogate = first == 0xED && second > 0x9F;
  const bool isBeyond = first == 0xF4 && second > 0x8F;
  return isTooLong || isSurrogate || isBeyond ? 0 : length;
}

bool isHighControl(std::string_view character) {
  return character.size() == 2 && character[0] == '\xC2' && static_cast<unsigned char>(character[1]) < 0xA0;
}

void addJsonString(std::string& text, std::string_view value) {
  text += '"';
  if (isPlain(value)) {
    text += value;
    text += '"';
    return;
  }
  // What can stay is appended a run at a time.
  std::size_t run = 0;
  for (std::size_t at = 0; at < value.size();) {
    const auto byte = static_cast<unsigned char>(value[at]);
    if (kIsPlain[byte]) {
      ++at;
      continue;
    }
    const std::size_t length = byte < 0x80 ? 0 : characterLength(value.substr(at));
    const std::string_view character = value.substr(at, std::max<std::size_t>(length, 1));
    at += character.size();
    if (length > 0 && !isHighControl(character)) continue;
    text += value.substr(run, at - character.size() - run);
    addCharacter(text, character);
    run = at;
  }
  text += value.substr(run);
  text += '"';
}

JsonLine& JsonLine::add(std::string_view key, const QString& value) {
  addKey(key);
  addJsonString(text_, value.toStdString());
  return *this;
}

JsonLine& JsonLine::add(std::string_view key, std::int64_t value) {
  addKey(key);
  text_ += std::to_string(value);
  return *this;
}

JsonLine& JsonLine::add(std::string_view key, bool value) {
  addKey(key);
  text_ += value ? "true" : "false";
  return *this;
}

void JsonLine::addKey(std::string_view key) {
  if (text_.size() > 1) text_ += ',';
  addJsonString(text_, key);
  text_ += ':';
}

}  // namespace quorvin
