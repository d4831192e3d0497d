// SPDX-License-Identifier: GPL-2.0-or-later
#include "support/plain_scan.h"

#include "dates/general_number.h"

#include <algorithm>
#include <cmath>
#include <sstream>

namespace quorvin::test {

namespace {

/// Puts the next character of valid UTF-8 into `character` and gives its length; 0 where `bytes` is not
/// valid.
std::size_t decodeOne(std::string_view bytes, char32_t& character) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
  const unsigned lead = byte(0);
  const std::size_t length = lead < 0x80   ? 1
                             : lead < 0xC2 ? 0
                             : lead < 0xE0 ? 2
                             : lead < 0xF0 ? 3
                             : lead < 0xF5 ? 4
                                           : 0;
  if (length == 0 || length > bytes.size()) return 0;
  character = length == 1 ? lead : lead & (0xFFU >> (length + 1));
  for (std::size_t i = 1; i < length; ++i) {
    if ((byte(i) & 0xC0U) != 0x80) return 0;
    character = character << 6 | (byte(i) & 0x3FU);
  }
  const bool tooLong = (length == 3 && character < 0x800) || (length == 4 && character < 0x10000);
  const bool none = (character >= 0xD800 && character < 0xE000) || character > 0x10FFFF;
  return tooLong || none ? 0 : length;
}

constexpr std::u32string_view kWindows1252From80 =
    U"\u20AC\x81\u201A\u0192\u201E\u2026\u2020\u2021\u02C6\u2030\u0160\u2039\u0152\x8D\u017D\x8F"
    U"\x90\u2018\u2019\u201C\u201D\u2022\u2013\u2014\u02DC\u2122\u0161\u203A\u0153\x9D\u017E\u0178";

char32_t windows1252(unsigned char byte) {
  return byte >= 0x80 && byte < 0xA0 ? kWindows1252From80[byte - 0x80U] : byte;
}

std::u32string decoded(std::string_view line) {
  std::u32string text;
  text.reserve(line.size());
  for (std::size_t i = 0; i < line.size();) {
    char32_t character = 0;
    const std::size_t length = decodeOne(line.substr(i), character);
    if (length == 0) {
      text.clear();
      for (const char c : line) text += windows1252(static_cast<unsigned char>(c));
      return text;
    }
    text += character;
    i += length;
  }
  return text;
}

void encode(std::u32string_view text, std::string& utf8) {
  utf8.clear();
  for (const char32_t c : text) {
    if (c < 0x80) {
      utf8 += static_cast<char>(c);
      continue;
    }
    const int more = c < 0x800 ? 1 : c < 0x10000 ? 2 : 3;
    utf8 += static_cast<char>((0xFF00U >> (more + 1) & 0xFFU) | c >> (6 * more));
    for (int i = more - 1; i >= 0; --i) utf8 += static_cast<char>(0x80U | (c >> (6 * i) & 0x3FU));
  }
}

char32_t lowerCase(char32_t c) {
  if (c < 0x80) return c >= U'A' && c <= U'Z' ? c + 32 : c;
  if (c >= U'\u00C0' && c <= U'\u00DE' && c != U'\u00D7') return c + 32;
  switch (c) {
    case U'\u0130':
      return U'i';
    case U'\u023A':
      return U'\u2C65';
    case U'\u212A':
      return U'k';
    case U'\U00010400':
      return U'\U00010428';
    default:
      return c;
  }
}

std::u32string_view trimmed(std::u32string_view text) {
  while (text.starts_with(U' ')) text.remove_prefix(1);
  while (text.ends_with(U' ')) text.remove_suffix(1);
  return text;
}

bool holds(std::u32string_view text, std::u32string_view part) {
  return text.find(part) != text.npos;
}

std::u32string without(std::u32string text, std::u32string_view mark) {
  for (std::size_t at = 0; (at = text.find(mark, at)) != text.npos;) text.erase(at, mark.size());
  return std::u32string(trimmed(text));
}

QString qtText(std::u32string_view characters) {
  // Character by character: QString::fromUcs4 would drop a byte order mark at the front.
  QString text;
  for (const char32_t c : characters) text += QChar::fromUcs4(c);
  return text;
}

/// The folder and the entry in force, in the forms that they are searched and shown in.
struct Folder {
  std::u32string volume;
  std::u32string folder;
};

int percentage(int found, std::size_t words) {
  return static_cast<int>(std::nearbyint(static_cast<double>(found) / static_cast<double>(words) * 100));
}

int scoreOf(const std::u32string& folder, std::u32string_view entry,
            const std::vector<std::u32string>& words) {
  std::u32string searchable = folder;
  searchable += U' ';
  searchable += entry;
  for (char32_t& c : searchable) c = lowerCase(c);
  int found = 0;
  for (const std::u32string& word : words) found += holds(searchable, word) ? 1 : 0;
  return percentage(found, words.size());
}

}  // namespace

