#include "index/entry_line.h"

#include "dates/general_number.h"
#include "index/listed_name.h"
#include "platform/text_encoding.h"
#include "search/format/listing_columns.h"

#include <algorithm>
#include <array>
#include <charconv>

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

}  // namespace

EntryLines::EntryLines(const QLocale& locale) : groupSign_(groupSignOf(locale)), dates_(locale) {}

void EntryLines::append(std::string& line, const ListedFile& file) {
  appendName(line, file.name);
  appendSize(line, file.size);
  line += " bytes ";
  if (file.modified) {
    dates_.append(line, *file.modified);
  } else {
    dates_.appendZero(line);
  }
}

void EntryLines::appendName(std::string& line, std::string_view name) const {
  const std::string_view cut = cutToColumns(name, kNameColumns);
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
  if (!grouped) {
    line += number;
    return;
  }
  std::size_t place = number.size() - signs * kGroup;
  line += number.substr(0, place);
  for (; place < number.size(); place += kGroup) {
    line += groupSign_;
    line += number.substr(place, kGroup);
  }
}

}  // namespace quorvin
