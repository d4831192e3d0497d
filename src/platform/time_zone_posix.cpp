// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/time_zone.h"

#include <ctime>
#include <optional>

namespace quorvin {
namespace {

constexpr std::int64_t kSecondsPerMonth = 30 * 86400;
constexpr int kMonthsToLook = 12;
constexpr int kSecondsPerMinute = 60;

struct LocalClock {
  bool isDaylight = false;
  /// Minutes to be added to local time to get UTC.
  int bias = 0;
};

LocalClock localClockAt(std::int64_t moment) {
  const auto seconds = static_cast<std::time_t>(moment);
  std::tm local{};
  if (::localtime_r(&seconds, &local) == nullptr) return {};
  return {local.tm_isdst > 0, static_cast<int>(-local.tm_gmtoff / kSecondsPerMinute)};
}

// The nearest time of the other kind within a year, earlier before later.
std::optional<LocalClock> otherClock(std::int64_t moment, bool isDaylight) {
  for (int months = 1; months <= kMonthsToLook; ++months) {
    for (const std::int64_t distance : {-months * kSecondsPerMonth, months * kSecondsPerMonth}) {
      const LocalClock clock = localClockAt(moment + distance);
      if (clock.isDaylight != isDaylight) return clock;
    }
  }
  return std::nullopt;
}

}  // namespace

TimeZoneInformation timeZoneInformation(std::int64_t moment) {
  ::tzset();
  const LocalClock clock = localClockAt(moment);
  const std::optional<LocalClock> other = otherClock(moment, clock.isDaylight);
  if (!other) return {ZoneTime::Unchanging, clock.bias, 0};
  if (clock.isDaylight) return {ZoneTime::Daylight, other->bias, clock.bias - other->bias};
  return {ZoneTime::Standard, clock.bias, other->bias - clock.bias};
}

}  // namespace quorvin
