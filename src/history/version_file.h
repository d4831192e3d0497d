// SPDX-License-Identifier: GPL-2.0-or-later

// One kept version of a listing, in a file of its own. Layout: docs/formats/listing-history.md.
#pragma once

#include "faults/runtime_fault.h"
#include "files/file_writer.h"

#include <QString>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>

namespace quorvin {

/// Fault 57 for a version whose bytes are not what was written.
class DamagedVersion : public RuntimeFault {
 public:
  explicit DamagedVersion(const QString& what)
      : RuntimeFault(FaultNumber::DeviceError,
                     describe(FaultNumber::DeviceError) + QStringLiteral(": ") + what) {}
};

/// The bytes of a listing, front to back.
class ListingBytes {
 public:
  virtual ~ListingBytes() = default;

  /// Fills as much of `buffer`, which is not empty, as there are bytes left, and gives their number; 0 at the
  /// end. Throws RuntimeFault when reading fails, and DamagedVersion: once the last bytes of a version have
  /// come, all of them were right.
  virtual std::size_t read(std::span<char> buffer) = 0;
};

/// The listing at `path`. Throws RuntimeFault as SequentialFile does.
std::unique_ptr<ListingBytes> openListing(const QString& path);

/// What is known of the text of a listing.
struct ListingFacts {
  /// In bytes.
  std::uint64_t size = 0;
  /// Entry lines.
  std::uint64_t entries = 0;
  /// XXH3, 64 bits.
  std::uint64_t checksum = 0;

  bool operator==(const ListingFacts&) const = default;
};

/// Called every few megabytes: what works on large listings lets events run there.
using HistoryPause = std::function<void()>;

/// Reads `text` to its end. Throws as it does.
ListingFacts factsOf(ListingBytes& text, const HistoryPause& pause);

/// The head of a version's file.
struct VersionHead {
  ListingFacts text;
  /// When the listing was made: milliseconds since the start of 1970, UTC.
  std::int64_t made = 0;
  /// False when the rescan that made the listing was stopped before its end.
  bool isComplete = true;
  /// Where the file holds only what differs from another version: the checksum of that one's text.
  std::optional<std::uint64_t> base;
};

/// The head of the version in the file at `path`; nothing where there is none, or a damaged one. Throws
/// RuntimeFault when the file cannot be read.
std::optional<VersionHead> readVersionHead(const QString& path);

/// Opens the version in the file at `path`; `base` gives the text that it differs from, null for a whole
/// version. Throws RuntimeFault when the file cannot be opened, and DamagedVersion where its head is damaged.
std::unique_ptr<ListingBytes> openVersion(const QString& path, std::unique_ptr<ListingBytes> base);

/// Writes a version with this head and `text`, which must be the one that the head tells of: as what differs
/// from `base`, or whole where that is null. Less than 100 MB of memory are used, whatever the listing's
/// size. Throws RuntimeFault as the writer and the texts do, and fault 57 when `text` is another one.
void writeVersion(FileWriter& writer, const VersionHead& head, ListingBytes& text, ListingBytes* base,
                  const HistoryPause& pause);

}  // namespace quorvin
