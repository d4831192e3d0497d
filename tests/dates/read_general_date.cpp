// SPDX-License-Identifier: GPL-2.0-or-later
#include "dates/read_general_date.h"

#include "dates/general_date_reader.h"

#include <QString>

namespace quorvin {

void PrintTo(const DateCase& row, std::ostream* out) {
  *out << row.locale;
}

QLocale localeNamed(const char* name) {
  return std::string(name) == "C" ? QLocale::c() : QLocale(QString::fromLatin1(name));
}

std::string isoOf(std::optional<DateValue> value) {
  if (!value) return kRefused;
  return dateTimeOf(*value).toString(u"yyyy-MM-dd HH:mm:ss").toStdString();
}

std::string nameOfCase(const testing::TestParamInfo<DateCase>& info) {
  return std::string(info.param.locale) + "_" + std::to_string(info.index + 1);
}

TEST_P(ReadGeneralDate, GivesWhatTheTextMeans) {
  const DateCase& row = GetParam();
  const GeneralDateReader reader(localeNamed(row.locale), kTestYear);
  EXPECT_EQ(isoOf(reader.read(QString::fromUtf8(row.text))), row.expected) << row.text;
}

}  // namespace quorvin
