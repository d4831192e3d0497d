// SPDX-License-Identifier: GPL-2.0-or-later
#include "index/entry_line.h"

#include "dates/general_number.h"
#include "index/listed_name.h"
#include "platform/text_encoding.h"
#include "search/format/listing_line.h"

#include <QDateTime>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <cstring>
#include <limits>

namespace quorvin {
namespace {

constexpr std::size_t kSizeColumns = 16;
constexpr std::size_t kGroup = 3;

// The sign of the locale, if it is one character that readers take.
std::string groupSignOf(const QLocale& locale) {
  const QString sign = locale.groupSeparator();
  const bool taken = sign.size() == 1 && readByteCount(u'1' + sign + QStringLiteral("000")) == 1000;
  return encodeSystemText(taken ? sign : QStringLiteral(",")).toStdString();
}

// The years whose texts are kept. Other dates are rare; they are written the long way.
constexpr int kFirstYear = 1970;
constexpr int kYears = 180;
// 1 January of the first year, in days since 30 December 1899, and the days of all those years.
constexpr int kDayOf1970 = 25569;
constexpr std::int64_t kDays = 65744;
// Beyond the dates that there can be, on both sides.
constexpr std::int64_t kFarAway = 1'000'000'000'000;

// The time zone's offset is looked up for blocks of 2^18 seconds, which are three days. No zone has ever
// changed its clocks and changed them back in less than six.
constexpr int kBlockBits = 18;

// In place of an offset: not looked up yet, and a block in which the clocks change.
constexpr std::int32_t kUnknown = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kChanging = kUnknown + 1;

std::int64_t wholeDays(std::int64_t seconds) {
  return seconds >= 0 ? seconds / kSecondsPerDay : -1 - (-1 - seconds) / kSecondsPerDay;
}

int systemOffset(std::int64_t seconds) {
  return QDateTime::fromSecsSinceEpoch(seconds).offsetFromUtc();
}

// How many values a field has and, for one of the time, how many seconds lie between them.
struct FieldRange {
  int values = 1;
  int seconds = 0;
};

FieldRange rangeOf(PatternField field) {
  switch (field) {
    case PatternField::Day:
      return {31, 0};
    case PatternField::Month:
    case PatternField::MonthNameShort:
    case PatternField::MonthNameLong:
      return {12, 0};
    case PatternField::Year:
    case PatternField::YearTwoDigits:
      return {kYears, 0};
    case PatternField::Hour24:
    case PatternField::Hour12:
    case PatternField::HalfDay:
      return {24, 3600};
    case PatternField::Minute:
      return {60, 60};
    case PatternField::Second:
      return {60, 1};
    case PatternField::Literal:
      break;
  }
  return {};
}

int valueOf(PatternField field, CalendarDate date, int second) {
  switch (field) {
    case PatternField::Day:
      return date.day - 1;
    case PatternField::Month:
    case PatternField::MonthNameShort:
    case PatternField::MonthNameLong:
      return date.month - 1;
    case PatternField::Year:
    case PatternField::YearTwoDigits:
      return date.year - kFirstYear;
    case PatternField::Hour24:
    case PatternField::Hour12:
    case PatternField::HalfDay:
      return second / 3600;
    case PatternField::Minute:
      return second / 60 % 60;
    case PatternField::Second:
      return second % 60;
    case PatternField::Literal:
      break;
  }
  return 0;
}

std::string listed(const QString& text) {
  return encodeSystemText(text).toStdString();
}

}  // namespace

ListedDates::ListedDates(const QLocale& locale)
    : writer_(locale),
      date_(partsOf(writer_.datePattern(), "")),
      time_(partsOf(writer_.timePattern(), " ")),
      zeroDate_(listed(writer_.text(0))),
      offsets_((kDays * kSecondsPerDay >> kBlockBits) + 1, kUnknown) {}

ListedDates::Parts ListedDates::partsOf(const DatePattern& pattern, const std::string& before) const {
  struct Field {
    PatternField field;
    std::vector<std::string> texts;
  };
  std::vector<Field> fields;
  std::string leading = before;
  for (const PatternPart& part : pattern) {
    if (part.field == PatternField::Literal) {
      leading += listed(part.text);
      continue;
    }
    const FieldRange range = rangeOf(part.field);
    Field& made = fields.emplace_back(Field{part.field, {}});
    for (int value = 0; value < range.values; ++value) {
      // A day that has this value, whichever of its fields the part shows.
      const CalendarDate date{kFirstYear + value, 1 + value % 12, 1 + value % 31};
      made.texts.push_back(leading + listed(writer_.partText(part, date, value * range.seconds)));
    }
    leading.clear();
  }
  for (std::string& text : fields.back().texts) text += leading;
  Parts parts;
  for (const Field& field : fields) addParts(parts, field.field, field.texts);
  return parts;
}

void ListedDates::addParts(Parts& parts, PatternField field, const std::vector<std::string>& texts) {
  std::size_t longest = 1;
  for (const std::string& text : texts) longest = std::max(longest, text.size());
  for (std::size_t from = 0; from < longest; from += ShortText::kRoom) {
    Part& part = parts.emplace_back(Part{field, std::vector<ShortText>(texts.size())});
    for (std::size_t value = 0; value < texts.size(); ++value) {
      if (texts[value].size() <= from) continue;
      ShortText& piece = part.texts[value];
      piece.length = static_cast<std::uint8_t>(texts[value].copy(piece.bytes.data(), ShortText::kRoom, from));
    }
  }
}

void ListedDates::append(std::string& line, std::int64_t seconds) {
  const std::int64_t instant = std::clamp(seconds, -kFarAway, kFarAway);
  appendWallClock(line, instant + offsetAt(instant));
}

void ListedDates::appendWallClock(std::string& line, std::int64_t seconds) {
  const std::int64_t local = std::clamp(seconds, -2 * kFarAway, 2 * kFarAway);
  const std::int64_t days = wholeDays(local);
  const auto second = static_cast<int>(local - days * kSecondsPerDay);
  if (days < 0 || days >= kDays) {
    appendRare(line, days, second);
    return;
  }
  const CalendarDate date = calendarDateOf(static_cast<int>(days) + kDayOf1970);
  const std::size_t start = line.size();
  line.resize(start + (date_.size() + time_.size()) * ShortText::kRoom);
  char* end = writeParts(line.data() + start, date_, date, second);
  if (second != 0) end = writeParts(end, time_, date, second);
  line.resize(static_cast<std::size_t>(end - line.data()));
}

char* ListedDates::writeParts(char* place, const Parts& parts, CalendarDate date, int second) {
  for (const Part& part : parts) {
    const ShortText& text = part.texts[static_cast<std::size_t>(valueOf(part.field, date, second))];
    std::memcpy(place, text.bytes.data(), ShortText::kRoom);
    place += text.length;
  }
  return place;
}

void ListedDates::appendRare(std::string& line, std::int64_t days, int second) const {
  const std::int64_t day = days + kDayOf1970;
  DayAndSecond moment{static_cast<int>(std::clamp<std::int64_t>(day, kFirstDay, kLastDay)), second};
  if (day < kFirstDay) moment.second = 0;
  if (day > kLastDay) moment.second = kSecondsPerDay - 1;
  line += listed(writer_.text(joinDateValue(moment)));
}

int ListedDates::offsetAt(std::int64_t seconds) {
  if (seconds < 0 || seconds >= kDays * kSecondsPerDay) return systemOffset(seconds);
  const std::int64_t block = seconds >> kBlockBits;
  std::int32_t& offset = offsets_[static_cast<std::size_t>(block)];
  if (offset == kUnknown) {
    const int atBegin = systemOffset(block << kBlockBits);
    offset = atBegin == systemOffset((block + 1) << kBlockBits) ? atBegin : kChanging;
  }
  return offset == kChanging ? systemOffset(seconds) : offset;
}

EntryLines::EntryLines(const QLocale& locale) : groupSign_(groupSignOf(locale)), dates_(locale) {}

void EntryLines::append(std::string& line, const ListedFile& file) {
  appendNameAndSize(line, file);
  if (file.modified) {
    dates_.append(line, *file.modified);
  } else {
    dates_.appendZero(line);
  }
}

void EntryLines::appendWithWallClock(std::string& line, const ListedFile& file) {
  appendNameAndSize(line, file);
  if (file.modified) {
    dates_.appendWallClock(line, *file.modified);
  } else {
    dates_.appendZero(line);
  }
}

void EntryLines::appendNameAndSize(std::string& line, const ListedFile& file) const {
  appendName(line, file.name);
  appendSize(line, file.size);
  line += " bytes ";
}

void EntryLines::appendName(std::string& line, std::string_view name) const {
  const std::string_view cut = cutToColumns(name, kNameColumns);
  if (isAscii(cut)) {
    std::array<char, kNameColumns> columns;
    columns.fill(' ');
    cut.copy(columns.data(), columns.size());
    line.append(columns.data(), columns.size());
    return;
  }
  line += cut;
  line.append(kNameColumns - characterCount(cut), ' ');
}

void EntryLines::appendSize(std::string& line, std::int64_t size) const {
  const std::int64_t shown = std::min(size, kLargestListedSize);
  std::array<char, kSizeColumns> digits;
  const char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), shown).ptr;
  const std::string_view number(digits.data(), static_cast<std::size_t>(end - digits.data()));
  const bool grouped = shown >= 1000 && shown <= kLargestGroupedSize;
  const std::size_t signs = grouped ? (number.size() - 1) / kGroup : 0;
  line.append(kSizeColumns - number.size() - signs, ' ');
  std::size_t place = number.size() - signs * kGroup;
  line += number.substr(0, place);
  for (; place < number.size(); place += kGroup) {
    line += groupSign_;
    line += number.substr(place, kGroup);
  }
}

}  // namespace quorvin
