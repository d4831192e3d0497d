// SPDX-License-Identifier: GPL-2.0-or-later

// What is on volumes, summed as plainly as possible.
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <cstdint>
#include <optional>
#include <random>
#include <string>
#include <vector>

namespace quorvin::test {

/// An entry of a catalogue that a test makes up.
struct VolumeEntry {
  int listing;
  QString volume;
  QString folder;
  QString name;
  /// Nothing for a line that ends behind the name; -1 for a file that was gone.
  std::optional<std::int64_t> size = {};
  QDateTime date = {};
};

/// Catalogues with entries that are hard to sum: without values, of huge sizes, of the same moment, on
/// volumes that come and go within a listing.
std::vector<VolumeEntry> madeUpEntries(unsigned seed, int listings, std::size_t count);

/// The bytes of the listings of these entries, which come in their order.
std::vector<QByteArray> listingsOfEntries(const std::vector<VolumeEntry>& entries, int listings);

/// A line for each volume: "0 VOLUME: 3 entries, 1 without size, 1024 bytes, newest 2004-01-15T10:20:30
/// \Folder\ name".
std::vector<std::string> plainVolumes(const std::vector<VolumeEntry>& entries);

}  // namespace quorvin::test
