// SPDX-License-Identifier: GPL-2.0-or-later

// The machine's time zone as a test needs it.
#pragma once

#include <QByteArray>

#include <ctime>

namespace quorvin::test {

/// Local time follows this rule as long as the object lives. Rules are in POSIX notation, which needs no
/// database of zones.
class TimeZone {
 public:
  explicit TimeZone(const char* rule) : before_(qgetenv("TZ")), wasSet_(qEnvironmentVariableIsSet("TZ")) {
    qputenv("TZ", rule);
    ::tzset();
  }
  ~TimeZone() {
    if (wasSet_) {
      qputenv("TZ", before_);
    } else {
      qunsetenv("TZ");
    }
    ::tzset();
  }
  TimeZone(const TimeZone&) = delete;
  TimeZone& operator=(const TimeZone&) = delete;

 private:
  QByteArray before_;
  bool wasSet_;
};

inline constexpr char kUtc[] = "UTC0";
inline constexpr char kCentralEurope[] = "CET-1CEST,M3.5.0,M10.5.0/3";

}  // namespace quorvin::test
