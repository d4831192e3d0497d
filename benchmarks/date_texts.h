// SPDX-License-Identifier: GPL-2.0-or-later

// The text of each date of a generated catalogue, quickly.
#pragma once

#include "file_traits.h"

#include <QLocale>

#include <string>
#include <vector>

namespace quorvin {

/// Every date text comes from the program's own general date form, so a program of the same locale reads it
/// back. That form joins date and time with a blank, so its days and its times of day are each made once and
/// joined here: forming ten million whole dates would take longer than all else.
class DateTexts {
 public:
  explicit DateTexts(const QLocale& locale);

  /// Appends the text of `moment`; the time is left out at exactly midnight.
  void append(std::string& line, const FileMoment& moment) const;
  /// The text of the zero date, 30 December 1899, midnight.
  const std::string& zeroDate() const { return zeroDate_; }

 private:
  std::vector<std::string> days_;
  std::vector<std::string> times_;
  std::string zeroDate_;
};

}  // namespace quorvin
