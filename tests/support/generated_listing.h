// SPDX-License-Identifier: GPL-2.0-or-later

// Listings made at random from a seed, full of everything that is hard to read.
#pragma once

#include <QByteArray>
#include <QString>

#include <random>

namespace quorvin::test {

/// Makes listings of all line kinds: entry lines of 0 to 120 columns, most of them near the columns where a
/// rule changes, marks inside names, characters of several bytes, invalid bytes, both line ends and none.
class ListingMaker {
 public:
  explicit ListingMaker(unsigned seed) : random_(seed) {}

  /// A listing of at most `mostLines` lines.
  QByteArray listing(int mostLines);

  /// A search text in lower case that has a fair chance of hits in such listings.
  QString searchText();

  int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random_); }

 private:
  QByteArray line();
  QByteArray name(int columns);
  QByteArray writtenEntry();
  QByteArray piece();

  std::mt19937 random_;
};

}  // namespace quorvin::test
