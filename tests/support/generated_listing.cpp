// SPDX-License-Identifier: GPL-2.0-or-later
#include "support/generated_listing.h"

#include "support/listing_lines.h"

#include <array>

namespace quorvin::test {

namespace {

// Few letters, so that search words meet; the last ones are characters of several bytes and invalid bytes.
constexpr std::array<const char*, 23> kPieces = {"a",
                                                 "b",
                                                 "ab",
                                                 "A",
                                                 "B",
                                                 ".",
                                                 " ",
                                                 "  ",
                                                 "aB",
                                                 "mp3",
                                                 "x",
                                                 "-",
                                                 "\\",
                                                 "?",
                                                 "\xC3\x84",
                                                 "\xC3\xA4",
                                                 "\xE2\x82\xAC",
                                                 "\xF0\x90\x90\x80",
                                                 "\xE2\x84\xAA",
                                                 "\xEF\xBB\xBF",
                                                 "\xE9",
                                                 "\x80",
                                                 "\xC3"};

constexpr std::array<const char*, 8> kMarks = {"Volume:", "Directory:", "<DIR>",          "---------------",
                                               "volume:", "directory:", "--------------", "Volume"};

constexpr std::array<int, 12> kTurningColumns = {0, 1, 64, 65, 66, 68, 69, 70, 71, 99, 100, 101};

constexpr std::array<const char*, 9> kSizes = {"0",   "1,024", "1.234.567", "2,147,483,647", "-1",
                                               "n/a", "",      "12x",       "10000000000"};

constexpr std::array<const char*, 9> kDates = {
    "15 Jan 2004 10:20:30", "2004-11-15 10:20:30",  "1 May 1999 00:00:00",  "00:00:00",
    "no date at all",       "31 Feb 2004 10:20:30", "3/4/2004 10:20:30 PM", "15/3/2004 10:20:30 PM",
    "3/15/2004 10:20:30 PM"};

template <typename Array>
const auto& pick(ListingMaker& maker, const Array& all) {
  return all[static_cast<std::size_t>(maker.below(static_cast<int>(all.size())))];
}

}  // namespace

QByteArray ListingMaker::piece() {
  // Mostly ASCII, as listings are: invalid bytes change how the whole line is read.
  const int count = below(8) == 0 ? static_cast<int>(kPieces.size()) : 13;
  return kPieces[static_cast<std::size_t>(below(count))];
}

QByteArray ListingMaker::name(int columns) {
  QByteArray text;
  if (below(12) == 0) text = pick(*this, kMarks);
  while (text.size() < columns) text += piece();
  return text;
}

QByteArray ListingMaker::writtenEntry() {
  const QByteArray size = pick(*this, kSizes);
  const QByteArray date = pick(*this, kDates);
  QByteArray written = entryLine(name(below(75)), size, date).chopped(2);
  if (below(6) == 0) written += QByteArray(below(12), ' ');
  return written;
}

QByteArray ListingMaker::line() {
  switch (below(10)) {
    case 0:
      return {};
    case 1:
      return "Volume:    " + name(below(12));
    case 2:
      return "Directory: \\" + name(below(20)) + "\\";
    case 3:
      return "<DIR> " + name(below(10));
    case 4:
      return QByteArray(13 + below(6), '-');
    case 5:
    case 6:
      return name(below(3) == 0 ? below(121) : pick(*this, kTurningColumns));
    default:
      return writtenEntry();
  }
}

QByteArray ListingMaker::listing(int mostLines) {
  QByteArray text;
  const int lines = below(mostLines + 1);
  for (int i = 0; i < lines; ++i) {
    text += line();
    if (i + 1 < lines || below(3) > 0) text += below(5) == 0 ? "\n" : "\r\n";
  }
  return text;
}

QString ListingMaker::searchText() {
  static constexpr std::array<const char16_t*, 16> kWords = {
      u"a", u"b", u"ab", u"mp3",  u".", u"ba", u"\u00E4", u"\u20AC",
      u"k", u"x", u"",   u"abab", u"-", u"\\", u"q",      u"\U00010428"};
  QString text;
  const int words = 1 + below(5);
  for (int i = 0; i < words; ++i) {
    if (i > 0) text += u' ';
    text += QString::fromUtf16(pick(*this, kWords));
  }
  return text;
}

}  // namespace quorvin::test
