// SPDX-License-Identifier: GPL-2.0-or-later

// Reading dates as people and listings write them. An input is a byte for the locale, and the text in UTF-8.
#include "dates/general_date.h"
#include "dates/general_date_reader.h"
#include "dates/general_date_writer.h"
#include "fuzz/require.h"

#include <QStringDecoder>

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace quorvin::fuzz {
namespace {

constexpr const char* kLocales[] = {"C",     "en_US", "en_GB", "de_DE", "fr_FR", "es_ES", "it_IT", "pt_BR",
                                    "nl_NL", "da_DK", "fi_FI", "el_GR", "tr_TR", "ru_RU", "pl_PL", "cs_CZ",
                                    "hu_HU", "ro_RO", "bg_BG", "uk_UA", "he_IL", "ar_EG", "fa_IR", "hi_IN",
                                    "th_TH", "ko_KR", "ja_JP", "zh_CN", "zh_TW", "vi_VN", "id_ID", "sv_SE",
                                    "nb_NO", "ca_ES", "eu_ES", "et_EE", "lv_LV", "lt_LT", "sk_SK", "sl_SI"};
constexpr int kYear = 2026;

struct Dates {
  explicit Dates(const char* name)
      : locale(QString::fromLatin1(name)), reader(locale, kYear), writer(locale) {}

  QLocale locale;
  GeneralDateReader reader;
  GeneralDateWriter writer;
};

const Dates& datesOf(std::uint8_t choice) {
  static std::vector<std::unique_ptr<Dates>> made(std::size(kLocales));
  const std::size_t number = choice % std::size(kLocales);
  if (!made[number]) made[number] = std::make_unique<Dates>(kLocales[number]);
  return *made[number];
}

void check(const Dates& dates, const QString& text) {
  const std::optional<DateValue> value = dates.reader.read(text);
  require(text.size() <= 200 || !value, "a text of more than 200 characters is no date");
  if (!value) return;
  const DayAndSecond split = splitDateValue(*value);
  require(split.day >= kFirstDay && split.day <= kLastDay, "a date is one of the calendar");
  require(joinDateValue(split) == *value, "a date is a whole second");
  const QString written = dates.writer.text(*value);
  require(dates.reader.read(written) == value, "a written date is read back");
  require(shortMonthDateText(*value, dates.locale).size() > 2, "a date can be shown");
  const QString blanks(2, u' ');
  if (text.size() <= 196)
    require(dates.reader.read(blanks + text + blanks) == value, "blanks around do not count");
}

}  // namespace
}  // namespace quorvin::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quorvin::fuzz;
  if (size == 0) return 0;
  const Dates& dates = datesOf(data[0]);
  const std::string_view bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
  QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
  const QString text = decoder(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())));
  check(dates, text);
  const auto read = dates.reader.readAscii(bytes);
  if (!decoder.hasError()) require(read == dates.reader.read(text), "bytes and letters are read alike");
  return 0;
}
