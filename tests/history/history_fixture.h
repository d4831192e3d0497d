// SPDX-License-Identifier: GPL-2.0-or-later

// A data folder whose listings are replaced.
#pragma once

#include "history/listing_history.h"
#include "support/listing_lines.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <vector>

namespace quorvin::test {

/// All bytes of a text.
inline QByteArray allOf(ListingBytes& text) {
  QByteArray bytes;
  std::vector<char> buffer(50'000);
  while (const std::size_t count = text.read(buffer))
    bytes.append(buffer.data(), static_cast<qsizetype>(count));
  return bytes;
}

/// A listing with so many entries, whose names begin with `name`.
inline QByteArray listingOf(int entries, const QByteArray& name = "song") {
  QByteArray listing = blockHead("MUSIC", "\\Music\\");
  for (int entry = 1; entry <= entries; ++entry) listing += entryLine(name + ' ' + QByteArray::number(entry));
  return listing;
}

class HistoryTest : public testing::Test {
 protected:
  /// Replaces "Music.txt" as a refresh does.
  KeptListing put(const QByteArray& listing, bool isComplete = true) {
    const QString made = data.writeFile(u"Music.tmp"_qs, listing);
    const KeptListing kept = history.keep(kMusic, made, isComplete);
    data.writeFile(kMusic, listing);
    QFile::remove(made);
    return kept;
  }

  QByteArray textOf(int number) { return allOf(*history.text(kMusic, number)); }
  std::vector<int> numbers() {
    std::vector<int> numbers;
    for (const ListingVersion& version : history.versions(kMusic)) numbers.push_back(version.number);
    return numbers;
  }
  QString fileOf(int number) {
    return u"history/Music.txt/%1.version"_qs.arg(number, 8, 10, QLatin1Char('0'));
  }

  const QString kMusic = QStringLiteral("Music.txt");
  TemporaryFolder data;
  ListingHistory history{data.path()};
};

}  // namespace quorvin::test
