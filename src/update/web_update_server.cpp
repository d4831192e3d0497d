// SPDX-License-Identifier: GPL-2.0-or-later
#include "update/web_update_server.h"

#include "dates/general_date.h"
#include "faults/runtime_fault.h"
#include "platform/time_zone.h"

#include <QDateTime>
#include <QFileInfo>

#include <algorithm>
#include <limits>

namespace quorvin {
namespace {

// "Mon, " in front, and " GMT" behind.
constexpr qsizetype kBeforeDate = 5;
constexpr qsizetype kAroundDate = 9;

constexpr int kMinutesPerDay = 1440;
constexpr int kSecondsPerMinute = 60;

RuntimeFault faultAbout(FaultNumber number, const QString& text) {
  return {number, describe(number) + QStringLiteral(": \"%1\"").arg(text)};
}

std::int64_t minuteOf(DateValue moment) {
  const DayAndSecond split = splitDateValue(moment);
  return std::int64_t{split.day} * kMinutesPerDay + split.second / kSecondsPerMinute;
}

bool isDigit(QChar character) {
  return character >= u'0' && character <= u'9';
}

}  // namespace

QUrl webUpdateAddress(const QString& webServer, const QString& archiveFile) {
  const QString server = webServer.trimmed();
  const bool hasScheme = server.contains(QStringLiteral("://"));
  QUrl address(hasScheme ? server : QStringLiteral("http://") + server, QUrl::StrictMode);
  const bool isWeb =
      address.scheme() == QStringLiteral("http") || address.scheme() == QStringLiteral("https");
  if (!address.isValid() || !isWeb || address.host().isEmpty()) {
    throw RuntimeFault(FaultNumber::BadFileName,
                       describe(FaultNumber::BadFileName) + QStringLiteral(": ") + webServer);
  }
  address.setQuery(QString());
  address.setFragment(QString());
  QString path = address.path(QUrl::FullyEncoded);
  if (!path.endsWith(u'/')) path += u'/';
  // A name is a name, whatever signs of an address it holds.
  path += QString::fromLatin1(QUrl::toPercentEncoding(archiveFile, "/"));
  address.setPath(path, QUrl::StrictMode);
  return address;
}

DateValue serverDateOf(const QString& lastModified, const QLocale& locale) {
  const qsizetype length = lastModified.size() - kAroundDate;
  if (length < 0) throw faultAbout(FaultNumber::InvalidProcedureCall, lastModified);
  const QString text = lastModified.mid(kBeforeDate, length);
  const std::optional<DateValue> date = readGeneralDate(text, locale);
  if (!date) throw faultAbout(FaultNumber::TypeMismatch, text);
  return *date;
}

std::int32_t remoteSizeOf(const QString& contentLength) {
  const QString digits = contentLength.trimmed();
  if (digits.isEmpty() || !std::all_of(digits.begin(), digits.end(), isDigit)) {
    throw faultAbout(FaultNumber::TypeMismatch, contentLength);
  }
  bool fits = false;
  const qlonglong size = digits.toLongLong(&fits);
  if (!fits || size > std::numeric_limits<std::int32_t>::max()) {
    throw faultAbout(FaultNumber::Overflow, contentLength);
  }
  return static_cast<std::int32_t>(size);
}

std::int64_t minutesBetween(DateValue from, DateValue to) {
  return minuteOf(to) - minuteOf(from);
}

DateValue modifiedInUtc(const QString& path) {
  const QDateTime modified = QFileInfo(path).lastModified();
  const TimeZoneInformation zone = timeZoneInformation(modified.toSecsSinceEpoch());
  const int offset = zone.kind == ZoneTime::Daylight ? zone.bias + zone.daylightBias : zone.bias;
  const DayAndSecond local = splitDateValue(dateValueOf(modified.toLocalTime()));
  const std::int64_t seconds =
      std::int64_t{local.day} * kSecondsPerDay + local.second + std::int64_t{offset} * kSecondsPerMinute;
  // Rounded down, also for the years before the zero date.
  std::int64_t day = seconds / kSecondsPerDay;
  std::int64_t second = seconds % kSecondsPerDay;
  if (second < 0) {
    second += kSecondsPerDay;
    --day;
  }
  return joinDateValue({static_cast<int>(day), static_cast<int>(second)});
}

}  // namespace quorvin
