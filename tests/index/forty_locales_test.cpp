// SPDX-License-Identifier: GPL-2.0-or-later

// A catalogue travels: listings and settings that were written under one locale are read under another.
#include "dates/general_date.h"
#include "index/entry_line.h"
#include "state/settings.h"
#include "support/memory_settings_store.h"
#include "support/qt_printing.h"
#include "support/scan_of.h"
#include "support/sweep.h"
#include "support/time_zone.h"

#include <QSet>
#include <gtest/gtest.h>

#include <utility>

namespace quorvin {
namespace {

const QStringList kLocales = {
    u"C"_qs,     u"en_US"_qs, u"en_GB"_qs, u"de_DE"_qs, u"fr_FR"_qs, u"es_ES"_qs, u"it_IT"_qs, u"pt_BR"_qs,
    u"nl_NL"_qs, u"da_DK"_qs, u"fi_FI"_qs, u"el_GR"_qs, u"tr_TR"_qs, u"ru_RU"_qs, u"pl_PL"_qs, u"cs_CZ"_qs,
    u"hu_HU"_qs, u"ro_RO"_qs, u"bg_BG"_qs, u"uk_UA"_qs, u"he_IL"_qs, u"ar_EG"_qs, u"fa_IR"_qs, u"hi_IN"_qs,
    u"th_TH"_qs, u"ko_KR"_qs, u"ja_JP"_qs, u"zh_CN"_qs, u"zh_TW"_qs, u"vi_VN"_qs, u"id_ID"_qs, u"sv_SE"_qs,
    u"nb_NO"_qs, u"sk_SK"_qs, u"hr_HR"_qs, u"lt_LT"_qs, u"lv_LV"_qs, u"et_EE"_qs, u"sl_SI"_qs, u"fr_CA"_qs};

// Those with slashes between day, month and year, in this order or the American one. Other locales with the
// other order write just so; a date with two small numbers says nothing of its order.
const QStringList kWithSlashes = {u"ar_EG"_qs, u"el_GR"_qs, u"en_GB"_qs, u"es_ES"_qs, u"fr_FR"_qs,
                                  u"hi_IN"_qs, u"it_IT"_qs, u"pt_BR"_qs, u"vi_VN"_qs};
const QString kAmerican = u"en_US"_qs;
const QStringList kReadTheMonthFirst = {u"en_US"_qs, u"fa_IR"_qs, u"fr_CA"_qs, u"hu_HU"_qs, u"ja_JP"_qs,
                                        u"ko_KR"_qs, u"lt_LT"_qs, u"sv_SE"_qs, u"zh_CN"_qs, u"zh_TW"_qs};

/// Whether a date with two small numbers, written under one locale, is read as another under `reader`.
bool isAmbiguous(const QString& writer, const QString& reader) {
  if (writer == kAmerican) return !kReadTheMonthFirst.contains(reader);
  return kWithSlashes.contains(writer) && kReadTheMonthFirst.contains(reader);
}

/// Files of different days and times of day, in UTC. The first one's date has two small numbers.
std::vector<ListedFile> someFiles() {
  constexpr std::int64_t kThirdOfApril2026 = 1'775'221'449;
  constexpr std::int64_t kDay = 86'400;
  std::vector<ListedFile> files = {{"song first.mp3", 7, kThirdOfApril2026}};
  for (std::int64_t i = 0; i < test::sweep(1000, 40); ++i) {
    files.push_back({"song.mp3", 1000 * i, kThirdOfApril2026 - i * kDay * 17 + i * 4'321});
  }
  return files;
}

QByteArray listingOf(const std::vector<ListedFile>& files, const QString& locale) {
  EntryLines lines{QLocale(locale)};
  std::string text;
  for (const ListedFile& file : files) {
    lines.append(text, file);
    text += "\r\n";
  }
  return QByteArray::fromStdString(text);
}

QList<std::pair<std::int64_t, DateValue>> valuesIn(const QByteArray& listing, const QString& locale) {
  const auto result = test::scanOf(listing, u"song"_qs, 50, {}, QLocale(locale));
  EXPECT_EQ(result.unreadable, 0) << locale.toStdString();
  QList<std::pair<std::int64_t, DateValue>> values;
  for (const test::ReferenceHit& hit : result.hits) values.push_back({hit.size, hit.date});
  return values;
}

TEST(FortyLocales, EachListingIsReadTheSameUnderEachOther) {
  ASSERT_EQ(QSet<QString>(kLocales.begin(), kLocales.end()).size(), 40);
  const test::TimeZone zone(test::kUtc);
  const std::vector<ListedFile> files = someFiles();
  QList<std::pair<std::int64_t, DateValue>> expected;
  for (const ListedFile& file : files) {
    expected.push_back({file.size, dateValueOf(QDateTime::fromSecsSinceEpoch(*file.modified, Qt::UTC))});
  }
  for (const QString& writer : kLocales) {
    const QByteArray listing = listingOf(files, writer);
    for (const QString& reader : kLocales) {
      ASSERT_EQ(valuesIn(listing, reader), expected)
          << writer.toStdString() << " read under " << reader.toStdString() << '\n'
          << listing.left(300).toStdString();
    }
  }
}

TEST(FortyLocales, AListingOfOneAmbiguousDayIsReadInTheReadersOrder) {
  const test::TimeZone zone(test::kUtc);
  const std::vector<ListedFile> files = {someFiles().front()};
  const DateValue asWritten = dateValueOf(QDateTime::fromSecsSinceEpoch(*files[0].modified, Qt::UTC));
  const DateValue turned = asWritten - *dayNumberOf({2026, 4, 3}) + *dayNumberOf({2026, 3, 4});
  int ambiguous = 0;
  for (const QString& writer : kLocales) {
    const QByteArray listing = listingOf(files, writer);
    for (const QString& reader : kLocales) {
      const bool isTurned = isAmbiguous(writer, reader);
      ambiguous += isTurned ? 1 : 0;
      const auto values = valuesIn(listing, reader);
      ASSERT_EQ(values.size(), 1);
      ASSERT_NEAR(values[0].second, isTurned ? turned : asWritten, 1e-9)
          << writer.toStdString() << " read under " << reader.toStdString() << ": " << listing.toStdString();
    }
  }
  EXPECT_EQ(ambiguous, 120) << "of 1,560 pairs";
}

/// The joining date that is read under `reader` where `joinDate` was stored under `writer`.
DateValue joinDateAcross(DateValue joinDate, const QString& writer, const QString& reader) {
  MemorySettingsStore store;
  ProgramState state;
  readSettings(store, state, 0, QLocale::c());
  state.LocalFolder = u"/home/ann/lists/"_qs;
  state.NickName = u"Ann"_qs;
  state.JoinDate = joinDate;
  writeSettings(store, state, QLocale(writer));
  ProgramState later;
  readSettings(store, later, 0, QLocale(reader));
  EXPECT_EQ(later.LocalFolder, state.LocalFolder);
  EXPECT_EQ(later.NickName, state.NickName);
  return later.JoinDate;
}

/// Moments whose dates can be read in one way only, in any order of day and month; one of them is the zero
/// date.
const DayAndSecond kOfOneMeaning[] = {{38001, 47049}, {46022, 0}, {38112, 86399}, {0, 0}};

TEST(FortyLocales, SettingsAreReadTheSameUnderEachOther) {
  std::size_t pair = 0;
  for (const QString& writer : kLocales) {
    for (const QString& reader : kLocales) {
      for (const DayAndSecond& moment : kOfOneMeaning) {
        if (++pair % test::sweep<std::size_t>(1, 7) != 0) continue;
        const DateValue value = joinDateValue(moment);
        ASSERT_EQ(joinDateAcross(value, writer, reader), value)
            << writer.toStdString() << " read under " << reader.toStdString() << ": "
            << generalDateText(value, QLocale(writer)).toStdString();
      }
    }
  }
}

TEST(FortyLocales, AnAmbiguousSettingIsReadInTheReadersOrder) {
  const DateValue inQuestion = joinDateValue({*dayNumberOf({2026, 4, 3}), 47049});
  int ambiguous = 0;
  for (const QString& writer : kLocales) {
    for (const QString& reader : kLocales) {
      const bool isTurned = joinDateAcross(inQuestion, writer, reader) != inQuestion;
      ambiguous += isTurned ? 1 : 0;
      ASSERT_EQ(isTurned, isAmbiguous(writer, reader))
          << writer.toStdString() << " read under " << reader.toStdString();
    }
  }
  EXPECT_EQ(ambiguous, 120) << "of 1,560 pairs";
}

}  // namespace
}  // namespace quorvin
