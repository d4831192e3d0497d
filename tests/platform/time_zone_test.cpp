// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/time_zone.h"

#include "support/time_zone.h"

#include <gtest/gtest.h>

#include <ostream>

namespace quorvin {

static void PrintTo(const TimeZoneInformation& zone, std::ostream* out) {
  *out << static_cast<int>(zone.kind) << ' ' << zone.bias << ' ' << zone.daylightBias;
}

namespace {

using test::TimeZone;

// 15 January and 15 July 2004, noon UTC.
constexpr std::int64_t kWinter = 1'074'168'000;
constexpr std::int64_t kSummer = 1'089'892'800;

TEST(TimeZoneInformation, OfCentralEurope) {
  const TimeZone zone(test::kCentralEurope);
  EXPECT_EQ(timeZoneInformation(kWinter), (TimeZoneInformation{ZoneTime::Standard, -60, -60}));
  EXPECT_EQ(timeZoneInformation(kSummer), (TimeZoneInformation{ZoneTime::Daylight, -60, -60}));
}

TEST(TimeZoneInformation, OfAZoneWestOfGreenwich) {
  const TimeZone zone("EST5EDT,M3.2.0,M11.1.0");
  EXPECT_EQ(timeZoneInformation(kWinter), (TimeZoneInformation{ZoneTime::Standard, 300, -60}));
  EXPECT_EQ(timeZoneInformation(kSummer), (TimeZoneInformation{ZoneTime::Daylight, 300, -60}));
}

TEST(TimeZoneInformation, OfTheSouth) {
  const TimeZone zone("LHST-10:30LHDT-11,M10.1.0,M4.1.0");
  EXPECT_EQ(timeZoneInformation(kWinter), (TimeZoneInformation{ZoneTime::Daylight, -630, -30}));
  EXPECT_EQ(timeZoneInformation(kSummer), (TimeZoneInformation{ZoneTime::Standard, -630, -30}));
}

TEST(TimeZoneInformation, WithoutDaylightTime) {
  const TimeZone zone("IST-5:30");
  EXPECT_EQ(timeZoneInformation(kWinter), (TimeZoneInformation{ZoneTime::Unchanging, -330, 0}));
  const TimeZone utc(test::kUtc);
  EXPECT_EQ(timeZoneInformation(kSummer), (TimeZoneInformation{ZoneTime::Unchanging, 0, 0}));
}

}  // namespace
}  // namespace quorvin
