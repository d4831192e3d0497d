// SPDX-License-Identifier: GPL-2.0-or-later

// The time zone that the machine is set to.
#pragma once

#include <cstdint>

namespace quorvin {

/// What kind of time a zone keeps at a moment.
enum class ZoneTime : int {
  /// The zone knows no daylight time.
  Unchanging = 0,
  Standard = 1,
  Daylight = 2,
};

/// A zone's distance from UTC, in minutes that are added to local time to get UTC: Central Europe has a bias
/// of -60 and a daylight bias of -60.
struct TimeZoneInformation {
  ZoneTime kind = ZoneTime::Unchanging;
  int bias = 0;
  /// To be added to the bias while daylight time is kept.
  int daylightBias = 0;

  bool operator==(const TimeZoneInformation&) const = default;
};

/// The machine's zone as it is at a moment, in seconds since 1970 UTC.
TimeZoneInformation timeZoneInformation(std::int64_t moment);

}  // namespace quorvin
