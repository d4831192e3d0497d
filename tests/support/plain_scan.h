// SPDX-License-Identifier: GPL-2.0-or-later

// A second judge of scans, quick enough for millions of short listings. It shares nothing with the program
// but the readers of sizes and dates, and is itself held against the slow reference.
#pragma once

#include "dates/general_date_reader.h"
#include "support/reference_scan.h"

#include <QLocale>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace quorvin::test {

/// A hit with its texts in UTF-8.
struct PlainHit {
  int match = 0;
  std::string volume;
  std::string folder;
  std::string name;
  std::int64_t size = 0;
  double date = 0;

  bool operator==(const PlainHit&) const = default;
};

struct PlainResult {
  std::vector<PlainHit> hits;
  std::int64_t searched = 0;
  std::int64_t unreadable = 0;
  std::int64_t firstUnreadableLine = 0;

  bool operator==(const PlainResult&) const = default;
};

/// What the slow reference gives, in this form.
PlainResult plainForm(const ReferenceResult& result);

/// Names the first thing in which `result` differs from `expected`; empty where nothing does.
std::string differenceOf(const PlainResult& result, const PlainResult& expected);

/// Of the capitals outside ASCII and Latin-1 it knows only those that small listings are made of.
class PlainScan {
 public:
  explicit PlainScan(const QLocale& locale) : dates_(locale) {}

  /// Scans `listing` for the words of a search text in lower case.
  PlainResult scan(std::string_view listing, const std::vector<std::u32string>& words, int desiredMatch);

 private:
  struct Values {
    std::int64_t size;
    double date;
  };

  const std::optional<Values>& valuesOf(std::u32string_view tail);

  GeneralDateReader dates_;
  /// Tails come again and again; those that could not be read are known too.
  std::unordered_map<std::u32string, std::optional<Values>> knownTails_;
};

/// The words of a search text: cut at each blank but one in front, blanks around them taken off.
std::vector<std::u32string> plainWords(std::u32string_view searchText);

}  // namespace quorvin::test