PlainResult plainForm(const ReferenceResult& result) {
  PlainResult plain{{}, result.searched, result.unreadable, result.firstUnreadableLine};
  for (const ReferenceHit& hit : result.hits) {
    plain.hits.push_back({hit.match, hit.volume.toStdString(), hit.folder.toStdString(),
                          hit.name.toStdString(), hit.size, hit.date});
  }
  return plain;
}

std::string differenceOf(const PlainResult& result, const PlainResult& expected) {
  std::ostringstream difference;
  const auto tell = [&](const char* what, const auto& value, const auto& right) {
    if (difference.view().empty() && value != right)
      difference << what << ' ' << value << " and not " << right;
  };
  tell("searched", result.searched, expected.searched);
  for (std::size_t i = 0; i < std::min(result.hits.size(), expected.hits.size()); ++i) {
    const PlainHit& hit = result.hits[i];
    const PlainHit& right = expected.hits[i];
    const std::string place = "hit " + std::to_string(i) + ' ';
    tell((place + "name").c_str(), hit.name, right.name);
    tell((place + "match").c_str(), hit.match, right.match);
    tell((place + "folder").c_str(), hit.folder, right.folder);
    tell((place + "volume").c_str(), hit.volume, right.volume);
    tell((place + "size").c_str(), hit.size, right.size);
    tell((place + "date").c_str(), hit.date, right.date);
  }
  tell("hits", result.hits.size(), expected.hits.size());
  tell("unreadable", result.unreadable, expected.unreadable);
  tell("first unreadable line", result.firstUnreadableLine, expected.firstUnreadableLine);
  return difference.str();
}

std::vector<std::u32string> plainWords(std::u32string_view searchText) {
  std::vector<std::u32string> words;
  std::size_t start = 0;
  while (true) {
    const std::size_t blank = searchText.find(U' ', start + 1);
    words.emplace_back(trimmed(searchText.substr(start, blank == searchText.npos ? blank : blank - start)));
    if (blank == searchText.npos) return words;
    start = blank;
  }
}

const std::optional<PlainScan::Values>& PlainScan::valuesOf(std::u32string_view tail) {
  const auto [known, isNew] = knownTails_.try_emplace(std::u32string(tail));
  if (!isNew) return known->second;
  const auto size = readByteCount(qtText(tail.substr(0, 13)));
  const auto date = dates_.read(qtText(tail.substr(20)));
  if (size && date) known->second = Values{*size, *date};
  return known->second;
}

PlainResult PlainScan::scan(std::string_view listing, const std::vector<std::u32string>& words,
                            int desiredMatch) {
  PlainResult result;
  Folder place;
  std::u32string tail;
  Values shown{0, 0};
  std::int64_t lineNumber = 0;
  if (listing.starts_with("\xEF\xBB\xBF")) listing.remove_prefix(3);
  while (!listing.empty()) {
    const std::size_t end = listing.find('\n');
    std::string_view bytes = listing.substr(0, end);
    listing.remove_prefix(end == listing.npos ? listing.size() : end + 1);
    if (bytes.ends_with('\r')) bytes.remove_suffix(1);
    ++lineNumber;
    const std::u32string line = decoded(bytes);
    if (line.empty()) continue;
    if (holds(line, U"Volume:")) {
      place.volume = without(line, U"Volume:");
      continue;
    }
    if (holds(line, U"Directory:")) {
      place.folder = without(line, U"Directory:");
      continue;
    }
    if (holds(line, U"<DIR>") || holds(line, U"---------------")) continue;

    std::u32string_view entry = line;
    if (line.size() > 69) {
      tail = line.substr(68);
      entry = entry.substr(0, 69);
      while (entry.ends_with(U' ')) entry.remove_suffix(1);
    }
    ++result.searched;
    const int match = scoreOf(place.folder, entry, words);
    if (match <= desiredMatch) continue;
    if (tail.size() > 32) {
      if (const auto& values = valuesOf(tail)) {
        shown = *values;
      } else if (++result.unreadable == 1) {
        result.firstUnreadableLine = lineNumber;
      }
    }
    PlainHit& hit = result.hits.emplace_back();
    hit.match = match;
    encode(place.volume, hit.volume);
    encode(place.folder, hit.folder);
    encode(entry, hit.name);
    hit.size = shown.size;
    hit.date = shown.date;
  }
  return result;
}

}  // namespace quorvin::test
