// SPDX-License-Identifier: GPL-2.0-or-later
#include "support/small_listings.h"

#include <algorithm>
#include <array>

namespace quorvin::test {

namespace {

using namespace std::string_view_literals;

// The first thirteen are ASCII. What follows: characters whose lower case has as many bytes, fewer or more; a
// byte order mark; bytes that are no UTF-8.
constexpr std::size_t kAsciiPieces = 13;
constexpr std::array kPieces = {"a"sv,
                                "b"sv,
                                "ab"sv,
                                "A"sv,
                                "B"sv,
                                "."sv,
                                " "sv,
                                "aB"sv,
                                "mp3"sv,
                                "-"sv,
                                "\\"sv,
                                "aaaa"sv,
                                "   "sv,
                                "\xC3\x84"sv,
                                "\xC3\xA4"sv,
                                "\xE2\x82\xAC"sv,
                                "\xE2\x84\xAA"sv,
                                "\xC8\xBA"sv,
                                "\xC4\xB0"sv,
                                "\xF0\x90\x90\x80"sv,
                                "\xEF\xBB\xBF"sv,
                                "\xE9"sv,
                                "\x80"sv,
                                "\xC3"sv};

constexpr std::array kMarks = {"Volume:"sv, "Directory:"sv,           "<DIR>"sv,  "---------------"sv,
                               "volume:"sv, "--------------"sv,       "Volume"sv, "e:"sv,
                               "<"sv,       "---------------------"sv};

constexpr std::array kSizes = {"0"sv, "1,024"sv, "1.234.567"sv,   "2,147,483,647"sv, "-1"sv, "n/a"sv,
                               ""sv,  "1,,2"sv,  "10000000000"sv, "4294967295"sv,    "7"sv};

constexpr std::array kDates = {
    "15 Jan 2004 10:20:30"sv, "2004-11-15 10:20:30"sv, "1 May 1999 00:00:00"sv, "1 May 99"sv,
    "no date at all"sv,       "30 Dec 1899"sv,         "1 Jan 2100 01:02:03"sv};

constexpr std::array kWords = {"a"sv,
                               "b"sv,
                               "ab"sv,
                               "ba"sv,
                               "aa"sv,
                               "mp3"sv,
                               "."sv,
                               "-"sv,
                               "\\"sv,
                               "aab"sv,
                               "q"sv,
                               ""sv,
                               "abab"sv,
                               "k"sv,
                               "\xC3\xA4"sv,
                               "\xE2\x82\xAC"sv,
                               "i"sv,
                               "\xE2\xB1\xA5"sv,
                               "3"sv,
                               "p3"sv,
                               "\xF0\x90\x90\xA8"sv,
                               "\xEF\xBB\xBF"sv,
                               "1,024"sv,
                               "aaaaaaaa"sv,
                               "."sv,
                               "a.a"sv,
                               "\xC3\xA9"sv,
                               "\xC3\xA3"sv};

template <typename Array>
std::string_view pick(QuickRandom& random, const Array& all) {
  return all[random.below(static_cast<unsigned>(all.size()))];
}

}  // namespace

std::uint64_t QuickRandom::next() {
  state_ += 0x9E3779B97F4A7C15U;
  std::uint64_t mixed = (state_ ^ state_ >> 30) * 0xBF58476D1CE4E5B9U;
  mixed = (mixed ^ mixed >> 27) * 0x94D049BB133111EBU;
  return mixed ^ mixed >> 31;
}

void SmallListings::addPieces(unsigned count) {
  for (; count > 0; --count) {
    text_ += kPieces[below(static_cast<unsigned>(ascii_ ? kAsciiPieces : kPieces.size()))];
  }
}

/// Some pieces, as many filling letters as `width` bytes take, and some pieces more.
void SmallListings::addPadded(std::size_t width) {
  const std::size_t start = text_.size();
  addPieces(below(4));
  const std::size_t used = text_.size() - start;
  if (used < width) text_.append(width - used, "xab "[below(4)]);
  addPieces(below(4));
}

void SmallListings::addWrittenEntry() {
  const std::size_t start = text_.size();
  addPieces(below(7));
  if (below(12) == 0) text_ += pick(random_, kMarks);
  text_.resize(std::max(start + 65, text_.size()), ' ');
  const std::string_view size = pick(random_, kSizes);
  text_.append(16 - size.size(), ' ').append(size).append(" bytes ").append(pick(random_, kDates));
  // A tail is read only where the line is longer than 100 columns.
  if (below(4) == 0) text_.resize(std::min(text_.size(), start + 60 + below(50)));
}

void SmallListings::addLine() {
  switch (below(16)) {
    case 0:
      break;
    case 1:
      text_ += "Volume:    ";
      addPieces(below(4));
      break;
    case 2:
    case 3:
      text_ += "Directory: \\";
      addPieces(below(6));
      break;
    case 4:
      addPieces(below(3));
      text_ += pick(random_, kMarks);
      addPieces(below(3));
      break;
    case 5:
      text_.append(13 + below(5), '-');
      break;
    case 6:
    case 7:
      addPadded(58 + below(12));
      break;
    case 8:
    case 9:
    case 10:
      addWrittenEntry();
      break;
    default:
      addPieces(below(9));
  }
}

void SmallListings::addLineEnd() {
  text_ += below(5) == 0 ? "\n" : "\r\n";
}

std::string_view SmallListings::next() {
  text_.clear();
  ascii_ = below(8) != 0;
  const unsigned lines = 1 + below(3);
  for (unsigned line = 1; line <= lines; ++line) {
    addLine();
    if (line < lines || below(3) > 0) addLineEnd();
  }
  if (below(64) == 0) text_ += '\r';
  return text_;
}

std::string_view SmallListings::nextLong() {
  text_.clear();
  ascii_ = below(8) != 0;
  const unsigned lines = 900 + below(2600);
  const unsigned rare = 1 + below(200);
  for (unsigned line = 1; line <= lines; ++line) {
    if (below(rare) == 0) {
      addLine();
    } else {
      addPieces(1 + below(3));
    }
    if (line < lines || below(3) > 0) addLineEnd();
  }
  return text_;
}

std::string SmallListings::searchText() {
  std::string text;
  const unsigned words = below(40) == 0 ? 20 + below(60) : 1 + below(5);
  for (unsigned word = 0; word < words; ++word) {
    if (word > 0) text += ' ';
    text += pick(random_, kWords);
    // Longer than the part of a word by which it is looked for.
    if (below(100) == 0) text.append(60 + below(10), 'a');
  }
  return text;
}

}  // namespace quorvin::test
