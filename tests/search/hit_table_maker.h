// SPDX-License-Identifier: GPL-2.0-or-later

// Hit tables full of hits whose order is known only to those who sort them.
#pragma once

#include "support/listing_lines.h"
#include "support/scan_of.h"

#include <QByteArray>

#include <random>

namespace quorvin::test {

/// A listing of `entries` files whose names, folders, volumes, sizes and dates repeat, differ late, differ in
/// capitals, in digits and in letters that are not ASCII; some have no size and date.
inline QByteArray mixedListing(int entries, unsigned seed) {
  std::mt19937 random(seed);
  const auto below = [&](unsigned limit) { return random() % limit; };
  const QByteArray names[] = {"Track ",        "track ", "changelog.Debian.", "changelog.Debiao.",
                              "\xC3\x84rger ", "a",      "index.html",        "Zo\xC3\xAB ",
                              "IMG_",          "lib"};
  QByteArray listing;
  for (int entry = 0; entry < entries; ++entry) {
    if (entry % 7 == 0) {
      listing += blockHead(entry % 3 == 0   ? "Disk 10"
                           : entry % 2 == 0 ? "disk 9"
                                            : "\xC3\x96l",
                           "\\" + names[below(10)] + QByteArray::number(below(30)) + "\\");
    }
    QByteArray name = names[below(10)];
    if (below(4) != 0) name += QByteArray::number(below(300));
    if (below(3) == 0) name += " live";
    const bool isNameOnly = below(9) == 0;
    const QByteArray size = QByteArray::number(below(20) * (below(5) == 0 ? 300'000'000U : 7U));
    const QByteArray date = QByteArray::number(10 + below(3)) + " Jan 200" + QByteArray::number(below(4)) +
                            " 10:20:3" + QByteArray::number(below(10));
    listing += isNameOnly ? name + "\r\n" : entryLine(name, size, date);
  }
  return listing;
}

/// Adds the entries of `listing` that hold one of the words to `table`, through segments of a few lines.
inline void fill(TestScan& scan, const QByteArray& listing, qsizetype segmentBytes = 20'000) {
  ScanLimits limits;
  limits.chunkSize = 1000;
  limits.passingSegment = static_cast<std::size_t>(segmentBytes);
  scan.run(MemoryListing(listing), limits);
}

}  // namespace quorvin::test
