// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/import/list_text.h"

#include <algorithm>
#include <charconv>

namespace quorvin {

namespace {

constexpr std::size_t kMostDigits = 18;

}  // namespace

std::size_t takeBlanks(std::string_view& text) {
  const std::size_t count = std::min(text.find_first_not_of(" \t"), text.size());
  text.remove_prefix(count);
  return count;
}

std::optional<std::string_view> takeWord(std::string_view& text) {
  const std::string_view word = text.substr(0, text.find_first_of(" \t"));
  if (word.empty()) return std::nullopt;
  text.remove_prefix(word.size());
  return word;
}

bool takeText(std::string_view& text, std::string_view wanted) {
  if (!text.starts_with(wanted)) return false;
  text.remove_prefix(wanted.size());
  return true;
}

std::optional<std::int64_t> takeNumber(std::string_view& text) {
  std::size_t length = 0;
  while (length < text.size() && isAsciiDigit(text[length])) ++length;
  if (length == 0 || length > kMostDigits) return std::nullopt;
  std::int64_t value = 0;
  std::from_chars(text.data(), text.data() + length, value);
  text.remove_prefix(length);
  return value;
}

bool isAllDigits(std::string_view text) {
  return !text.empty() && std::ranges::all_of(text, isAsciiDigit);
}

std::optional<std::int64_t> exactSize(std::string_view word) {
  std::string digits;
  std::size_t sinceComma = 0;
  bool hasComma = false;
  for (const char byte : word) {
    if (byte == ',') {
      const bool isFirst = !hasComma;
      if (sinceComma == 0 || sinceComma > 3 || (!isFirst && sinceComma != 3)) return std::nullopt;
      hasComma = true;
      sinceComma = 0;
    } else if (isAsciiDigit(byte)) {
      digits += byte;
      ++sinceComma;
    } else {
      return std::nullopt;
    }
  }
  if (hasComma && sinceComma != 3) return std::nullopt;
  std::string_view rest = digits;
  return takeNumber(rest);
}

bool looksLikeSize(std::string_view word) {
  if (word.empty() || !isAsciiDigit(word.front())) return false;
  const std::size_t end = word.find_first_not_of("0123456789.,");
  if (end == std::string_view::npos) return true;
  const std::string_view unit = word.substr(end);
  return unit.size() <= 3 && std::string_view("KMGTPEZYkB").find(unit.front()) != std::string_view::npos;
}

std::optional<std::string> withoutEscapes(std::string_view text) {
  static constexpr std::string_view kLetters = "abfnrtv\\\"' :";
  static constexpr std::string_view kMeanings = "\a\b\f\n\r\t\v\\\"' :";
  std::string plain;
  plain.reserve(text.size());
  while (!text.empty()) {
    const std::size_t length = std::min(text.find('\\'), text.size());
    plain += text.substr(0, length);
    text.remove_prefix(length);
    if (text.empty()) break;
    text.remove_prefix(1);
    if (text.empty()) return std::nullopt;
    if (const std::size_t letter = kLetters.find(text.front()); letter != std::string_view::npos) {
      plain += kMeanings[letter];
      text.remove_prefix(1);
      continue;
    }
    int value = 0;
    std::size_t digits = 0;
    while (digits < 3 && digits < text.size() && text[digits] >= '0' && text[digits] <= '7') {
      value = value * 8 + (text[digits++] - '0');
    }
    if (digits == 0 || value > 0xFF) return std::nullopt;
    plain += static_cast<char>(value);
    text.remove_prefix(digits);
  }
  return plain;
}

std::optional<std::string> takeQuoted(std::string_view& text) {
  if (!text.starts_with('"')) return std::nullopt;
  for (std::size_t end = 1; end < text.size(); ++end) {
    if (text[end] == '\\') {
      ++end;
    } else if (text[end] == '"') {
      const std::optional<std::string> plain = withoutEscapes(text.substr(1, end - 1));
      if (plain) text.remove_prefix(end + 1);
      return plain;
    }
  }
  return std::nullopt;
}

}  // namespace quorvin
