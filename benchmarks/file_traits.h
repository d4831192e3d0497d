// SPDX-License-Identifier: GPL-2.0-or-later

// Believable sizes and dates for files of which only the name is known.
#pragma once

#include <cstdint>
#include <string_view>

namespace quorvin {

/// A moment of the years 1996 to 2026.
struct FileMoment {
  /// Days since 1 January 1996, 0 to kMomentDays - 1.
  int day = 0;
  /// 0 to 86,399.
  int secondOfDay = 0;
};

/// The days from 1 January 1996 to 31 December 2026.
inline constexpr int kMomentDays = 11323;
inline constexpr int kSecondsOfDay = 86400;

struct FileTraits {
  /// 0 to 2,147,483,647 bytes. Half of the files are below 8 KB; some three of a million have 1,000,000,000
  /// bytes or more, so that their size fills all 13 columns.
  std::int64_t size = 0;
  /// Evenly spread. One file in 86,400 is of exactly midnight and is listed without a time.
  FileMoment moment;
};

/// Equal seeds give equal traits.
FileTraits traitsOf(std::uint64_t seed);

}  // namespace quorvin
