// SPDX-License-Identifier: GPL-2.0-or-later
#include "index/listed_name.h"

#include "platform/text_encoding.h"
#include "search/format/listing_line.h"

#include <algorithm>
#include <array>
#include <initializer_list>

namespace quorvin {
namespace {

using namespace std::string_view_literals;

constexpr NameTraits kBeyondAscii = 4;

constexpr std::array<NameTraits, 256> traitsOfBytes() {
  std::array<NameTraits, 256> traits{};
  for (std::size_t byte = 0x80; byte < traits.size(); ++byte) traits[byte] = kBeyondAscii;
  for (const char sign : {'?', '\\', '\r', '\n', '\0'}) {
    traits[static_cast<unsigned char>(sign)] = kHoldsQuestion;
  }
  for (const char sign : {':', '>', '-'}) traits[static_cast<unsigned char>(sign)] = kMayHoldMark;
  return traits;
}

constexpr std::array<NameTraits, 256> kTraitsOfBytes = traitsOfBytes();

bool isText(std::string_view bytes) {
  return isUtf8AsItStands({bytes.data(), static_cast<qsizetype>(bytes.size())});
}

bool continuesCharacter(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

// The bytes of the character at the front; 0 where there is none.
std::size_t lengthOfFirstCharacter(std::string_view bytes) {
  std::size_t length = 1;
  while (length < bytes.size() && length < 4 && continuesCharacter(bytes[length])) ++length;
  return isText(bytes.substr(0, length)) ? length : 0;
}

std::string replaced(std::string_view bytes, std::string_view unwanted) {
  std::string text;
  while (!bytes.empty()) {
    const std::size_t length = lengthOfFirstCharacter(bytes);
    const bool keeps = length > 0 && unwanted.find(bytes.front()) == std::string_view::npos;
    if (keeps) {
      text += bytes.substr(0, length);
    } else {
      text += '?';
    }
    bytes.remove_prefix(std::max<std::size_t>(length, 1));
  }
  return text;
}

std::string_view firstIn(std::string_view text, std::initializer_list<std::string_view> marks) {
  for (const std::string_view mark : marks) {
    if (text.find(mark) != std::string_view::npos) return mark;
  }
  return {};
}

}  // namespace

NameTraits traitsOfName(std::string_view name) {
  NameTraits traits = 0;
  for (const char byte : name) traits |= kTraitsOfBytes[static_cast<unsigned char>(byte)];
  if ((traits & kBeyondAscii) == 0) return traits;
  traits &= static_cast<NameTraits>(~kBeyondAscii);
  return isText(name) ? traits : traits | kHoldsQuestion;
}

std::string listedText(std::string_view name) {
  return replaced(name, "\\\r\n\0"sv);
}

std::string lineText(std::string_view text) {
  return replaced(text, "\r\n\0"sv);
}

std::string_view cutToColumns(std::string_view listed, std::size_t columns) {
  // A text has no more characters than bytes.
  if (listed.size() <= columns) return listed;
  std::size_t place = 0;
  std::size_t count = 0;
  while (place < listed.size()) {
    if (!continuesCharacter(listed[place]) && ++count > columns) break;
    ++place;
  }
  return listed.substr(0, place);
}

std::size_t characterCount(std::string_view text) {
  return static_cast<std::size_t>(
      std::count_if(text.begin(), text.end(), [](char byte) { return !continuesCharacter(byte); }));
}

std::string_view markInEntry(std::string_view cutName) {
  return firstIn(cutName, {kVolumeMark, kDirectoryMark, kSubFolderMark, kSeparatorMark});
}

std::string_view markInFolder(std::string_view name) {
  return firstIn(name, {kVolumeMark, kDirectoryMark});
}

}  // namespace quorvin
