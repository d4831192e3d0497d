// SPDX-License-Identifier: GPL-2.0-or-later

// Everything that is known of one hit, in words.
#pragma once

#include "search/hit_path.h"
#include "search/hit_table.h"

#include <QLocale>
#include <QString>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace quorvin {

/// A hit with what is known about where it comes from.
struct KnownHit {
  HitRow row;
  /// The path of the listing that it was found in.
  QString listing;
  /// Which words of the search it holds, as WordPlaces::explanation() says it; empty where there is one
  /// alone.
  QString words;
  /// Its file; empty where that cannot be found on a connected drive.
  HitPath file;
  /// Where its file should be; empty where no own folder is known for it.
  QString expectedPath;
  /// The folder of the online source that it is from; empty for other hits.
  QString sourceFolder;
  /// What the user has noted on its volume; empty for nothing.
  QString note;
};

/// One value of a hit: `name` is that of the control that shows it.
struct HitFact {
  QString name;
  QString label;
  QString value;
};

/// The values of a hit, in the order in which they are shown. The line number is not among them; it has to be
/// looked for in the listing (see EntryLineFinder).
std::vector<HitFact> factsOf(const KnownHit& hit, const QLocale& locale);

/// Where the file of a hit is, as a message: which volume is to be inserted, its listing, and what was
/// catalogued.
QString whichDiskText(const KnownHit& hit);

/// Looks for the line of an entry in a listing file, a stretch at a time, so that the program lives on.
class EntryLineFinder {
 public:
  /// Looks for the first entry with this volume, folder and entry text. A listing that cannot be opened holds
  /// none.
  EntryLineFinder(const QString& listing, const HitRow& wanted);
  ~EntryLineFinder();
  EntryLineFinder(const EntryLineFinder&) = delete;
  EntryLineFinder& operator=(const EntryLineFinder&) = delete;

  /// Reads on, a quarter of a megabyte or so. False when the search has ended.
  bool step();
  /// The line, from 1; nothing when there is none, or as long as it has not been found.
  std::optional<std::int64_t> line() const;

 private:
  class Reading;
  std::unique_ptr<Reading> reading_;
  std::optional<std::int64_t> line_;
};

}  // namespace quorvin
